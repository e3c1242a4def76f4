#include "qt/real_picture_source.h"

#include "pictures/capture_text.h"
#include "qt/video_device.h"

namespace qt {

void RealPictureSource::start(std::function<void(const QImage&)> live) {
    live_ = std::move(live);
    connect();
}

void RealPictureSource::stop() {
    capture_.stop();
    live_ = nullptr;
}

QImage RealPictureSource::grab() {
    if (!capture_.running()) {
        connect();
    }
    return capture_.grab();
}

QString RealPictureSource::pipeline() const {
    const pictures::CaptureSettings settings = pictures::readCaptureSettings(settings_);
    const bool whole = !settings.pipeline.isEmpty();
    const QString device = settings.device.isEmpty() && !whole ? firstVideoDevice() : settings.device;
    if (!whole && !settings.input.isEmpty() && !selectVideoInput(device, settings.input)) {
        return {};
    }
    return pictures::pipelineText(settings, device);
}

void RealPictureSource::connect() {
    const QString text = pipeline();
    if (text.isEmpty() || !capture_.start(text)) {
        capture_.stop();
        show({});
    }
}

void RealPictureSource::show(const QImage& frame) const {
    if (live_) {
        live_(frame);
    }
}

}  // namespace qt
