#pragma once

#include <vector>

#include "forms/controls.h"
#include "forms/form.h"
#include "pictures/album_base.h"
#include "pictures/album_search.h"
#include "pictures/album_sheet.h"
#include "pictures/key_words.h"
#include "pictures/sheet_page.h"
#include "pictures/wall.h"
#include "ports/surroundings.h"

namespace pictures {

/// The album: classes pictures under a patient, a diagnosis and key words, finds them again, shows them on a wall or
/// large, and prints up to six of them on a sheet. Pictures stay in their files.
class Form20 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form20";

    explicit Form20(ports::Surroundings& around);

    forms::Menu Fichiers{*this, "Fichiers", "&Fichier"};
    forms::Menu Ouvrir{*this, "Ouvrir", "Ouvrir un Cliché"};
    forms::Menu AjoutAlb{*this, "AjoutAlb", "Ajouter à l'Album"};
    forms::Menu Imprim{*this, "Imprim", "Imprimer"};
    forms::Menu Qui{*this, "Qui", "&Quitter"};
    forms::Menu Recherche{*this, "Recherche", "&Recherche"};
    forms::Menu TriDate{*this, "TriDate", "Trie par Date"};
    forms::Menu TriNom{*this, "TriNom", "Trie par Nom"};
    forms::Menu TriDiag{*this, "TriDiag", "Trie par Diagnostic"};
    forms::Menu Critri{*this, "Critri", "&Gestion des Critères de Tri"};
    forms::Menu Ajouter{*this, "Ajouter", "Ajouter"};
    forms::Menu ADiagno{*this, "ADiagno", "Diagnostic"};
    forms::Menu AClef1{*this, "AClef1", "Mot Clef N°1"};
    forms::Menu AClef2{*this, "AClef2", "Mot clef N°2"};
    forms::Menu AClef3{*this, "AClef3", "Mot Clef N°3"};
    forms::Menu Supprimer{*this, "Supprimer", "Supprimer"};
    forms::Menu SDiagno{*this, "SDiagno", "Diagnostic"};
    forms::Menu SClef1{*this, "SClef1", "Mot Clef N°1"};
    forms::Menu SClef2{*this, "SClef2", "Mot clef N°2"};
    forms::Menu SClef3{*this, "SClef3", "Mot Clef N°3"};
    forms::Menu Interro{*this, "Interro", "&?"};
    forms::Menu Aide{*this, "Aide", "Aide"};

    // The picture in hand: the one about to be classed, or the one in view.
    forms::Button CmdOuvrir{*this, "CmdOuvrir", "&Ouvrir un cliché"};
    forms::Button CmdAjouter{*this, "CmdAjouter", "Ajouter à l'al&bum"};
    forms::Label Label4{*this, "Label4", "Fichier"};
    forms::Label LblFilename{*this, "LblFilename"};
    forms::Label LblPath{*this, "LblPath"};
    forms::Frame Frame2{*this, "Frame2", "Cliché"};
    forms::Image ImgCharge{*this, "ImgCharge"};
    forms::Label Label18{*this, "Label18", "Donnez un nom et critères de tri à ce cliché puis ajoutez à l'album"};
    forms::Label Label5{*this, "Label5"};
    forms::TextBox TxtNom{*this, "TxtNom"};
    forms::TextBox TxtPrenom{*this, "TxtPrenom"};
    forms::TextBox TxtDate{*this, "TxtDate"};
    forms::TextBox TxtNumEcho{*this, "TxtNumEcho"};
    forms::Option Option1{*this, "Option1", "Obs. 1 Ter"};
    forms::Option Option2{*this, "Option2", "Obs. 2 Ter"};
    forms::Option Option3{*this, "Option3", "Obs. 3 Ter"};
    forms::Option Option4{*this, "Option4", "Gynéco"};
    forms::ComboBox CmbDiagno{*this, "CmbDiagno"};
    forms::Button CmdAjouD{*this, "CmdAjouD", "Ajout"};
    forms::ComboBox CmbCrit1{*this, "CmbCrit1"};
    forms::Button CmdAjouC1{*this, "CmdAjouC1", "Ajout"};
    forms::ComboBox CmbCrit2{*this, "CmbCrit2"};
    forms::Button CmdAjouC2{*this, "CmdAjouC2", "Ajout"};
    forms::ComboBox CmbCrit3{*this, "CmbCrit3"};
    forms::Button CmdAjouC3{*this, "CmdAjouC3", "Ajout"};

