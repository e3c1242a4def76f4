#pragma once

#include <QByteArrayView>
#include <QString>

namespace pictures {

/// Makes bytes the whole content of a file and tells whether that went well.
///
/// A file that exists stays the same file: it keeps its times of creation, access and change, its attributes, owner and
/// links. The content is first flushed to the disk under another name beside it, so that one whole copy is there
/// whenever the program or the machine stops. On a failure, that of a full disk included, the old content stays.
bool writeInto(const QString& path, QByteArrayView bytes);

/// The same without care for what was there: quick, for files that nobody misses.
bool writePlainly(const QString& path, QByteArrayView bytes);

}  // namespace pictures
