#include "gyneco/form16.h"

#include <QFile>

#include "gyneco/gynaecology_windows.h"
#include "pictures/form19.h"

namespace gyneco {
namespace {

using GynaecologyWriting = GynaecologyWindows;

constexpr forms::Color kBlueGreen = 0xC0FFFF;

TEST_F(GynaecologyWriting, OpensEmptyOnTheFirstExamOfADossier) {
    Form16& form = newExam();
    EXPECT_TRUE(shown("Form16"));
    EXPECT_EQ(form.title(), "Rédaction Echo Gynéco");
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "1");
    EXPECT_EQ(form.sheet.TxtDate.text(), "05/04/2002");
    EXPECT_EQ(form.sheet.LblNom.text(), "DUPONT");
    EXPECT_EQ(form.sheet.LblPrenom.text(), "Marie");
    EXPECT_EQ(form.sheet.LblNumInt.text(), "2");
    EXPECT_EQ(form.sheet.LblMachine.text(), "");
    EXPECT_EQ(form.sheet.LblDateCirc.text(), "");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(1));
    for (int i = 1; i <= 36; ++i) {
        EXPECT_EQ(form.sheet.TxtGyneco(i).text(), "") << i;
    }
}

TEST_F(GynaecologyWriting, ItsControlsHaveTheirCaptions) {
    const std::vector<std::pair<const char*, const char*>> captions{
        {"Label1", "Echographie Pelvienne"},
        {"Command1", "Monit. Ovulation"},
        {"Command2", "&Gynéco"},
        {"CmdEnregis", "&Enregistrer"},
        {"CmdPhotos", "&Photos"},
        {"Frame3", "Utérus"},
        {"Frame4", "Annexes"},
        {"Frame5", "Douglas"},
        {"Frame6", "Masse"},
        {"Frame7", "Conclusion"},
    };
    const Form16& form = newExam();
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
}

TEST_F(GynaecologyWriting, AnOpeningThatFailsShowsNothingOfThePatientBefore) {
    Form16& form = newExam("DUPONT");
    form.sheet.TxtGyneco(21).setText("Conclusion de Marie");
    form.sheet.TxtNumEcho.setText("7");
    desk().hide("Form16");
    ASSERT_TRUE(QFile::remove(fakes::pathOf(world_, store::FileKind::Echo)));
    press(dossierOf("MARTIN").CmdGyneco);
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_EQ(form.sheet.LblNom.text(), "MARTIN");
    EXPECT_EQ(form.sheet.TxtGyneco(21).text(), "");
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "");
}

TEST_F(GynaecologyWriting, NeedsAnOpenDossier) {
    desk().show("Form4");
    desk().at<dossier::Form4>().clearDisplay();
    press(desk().at<dossier::Form4>().CmdGyneco);
    EXPECT_EQ(world_.boxes.said, QStringList({"Veuillez ouvrir un dossier patient au préalable."}));
    EXPECT_FALSE(loaded("Form16"));
}

TEST_F(GynaecologyWriting, TakesTheLastRowOfTheDeviceAndItsDate) {
    store(14, "Ancien");
    store(14, "ORIVANNE");
    store(15, "01/02/2001");
    Form16& form = newExam();
    EXPECT_EQ(form.sheet.LblMachine.text(), "ORIVANNE");
    EXPECT_EQ(form.sheet.LblDateCirc.text(), "01/02/2001");
}

TEST_F(GynaecologyWriting, NumbersOnFromItsOwnExamsAndLeavesGaps) {
    addExams({"10/01/2002", "11/02/2002", "12/03/2002"});
    addExam(3, 8, "12/03/2002");
    fakes::addExam(world_, "1TER", 2, 6, "01/04/2002");
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "4");
    query("SELECT*FROM GYNECO WHERE NUMERO=2And NUMECHO=2").remove();
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "4");
    query("SELECT*FROM GYNECO WHERE NUMERO=2And NUMECHO=3").remove();
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "2");
}