    // The sheet to print, seen in small in the place of the picture in hand.
    forms::Frame PctImp{*this, "PctImp"};
    forms::TextBox TxtImp{*this, "TxtImp"};
    forms::Array<forms::Image> ImgImp{*this, "ImgImp", 1, kMostOnSheet};
    forms::Button CmdImp{*this, "CmdImp", "&Imprimer"};
    forms::Button CmdFerm{*this, "CmdFerm", "Fer&mer"};

    // The wall, and one picture large in front of it.
    forms::Array<forms::Image> Image1{*this, "Image1", 0, Wall::kPlaces - 1};
    forms::Array<forms::TextBox> TxtPath{*this, "TxtPath", 0, Wall::kPlaces - 1};
    forms::Image Image2{*this, "Image2"};
    forms::Button CmdImpr{*this, "CmdImpr", "&A Imprimer"};
    forms::Button CmdFermer{*this, "CmdFermer", "Fermer &la vue"};

    forms::Frame Frame1{*this, "Frame1", "Rechercher"};
    forms::TextBox TxtRechNom{*this, "TxtRechNom"};
    forms::TextBox TxtRechDate{*this, "TxtRechDate"};
    forms::TextBox TxtRechNumEcho{*this, "TxtRechNumEcho"};
    forms::ComboBox CmbRechDiag{*this, "CmbRechDiag"};
    forms::ComboBox CmbRechCrit1{*this, "CmbRechCrit1"};
    forms::ComboBox CmbRechCrit2{*this, "CmbRechCrit2"};
    forms::ComboBox CmbRechCrit3{*this, "CmbRechCrit3"};
    forms::Option Option5{*this, "Option5", "Obst. 1 T"};
    forms::Option Option6{*this, "Option6", "Obst. 2 T"};
    forms::Option Option7{*this, "Option7", "Obst. 3 T"};
    forms::Option Option8{*this, "Option8", "Gynéco"};
    forms::Option Option9{*this, "Option9", "Tous dossiers"};
    forms::Button Command1{*this, "Command1", "R&echercher"};
    /// What the last search found, a line and a path at the same index.
    forms::ListBox ListNom{*this, "ListNom"};
    forms::ListBox List4{*this, "List4"};
    forms::Button CmdAffiche{*this, "CmdAffiche", "Afficher les &clichés"};

    /// The text at the head and the foot of a sheet. Brings up the capture window's fields, loading it if need be.
    std::vector<SheetLine> ENTETE() const;
    /// Prints the sheet on the standard printer and keeps it; nothing if it is empty. Throws DeviceError.
    void Imprime();
    /// Ask whether to offer the diagnosis or key word of the picture in hand from now on.
    void AJOU_DIAGNO() { keyWords_.add(0); }
    void AJOU_CRIT1() { keyWords_.add(1); }
    void AJOU_CRIT2() { keyWords_.add(2); }
    void AJOU_CRIT3() { keyWords_.add(3); }
    /// Search by one field and sort; nothing if it is empty.
    void TRI_DATE() { searchSorted(SortedSearch::Date, TxtRechDate.text()); }
    void TRI_NOM() { searchSorted(SortedSearch::Surname, TxtRechNom.text()); }
    void TRI_DIAG() { searchSorted(SortedSearch::Diagnosis, CmbRechDiag.text()); }

private:
    void load() override;
    void hideAtFirst();
    void fillFrames();
    void wireMenus();
    void wirePictureInHand();
    void wireSheet();
    void wireSearch();
    void wireViews();

    void openFile();
    void classPicture();
    void addTo(store::Recordset& pictures) const;
    store::Value chosenKind() const;

    void searchAll();
    void searchSorted(SortedSearch by, const QString& text);
    QString wantedKind() const;
    void clearLists();
    void showFound(const FoundPictures& found);
    void showPage();

    void viewFromWall(int place);
    void viewFromPaths();
    void viewFromLines();
    store::Recordset recordOf(QStringView field, const QString& text) const;
    /// Runs the way to a picture. One that leads nowhere ends in the question whether to forget the picture's record.
    template <class Step>
    void viewOrDeclass(const QString& path, Step step);
    void view(const store::Recordset& record, const QString& path);
    void closeView();
    void askToDeclass(const QString& path);

    void addToSheet();
    void openSheet();
    void closeSheet();
    void emptySheet();
    void arrangePreview();
    void chooseAndPrint();
    QString captureHeading() const;
    void print(ports::Printer& printer) const;

    ports::Surroundings& around_;
    AlbumBase base_;
    KeyWords keyWords_;
    Wall wall_;
    /// The pictures of the sheet, in the order in which they were added, and how often one was asked for.
    std::vector<QImage> sheet_;
    int calls_ = 0;
};

}  // namespace pictures
