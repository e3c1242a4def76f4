#include "exams/form11.h"

#include <QFile>

#include "exams/exam_windows.h"
#include "fakes/refusing_file.h"

namespace exams {
namespace {

class LaterCorrectionWindow : public ExamWindows {
protected:
    LaterCorrectionWindow() {
        addLater(2, 1, "10/01/2002", {{"NBRE", "1"}});
        addLater(2, 2, "11/02/2002",
                 {{"TYPECHO", "3"},
                  {"NBRE", "2"},
                  {"AGESTA", "16,3"},
                  {"BMI", "21,5"},
                  {"MACHINE", "ANCIEN"},
                  {"DATECIRC", "01/01/1999"},
                  {"DDR", "17/10/2001"},
                  // 105 days: 15 weeks, so 17 of amenorrhoea.
                  {"DGUS", "29/10/2001"},
                  {"Bip", "40"},
                  {"ARTC3", "0,7"},
                  {"CONCLU1", "avant"}});
        addLater(2, 3, "12/03/2002", {{"NBRE", "1"}});
        store(14, "ORIVANNE");
    }

    Form11& openOnSecond() {
        viewLastLater();
        press(laterView().CmdRec);
        return correctLater();
    }
    /// The correction of one more exam, dated by ultrasound.
    Form11& openDated(const QString& start, const QString& age, const QString& date = "05/04/2002") {
        addLater(3, 1, date, {{"NBRE", "1"}, {"DGUS", start}, {"AGESTA", age}, {"DDR", "01/01/2002"}});
        viewLastLater("MARTIN");
        return correctLater();
    }
    void save(bool answer = true) {
        world_.boxes.answers = {answer};
        press(desk().at<Form11>().CmdModifs);
    }
};

TEST_F(LaterCorrectionWindow, LoadsTheExamInView) {
    const Form11& form = openOnSecond();
    EXPECT_EQ(form.sheet.LblNom.text(), "DUPONT");
    EXPECT_EQ(form.sheet.LblPrenom.text(), "Marie");
    EXPECT_EQ(form.sheet.LblNumInt.text(), "2");
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "2");
    EXPECT_EQ(form.sheet.txtDatexam.text(), "11/02/2002");
    EXPECT_EQ(form.sheet.LblMachine.text(), "ANCIEN");
    EXPECT_EQ(form.sheet.LblDateCirc.text(), "01/01/1999");
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "2");
    EXPECT_EQ(form.sheet.Txt2T(0).text(), "21,5");
    EXPECT_EQ(form.sheet.Txt2T(16).text(), "40");
    EXPECT_EQ(form.sheet.Txt2T(32).text(), "avant");
    EXPECT_EQ(form.sheet.Txt2T(66).text(), "0,7");
    EXPECT_EQ(form.sheet.TxtPds.text(), "");
    EXPECT_EQ(form.sheet.TxtTaille.text(), "");
    EXPECT_TRUE(shown("Form10"));
    EXPECT_TRUE(form.exclusive());
}

TEST_F(LaterCorrectionWindow, LoadsEachFieldIntoTheBoxOfItsNumber) {
    const QStringList fields{
        "BMI",     "OPERATEUR", "DDR",     "DG",     "DGUS",    "MODEXAM", "CONDITIONS", "INDI",    "UTERUS", "ANNEXES",
        "DOUGLAS", "UTD",       "UTG",     "NUQUE",  "MA",      "AC",      "BIP",        "CC",      "DIO",    "CERV",
        "DAT",     "CA",        "FEM",     "PIED",   "TIBIA",   "HUM",     "OSNEZ",      "MORPHO",  "ARTO",   "ARTC",
        "LA",      "PL",        "CONCLU1", "NUQUE2", "MA2",     "AC2",     "BIP2",       "CC2",     "DIO2",   "CERV2",
        "DAT2",    "CA2",       "FEM2",    "PIED2",  "TIBIA2",  "HUM2",    "OSNEZ2",     "MORPHO2", "ARTO2",  "ARTC2",
        "NUQUE3",  "MA3",       "AC3",     "BIP3",   "CC3",     "DIO3",    "CERV3",      "DAT3",    "CA3",    "FEM3",
        "PIED3",   "TIBIA3",    "HUM3",    "OSNEZ3", "MORPHO3", "ARTO3",   "ARTC3"};
    ASSERT_EQ(fields.size(), 67);
    fakes::Fields record;
    for (const QString& field : fields) {
        record << std::pair(field, store::Value("~" + field));
    }
    addLater(3, 1, "05/04/2002", record);
    viewLastLater("MARTIN");
    Form11& form = correctLater();
    for (int i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(form.sheet.Txt2T(i).text(), "~" + fields[i]) << i;
        write(form.sheet.Txt2T(i), QStringLiteral("n%1").arg(i));
    }
    save();
    for (int i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(stored(3, fields[i]), QStringList({QStringLiteral("n%1").arg(i)})) << i;
    }
}

