// Picture files: refused by an error of the program's own, or loaded within the limits of size, whole or as a
// thumbnail.

#include "pictures/picture_file.h"

#include <QFile>
#include <QTemporaryDir>

#include "base/errors.h"
#include "target.h"

namespace {

constexpr QSize kBox(120, 90);

bool isRefusal(base::ErrorNumber number) {
    return number == base::ErrorNumber::InvalidPicture;
}

template <class Load>
void tryTo(Load load) {
    try {
        fuzz::demand(!load().isNull(), "what is loaded is a picture");
    } catch (const base::RuntimeError& error) {
        fuzz::demand(isRefusal(error.number()), "a broken picture is refused as one", error.text());
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("image"));
    const QByteArray content = fuzz::bytes(data, size);
    QFile file(path);
    fuzz::demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the file can be written");
    file.close();
    tryTo([&] { return pictures::loadPicture(path); });
    tryTo([&] { return pictures::loadThumbnail(path, kBox); });
    return 0;
}
