#include "port/port_picture_source.h"

namespace port {

QString PortPictureSource::pipeline() const {
    if (path_.isEmpty()) {
        return {};
    }
    QString escaped = path_;
    escaped.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return QStringLiteral("filesrc location=\"%1\" ! decodebin ! imagefreeze is-live=true").arg(escaped);
}

}  // namespace port