TEST_F(LaterCorrectionWindow, HasNeitherTheKindNorTheChoicesOfTheWritingWindow) {
    const Form11& form = openOnSecond();
    for (const char16_t* name : {u"TxtTypecho", u"Option1", u"Option2", u"Option3", u"CmdZoneA", u"CmdZoneB",
                                 u"CmdZoneC", u"CmdZoneD", u"CmdPhotos", u"Perso", u"Bourgeois"}) {
        EXPECT_EQ(form.find(name), nullptr);
    }
    EXPECT_EQ(form.find(u"txtAgeGesta")->kind(), forms::Kind::TextBox);
}

TEST_F(LaterCorrectionWindow, ItsControlsHaveTheirCaptionsAndTheirNumbers) {
    const std::vector<std::pair<const char*, const char*>> captions{{"CmdModifs", "Enregistrer Modifs"},
                                                                    {"CmdQuitter", "Quitter sans Enregistrer"},
                                                                    {"CmdJ1", "J1"},
                                                                    {"CmdJ2", "J2"},
                                                                    {"CmdJ3", "J3"},
                                                                    {"FrameJ1", "Foetus"},
                                                                    {"FrameJ2", "Foetus N°2"},
                                                                    {"FrameJ3", "Foetus N°3"}};
    const Form11& form = openOnSecond();
    EXPECT_TRUE(form.title().endsWith("Mode Correction"));
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
    EXPECT_EQ(form.find(u"FrameJ3", 2), &form.sheet.FrameJ3);
    EXPECT_EQ(form.find(u"Frame5", 3), &form.sheet.Frame5);
}

TEST_F(LaterCorrectionWindow, TheCalendarTheListsAndTheErasingServeItsFields) {
    fakes::add(world_, "OPTIONS", {{"NUMEROS", 18}, {"Texte", "fin"}, {"TERMINAIS", "C"}});
    Form11& form = openOnSecond();
    form.sheet.Txt2T(4).setFocus();
    desk().act([&] { form.sheet.Calendar1.choose(QDate(2001, 11, 5)); });
    EXPECT_EQ(form.sheet.Txt2T(4).text(), "05/11/2001");
    // 98 days before the exam: 14 weeks, 16 of amenorrhoea.
    EXPECT_EQ(form.txtAgeGesta.text(), "16");
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(5));
    form.sheet.Txt2T(32).setFocus();
    form.sheet.List1.setRow(0);
    desk().act([&] { form.sheet.List1.doubleClick(); });
    EXPECT_EQ(form.sheet.Txt2T(32).text(), "avantfin");
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(1));
    form.sheet.Txt2T(16).setFocus();
    press(form.sheet.CmdEfface);
    EXPECT_EQ(form.sheet.Txt2T(16).text(), "");
    form.sheet.List2.setRow(3);
    desk().act([&] { form.sheet.List2.doubleClick(); });
    EXPECT_EQ(form.sheet.Txt2T(16).text(), "3");
}

TEST_F(LaterCorrectionWindow, TheButtonPutsTheFocusOnTheFirstFieldAndTheMenuEntryDoesNot) {
    const Form11& form = openOnSecond();
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(1));
    press(desk().at<Form11>().CmdQuitter);
    press(laterView().Modif);
    EXPECT_TRUE(shown("Form11"));
    EXPECT_NE(desk().at<Form11>().focused(), &desk().at<Form11>().sheet.Txt2T(1));
}

