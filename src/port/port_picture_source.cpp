#include "port/port_picture_source.h"

namespace port {
namespace {

const QString kPicture = QStringLiteral("camera.png");

}  // namespace

bool PortPictureSource::setImage(const QString& path) {
    const QImage picture(path);
    if (picture.isNull() || !picture.save(folder_.filePath(kPicture))) {
        return false;
    }
    plugged_ = true;
    replug();
    return true;
}

void PortPictureSource::unplug() {
    plugged_ = false;
    replug();
}

void PortPictureSource::replug() {
    if (started()) {
        connect();
    }
}

QString PortPictureSource::pipeline() const {
    return plugged_ ? QStringLiteral("filesrc location=\"%1\" ! pngdec ! imagefreeze is-live=true")
                          .arg(folder_.filePath(kPicture))
                    : QString();
}

}  // namespace port
