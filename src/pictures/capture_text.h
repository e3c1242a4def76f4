#pragma once

#include <QString>

#include "ports/settings.h"

namespace pictures {

/// Where the live picture comes from, as the settings of this person say. All are empty at first.
struct CaptureSettings {
    /// "VIDEOCHAINE": a whole pipeline in GStreamer's own words, up to a raw picture. It goes before all others. It is
    /// as strong as a command line: it may write files and open connections.
    QString pipeline;
    /// "VIDEO": the device, for instance "/dev/v4l/by-id/...", which stays the same when it is plugged elsewhere.
    /// Empty is the first one of the machine.
    QString device;
    /// "VIDEONORME": "PAL", "SECAM", "NTSC", for cards with an analog input. Empty leaves the card as it is.
    QString norm;
    /// "VIDEOENTREE": the card's input by its name, for instance "S-Video". Empty leaves the card as it is.
    QString input;
};

CaptureSettings readCaptureSettings(const ports::Settings& settings);

/// The pipeline of these settings; `device` is the one in use. Empty if there is no device or a norm is no name.
QString pipelineText(const CaptureSettings& settings, const QString& device);

}  // namespace pictures