TEST_F(LaterCorrectionWindow, RoundsTheAgeOfTheUltrasoundStartToWholeWeeks) {
    // Exam on 05/04/2002. 21 weeks of 7 days before it: 09/11/2001, which is 23 weeks of amenorrhoea.
    const std::vector<std::tuple<const char*, const char*, const char*>> ages{
        {"09/11/2001", "23", "23"},   {"05/11/2001", "23,4", "23"},  // 4 days stay
        {"04/11/2001", "23,5", "24"},                                // a tie goes to the even week
        {"03/11/2001", "23,6", "24"},                                // 6 days go up
        {"28/10/2001", "24,5", "24"},                                // a tie again, down this time
        {"03/02/2002", "10,5", "10"}, {"27/01/2002", "11,5", "12"}};
    for (const auto& [start, age, rounded] : ages) {
        EXPECT_EQ(openDated(start, age).txtAgeGesta.text(), rounded) << start;
        save();
        EXPECT_EQ(stored(3, "AGESTA"), QStringList({rounded})) << start;
        world_.boxes.answers = {true, true};
        press(laterView().CmdSupprime);
    }
}

TEST_F(LaterCorrectionWindow, AnExamWithoutAnUltrasoundStartLosesItsAge) {
    for (const char* start : {"", "bientôt"}) {
        EXPECT_EQ(openDated(start, "23,4").txtAgeGesta.text(), "") << start;
        save();
        EXPECT_EQ(stored(3, "AGESTA"), QStringList({""})) << start;
        world_.boxes.answers = {true, true};
        press(laterView().CmdSupprime);
    }
}

TEST_F(LaterCorrectionWindow, AnExamWithNoFieldAtAllLosesItsAgeToo) {
    addLater(3, 1, "05/04/2002", {{"AGESTA", "23,4"}});
    viewLastLater("MARTIN");
    EXPECT_EQ(correctLater().txtAgeGesta.text(), "");
}

TEST_F(LaterCorrectionWindow, AnUnreadableExamDateIsReportedOnceAndTheWindowComesUp) {
    Form11& form = openDated("05/11/2001", "23,4", "hier");
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_TRUE(shown("Form11"));
    EXPECT_EQ(form.txtAgeGesta.text(), "");
    EXPECT_EQ(form.sheet.Txt2T(4).text(), "05/11/2001");
    write(form.sheet.txtDatexam, "05/04/2002");
    EXPECT_EQ(form.txtAgeGesta.text(), "");
    write(form.sheet.Txt2T(32), "fin");
    EXPECT_EQ(form.txtAgeGesta.text(), "23");
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
}

