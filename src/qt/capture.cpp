#include "qt/capture.h"

#include <gst/app/gstappsink.h>
#include <gst/gst.h>
#include <gst/video/video.h>

#include <QObject>

namespace qt {
namespace {

constexpr qint64 kOldestMilliseconds = 500;
constexpr std::uint64_t kLongestWait = GST_SECOND;

// No queue: whoever comes for a picture gets the newest.
const QString kTail =
    QStringLiteral(" ! videoconvert ! video/x-raw,format=BGRx ! appsink name=sink sync=false max-buffers=1 drop=true");

/// A copy of a picture in the memory of the pipeline.
QImage imageOf(GstSample* sample) {
    GstVideoInfo info;
    GstVideoFrame frame;
    if (!gst_video_info_from_caps(&info, gst_sample_get_caps(sample)) ||
        !gst_video_frame_map(&frame, &info, gst_sample_get_buffer(sample), GST_MAP_READ)) {
        return {};
    }
    const QImage seen(static_cast<const uchar*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, 0)), GST_VIDEO_FRAME_WIDTH(&frame),
                      GST_VIDEO_FRAME_HEIGHT(&frame), GST_VIDEO_FRAME_PLANE_STRIDE(&frame, 0), QImage::Format_RGB32);
    QImage copy = seen.copy();
    gst_video_frame_unmap(&frame);
    return copy;
}

GstElement* parse(const QString& text) {
    GError* error = nullptr;
    GstElement* pipeline =
        gst_parse_launch_full(text.toUtf8().constData(), nullptr, GST_PARSE_FLAG_FATAL_ERRORS, &error);
    if (error) {
        qWarning("%s", error->message);
        g_error_free(error);
        g_clear_object(&pipeline);
    }
    return pipeline;
}

}  // namespace

void Capture::Unref::operator()(_GstElement* element) const {
    gst_object_unref(element);
}

bool Capture::start(const QString& pipeline) {
    stop();
    gst_init(nullptr, nullptr);
    pipeline_.reset(parse(pipeline + kTail));
    if (!pipeline_) {
        return false;
    }
    sink_.reset(gst_bin_get_by_name(GST_BIN(pipeline_.get()), "sink"));
    receiver_ = std::make_unique<QObject>();
    listen();
    // Not waited for the first picture: a card that delivers none would hold up the window.
    if (gst_element_set_state(pipeline_.get(), GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE) {
        stop();
        return false;
    }
    return true;
}

// Both are called on threads of the pipeline.
void Capture::listen() {
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = [](GstAppSink*, gpointer self) {
        static_cast<Capture*>(self)->announce();
        return GST_FLOW_OK;
    };
    gst_app_sink_set_callbacks(GST_APP_SINK(sink_.get()), &callbacks, this, nullptr);
    GstBus* bus = gst_element_get_bus(pipeline_.get());
    const GstBusSyncHandler handler = [](GstBus*, GstMessage* message, gpointer self) {
        if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR || GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS) {
            auto* capture = static_cast<Capture*>(self);
            capture->lost_ = true;
            QMetaObject::invokeMethod(
                capture->receiver_.get(), [capture] { capture->lose(); }, Qt::QueuedConnection);
        }
        gst_message_unref(message);
        return GST_BUS_DROP;
    };
    gst_bus_set_sync_handler(bus, handler, this, nullptr);
    gst_object_unref(bus);
}

void Capture::announce() {
    if (!announced_.exchange(true)) {
        QMetaObject::invokeMethod(
            receiver_.get(), [this] { take(); }, Qt::QueuedConnection);
    }
}

void Capture::take() {
    announced_ = false;
    if (running() && !pull(0).isNull()) {
        live_(last_);
    }
}

void Capture::lose() {
    stop();
    live_({});
}

void Capture::stop() {
    if (pipeline_) {
        GstBus* bus = gst_element_get_bus(pipeline_.get());
        gst_bus_set_sync_handler(bus, nullptr, nullptr, nullptr);
        gst_object_unref(bus);
        gst_element_set_state(pipeline_.get(), GST_STATE_NULL);
    }
    sink_.reset();
    pipeline_.reset();
    receiver_.reset();
    announced_ = false;
    lost_ = false;
    last_ = {};
}

QImage Capture::pull(std::uint64_t nanoseconds) {
    GstSample* sample = gst_app_sink_try_pull_sample(GST_APP_SINK(sink_.get()), nanoseconds);
    if (!sample) {
        return {};
    }
    last_ = imageOf(sample);
    age_.start();
    gst_sample_unref(sample);
    return last_;
}

QImage Capture::grab() {
    if (!running()) {
        return {};
    }
    if (const QImage newest = pull(0); !newest.isNull()) {
        return newest;
    }
    if (!last_.isNull() && age_.elapsed() <= kOldestMilliseconds) {
        return last_;
    }
    const QImage awaited = pull(kLongestWait);
    return running() ? awaited : QImage();
}

}  // namespace qt