TEST_F(GynaecologyWriting, OpeningAnewEmptiesTheFieldsAndGoesBackToThePelvicPage) {
    Form16& form = newExam();
    press(form.sheet.Command1);
    form.sheet.TxtGyneco(30).setText("12 13");
    form.sheet.TxtGyneco(6).setText("Antéversé");
    form.sheet.TxtDate.setText("hier");
    newExam("MARTIN");
    EXPECT_EQ(form.sheet.TxtGyneco(30).text(), "");
    EXPECT_EQ(form.sheet.TxtGyneco(6).text(), "");
    EXPECT_EQ(form.sheet.TxtDate.text(), "05/04/2002");
    EXPECT_EQ(form.sheet.LblNom.text(), "MARTIN");
    EXPECT_TRUE(form.sheet.pages.Frame3.visible());
    EXPECT_FALSE(form.sheet.pages.Frame8.visible());
    EXPECT_TRUE(form.sheet.Command1.visible());
    EXPECT_FALSE(form.sheet.Command2.visible());
    EXPECT_EQ(form.sheet.pages.Label1.text(), "Echographie Pelvienne");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(1));
}

TEST_F(GynaecologyWriting, TheFirstFieldIsNeverEmptiedAndNeverSaved) {
    Form16& form = newExam();
    EXPECT_EQ(form.sheet.TxtGyneco(0).text(), "Voir Liste");
    form.sheet.TxtGyneco(0).setText("jamais");
    save(form);
    newExam();
    EXPECT_EQ(form.sheet.TxtGyneco(0).text(), "jamais");
    auto rows = query("SELECT*FROM GYNECO WHERE NUMERO=2 ORDER BY NUMECHO");
    for (const QString& name : rows.fieldNames()) {
        EXPECT_NE(rows.text(name), "jamais") << name.toStdString();
    }
}

// What each field offers: a rubric of phrases, or a run of numbers from..to, with the one that is chosen.
struct OfferCase {
    int index;
    int rubric;
    int first, last, chosen;
};

const std::vector<OfferCase> kPhraseFields{
    {1, 1, 0, 0, 0},   {3, 2, 0, 0, 0},   {4, 3, 0, 0, 0},   {5, 42, 0, 0, 0},  {6, 32, 0, 0, 0},  {10, 33, 0, 0, 0},
    {11, 34, 0, 0, 0}, {12, 35, 0, 0, 0}, {14, 36, 0, 0, 0}, {15, 37, 0, 0, 0}, {16, 30, 0, 0, 0}, {17, 30, 0, 0, 0},
    {18, 31, 0, 0, 0}, {19, 31, 0, 0, 0}, {20, 10, 0, 0, 0}, {21, 38, 0, 0, 0}, {23, 33, 0, 0, 0}, {24, 39, 0, 0, 0},
    {25, 40, 0, 0, 0}, {26, 41, 0, 0, 0}, {35, 50, 0, 0, 0}, {36, 51, 0, 0, 0}};
const std::vector<OfferCase> kNumberFields{
    {7, 0, 20, 130, 80}, {8, 0, 20, 130, 80}, {9, 0, 20, 130, 80}, {13, 0, 0, 20, 8},  {22, 0, 1, 15, 4},
    {27, 0, 0, 20, 10},  {28, 0, 10, 45, 30}, {29, 0, 0, 15, 8},   {30, 0, 5, 33, 17}, {31, 0, 10, 45, 30},
    {32, 0, 0, 15, 8},   {33, 0, 5, 33, 17},  {34, 0, 0, 20, 8}};

TEST_F(GynaecologyWriting, EachPhraseFieldOffersItsRubric) {
    for (int rubric = 1; rubric <= 55; ++rubric) {
        store(rubric, QStringLiteral("rubrique %1").arg(rubric), "");
    }
    Form16& form = newExam();
    for (const OfferCase& field : kPhraseFields) {
        if (field.index == 35) {
            press(form.sheet.Command1);
        }
        focus(form.sheet.TxtGyneco(2));
        ASSERT_TRUE(form.sheet.Calendar1.visible());
        focus(form.sheet.TxtGyneco(field.index));
        EXPECT_EQ(form.sheet.List1.items(), QStringList({QStringLiteral("rubrique %1").arg(field.rubric)}))
            << field.index;
        EXPECT_FALSE(form.sheet.Calendar1.visible()) << field.index;
    }
}