TEST_F(LaterCorrectionWindow, AnyFieldsChangeRoundsTheAgeOfTheUltrasoundStart) {
    Form11& form = openDated("05/11/2001", "23,4");
    write(form.txtAgeGesta, "40");
    write(form.sheet.Txt2T(66), "0,8");
    EXPECT_EQ(form.txtAgeGesta.text(), "23");
    write(form.sheet.Txt2T(3), "01/01/2002");
    EXPECT_EQ(form.txtAgeGesta.text(), "23");
    write(form.sheet.Txt2T(4), "03/11/2001");
    EXPECT_EQ(form.txtAgeGesta.text(), "24");
    write(form.sheet.Txt2T(2), "");
    EXPECT_EQ(form.sheet.Txt2T(3).text(), "01/01/2002");
    write(form.sheet.Txt2T(4), "");
    EXPECT_EQ(form.txtAgeGesta.text(), "");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(LaterCorrectionWindow, AFailedRoundingIsReportedAndLeavesAgeAndFields) {
    Form11& form = openDated("05/11/2001", "23,4");
    write(form.sheet.txtDatexam, "hier");
    write(form.sheet.Txt2T(4), "03/11/2001");
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_EQ(form.txtAgeGesta.text(), "23");
    EXPECT_EQ(form.sheet.Txt2T(4).text(), "03/11/2001");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(LaterCorrectionWindow, ATypedAgeIsSavedAsItStands) {
    Form11& form = openDated("05/11/2001", "23,4");
    write(form.txtAgeGesta, "23,4");
    save();
    EXPECT_EQ(stored(3, "AGESTA"), QStringList({"23,4"}));
}

TEST_F(LaterCorrectionWindow, WeightAndHeightStillGiveTheIndex) {
    Form11& form = openOnSecond();
    for (const QChar c : QStringLiteral("6x0")) {
        type(form.sheet.TxtPds, c);
    }
    EXPECT_EQ(form.sheet.TxtPds.text(), "60");
    write(form.sheet.TxtTaille, "170");
    EXPECT_EQ(form.sheet.Txt2T(0).text(), "20,8");
}

TEST_F(LaterCorrectionWindow, FromTwoFetusesOnThePanelShowsWithAllItsButtons) {
    const Form11& twins = openOnSecond();
    EXPECT_TRUE(twins.sheet.Frame5.visible());
    EXPECT_TRUE(twins.sheet.CmdJ1.visible() && twins.sheet.CmdJ2.visible() && twins.sheet.CmdJ3.visible());
    EXPECT_TRUE(twins.sheet.FrameJ1.visible() && !twins.sheet.FrameJ2.visible() && !twins.sheet.FrameJ3.visible());
    press(desk().at<Form11>().CmdQuitter);
    press(laterView().CmdPrem);
    Form11& form = correctLater();
    EXPECT_FALSE(form.sheet.Frame5.visible());
    write(form.sheet.TxtNbrE, "3");
    EXPECT_TRUE(form.sheet.Frame5.visible());
    write(form.sheet.TxtNbrE, "1");
    EXPECT_TRUE(form.sheet.Frame5.visible());
    write(form.sheet.TxtNbrE, "x");
    EXPECT_FALSE(form.sheet.Frame5.visible());
    write(form.sheet.TxtNbrE, "1");
    EXPECT_FALSE(form.sheet.Frame5.visible());
}

TEST_F(LaterCorrectionWindow, FourFetusesAreRefusedAndThePanelEndsHidden) {
    Form11& form = openOnSecond();
    write(form.sheet.TxtNbrE, "4");
    EXPECT_EQ(world_.boxes.said, QStringList({"Désolé le logiciel ne traite pas plus de 3 foetus"}));
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "");
    EXPECT_FALSE(form.sheet.Frame5.visible());
}

TEST_F(LaterCorrectionWindow, FourStoredFetusesAreRefusedAsTheExamIsLoaded) {
    addLater(3, 1, "05/04/2002", {{"NBRE", "4"}, {"CONCLU1", "fin"}});
    viewLastLater("MARTIN");
    const Form11& form = correctLater();
    EXPECT_EQ(world_.boxes.said, QStringList({"Désolé le logiciel ne traite pas plus de 3 foetus"}));
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "");
    EXPECT_FALSE(form.sheet.Frame5.visible());
    EXPECT_EQ(form.sheet.Txt2T(32).text(), "fin");
}

TEST_F(LaterCorrectionWindow, TheNumberHoldsOneDigitAndHidesThePanelWhileItIsEmpty) {
    Form11& form = openOnSecond();
    type(form.sheet.TxtNbrE, u'1');
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "1");
    EXPECT_FALSE(form.sheet.Frame5.visible());
    type(form.sheet.TxtNbrE, u'2');
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "2");
    EXPECT_TRUE(form.sheet.Frame5.visible());
    type(form.sheet.TxtNbrE, u'x');
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "");
}

TEST_F(LaterCorrectionWindow, TheButtonsSetNoColour) {
    Form11& form = openOnSecond();
    press(form.sheet.CmdJ3);
    EXPECT_TRUE(!form.sheet.FrameJ1.visible() && !form.sheet.FrameJ2.visible() && form.sheet.FrameJ3.visible());
    EXPECT_EQ(form.sheet.Frame5.back(), std::nullopt);
}

TEST_F(LaterCorrectionWindow, OffersThePhrasesOfItsOwnTable) {
    for (const int rubric : {1, 2, 3, 6, 7, 8, 9, 10, 12, 13, 17, 18, 25, 26, 55}) {
        store(rubric, QString::number(rubric));
    }
    Form11& form = openOnSecond();
    const std::vector<std::pair<int, int>> rubrics{{1, 1},   {5, 2},   {6, 3},   {7, 7},   {8, 8},   {9, 9},   {10, 10},
                                                   {11, 10}, {12, 10}, {30, 12}, {31, 13}, {32, 18}, {13, 25}, {14, 6},
                                                   {34, 6},  {51, 6},  {27, 17}, {47, 17}, {64, 17}};
    for (const auto& [index, rubric] : rubrics) {
        form.sheet.Text1.setFocus();
        form.sheet.showFetus(index < 33 ? 0 : index < 50 ? 1 : 2);
        form.sheet.Txt2T(index).setFocus();
        EXPECT_EQ(form.sheet.List1.items(), QStringList({QString::number(rubric) + " "})) << index;
    }
    for (const int date : {2, 3, 4}) {
        form.sheet.Txt2T(date).setFocus();
        EXPECT_TRUE(form.sheet.Calendar1.visible()) << date;
        EXPECT_EQ(form.sheet.List1.count(), 0) << date;
    }
}

