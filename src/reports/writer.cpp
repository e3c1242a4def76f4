#include "reports/writer.h"

#include <utility>

namespace reports {

QString lineEnds(int count) {
    return kLineEnd.repeated(count);
}

QString blanks(int count) {
    return QString(count, u' ');
}

template <class Op>
void Writer::set(std::optional<Op>& state, const Op& wanted) {
    if (state != wanted) {
        state = wanted;
        operations_.push_back(wanted);
    }
}

Writer& Writer::align(forms::Alignment alignment) {
    set(alignment_, SelAlignment{alignment});
    return *this;
}

Writer& Writer::size(double points) {
    set(size_, SelFontSize{points});
    return *this;
}

Writer& Writer::bold(bool on) {
    set(bold_, SelBold{on});
    return *this;
}

Writer& Writer::text(const QString& text) {
    operations_.push_back(SelText{text});
    return *this;
}

Writer& Writer::heading(const QString& text) {
    return bold(true).text(text).bold(false);
}

Writer& Writer::item(const QString& text) {
    return this->text(blanks(10) + text + kLineEnd);
}

Report Writer::finish() {
    operations_.push_back(SelStart{0});
    return {std::move(operations_), std::nullopt};
}

Report Writer::fail(base::ErrorNumber why) {
    return {std::move(operations_), why};
}

}  // namespace reports