TEST_F(GynaecologyWriting, EachNumberFieldOffersItsRun) {
    Form16& form = newExam();
    for (const OfferCase& field : kNumberFields) {
        if (field.index == 27) {
            press(form.sheet.Command1);
        }
        focus(form.sheet.TxtGyneco(2));
        ASSERT_TRUE(form.sheet.Calendar1.visible());
        focus(form.sheet.TxtGyneco(field.index));
        EXPECT_FALSE(form.sheet.Calendar1.visible()) << field.index;
        const forms::ListBox& list = form.sheet.List2;
        EXPECT_EQ(list.count(), field.last - field.first + 1) << field.index;
        EXPECT_EQ(list.items().first(), QString::number(field.first)) << field.index;
        EXPECT_EQ(list.items().last(), QString::number(field.last)) << field.index;
        EXPECT_EQ(list.text(), QString::number(field.chosen)) << field.index;
        EXPECT_TRUE(form.sheet.List1.items().isEmpty()) << field.index;
    }
}

TEST_F(GynaecologyWriting, TheLastPeriodShowsTheCalendarAndTheChosenDayMovesOn) {
    store(1, "Docteur");
    Form16& form = newExam();
    focus(form.sheet.TxtGyneco(2));
    EXPECT_TRUE(form.sheet.Calendar1.visible());
    EXPECT_TRUE(form.sheet.List1.items().isEmpty());
    desk().act([&] { form.sheet.Calendar1.choose(QDate(2002, 3, 25)); });
    EXPECT_EQ(form.sheet.TxtGyneco(2).text(), "25/03/2002");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(3));
    EXPECT_FALSE(form.sheet.Calendar1.visible());
}

TEST_F(GynaecologyWriting, FollicleSizesFollowOneAnother) {
    Form16& form = newExam();
    press(form.sheet.Command1);
    focus(form.sheet.TxtGyneco(30));
    for (const char* size : {"17", "12", "9"}) {
        twice(form.sheet.List2, size);
    }
    EXPECT_EQ(form.sheet.TxtGyneco(30).text(), "17 12 9");
    save(form);
    EXPECT_EQ(stored(2, "DIMFOLD"), QStringList({"17 12 9"}));
}

TEST_F(GynaecologyWriting, TheWalkGoesRoundOnThePageInView) {
    store(40, "Ovarienne", "C");
    store(41, "Examen normal", "C");
    store(50, "Bonne réponse", "C");
    store(51, "Contrôle", "C");
    Form16& form = newExam();
    focus(form.sheet.TxtGyneco(25));
    twice(form.sheet.List1, "Ovarienne\t");
    EXPECT_EQ(form.sheet.TxtGyneco(25).text(), "Ovarienne");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(26));
    twice(form.sheet.List1, "Examen normal\t");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(1));
    press(form.sheet.Command1);
    focus(form.sheet.TxtGyneco(35));
    twice(form.sheet.List1, "Bonne réponse\t");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(36));
    twice(form.sheet.List1, "Contrôle\t");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(27));
    press(form.sheet.Command2);
    focus(form.sheet.TxtGyneco(26));
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(1));
}

TEST_F(GynaecologyWriting, ARightClickMovesOnWithoutAPhrase) {
    Form16& form = newExam();
    focus(form.sheet.TxtGyneco(5));
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(6));
    EXPECT_EQ(form.sheet.TxtGyneco(5).text(), "");
}

TEST_F(GynaecologyWriting, BothFreeEntriesGoToTheCurrentField) {
    Form16& form = newExam();
    focus(form.sheet.TxtGyneco(5));
    form.sheet.Text1.setText("un");
    desk().act([&] { form.sheet.Text1.onEnter(); });
    form.sheet.Text2.setText("deux");
    desk().act([&] { form.sheet.Text2.onEnter(); });
    EXPECT_EQ(form.sheet.TxtGyneco(5).text(), " un  deux ");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(5));
}

TEST_F(GynaecologyWriting, AFreeEntryThatWaitsIsSaved) {
    Form16& form = newExam();
    focus(form.sheet.TxtGyneco(5));
    form.sheet.Text2.setText("Douleurs");
    save(form);
    EXPECT_EQ(stored(2, "INDI"), QStringList({" Douleurs "}));
}

