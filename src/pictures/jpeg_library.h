#pragma once

#include <QString>

#include "pictures/dib_section.h"

namespace pictures::mIntelJPEGLibrary {

/// Saves a bitmap as a JPEG file. `quality` goes from 1 to 100; it is handed on as it stands: the encoder takes 0 for 1
/// and refuses what lies outside. True on success.
///
/// A file of this name keeps its times of creation, access and change, and its attributes. On any failure it stays as
/// it was. Throws JpegSave (26001): "Failed to initialise the IJL library: -1" if the encoder can't be started, "Failed
/// to save to JPG -1" if it refuses, -2 if the file can't be written.
bool SaveJPG(const cDIBSection& bitmap, const QString& file, int quality);

}  // namespace pictures::mIntelJPEGLibrary
