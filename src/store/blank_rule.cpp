#include "store/blank_rule.h"

#include <algorithm>

#include "store/schema.h"

namespace store {

bool blankWhenEmpty(const QString& field) {
    static const QStringList exceptions{"NOM", "SEXE", "ALSACEMOSELLE", "ASSURE", "DIVERS4"};
    const auto& fields = fieldsOf(QStringLiteral("FICHEPATIENT"));
    return !exceptions.contains(field, Qt::CaseInsensitive) &&
           std::any_of(fields.begin(), fields.end(), [&](const Field& known) {
               return known.kind == FieldKind::Text && known.name.compare(field, Qt::CaseInsensitive) == 0;
           });
}

QString orBlank(const QString& text) {
    return text.isEmpty() ? QStringLiteral(" ") : text;
}

}  // namespace store