TEST_F(GynaecologyWriting, TheEraseButtonEmptiesTheCurrentField) {
    Form16& form = newExam();
    focus(form.sheet.TxtGyneco(6));
    form.sheet.TxtGyneco(6).setText("Antéversé");
    press(form.sheet.CmdEfface);
    EXPECT_EQ(form.sheet.TxtGyneco(6).text(), "");
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(6));
}

TEST_F(GynaecologyWriting, TheMonitoringPageTakesThePlaceOfThePelvicOne) {
    Form16& form = newExam();
    Pages& pages = form.sheet.pages;
    press(form.sheet.Command1);
    EXPECT_EQ(pages.Label1.text(), "Monitorage de l'ovulation");
    EXPECT_EQ(pages.Label1.back(), kBlueGreen);
    EXPECT_EQ(pages.Frame2.back(), kBlueGreen);
    EXPECT_TRUE(pages.Frame8.visible());
    for (const forms::Frame* frame : {&pages.Frame3, &pages.Frame4, &pages.Frame5, &pages.Frame6, &pages.Frame7}) {
        EXPECT_FALSE(frame->visible()) << frame->name().toStdString();
    }
    EXPECT_TRUE(form.sheet.Command2.visible());
    EXPECT_FALSE(form.sheet.Command1.visible());
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(27));
    press(form.sheet.Command2);
    EXPECT_EQ(pages.Label1.text(), "Echographie Pelvienne");
    EXPECT_EQ(pages.Label1.back(), std::nullopt);
    EXPECT_EQ(pages.Frame2.back(), std::nullopt);
    EXPECT_FALSE(pages.Frame8.visible());
    for (const forms::Frame* frame : {&pages.Frame3, &pages.Frame4, &pages.Frame5, &pages.Frame6, &pages.Frame7}) {
        EXPECT_TRUE(frame->visible()) << frame->name().toStdString();
    }
    EXPECT_FALSE(form.sheet.Command2.visible());
    EXPECT_TRUE(form.sheet.Command1.visible());
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(3));
}

TEST_F(GynaecologyWriting, SavesEachFieldOfBothPagesAsText) {
    store(14, "ORIVANNE");
    store(15, "01/02/2001");
    Form16& form = newExam();
    for (int i = 1; i <= 36; ++i) {
        form.sheet.TxtGyneco(i).setText(QStringLiteral("texte %1").arg(i));
    }
    form.sheet.TxtDate.setText("04/04/2002");
    save(form);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1"}));
    EXPECT_EQ(stored(2, "MACHINE"), QStringList({"ORIVANNE"}));
    EXPECT_EQ(stored(2, "DATECIRC"), QStringList({"01/02/2001"}));
    EXPECT_EQ(stored(2, "DATEXAM"), QStringList({"04/04/2002"}));
    for (int i = 1; i <= 36; ++i) {
        EXPECT_EQ(stored(2, kFieldNames[i - 1]), QStringList({QStringLiteral("texte %1").arg(i)})) << i;
    }
}

TEST_F(GynaecologyWriting, ARecordOfOnePageLeavesTheOtherEmpty) {
    Form16& form = newExam();
    form.sheet.TxtGyneco(27).setText("9");
    save(form);
    newExam();
    form.sheet.TxtGyneco(6).setText("Antéversé");
    save(form);
    EXPECT_EQ(stored(2, "JSTIM"), QStringList({"9", ""}));
    EXPECT_EQ(stored(2, "SITUATION"), QStringList({"", "Antéversé"}));
    EXPECT_EQ(stored(2, "CONCLU"), QStringList({"", ""}));
}

TEST_F(GynaecologyWriting, SavesAnEmptyExamAndALastPeriodAsTyped) {
    Form16& form = newExam();
    form.sheet.TxtGyneco(2).setText("vers Pâques");
    save(form);
    EXPECT_EQ(stored(2, "DDR"), QStringList({"vers Pâques"}));
}

