#include "pictures/form19.h"

#include <gtest/gtest.h>

#include <QDir>

#include "pictures/picture_file.h"
#include "pictures/picture_windows.h"

namespace pictures {
namespace {

using Capture = PictureWindows;

TEST_F(Capture, OpensOnThePatientOfTheOpenDossier) {
    const Form19& form = open();
    EXPECT_EQ(form.TxtEntete.text(), "Cabinet du Parc");
    EXPECT_EQ(form.TxtNom.text(), "DUPONT");
    EXPECT_EQ(form.TxtPrenom.text(), "Marie");
    EXPECT_EQ(form.CmbCivilite.text(), "Mme");
    EXPECT_EQ(form.txtDatexam.text(), "05/04/2002");
    EXPECT_EQ(form.TxtNumEcho.text(), "");
}

TEST_F(Capture, OpensWithoutMarksWithoutTheFullViewAndWithSixASheet) {
    const Form19& form = open();
    EXPECT_EQ(marks(form), QList<int>());
    EXPECT_FALSE(form.Image3.visible());
    EXPECT_FALSE(form.Command6.visible());
    EXPECT_TRUE(form.Option6.checked());
    EXPECT_FALSE(form.Option2.checked() || form.Option4.checked() || form.Option8.checked());
}

TEST_F(Capture, HasItsTitleAndTheCaptionsOfItsControls) {
    const Form19& form = open();
    EXPECT_EQ(form.title(), "Gestion des clichés");
    const std::pair<const char*, const char*> captions[] = {
        {"Command1", "&Imprimer"},
        {"Command2", "&Effacer les sélections"},
        {"Command3", " &Ré Initialiser"},
        {"Command4", "&Capturer"},
        {"Command5", "&Archiver"},
        {"Command6", "&Fermer"},
        {"Option2", "X 2"},
        {"Option4", "X 4"},
        {"Option6", "X 6"},
        {"Option8", "X 8"},
        {"Fichiers", "&Fichier"},
        {"OuvJpg", "&Ouvrir .JPG, .BMP"},
        {"EnregBmp", "Enregistrer sous .&BMP "},
        {"EnregJpg", "Enregistrer sous .&JPG "},
        {"imprimer", "&Imprimer"},
        {"Archiver", "&Archiver"},
        {"Album", "Al&bum"},
        {"Qui", "&Quitter"},
    };
    for (const auto& [name, caption] : captions) {
        const auto* control = dynamic_cast<const forms::TextControl*>(form.find(QString(name)));
        ASSERT_NE(control, nullptr) << name;
        EXPECT_EQ(control->text(), caption) << name;
    }
}

TEST_F(Capture, OpensWithoutANameWhereTheDossiersCantBeOpened) {
    QFile::remove(fakes::pathOf(world_, store::FileKind::Echo));
    desk().act([this] { desk().show("Form19"); });
    const Form19& form = desk().at<Form19>();
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(form.TxtNom.text() + form.TxtPrenom.text() + form.TxtEntete.text() + form.CmbCivilite.text(), "");
    EXPECT_EQ(form.txtDatexam.text(), "05/04/2002");
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(Capture, TakesAnotherPatientAndKeepsTheWall) {
    Form19& form = open();
    captures(form, 2);
    fakes::addPatient(world_, 3, "MARTIN", "Anne");
    desk().at<dossier::Form4>().Text1.setText("MARTIN");
    world_.clock.date = QDate(2002, 4, 6);
    form.TxtEntete.setText("Planche de MARTIN");
    form.takeIdentity();
    EXPECT_EQ(form.TxtEntete.text(), "Planche de MARTIN");
    EXPECT_EQ(form.TxtNom.text(), "MARTIN");
    EXPECT_EQ(form.txtDatexam.text(), "06/04/2002");
    EXPECT_EQ(greyOf(form.Image2(2).picture()), 20);
}

TEST_F(Capture, TheLivePictureRunsAsLongAsTheWindow) {
    Form19& form = open();
    EXPECT_TRUE(world_.pictureSource.running());
    world_.pictureSource.show(sample(72, 58));
    EXPECT_EQ(form.ezVidCap1.picture(), sample(72, 58));
    press(form.Qui);
    EXPECT_FALSE(world_.pictureSource.running());
}

TEST_F(Capture, TheLivePictureDoesntRunInAWindowThatNobodySees) {
    world_.pictureSource.picture = sample(72, 58);
    const Form19& form = desk().at<Form19>();
    EXPECT_FALSE(world_.pictureSource.running());
    desk().act([this] { desk().show("Form19"); });
    EXPECT_TRUE(world_.pictureSource.running());
    EXPECT_EQ(form.ezVidCap1.picture(), sample(72, 58));
}

TEST_F(Capture, LoadedForAnotherWindowItTakesThePatientOfTheDossierWhenItIsSeen) {
    fakes::addPatient(world_, 3, "MARTIN", "Anne");
    desk().at<dossier::Form4>().Text1.setText("DUPONT");
    const Form19& form = desk().at<Form19>();
    EXPECT_EQ(form.TxtNom.text(), "DUPONT");
    desk().at<dossier::Form4>().Text1.setText("MARTIN");
    desk().act([this] { desk().show("Form19"); });
    EXPECT_EQ(form.TxtNom.text(), "MARTIN");
    EXPECT_EQ(form.TxtEntete.text(), "Cabinet du Parc");
}

TEST_F(Capture, WhatIsTypedStaysWhereTheWindowIsShownAgain) {
    Form19& form = open();
    form.TxtNom.setText("DURAND");
    desk().act([this] { desk().show("Form19"); });
    EXPECT_EQ(form.TxtNom.text(), "DURAND");
}

TEST_F(Capture, TheLivePictureGoesOnWhereTheWindowIsShownAgain) {
    open();
    open();
    EXPECT_EQ(world_.pictureSource.starts, 1);
}

TEST_F(Capture, GoesIntoTheSlotsInTheirOrderAndIntoTheirFiles) {
    Form19& form = open();
    captures(form, 3);
    EXPECT_EQ(greyOf(form.Image2(1).picture()), 10);
    EXPECT_EQ(greyOf(form.Image2(3).picture()), 30);
    EXPECT_TRUE(form.Image2(4).empty());
    EXPECT_EQ(greyOf(loadPicture(path("Cliche3.BMP"))), 30);
    EXPECT_TRUE(bytesOf(path("Cliche3.BMP")).startsWith("BM"));
}

TEST_F(Capture, TheThirteenthTakesTheFirstSlotAndLeavesItsMarkAndTheSelection) {
    Form19& form = open();
    captures(form, 12);
    press(form.Image2(1));
    capture(form, plain(Qt::white));
    EXPECT_EQ(greyOf(form.Image2(1).picture()), 255);
    EXPECT_EQ(greyOf(form.Image2(2).picture()), 20);
    EXPECT_EQ(greyOf(form.Image2(12).picture()), 120);
    EXPECT_EQ(marks(form), QList<int>({1}));
    EXPECT_EQ(selected(form), QList<int>({10}));
    EXPECT_EQ(said(), QStringList());
}

TEST_F(Capture, WithoutACardIsToldAndUsesUpItsSlot) {
    Form19& form = open();
    capture(form, {});
    EXPECT_EQ(said(), QStringList({kNoCard}));
    EXPECT_TRUE(form.Image2(1).empty());
    capture(form, plain(Qt::white));
    EXPECT_TRUE(form.Image2(1).empty());
    EXPECT_EQ(greyOf(form.Image2(2).picture()), 255);
}

TEST_F(Capture, AFailureKeepsTheEarlierPictureOfTheSlot) {
    Form19& form = open();
    captures(form, 12);
    capture(form, {});
    EXPECT_EQ(greyOf(form.Image2(1).picture()), 10);
    EXPECT_EQ(said(), QStringList({kNoCard}));
}

TEST_F(Capture, AFileThatCantBeWrittenIsToldAsTheSameFailure) {
    Form19& form = open();
    QDir(world_.folder.path()).mkdir("Cliche1.BMP");
    capture(form, plain(Qt::white));
    EXPECT_EQ(said(), QStringList({kNoCard}));
    EXPECT_TRUE(form.Image2(1).empty());
}

TEST_F(Capture, ReInitialisingLeavesTheCounter) {
    Form19& form = open();
    captures(form, 3);
    press(form.Image2(2));
    press(form.Command3);
    EXPECT_EQ(selected(form), QList<int>());
    EXPECT_EQ(marks(form), QList<int>());
    for (int slot = 1; slot <= 12; ++slot) {
        EXPECT_TRUE(form.Image2(slot).empty()) << slot;
    }
    capture(form, plain(Qt::white));
    EXPECT_TRUE(form.Image2(1).empty());
    EXPECT_EQ(greyOf(form.Image2(4).picture()), 255);
}

class Selecting : public PictureWindows {
protected:
    // Clicks on the first slots, and how many of them were taken.
    int taken(Form19& form, int clicks) {
        for (int slot = 1; slot <= clicks; ++slot) {
            press(form.Image2(slot));
        }
        return static_cast<int>(form.selection().size());
    }
};

TEST_F(Selecting, StopsAtTheNumberOfTheSheet) {
    Form19& form = open();
    captures(form, 12);
    const QList<std::pair<forms::Option*, int>> options{
        {&form.Option2, 2}, {&form.Option4, 4}, {&form.Option6, 6}, {&form.Option8, 8}};
    for (const auto& [option, number] : options) {
        press(form.Command2);
        option->setChecked(true);
        EXPECT_EQ(taken(form, 12), number);
        EXPECT_EQ(marks(form).size(), number);
    }
    EXPECT_EQ(said(), QStringList());
}

TEST_F(Selecting, KeepsTheOrderOfTheClicksAndTakesAPictureTwice) {
    Form19& form = open();
    captures(form, 3);
    for (const int slot : {3, 1, 3}) {
        press(form.Image2(slot));
    }
    EXPECT_EQ(selected(form), QList<int>({30, 10, 30}));
    EXPECT_EQ(marks(form), QList<int>({1, 3}));
}

TEST_F(Selecting, AnEmptySlotIsTold) {
    Form19& form = open();
    press(form.Image2(5));
    EXPECT_EQ(said(), QStringList({"Veuillez capturer une image avant de la selectionner."}));
    EXPECT_EQ(marks(form), QList<int>());
    EXPECT_TRUE(form.selection().empty());
}

TEST_F(Selecting, BeyondTheNumberAClickDoesNothing) {
    Form19& form = open();
    captures(form, 2);
    form.Option2.setChecked(true);
    taken(form, 2);
    press(form.Image2(9));
    EXPECT_EQ(said(), QStringList());
    EXPECT_EQ(form.selection().size(), 2U);
}

TEST_F(Selecting, ErasingTakesTheMarksAndLeavesTheWall) {
    Form19& form = open();
    captures(form, 2);
    taken(form, 2);
    press(form.Command2);
    EXPECT_TRUE(form.selection().empty());
    EXPECT_EQ(marks(form), QList<int>());
    EXPECT_EQ(greyOf(form.Image2(1).picture()), 10);
}

TEST_F(Selecting, ViewingHidesTheMarkAndLeavesTheSelection) {
    Form19& form = open();
    captures(form, 2);
    taken(form, 2);
    twice(form.Image2(2));
    EXPECT_EQ(marks(form), QList<int>({1}));
    EXPECT_EQ(selected(form), QList<int>({10, 20}));
    EXPECT_TRUE(form.Image3.visible() && form.Command6.visible());
    EXPECT_EQ(greyOf(form.Image3.picture()), 20);
    press(form.Command6);
    EXPECT_FALSE(form.Image3.visible() || form.Command6.visible());
    EXPECT_TRUE(form.Image3.empty());
}

TEST_F(Selecting, ADoubleClickOnAnEmptySlotDoesNothing) {
    Form19& form = open();
    twice(form.Image2(1));
    EXPECT_FALSE(form.Image3.visible() || form.Command6.visible());
    EXPECT_EQ(said(), QStringList());
}

class Opening : public PictureWindows {};

TEST_F(Opening, ShowsTheFileInFullSize) {
    Form19& form = open();
    ASSERT_TRUE(sample(30, 20).save(path("a.bmp")));
    world_.fileDialogs.chosen = path("a.bmp");
    press(form.OuvJpg);
    EXPECT_EQ(world_.fileDialogs.filters, QStringList({"Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO"}));
    EXPECT_FALSE(world_.fileDialogs.anyName);
    EXPECT_EQ(form.Image3.picture().size(), QSize(30, 20));
    EXPECT_TRUE(form.Image3.visible() && form.Command6.visible());
}

TEST_F(Opening, AFileThatIsNoPictureIsToldWithThePlaceShown) {
    Form19& form = open();
    put(path("a.jpg"), "no picture");
    world_.fileDialogs.chosen = path("a.jpg");
    press(form.OuvJpg);
    EXPECT_EQ(said(), QStringList({"Fichier non chargé '" + path("a.jpg") + "'"}));
    EXPECT_EQ(world_.boxes.saidIcons, QList<ports::Icon>({ports::Icon::Information}));
    EXPECT_TRUE(form.Image3.visible() && form.Command6.visible());
    EXPECT_TRUE(form.Image3.empty());
}

TEST_F(Opening, CancelShowsNothing) {
    Form19& form = open();
    press(form.OuvJpg);
    EXPECT_FALSE(form.Image3.visible() || form.Command6.visible());
    EXPECT_EQ(said(), QStringList());
}

class Archiving : public PictureWindows {
protected:
    const ports::SaveRequest& request() const { return world_.fileDialogs.saves.last(); }
};

TEST_F(Archiving, NeedsAPictureInFullSize) {
    Form19& form = open();
    captures(form, 1);
    press(form.Command5);
    press(form.Archiver);
    press(form.EnregBmp);
    press(form.EnregJpg);
    EXPECT_EQ(said(), QStringList({kNoPicture, kNoPicture, kNoPicture, kNoPicture}));
    EXPECT_TRUE(world_.fileDialogs.saves.isEmpty());
}

TEST_F(Archiving, ProposesTheNameTheDateAndTheNumber) {
    Form19& form = ready("a.jpg", 1);
    world_.fileDialogs.savedAs.reset();
    form.txtDatexam.setText("15/03/2002");
    form.TxtNumEcho.setText("12");
    press(form.Command5);
    EXPECT_EQ(request().proposed, "DUPO_Mar020315_12");
    EXPECT_EQ(request().filter, "Fichiers Jpeg (*.JPG)|*.jpg|Fichiers BMP (*.BMP)|*.bmp");
    EXPECT_EQ(request().filterIndex, 1);
    EXPECT_EQ(request().folder, world_.folder.path() + "/VIDEOTEK");
    EXPECT_FALSE(shown("FrmCpr"));
}

TEST_F(Archiving, ProposesShortNamesWholeAndAnEmptyNumberAsNought) {
    Form19& form = ready("a.jpg", 1);
    form.TxtNom.setText("Roy");
    form.TxtPrenom.setText("Li");
    press(form.Archiver);
    EXPECT_EQ(request().proposed, "Roy_Li020405_0");
}

TEST_F(Archiving, ANumberIsTakenAsAWholeOneAndADateThatIsNoneAsItStands) {
    Form19& form = ready("a.jpg", 1);
    form.TxtNumEcho.setText("7,6");
    form.txtDatexam.setText("hier");
    press(form.Command5);
    EXPECT_EQ(request().proposed, "DUPO_Marhier_8");
}

TEST_F(Archiving, ANumberThatIsNoneEndsItQuietly) {
    Form19& form = ready("a.jpg", 1);
    form.TxtNumEcho.setText("douze");
    press(form.Command5);
    EXPECT_TRUE(world_.fileDialogs.saves.isEmpty());
    EXPECT_EQ(said(), QStringList());
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(Archiving, CancelEndsItQuietly) {
    Form19& form = ready("a.jpg", 1);
    world_.fileDialogs.savedAs.reset();
    press(form.Command5);
    press(form.EnregBmp);
    press(form.EnregJpg);
    EXPECT_EQ(said(), QStringList());
    EXPECT_FALSE(shown("FrmCpr"));
    EXPECT_EQ(world_.boxes.asked, QStringList());
}

TEST_F(Archiving, AJpegGoesOnInTheDialogOfItsQuality) {
    Form19& form = ready("a.jpg", 1);
    press(form.Command5);
    EXPECT_TRUE(shown("FrmCpr"));
    EXPECT_FALSE(QFile::exists(path("a.jpg")));
    EXPECT_EQ(world_.boxes.asked, QStringList());
}

TEST_F(Archiving, ABitmapIsSavedAtOnceAndOfferedToTheAlbum) {
    Form19& form = ready("a.bmp", 2);
    press(form.Command5);
    EXPECT_EQ(loadPicture(path("a.bmp")).convertToFormat(QImage::Format_RGB32), sample(72, 58));
    EXPECT_EQ(world_.boxes.asked, QStringList({kToAlbum}));
    EXPECT_EQ(world_.boxes.icons, QList<ports::Icon>({ports::Icon::Question}));
    EXPECT_EQ(world_.boxes.askings.last().title, "Pelorine ");
    EXPECT_EQ(world_.boxes.askings.last().defaultAnswer, ports::DefaultAnswer::No);
    EXPECT_FALSE(shown("Form20"));
}

TEST_F(Archiving, YesHandsThePictureToTheAlbum) {
    Form19& form = ready("a.bmp", 2);
    form.TxtNumEcho.setText("12");
    world_.boxes.answers = {true};
    press(form.Command5);
    EXPECT_TRUE(shown("Form20"));
    EXPECT_EQ(album().ImgCharge.picture().size(), QSize(72, 58));
    EXPECT_EQ(album().LblFilename.text(), "a.bmp");
    EXPECT_EQ(album().LblPath.text(), path("a.bmp"));
    EXPECT_EQ(album().TxtNom.text(), "DUPONT");
    EXPECT_EQ(album().TxtPrenom.text(), "Marie");
    EXPECT_EQ(album().TxtDate.text(), "05/04/2002");
    EXPECT_EQ(album().TxtNumEcho.text(), "12");
    EXPECT_TRUE(album().Label18.visible());
}

TEST_F(Archiving, SavingAsABitmapTellsTheNameAndAsksNothing) {
    Form19& form = ready("b.bmp", 1);
    press(form.EnregBmp);
    EXPECT_EQ(request().filter, "Fichiers BMP (*.BMP)|*.bmp");
    EXPECT_EQ(request().proposed, "DUPO_Mar");
    EXPECT_EQ(request().folder, "");
    EXPECT_EQ(request().filterIndex, 1);
    EXPECT_EQ(said(), QStringList({path("b.bmp")}));
    EXPECT_EQ(loadPicture(path("b.bmp")).size(), QSize(72, 58));
    EXPECT_EQ(world_.boxes.asked, QStringList());
}

TEST_F(Archiving, SavingAsAJpegTellsTheNameAndGoesOnInTheDialog) {
    Form19& form = ready("b.jpg", 1);
    press(form.EnregJpg);
    EXPECT_EQ(request().filter, "Fichiers JPG (*.JPG)|*.jpg");
    EXPECT_EQ(request().proposed, "DUPO_Mar");
    EXPECT_EQ(said(), QStringList({path("b.jpg")}));
    EXPECT_TRUE(shown("FrmCpr"));
}

TEST_F(Archiving, WhatShowsThroughAnIconIsWhiteInItsBitmap) {
    Form19& form = ready("b.bmp", 1);
    QImage icon(16, 16, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    icon.setPixelColor(3, 2, Qt::blue);
    ASSERT_TRUE(icon.save(path("a.ico")));
    world_.fileDialogs.chosen = path("a.ico");
    press(form.OuvJpg);
    press(form.EnregBmp);
    const QImage back = loadPicture(path("b.bmp"));
    EXPECT_EQ(back.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(back.pixelColor(3, 2), QColor(Qt::blue));
}

TEST_F(Archiving, ABitmapThatCantBeWrittenIsReportedAndNotOffered) {
    Form19& form = ready("nowhere/b.bmp", 2);
    press(form.Command5);
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_EQ(world_.boxes.asked, QStringList());
}

TEST_F(Archiving, TheMenuOpensTheAlbum) {
    press(open().Album);
    EXPECT_TRUE(shown("Form20"));
}

class Printing : public PictureWindows {
protected:
    Printing() { world_.printers.page = fakes::kA4; }
    Form19& chosen(int pictures) {
        Form19& form = open();
        captures(form, 12);
        form.Option8.setChecked(true);
        for (int slot = 1; slot <= pictures; ++slot) {
            press(form.Image2(slot));
        }
        return form;
    }
};

TEST_F(Printing, AsksForTheNumberOfTheSheet) {
    Form19& form = chosen(1);
    for (forms::Option* option : {&form.Option2, &form.Option4, &form.Option6, &form.Option8}) {
        option->setChecked(true);
        press(form.Command1);
    }
    EXPECT_EQ(said(), QStringList({"Veuillez selectionner 2 clichés.", "Veuillez selectionner 4 clichés.",
                                   "Veuillez selectionner 6 clichés.", "Veuillez selectionner 8 clichés."}));
    EXPECT_TRUE(world_.printers.jobs.empty());
}

TEST_F(Printing, TheButtonPrintsOneSheetAtOnce) {
    press(chosen(8).Command1);
    ASSERT_EQ(world_.printers.jobs.size(), 1U);
    EXPECT_TRUE(world_.printers.jobs.front().ended);
    EXPECT_EQ(world_.printers.jobs.front().pages, 1);
    EXPECT_EQ(world_.printers.dialogs, 0);
}

TEST_F(Printing, PicturesTooManyAreLeftOut) {
    Form19& form = chosen(8);
    form.Option2.setChecked(true);
    press(form.Command1);
    EXPECT_EQ(world_.printers.jobs.size(), 1U);
    EXPECT_EQ(said(), QStringList());
}

TEST_F(Printing, TheMenuAsksForThePrinterFirst) {
    Form19& form = chosen(8);
    press(form.imprimer);
    EXPECT_EQ(world_.printers.dialogs, 1);
    EXPECT_EQ(world_.printers.jobs.size(), 1U);
    world_.printers.accepts = false;
    press(form.imprimer);
    EXPECT_EQ(world_.printers.jobs.size(), 1U);
    EXPECT_EQ(said(), QStringList());
}

TEST_F(Printing, TheMenuAsksForThePrinterBeforeItTellsThatPicturesLack) {
    Form19& form = chosen(1);
    world_.printers.accepts = false;
    press(form.imprimer);
    EXPECT_EQ(said(), QStringList());
    world_.printers.accepts = true;
    press(form.imprimer);
    EXPECT_EQ(world_.printers.dialogs, 2);
    EXPECT_EQ(said(), QStringList({"Veuillez selectionner 8 clichés."}));
    EXPECT_TRUE(world_.printers.jobs.empty());
}

TEST_F(Printing, AFailureAfterTheDialogEndsItQuietlyThatOfTheButtonIsReported) {
    Form19& form = chosen(8);
    world_.printers.refuses = true;
    press(form.imprimer);
    EXPECT_EQ(world_.boxes.reported, QList<int>());
    press(form.Command1);
    EXPECT_EQ(world_.boxes.reported, QList<int>({57}));
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
}

TEST_F(Printing, WithoutAPrinterTheFailureIsReported) {
    Form19& form = chosen(8);
    world_.printers.page.reset();
    press(form.Command1);
    EXPECT_EQ(world_.boxes.reported, QList<int>({57}));
}

TEST_F(Printing, WithNoNumberChosenThereIsNoSheet) {
    Form19& form = chosen(8);
    form.Option8.setChecked(false);
    press(form.Command1);
    EXPECT_TRUE(world_.printers.jobs.empty());
    EXPECT_EQ(said(), QStringList());
}

TEST_F(Printing, TheHeadingNamesThePracticeAndThePatientTheFootHasItsPlace) {
    const Form19& form = open();
    EXPECT_EQ(form.ENTETE(), std::vector<SheetLine>({{"", 10, false},
                                                     {"Cabinet du Parc", 20, true},
                                                     {"", 20, true},
                                                     {"Mme DUPONT Marie", 20, true},
                                                     {"05/04/2002", 20, false},
                                                     {"MORVALT" + QString(210, u' ') + "Pelorine", 20, false, 275.0}}));
}

class Closing : public PictureWindows {};

TEST_F(Closing, WritesTheHeadingInQuotesInThePlaceOfTheOldOne) {
    put(path("Entet.txt"), "something older and longer than what comes");
    Form19& form = open();
    form.TxtEntete.setText("Cabinet \"du Parc\", été");
    press(form.Qui);
    EXPECT_EQ(QString::fromUtf8(bytesOf(path("Entet.txt"))), "\"Cabinet \"\"du Parc\"\", été\"\r\n");
    EXPECT_FALSE(shown("Form19"));
}

TEST_F(Closing, ByTheFrameDoesTheSame) {
    Form19& form = open();
    captures(form, 2);
    desk().act([&] { form.close(); });
    EXPECT_EQ(QString::fromUtf8(bytesOf(path("Entet.txt"))), "\"Cabinet du Parc\"\r\n");
    EXPECT_TRUE(open().Image2(1).empty());
    EXPECT_TRUE(QFile::exists(path("Cliche2.BMP")));
}

TEST_F(Closing, AHeadingThatCantBeWrittenIsReportedAndTheWindowGoes) {
    Form19& form = open();
    QDir(world_.folder.path()).mkdir("Entet.txt");
    press(form.Qui);
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_EQ(desk().peek("Form19"), nullptr);
}

TEST_F(Closing, TheHeadingLastsOnlyUntilThen) {
    Form19& form = open();
    form.TxtEntete.setText("Autre");
    press(form.Qui);
    EXPECT_EQ(open().TxtEntete.text(), "Cabinet du Parc");
}

}  // namespace
}  // namespace pictures
