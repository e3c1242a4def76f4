#pragma once

namespace base {

/// From now on every file and folder that the process makes can be read and written by its owner alone: they hold what
/// patients trust a doctor with.
void keepFilesPrivate();

}  // namespace base