TEST_F(LaterCorrectionWindow, ThePresentationOfTheOtherFetusesLeavesTheLists) {
    store(5, "aspect");
    store(18, "conclusion");
    Form11& form = openOnSecond();
    for (const int presentation : {33, 50}) {
        form.sheet.Txt2T(32).setFocus();
        form.sheet.showFetus(presentation == 33 ? 1 : 2);
        form.sheet.Txt2T(presentation).setFocus();
        EXPECT_EQ(form.focused(), &form.sheet.Txt2T(presentation));
        EXPECT_EQ(form.sheet.List1.items(), QStringList({"conclusion "})) << presentation;
    }
}

TEST_F(LaterCorrectionWindow, EveryMeasureOffersTheSameShortRun) {
    Form11& form = openOnSecond();
    int measures = 0;
    for (int index = 15; index <= 66; ++index) {
        const bool measure = index <= 26 || (index >= 35 && index <= 46) || (index >= 52 && index <= 63);
        const bool artery = index == 28 || index == 29 || index == 48 || index == 49 || index >= 65;
        if (!measure && !artery) {
            continue;
        }
        form.sheet.showFetus(index < 33 ? 0 : index < 50 ? 1 : 2);
        form.sheet.Txt2T(index).setFocus();
        EXPECT_EQ(form.sheet.List2.items(), QStringList({"0", "1", "2", "3"})) << index;
        EXPECT_EQ(form.sheet.List2.text(), "1") << index;
        ++measures;
    }
    EXPECT_EQ(measures, 42);
}

TEST_F(LaterCorrectionWindow, SavesTheFieldsButTheKind) {
    Form11& form = openOnSecond();
    write(form.sheet.Txt2T(32), "après");
    write(form.sheet.txtDatexam, "12/02/2002");
    write(form.sheet.TxtNbrE, "");
    save();
    EXPECT_EQ(world_.boxes.asked,
              QStringList({"Voulez vous vraiment enregistrer les modifications apportées à ce compte rendu ?"}));
    EXPECT_EQ(world_.boxes.said, QStringList({"Compte rendu modifié"}));
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({"", "après", ""}));
    EXPECT_EQ(stored(2, "DATEXAM").at(1), "12/02/2002");
    EXPECT_EQ(stored(2, "NBRE"), QStringList({"1", "", "1"}));
    EXPECT_EQ(stored(2, "TYPECHO"), QStringList({"0", "3", "0"}));
    EXPECT_EQ(stored(2, "MACHINE").at(1), "ANCIEN");
    EXPECT_EQ(stored(2, "NUMERO").at(1), "2");
    EXPECT_EQ(desk().peek("Form11"), nullptr);
    EXPECT_FALSE(QFile::exists(world_.folder.filePath("Settings")));
}

TEST_F(LaterCorrectionWindow, AsksUnderABusyPointerWithTheRecordInEdit) {
    Form11& form = openOnSecond();
    write(form.sheet.Txt2T(32), "après");
    world_.boxes.whenAsked = [this] {
        EXPECT_EQ(desk().at<Form11>().pointer(), forms::Pointer::Busy);
        EXPECT_EQ(state_.Rs.text("CONCLU1"), "après");
        EXPECT_EQ(stored(2, "CONCLU1").at(1), "avant");
    };
    save(false);
    EXPECT_EQ(world_.boxes.asked.size(), 1);
}