TEST_F(GynaecologyWriting, AsksSavesTellsAndShowsTheExamJustWritten) {
    addExams({"10/01/2002", "11/02/2002"});
    Form16& form = newExam();
    form.sheet.TxtNumEcho.setText("1");
    form.sheet.TxtGyneco(26).setText("Le dernier écrit");
    save(form);
    EXPECT_EQ(world_.boxes.asked, QStringList({"Voulez vous vraiment enregistrer ce compte rendu ?"}));
    EXPECT_EQ(world_.boxes.said, QStringList({"Enregistré"}));
    EXPECT_TRUE(shown("Form18"));
    EXPECT_FALSE(shown("Form16"));
    EXPECT_TRUE(loaded("Form16"));
    EXPECT_EQ(view().TxtNumEcho.text(), "1");
    EXPECT_EQ(view().TxtGyneco(21).text(), "Le dernier écrit");
    EXPECT_EQ(view().LblNom.text(), "DUPONT");
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "1", "2"}));
}

TEST_F(GynaecologyWriting, ANoLeavesTheWindowAndTheStoreAsTheyWere) {
    Form16& form = newExam();
    form.sheet.TxtGyneco(6).setText("Antéversé");
    press(form.CmdEnregis);
    EXPECT_TRUE(shown("Form16"));
    EXPECT_EQ(form.sheet.TxtGyneco(6).text(), "Antéversé");
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(GynaecologyWriting, TheHourglassStandsWhileTheRecordIsWrittenAlone) {
    Form16& form = newExam();
    std::vector<forms::Pointer> pointers;
    world_.boxes.whenAsked = [&] { pointers.push_back(form.pointer()); };
    const auto seen = form.observePointer([&] { pointers.push_back(form.pointer()); });
    world_.boxes.whenSaid = [&] { pointers.push_back(form.pointer()); };
    save(form);
    // Asked, set, set back, reported.
    EXPECT_EQ(pointers, std::vector({forms::Pointer::Normal, forms::Pointer::Busy, forms::Pointer::Normal,
                                     forms::Pointer::Normal}));
}

TEST_F(GynaecologyWriting, ARefusingDiskLeavesTheWindowWithItsEntries) {
    Form16& form = newExam();
    form.sheet.TxtGyneco(6).setText("Antéversé");
    {
        const fakes::RefusingFile refusing(fakes::pathOf(world_, store::FileKind::Echo), "INSERT", "GYNECO");
        save(form);
    }
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_TRUE(shown("Form16"));
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    EXPECT_EQ(form.sheet.TxtGyneco(6).text(), "Antéversé");
    save(form);
    EXPECT_EQ(stored(2, "SITUATION"), QStringList({"Antéversé"}));
}

TEST_F(GynaecologyWriting, ANumberThatIsNoneIsReportedAndNothingIsLost) {
    Form16& form = newExam();
    form.sheet.TxtNumEcho.setText("deux");
    form.sheet.TxtGyneco(6).setText("Antéversé");
    save(form);
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_TRUE(shown("Form16"));
    EXPECT_EQ(form.sheet.TxtGyneco(6).text(), "Antéversé");
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
}

TEST_F(GynaecologyWriting, QuitUnloadsItAndAsksNothing) {
    Form16& form = newExam();
    form.sheet.TxtGyneco(6).setText("Antéversé");
    press(form.CmdQuitter);
    EXPECT_FALSE(loaded("Form16"));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
}

TEST_F(GynaecologyWriting, TheCaptureWindowGetsTheNumber) {
    desk().add("Form19", [this] { return std::make_unique<pictures::Form19>(world_.around); });
    Form16& form = newExam();
    form.sheet.TxtNumEcho.setText("7");
    press(form.CmdPhotos);
    EXPECT_TRUE(shown("Form19"));
    EXPECT_EQ(desk().at<pictures::Form19>().TxtNumEcho.text(), "7");
    EXPECT_EQ(desk().at<pictures::Form19>().TxtNom.text(), "DUPONT");
}

TEST_F(GynaecologyWriting, TheAlbumGetsTheExamInView) {
    desk().add("Form20", [this] { return std::make_unique<PictureWindow>(desk(), "Form20"); });
    addExam(2, 4, "11/02/2002");
    press(viewLast().Command1);
    const auto& album = static_cast<PictureWindow&>(desk().at("Form20"));
    EXPECT_TRUE(album.shown());
    EXPECT_EQ(album.TxtRechNom.text(), "DUPONT");
    EXPECT_EQ(album.TxtRechDate.text(), "11/02/2002");
    EXPECT_EQ(album.TxtRechNumEcho.text(), "4");
}

}  // namespace
}  // namespace gyneco
