// The small text files beside the program: the report style, the introduction, anything of quoted items.

#include <QFile>
#include <QTemporaryDir>

#include "base/errors.h"
#include "base/quoted_items.h"
#include "base/text_file.h"
#include "exams/settings_file.h"
#include "responses/introduction.h"
#include "target.h"

namespace {

void put(const QString& path, const QByteArray& content) {
    QFile file(path);
    fuzz::demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the file can be written");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    const QByteArray content = fuzz::bytes(data, size);
    const QString text = base::decodeText(content);
    fuzz::demand(base::readItems(base::quotedItem(text)) == QStringList{text}, "a quoted item reads as its text", text);

    put(folder.filePath(QStringLiteral("intro")), content);
    responses::Introduction(folder.path()).read();
    put(folder.filePath(QStringLiteral("Settings")), content);
    const auto marks = exams::readSettings(folder.path());
    if (marks) {
        exams::writeSettings(folder.path(), {});
        fuzz::demand(exams::readSettings(folder.path()) == marks, "marks that nobody changes stay", text);
    }
    return 0;
}
