#pragma once

#include <QImage>
#include <functional>

namespace ports {

/// What delivers the live picture of the ultrasound machine.
class PictureSource {
public:
    virtual ~PictureSource() = default;

    /// Connects and hands each new picture to `live` until `stop`, an empty one when the connection is lost. Without a
    /// connection nothing comes.
    virtual void start(std::function<void(const QImage&)> live) = 0;
    virtual void stop() = 0;
    /// The picture of this moment; the empty one if there is no connection. It tries to connect anew where the
    /// connection was lost.
    virtual QImage grab() = 0;
};

}  // namespace ports
