#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "practice/practice.h"

namespace practice {

/// What the check of one file, or of what ties the files together, has found. No faults: it is sound.
struct Finding {
    QString subject;
    QStringList faults;
};

/// Checks the four files by themselves, wherever they are: each is there, is of its kind and version, is whole,
/// and has its tables and indexes as they were made. Changes nothing. Throws PermissionDenied or RecordLocked if a file
/// can't be read now.
std::vector<Finding> checkFiles(const Paths& files);

/// Checks the four files in `folder` in this way; every exam and every history belongs to a patient. Changes nothing.
/// Throws PathNotFound if the folder isn't there, PermissionDenied or RecordLocked if a file can't be read now.
std::vector<Finding> check(const QString& folder);

}  // namespace practice
