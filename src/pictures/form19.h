#pragma once

#include <QImage>
#include <cstdint>
#include <vector>

#include "forms/controls.h"
#include "forms/form.h"
#include "pictures/album_entry.h"
#include "pictures/sheet_page.h"
#include "ports/surroundings.h"

namespace pictures {

/// Grabs still pictures from the ultrasound machine, holds twelve of them on a wall, prints and saves them.
class Form19 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form19";
    static constexpr int kSlots = 12;

    explicit Form19(ports::Surroundings& around);

    forms::Menu Fichiers{*this, "Fichiers", "&Fichier"};
    forms::Menu OuvJpg{*this, "OuvJpg", "&Ouvrir .JPG, .BMP"};
    forms::Menu EnregBmp{*this, "EnregBmp", "Enregistrer sous .&BMP "};
    forms::Menu EnregJpg{*this, "EnregJpg", "Enregistrer sous .&JPG "};
    forms::Menu imprimer{*this, "imprimer", "&Imprimer"};
    forms::Menu Archiver{*this, "Archiver", "&Archiver"};
    forms::Menu Album{*this, "Album", "Al&bum"};
    forms::Menu Qui{*this, "Qui", "&Quitter"};

    forms::TextBox TxtEntete{*this, "TxtEntete"};
    forms::ComboBox CmbCivilite{*this, "CmbCivilite", {"Mme", "Mlle", "Madame", "Mademoiselle"}};
    forms::TextBox TxtNom{*this, "TxtNom"};
    forms::TextBox TxtPrenom{*this, "TxtPrenom"};
    forms::TextBox txtDatexam{*this, "txtDatexam"};
    forms::TextBox TxtNumEcho{*this, "TxtNumEcho"};

    /// The live picture.
    forms::Image ezVidCap1{*this, "ezVidCap1"};
    /// The wall, and the marks of the selected pictures.
    forms::Array<forms::Image> Image2{*this, "Image2", 1, kSlots};
    forms::Array<forms::Image> Image1{*this, "Image1", 1, kSlots};
    /// One picture at full size: the one that is saved and archived.
    forms::Image Image3{*this, "Image3"};
    forms::Button Command6{*this, "Command6", "&Fermer"};

    forms::Option Option2{*this, "Option2", "X 2"};
    forms::Option Option4{*this, "Option4", "X 4"};
    forms::Option Option6{*this, "Option6", "X 6", true};
    forms::Option Option8{*this, "Option8", "X 8"};

    forms::Button Command4{*this, "Command4", "&Capturer"};
    forms::Button Command5{*this, "Command5", "&Archiver"};
    forms::Button Command1{*this, "Command1", "&Imprimer"};
    forms::Button Command2{*this, "Command2", "&Effacer les sélections"};
    forms::Button Command3{*this, "Command3", " &Ré Initialiser"};

    void ARCHIVE();
    /// Grabs a picture into the next slot, whose file it replaces.
    void CAPTURE();
    void Enreg_BMP();
    void Enreg_JPG();
    /// The heading and the foot of a sheet.
    std::vector<SheetLine> ENTETE() const;
    /// Prints the selected pictures on one sheet of the printer that serves where none is chosen.
    void Imprim();

    /// Takes the patient of the open dossier and today's date; the wall and the heading of the sheet stay.
    void takeIdentity();
    /// The picture in full size, under the name that was last chosen for it.
    AlbumEntry albumEntry() const;
    const std::vector<QImage>& selection() const { return selection_; }

private:
    void wireFiles();
    void wireWall();
    void load() override;
    void showing() override;
    void unloading() override;

    void select(int slot);
    void view(int slot);
    void closeView();
    void clearSelection();
    void clearWall();
    void openPicture();
    void printOnChosen();
    void print(ports::Printer* printer);
    void saveBitmap() const;
    bool nothingToSave();
    bool chooseName(const ports::SaveRequest& request, int& filter);
    QString shortName() const;
    QString slotFile(int slot) const;
    /// How many pictures a sheet takes as the options say; 0 if none is on.
    int places() const;

    ports::Surroundings& around_;
    bool live_ = false;
    std::int16_t counter_ = 0;
    std::vector<QImage> selection_;
    /// The name that was last chosen in the dialog.
    QString fileName_;
};

}  // namespace pictures
