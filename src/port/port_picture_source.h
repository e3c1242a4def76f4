#pragma once

#include "qt/real_picture_source.h"

namespace port {

/// A machine whose camera shows a picture file, or that has none.
class PortPictureSource final : public qt::RealPictureSource {
public:
    using RealPictureSource::RealPictureSource;

    /// What the camera shows from now on; an empty path: no camera on this machine.
    void setImage(const QString& path) {
        path_ = path;
        if (started()) {
            connect();
        }
    }

protected:
    QString pipeline() const override;

private:
    QString path_;
};

}  // namespace port