TEST_F(LaterCorrectionWindow, ANoClosesTheWindowAndLosesTheEntries) {
    Form11& form = openOnSecond();
    write(form.sheet.Txt2T(32), "après");
    save(false);
    EXPECT_EQ(desk().peek("Form11"), nullptr);
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "avant");
    EXPECT_EQ(stored(2, "AGESTA").at(1), "16,3");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_EQ(laterView().TxtConclu1.text(), "avant");
    EXPECT_EQ(laterView().LblAgeGesta.text(), "16,3");
    EXPECT_TRUE(shown("Form10"));
}

TEST_F(LaterCorrectionWindow, TheViewIsRefilledWithoutTheWordsBehindTheAge) {
    Form11& form = openOnSecond();
    const QString heading = laterView().Label1.text();
    EXPECT_EQ(laterView().LblAgeGesta.text(), "16,3 Sem. A.");
    write(form.sheet.Txt2T(32), "après");
    write(form.sheet.Txt2T(0), "30");
    write(form.sheet.txtDatexam, "12/02/2002");
    save();
    EXPECT_EQ(laterView().TxtConclu1.text(), "après");
    EXPECT_EQ(laterView().LblIMC.text(), "30");
    EXPECT_EQ(laterView().LblAgeGesta.text(), "17");
    EXPECT_EQ(laterView().Sem_Entier.text(), "16,3");
    EXPECT_EQ(laterView().LblDatExam.text(), "12/02/2002");
    EXPECT_EQ(laterView().LblDatExamb.text(), "11/02/2002");
    EXPECT_EQ(laterView().Label1.text(), heading);
    press(laterView().CmdRec);
    press(laterView().CmdAv);
    EXPECT_EQ(laterView().LblAgeGesta.text(), "17 Sem. A.");
    EXPECT_EQ(laterView().Sem_Entier.text(), "17");
    EXPECT_EQ(laterView().LblDatExamb.text(), "12/02/2002");
}

TEST_F(LaterCorrectionWindow, TheRefillShowsThePanelFromTwoOn) {
    openOnSecond();
    save();
    EXPECT_TRUE(laterView().Frame5.visible());
    for (const auto& [count, panel] : {std::pair("3", true), std::pair("1", false), std::pair("0", false),
                                       std::pair("2", true), std::pair("", false)}) {
        write(correctLater().sheet.TxtNbrE, count);
        save();
        EXPECT_EQ(laterView().Frame5.visible(), panel) << count;
        EXPECT_TRUE(laterView().FrameJ1.visible()) << count;
    }
}

TEST_F(LaterCorrectionWindow, ALoweredNumberKeepsTheOtherFetusesInTheRecordAndBringsTheFirstInView) {
    Form11& form = openOnSecond();
    write(form.sheet.Txt2T(36), "55");
    save();
    press(laterView().CmdJ2);
    write(correctLater().sheet.TxtNbrE, "1");
    save();
    EXPECT_EQ(stored(2, "Bip2").at(1), "55");
    EXPECT_TRUE(laterView().FrameJ1.visible());
    EXPECT_TRUE(laterView().Frame12.visible());
}

TEST_F(LaterCorrectionWindow, SteppingWorksAgainAfterASaveAndAfterLeaving) {
    openOnSecond();
    save();
    press(laterView().CmdAv);
    EXPECT_EQ(laterView().LblNumEcho.text(), "3");
    press(laterView().CmdRec);
    correctLater();
    press(desk().at<Form11>().CmdQuitter);
    EXPECT_EQ(desk().peek("Form11"), nullptr);
    EXPECT_TRUE(shown("Form10"));
    press(laterView().CmdRec);
    EXPECT_EQ(laterView().LblNumEcho.text(), "1");
    press(laterView().CmdAv);
    correctLater();
    desk().act([this] { desk().at<Form11>().close(); });
    press(laterView().CmdAv);
    EXPECT_EQ(laterView().LblNumEcho.text(), "3");
}

TEST_F(LaterCorrectionWindow, LeavingWithoutSavingChangesNothing) {
    Form11& form = openOnSecond();
    write(form.sheet.Txt2T(32), "après");
    press(form.CmdQuitter);
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "avant");
    EXPECT_EQ(laterView().LblAgeGesta.text(), "16,3 Sem. A.");
}

