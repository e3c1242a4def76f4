#include "pictures/album_entry.h"

#include <QFileInfo>

#include "forms/controls.h"

namespace pictures {
namespace {

void openAlbum(forms::Desk& desk, const AlbumEntry& entry) {
    const QString name = QStringLiteral("Form20");
    desk.show(name);
    const forms::Form* album = desk.peek(name);
    if (!album) {
        return;
    }
    static_cast<forms::Image*>(album->find(u"ImgCharge"))->setPicture(entry.picture);
    const std::pair<QStringView, QString> texts[] = {
        {u"LblFilename", QFileInfo(entry.file).fileName()},
        {u"LblPath", entry.file},
        {u"TxtNom", entry.surname},
        {u"TxtPrenom", entry.firstName},
        {u"TxtDate", entry.examDate},
        {u"TxtNumEcho", entry.examNumber},
    };
    for (const auto& [control, text] : texts) {
        static_cast<forms::TextControl*>(album->find(control))->setText(text);
    }
    album->find(u"Label18")->show();
}

}  // namespace

void offerToAlbum(ports::Surroundings& around, const AlbumEntry& entry) {
    const ports::Asking noAtEnter{.title = QStringLiteral("Pelorine "), .defaultAnswer = ports::DefaultAnswer::No};
    if (around.boxes.ask(QStringLiteral("Voulez vous classer maintenant la photo dans l'album?"), ports::Icon::Question,
                         noAtEnter)) {
        openAlbum(around.desk, entry);
    }
}

}  // namespace pictures
