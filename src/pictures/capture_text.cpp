#include "pictures/capture_text.h"

#include <algorithm>

namespace pictures {
namespace {

QString quoted(QString text) {
    return u'"' + text.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\"")) + u'"';
}

bool isName(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'-'); });
}

}  // namespace

CaptureSettings readCaptureSettings(const ports::Settings& settings) {
    const auto read = [&settings](const QString& key) {
        return settings.read(ports::kApplication, ports::kSection, key).trimmed();
    };
    return {read(QStringLiteral("VIDEOCHAINE")), read(QStringLiteral("VIDEO")), read(QStringLiteral("VIDEONORME")),
            read(QStringLiteral("VIDEOENTREE"))};
}

QString pipelineText(const CaptureSettings& settings, const QString& device) {
    if (!settings.pipeline.isEmpty()) {
        return settings.pipeline;
    }
    if (device.isEmpty() || !isName(settings.norm)) {
        return {};
    }
    const QString source = QStringLiteral("v4l2src device=") + quoted(device);
    // A card with a norm delivers half pictures in turn; one field of two is enough and keeps the rate.
    return settings.norm.isEmpty() ? source + QStringLiteral(" ! decodebin")
                                   : QStringLiteral("%1 norm=%2 ! deinterlace fields=top").arg(source, settings.norm);
}

}  // namespace pictures
