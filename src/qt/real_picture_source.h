#pragma once

#include "ports/picture_source.h"
#include "ports/settings.h"
#include "qt/capture.h"

namespace qt {

/// The card or camera that the settings name.
class RealPictureSource : public ports::PictureSource {
public:
    explicit RealPictureSource(const ports::Settings& settings) : settings_(settings) {}

    void start(std::function<void(const QImage&)> live) override;
    void stop() override;
    QImage grab() override;

protected:
    /// What is connected to, as a pipeline; empty if there is nothing.
    virtual QString pipeline() const;
    bool started() const { return static_cast<bool>(live_); }
    /// Connects, in the place of what was connected before.
    void connect();

private:
    void show(const QImage& frame) const;

    const ports::Settings& settings_;
    std::function<void(const QImage&)> live_;
    Capture capture_{[this](const QImage& frame) { show(frame); }};
};

}  // namespace qt
