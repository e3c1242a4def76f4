#include "pictures/form19.h"

#include <QDir>
#include <iterator>

#include "base/dates.h"
#include "base/numbers.h"
#include "base/quoted_items.h"
#include "base/text_file.h"
#include "dossier/form4.h"
#include "forms/desk.h"
#include "pictures/bitmap_file.h"
#include "pictures/common_dialog.h"
#include "pictures/frm_cpr.h"
#include "pictures/picture_file.h"

namespace pictures {
namespace {

using ports::Icon;

const QString kNoCard = QStringLiteral("Pas de connection à la carte video");
const QString kNoPicture = QStringLiteral(
    "Pas d'image selectionnéee. Veuillez selectionner le cliché à archiver par double clic sur le coin "
    "de l'image désirée.");
const QString kNotCaptured = QStringLiteral("Veuillez capturer une image avant de la selectionner.");
const QString kTooFew = QStringLiteral("Veuillez selectionner %1 clichés.");
const QString kArchiveFilter = QStringLiteral("Fichiers Jpeg (*.JPG)|*.jpg|Fichiers BMP (*.BMP)|*.bmp");
const QString kBitmapFilter = QStringLiteral("Fichiers BMP (*.BMP)|*.bmp");
const QString kJpegFilter = QStringLiteral("Fichiers JPG (*.JPG)|*.jpg");
constexpr int kJpeg = 1;

/// A date text as it stands in the names of pictures: year, month and day of two digits each. What is no date stays.
QString compactDate(const QString& text, QDate today) {
    const auto date = base::readDate(text, today);
    return date ? date->toString(QStringLiteral("yyMMdd")) : text;
}

}  // namespace

Form19::Form19(ports::Surroundings& around)
    : Form(around.desk, kName.toString(), QStringLiteral("Gestion des clichés")), around_(around) {
    Fichiers.holds(OuvJpg, EnregBmp, EnregJpg, imprimer, Archiver, Album, Qui);
    Image3.hide();
    Command6.hide();
    wireFiles();
    wireWall();
}

void Form19::wireFiles() {
    OuvJpg.onClick = [this] { openPicture(); };
    EnregBmp.onClick = [this] { Enreg_BMP(); };
    EnregJpg.onClick = [this] { Enreg_JPG(); };
    imprimer.onClick = [this] { printOnChosen(); };
    Archiver.onClick = [this] { ARCHIVE(); };
    Album.onClick = [this] { desk().show(QStringLiteral("Form20")); };
    Qui.onClick = [this] { unload(); };
    Command4.onClick = [this] { CAPTURE(); };
    Command5.onClick = [this] { ARCHIVE(); };
    Command1.onClick = [this] { Imprim(); };
}

void Form19::wireWall() {
    for (int slot = 1; slot <= kSlots; ++slot) {
        Image1(slot).hide();
        Image2(slot).onClick = [this, slot] { select(slot); };
        Image2(slot).onDoubleClick = [this, slot] { view(slot); };
    }
    Command2.onClick = [this] { clearSelection(); };
    Command3.onClick = [this] {
        clearSelection();
        clearWall();
    };
    Command6.onClick = [this] { closeView(); };
}

void Form19::load() {
    takeIdentity();
    if (const auto* dossier = desk().peek<dossier::Form4>()) {
        TxtEntete.setText(dossier->TxtEta.text());
    }
}

// The album loads the window for its heading alone: that is no reason to hold the card, and another dossier may be open
// by the time somebody sees it.
void Form19::showing() {
    if (!live_) {
        live_ = true;
        takeIdentity();
        around_.pictureSource.start([this](const QImage& frame) { ezVidCap1.setPicture(frame); });
    }
}

void Form19::unloading() {
    around_.pictureSource.stop();
    clearSelection();
    clearWall();
    base::replaceTextFile(around_.programFolder + QStringLiteral("/Entet.txt"),
                          base::quotedItem(TxtEntete.text()) + QStringLiteral("\r\n"));
}

// Without its bases the dossier window can't come up: nobody is named then.
void Form19::takeIdentity() {
    txtDatexam.setText(base::shortDate(around_.clock.today()));
    try {
        const auto& dossier = desk().at<dossier::Form4>();
        TxtNom.setText(dossier.NomLbl.text());
        TxtPrenom.setText(dossier.PrenomLbl.text());
        CmbCivilite.setText(dossier.LblCivilite.text());
    } catch (const base::RuntimeError&) {
        for (forms::TextControl* field :
             std::initializer_list<forms::TextControl*>{&TxtNom, &TxtPrenom, &CmbCivilite}) {
            field->setText({});
        }
    }
}

QString Form19::slotFile(int slot) const {
    return around_.programFolder + QStringLiteral("/Cliche%1.BMP").arg(slot);
}

void Form19::CAPTURE() {
    counter_ = static_cast<std::int16_t>(counter_ % kSlots + 1);
    const QImage frame = around_.pictureSource.grab();
    try {
        saveSlot(frame, slotFile(counter_));
        Image2(counter_).setPicture(loadPicture(slotFile(counter_)));
    } catch (const base::RuntimeError&) {
        around_.boxes.message(kNoCard);
    }
}

int Form19::places() const {
    const std::pair<const forms::Option&, int> options[] = {{Option2, 2}, {Option4, 4}, {Option6, 6}, {Option8, 8}};
    for (const auto& [option, number] : options) {
        if (option.checked()) {
            return number;
        }
    }
    return 0;
}

void Form19::select(int slot) {
    if (std::ssize(selection_) >= places()) {
        return;
    }
    if (Image2(slot).empty()) {
        around_.boxes.message(kNotCaptured);
        return;
    }
    selection_.push_back(Image2(slot).picture());
    Image1(slot).show();
}

void Form19::view(int slot) {
    if (Image2(slot).empty()) {
        return;
    }
    Image1(slot).hide();
    Image3.setPicture(Image2(slot).picture());
    Image3.show();
    Command6.show();
}

void Form19::closeView() {
    Image3.hide();
    Command6.hide();
    Image3.clear();
}

void Form19::clearSelection() {
    selection_.clear();
    for (int slot = 1; slot <= kSlots; ++slot) {
        Image1(slot).hide();
    }
}

void Form19::clearWall() {
    for (int slot = 1; slot <= kSlots; ++slot) {
        Image2(slot).clear();
    }
}

void Form19::openPicture() {
    OpenFile request{.filter = QStringLiteral("Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO")};
    if (!openFile(around_.fileDialogs, request)) {
        return;
    }
    Image3.show();
    Command6.show();
    try {
        Image3.setPicture(loadPicture(request.file));
    } catch (const base::RuntimeError&) {
        around_.boxes.message(QStringLiteral("Fichier non chargé '%1'").arg(request.file), Icon::Information);
    }
}

bool Form19::nothingToSave() {
    if (Image3.empty()) {
        around_.boxes.message(kNoPicture);
    }
    return Image3.empty();
}

bool Form19::chooseName(const ports::SaveRequest& request, int& filter) {
    const auto choice = around_.fileDialogs.save(request);
    if (choice) {
        fileName_ = choice->file;
        filter = choice->filter;
    }
    return choice.has_value();
}

QString Form19::shortName() const {
    constexpr int kSurname = 4, kFirstName = 3;
    return TxtNom.text().left(kSurname) + u'_' + TxtPrenom.text().left(kFirstName);
}

void Form19::ARCHIVE() {
    if (nothingToSave()) {
        return;
    }
    std::int32_t number = 0;
    try {
        number = TxtNumEcho.text().isEmpty() ? 0 : base::toInt32(base::toNumber(TxtNumEcho.text()));
    } catch (const base::RuntimeError&) {
        return;
    }
    const QString folder = around_.programFolder + QStringLiteral("/VIDEOTEK");
    QDir().mkpath(folder);
    int filter = kJpeg;
    const QString date = compactDate(txtDatexam.text(), around_.clock.today());
    if (!chooseName({.filter = kArchiveFilter,
                     .proposed = shortName() + date + u'_' + QString::number(number),
                     .folder = folder,
                     .filterIndex = kJpeg},
                    filter)) {
        return;
    }
    if (filter == kJpeg) {
        desk().show(FrmCpr::kName.toString());
        return;
    }
    saveBitmap();
    offerToAlbum(around_, albumEntry());
}

void Form19::Enreg_BMP() {
    int filter = 1;
    if (nothingToSave() || !chooseName({.filter = kBitmapFilter, .proposed = shortName()}, filter)) {
        return;
    }
    around_.boxes.message(fileName_);
    saveBitmap();
}

void Form19::Enreg_JPG() {
    int filter = 1;
    if (nothingToSave() || !chooseName({.filter = kJpegFilter, .proposed = shortName()}, filter)) {
        return;
    }
    around_.boxes.message(fileName_);
    desk().show(FrmCpr::kName.toString());
}

void Form19::saveBitmap() const {
    savePicture(Image3.picture(), fileName_);
}

AlbumEntry Form19::albumEntry() const {
    return {Image3.picture(), fileName_, TxtNom.text(), TxtPrenom.text(), txtDatexam.text(), TxtNumEcho.text()};
}

std::vector<SheetLine> Form19::ENTETE() const {
    return {
        openingLine(),
        {.text = TxtEntete.text(), .bold = true},
        {.text = {}, .bold = true},
        {.text = QStringLiteral("%1 %2 %3").arg(CmbCivilite.text(), TxtNom.text(), TxtPrenom.text()), .bold = true},
        {.text = txtDatexam.text()},
        footLine(),
    };
}

void Form19::Imprim() {
    print(around_.printers.standard().get());
}

void Form19::printOnChosen() {
    try {
        around_.printers.choose([this](ports::Printer& printer) { print(&printer); });
    } catch (const base::RuntimeError&) {
        // The person has seen the printer's own dialog; the sheet is simply not there.
    }
}

void Form19::print(ports::Printer* printer) {
    const int number = places();
    if (std::ssize(selection_) < number) {
        around_.boxes.message(kTooFew.arg(number));
        return;
    }
    if (number == 0) {
        return;
    }
    if (!printer) {
        throw base::RuntimeError(base::ErrorNumber::DeviceError);
    }
    const forms::BusyPointer busy(*this);
    SheetPage page(*printer, title());
    for (const SheetLine& line : ENTETE()) {
        page.print(line);
    }
    page.draw(selection_, arrangementFor(kOnPaper, number));
    page.end();
}

}  // namespace pictures
