#pragma once

#include <QTemporaryDir>

#include "qt/real_picture_source.h"

namespace port {

/// A machine whose camera shows a picture file, or that has none.
class PortPictureSource final : public qt::RealPictureSource {
public:
    using RealPictureSource::RealPictureSource;

    /// What the camera shows from now on, in any format that the toolkit reads; false, and no change, if it is no
    /// picture.
    bool setImage(const QString& path);
    /// No camera on this machine.
    void unplug();

protected:
    QString pipeline() const override;

private:
    void replug();

    /// Holds the picture in the one format for which the pipeline is made.
    QTemporaryDir folder_;
    bool plugged_ = false;
};

}  // namespace port
