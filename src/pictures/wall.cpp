#include "pictures/wall.h"

#include "base/errors.h"
#include "pictures/picture_file.h"

namespace pictures {
namespace {

bool isGone(base::ErrorNumber number) {
    return number == base::ErrorNumber::FileNotFound || number == base::ErrorNumber::PathNotFound;
}

}  // namespace

void Wall::clear() {
    for (int place = 0; place < kPlaces; ++place) {
        pictures_(place).clear();
        paths_(place).setText({});
    }
}

void Wall::showNext(const QStringList& files) {
    for (int place = 0; place < kPlaces; ++place) {
        showAt(place, files.value(next_ + place));
    }
    next_ = next_ + kPlaces < files.size() ? next_ + kPlaces : 0;
}

void Wall::showAt(int place, const QString& file) {
    pictures_(place).clear();
    paths_(place).setText(file);
    try {
        pictures_(place).setPicture(loadThumbnail(file, kThumbnail));
    } catch (const base::RuntimeError& error) {
        if (isGone(error.number())) {
            paths_(place).setText({});
            return;
        }
        boxes_.message(QStringLiteral("Erreur de connection avec la base. \r\n"
                                      "Ou le chemin d'un fichier image est erroné."),
                       ports::Icon::Exclamation);
    }
}

}  // namespace pictures
