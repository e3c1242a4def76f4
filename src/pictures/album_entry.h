#pragma once

#include <QImage>
#include <QString>

#include "ports/surroundings.h"

namespace pictures {

/// A saved picture on its way into the album.
struct AlbumEntry {
    QImage picture;
    /// The full name of its file.
    QString file;
    QString surname;
    QString firstName;
    QString examDate;
    QString examNumber;
};

/// Asks whether the picture is to be classed, and on Yes opens the album with it.
void offerToAlbum(ports::Surroundings& around, const AlbumEntry& entry);

}  // namespace pictures