TEST_F(LaterCorrectionWindow, AnOvertypedNumberShowsThatSameRecord) {
    Form11& form = openOnSecond();
    write(form.sheet.TxtNumEcho, "8");
    write(form.sheet.Txt2T(32), "renumérotée");
    save();
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "3", "8"}));
    EXPECT_EQ(laterView().LblNumEcho.text(), "8");
    EXPECT_EQ(laterView().TxtConclu1.text(), "renumérotée");
    press(laterView().CmdRec);
    EXPECT_EQ(laterView().LblNumEcho.text(), "3");
}

// The dossier window can be moved on behind the viewing window, and the correction takes the dossier that is open.
TEST_F(LaterCorrectionWindow, TheViewNamesThePatientWhoseExamWasCorrected) {
    addLater(3, 3, "20/03/2002", {{"NBRE", "1"}});
    viewLastLater("DUPONT");
    dossierOf("MARTIN");
    write(correctLater().sheet.Txt2T(32), "de Anne");
    save();
    EXPECT_EQ(laterView().TxtConclu1.text(), "de Anne");
    EXPECT_EQ(laterView().LblNom.text(), "MARTIN");
    EXPECT_EQ(laterView().LblPrenom.text(), "Anne");
    EXPECT_EQ(laterView().LblNumInt.text(), "3");
}

TEST_F(LaterCorrectionWindow, OfTwoExamsOfOneNumberTheFirstIsCorrected) {
    addLater(3, 1, "10/01/2002", {{"CONCLU1", "premier"}});
    addLater(3, 1, "11/01/2002", {{"CONCLU1", "second"}});
    viewLastLater("MARTIN");
    write(correctLater().sheet.Txt2T(32), "corrigé");
    save();
    EXPECT_EQ(stored(3, "CONCLU1"), QStringList({"corrigé", "second"}));
    EXPECT_EQ(laterView().TxtConclu1.text(), "corrigé");
}

TEST_F(LaterCorrectionWindow, AStoreErrorKeepsTheWindowAndItsEntries) {
    Form11& form = openOnSecond();
    write(form.sheet.TxtNumEcho, "deux");
    write(form.sheet.Txt2T(32), "après");
    save();
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_TRUE(shown("Form11"));
    EXPECT_EQ(form.sheet.Txt2T(32).text(), "après");
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "avant");
}

TEST_F(LaterCorrectionWindow, AFileThatRefusesTheUpdateKeepsTheWindowAndItsEntries) {
    Form11& form = openOnSecond();
    write(form.sheet.Txt2T(32), "après");
    {
        const fakes::RefusingFile refusing(fakes::pathOf(world_, store::FileKind::Echo), "UPDATE", "1TER");
        save();
    }
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_TRUE(shown("Form11"));
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    save();
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "après");
}

TEST_F(LaterCorrectionWindow, AnExamDeletedMeanwhileIsReportedAndNoOtherIsWritten) {
    openOnSecond();
    store::Database::open(fakes::pathOf(world_, store::FileKind::Echo))
        .openRecordset("SELECT*FROM 1TER WHERE NUMERO=2And NUMECHO=2")
        .remove();
    save();
    EXPECT_EQ(world_.boxes.reported, QList<int>({3167}));
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({"", ""}));
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "3"}));
}

TEST_F(LaterCorrectionWindow, AnExamDeletedBeforeItsCorrectionIsReportedAndNoWindowComesUp) {
    viewLastLater();
    query("SELECT*FROM 1TER WHERE NUMERO=2And NUMECHO=3").remove();
    press(laterView().CmdModifs);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3021}));
    EXPECT_FALSE(loaded("Form11"));
    EXPECT_TRUE(shown("Form10"));
}

TEST_F(LaterCorrectionWindow, ATypedKindOfTheViewIsNoMatterOfTheCorrection) {
    openOnSecond();
    laterView().TxtTypecho.setText("0");
    save();
    EXPECT_EQ(stored(2, "TYPECHO"), QStringList({"0", "3", "0"}));
    EXPECT_EQ(laterView().TxtTypecho.text(), "3");
}

TEST_F(LaterCorrectionWindow, WhatIsStillInTheFreeEntryIsSaved) {
    Form11& form = openOnSecond();
    form.sheet.Txt2T(32).setFocus();
    form.sheet.Text1.setText("libre");
    save();
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "avant libre ");
}

}  // namespace
}  // namespace exams
