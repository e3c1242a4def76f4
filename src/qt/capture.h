#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QString>
#include <atomic>
#include <functional>
#include <memory>

struct _GstElement;
struct _GstSample;

namespace qt {

/// A live picture out of a GStreamer pipeline. All members run on the thread of the windows.
class Capture {
public:
    /// `live` is told each new picture, and an empty one when the connection is lost.
    explicit Capture(std::function<void(const QImage&)> live) : live_(std::move(live)) {}
    ~Capture() { stop(); }
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;

    /// Runs a pipeline, given in GStreamer's own words up to a raw picture. False, with nothing running, if it can't be
    /// made or refuses to start.
    bool start(const QString& pipeline);
    void stop();
    /// Whether it was started and has not been lost since.
    bool running() const { return pipeline_ && !lost_; }
    /// The newest picture, not older than half a second; it waits up to a second for the first one. Empty if none
    /// comes.
    QImage grab();

private:
    struct Unref {
        void operator()(_GstElement* element) const;
    };
    using Element = std::unique_ptr<_GstElement, Unref>;

    void listen();
    void announce();
    void take();
    void lose();
    QImage pull(std::uint64_t nanoseconds);

    std::function<void(const QImage&)> live_;
    Element pipeline_;
    Element sink_;
    /// Receives what the pipeline's own threads have to tell; what is still on its way goes with it.
    std::unique_ptr<QObject> receiver_;
    std::atomic<bool> announced_ = false;
    std::atomic<bool> lost_ = false;
    QImage last_;
    QElapsedTimer age_;
};

}  // namespace qt
