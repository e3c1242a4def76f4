#pragma once

#include <gtest/gtest.h>

#include "dossier/form4.h"
#include "fakes/practice_files.h"
#include "forms/desk.h"
#include "pictures/form19.h"
#include "pictures/frm_cpr.h"
#include "pictures/samples.h"
#include "store/state.h"

namespace pictures {

/// What the capture window hands to the album.
class BareAlbum final : public forms::Form {
public:
    explicit BareAlbum(forms::Desk& desk) : Form(desk, "Form20", "Album") { Label18.hide(); }
    forms::Image ImgCharge{*this, "ImgCharge"};
    forms::Label LblFilename{*this, "LblFilename"};
    forms::Label LblPath{*this, "LblPath"};
    forms::TextBox TxtNom{*this, "TxtNom"};
    forms::TextBox TxtPrenom{*this, "TxtPrenom"};
    forms::TextBox TxtDate{*this, "TxtDate"};
    forms::TextBox TxtNumEcho{*this, "TxtNumEcho"};
    forms::Label Label18{*this, "Label18"};
};

/// The picture windows on a practice whose one patient is Mme DUPONT Marie; the machine's date is 05/04/2002.
class PictureWindows : public ::testing::Test, public dossier::ExamDoors {
protected:
    PictureWindows() {
        fakes::makeFiles(world_);
        fakes::addPatient(world_, 1, "DOSSIER MODELE", " ");
        fakes::addPatient(world_, 2, "DUPONT", "Marie", {{"Civilitee", "Mme"}});
        fakes::add(world_, "OPTIONS", {{"NUMEROS", 19}, {"Texte", "Cabinet du Parc"}});
        auto& windows = world_.desk;
        windows.add("Form1", [&windows] { return std::make_unique<BareAlbum>(windows); });
        windows.add("Form4", [&] { return std::make_unique<dossier::Form4>(world_.around, state_, *this); });
        windows.add("Form19", [&] { return std::make_unique<Form19>(world_.around); });
        windows.add("Form20", [&windows] { return std::make_unique<BareAlbum>(windows); });
        windows.add("FrmCpr", [&] { return std::make_unique<FrmCpr>(world_.around); });
    }

    /// The capture window, opened on the dossier of DUPONT.
    Form19& open() {
        desk().act([this] {
            desk().at<dossier::Form4>().Text1.setText("DUPONT");
            desk().show("Form19");
        });
        return desk().at<Form19>();
    }
    template <class Pressed>
    void press(Pressed& control) {
        desk().act([&] { control.click(); });
    }
    void twice(forms::Image& image) {
        desk().act([&] { image.doubleClick(); });
    }
    void capture(Form19& form, const QImage& picture) {
        world_.pictureSource.show(picture);
        press(form.Command4);
    }
    /// So many captures, each of a grey of its own.
    void captures(Form19& form, int count) {
        for (int i = 1; i <= count; ++i) {
            capture(form, plain(QColor(i * 10, i * 10, i * 10)));
        }
    }
    static int greyOf(const QImage& picture) { return picture.isNull() ? -1 : qRed(picture.pixel(0, 0)); }
    QList<int> selected(const Form19& form) {
        QList<int> greys;
        for (const QImage& picture : form.selection()) {
            greys << greyOf(picture);
        }
        return greys;
    }
    QList<int> marks(const Form19& form) {
        QList<int> shown;
        for (int slot = 1; slot <= Form19::kSlots; ++slot) {
            if (form.Image1(slot).visible()) {
                shown << slot;
            }
        }
        return shown;
    }
    /// A picture in full size, and the name that the dialog will answer.
    Form19& ready(const QString& name, int filter) {
        Form19& form = open();
        capture(form, sample(72, 58));
        twice(form.Image2(1));
        world_.fileDialogs.savedAs = ports::SaveChoice{path(name), filter};
        return form;
    }
    forms::Desk& desk() { return world_.desk; }
    QString path(const QString& name) const { return world_.folder.filePath(name); }
    bool shown(const QString& form) {
        const forms::Form* found = world_.desk.peek(form);
        return found && found->shown();
    }
    BareAlbum& album() { return static_cast<BareAlbum&>(desk().at("Form20")); }
    const QStringList& said() const { return world_.boxes.said; }

    void openNew(dossier::ExamFamily) override {}
    void showObstetricExam() override {}
    void showGynaecologyExam() override {}
    void nameNewExam(const QString&, const QString&) override {}

    fakes::World world_;
    store::State state_;
};

inline const QString kNoCard = QStringLiteral("Pas de connection à la carte video");
inline const QString kNoPicture = QStringLiteral(
    "Pas d'image selectionnéee. Veuillez selectionner le cliché à archiver par double clic sur le coin de l'image "
    "désirée.");
inline const QString kToAlbum = QStringLiteral("Voulez vous classer maintenant la photo dans l'album?");

}  // namespace pictures
