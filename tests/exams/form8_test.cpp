#include "exams/form8.h"

#include <QFile>

#include "exams/exam_windows.h"

namespace exams {
namespace {

class LaterWritingWindow : public ExamWindows {
protected:
    void save(Form8& form) {
        world_.boxes.answers = {true};
        press(form.CmdEnregis);
    }
    /// A person's choice: the view switches the button on, then tells the click.
    void choose(forms::Option& option) {
        desk().act([&] {
            option.setChecked(true);
            option.click();
        });
    }
    /// The zones of the published list, stored in an order that is neither theirs nor that of their phrases.
    void storeZones() {
        phrase(29, "d1", 1);
        phrase(26, "a2", 9);
        phrase(26, "a1", 8);
        phrase(28, "c2", 7);
        phrase(28, "c1", 3);
        phrase(27, "b1", 2);
    }
    void phrase(int rubric, const QString& text, int index) {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", text}, {"TERMINAIS", "A"}, {"INDEX", index}});
    }
    bool shows(const LaterSheet& sheet, bool first, bool second, bool third) {
        return sheet.FrameJ1.visible() == first && sheet.FrameJ2.visible() == second &&
               sheet.FrameJ3.visible() == third;
    }
    bool zonesShown(const Form8& form, bool wanted) {
        bool all = true;
        for (const forms::Button* zone : {&form.CmdZoneA, &form.CmdZoneB, &form.CmdZoneC, &form.CmdZoneD}) {
            all = all && zone->visible() == wanted && zone->enabled() == wanted;
        }
        return all;
    }
};

TEST_F(LaterWritingWindow, OpensEmptyOnTheFirstExamOfADossier) {
    Form8& form = newLater();
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "1");
    EXPECT_EQ(form.lblNumEcho.text(), "001");
    EXPECT_EQ(form.sheet.txtDatexam.text(), "05/04/2002");
    EXPECT_EQ(form.TxtTypecho.text(), "0");
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "1");
    EXPECT_EQ(form.sheet.LblNom.text(), "DUPONT");
    EXPECT_EQ(form.sheet.LblPrenom.text(), "Marie");
    EXPECT_EQ(form.sheet.LblNumInt.text(), "2");
    EXPECT_EQ(form.sheet.LblMachine.text(), "");
    EXPECT_TRUE(form.Option1.checked() && !form.Option2.checked() && !form.Option3.checked());
    EXPECT_TRUE(shows(form.sheet, true, false, false));
    EXPECT_FALSE(form.sheet.Frame5.visible());
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(1));
    for (int i = 0; i <= 66; ++i) {
        EXPECT_EQ(form.sheet.Txt2T(i).text(), "") << i;
    }
    EXPECT_TRUE(shown("Form8"));
}

TEST_F(LaterWritingWindow, ItsControlsHaveTheirCaptionsAndTheirNumbers) {
    const std::vector<std::pair<const char*, const char*>> captions{{"Option1", "G. Simple"},
                                                                    {"Option2", "G. Gemellaire"},
                                                                    {"Option3", "G. Triple"},
                                                                    {"Perso", "Morpho Personnelle"},
                                                                    {"Bourgeois", "Morpho Taiple"},
                                                                    {"Frame5", "G Multiple"},
                                                                    {"CmdJ1", "J1"},
                                                                    {"CmdJ2", "J2"},
                                                                    {"CmdJ3", "J3"},
                                                                    {"FrameJ1", "Foetus"},
                                                                    {"FrameJ2", "Foetus N°2"},
                                                                    {"FrameJ3", "Foetus N°3"},
                                                                    {"Label36", "Foetus N°"},
                                                                    {"Label37", "2"},
                                                                    {"CmdPhotos", "&Photos"},
                                                                    {"CmdEnregis", "&Enregistrer"},
                                                                    {"CmdQuitter", "&Quitter"}};
    const Form8& form = newLater();
    EXPECT_EQ(form.title(), "Echographie du 2ème et 3ème Trimestre");
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
    EXPECT_NE(form.find(u"TxtNumFoet"), nullptr);
    EXPECT_EQ(form.find(u"FrameJ1", 0), &form.sheet.FrameJ1);
    EXPECT_EQ(form.find(u"FrameJ2", 1), &form.sheet.FrameJ2);
    EXPECT_EQ(form.find(u"FrameJ3", 2), &form.sheet.FrameJ3);
    EXPECT_EQ(form.find(u"Frame5", 3), &form.sheet.Frame5);
}

TEST_F(LaterWritingWindow, TheFirstExamOfADossierLeavesTheNumberOnTheLabel) {
    addLater(2, 6, "10/01/2002");
    const Form8& form = newLater();
    EXPECT_EQ(form.lblNumEcho.text(), "7");
    newLater("MARTIN");
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "1");
    EXPECT_EQ(form.lblNumEcho.text(), "7");
}

TEST_F(LaterWritingWindow, CountsInOneSequenceWithTheFirstTrimesterAndApartFromGynaecology) {
    addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}});
    addLater(2, 2, "11/02/2002");
    addExam(2, 3, "12/03/2002", {{"TYPECHO", "1"}});
    fakes::addExam(world_, "GYNECO", 2, 9, "12/03/2002");
    Form8& form = newLater();
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "4");
    EXPECT_EQ(form.lblNumEcho.text(), "4");
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "4");
}

TEST_F(LaterWritingWindow, OpensFromEachOfItsButtonsAndMenus) {
    addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}});
    viewLast();
    press(view().Echo2T);
    EXPECT_EQ(desk().at<Form8>().sheet.TxtNumEcho.text(), "2");
    press(desk().at<Form8>().CmdQuitter);
    press(view().Hlb2T);
    EXPECT_TRUE(shown("Form8"));
    press(desk().at<Form8>().CmdQuitter);
    addLater(2, 2, "10/01/2002");
    viewLastLater();
    press(laterView().Ter2);
    EXPECT_EQ(desk().at<Form8>().sheet.TxtNumEcho.text(), "3");
    press(desk().at<Form8>().CmdQuitter);
    press(laterView().Hlb2T);
    EXPECT_TRUE(shown("Form8"));
}

TEST_F(LaterWritingWindow, AnOpeningClearsTheFieldsAndKeepsTheNumberOfFetusesAndTheFrames) {
    Form8& form = newLater();
    choose(form.Option2);
    press(form.sheet.CmdJ2);
    form.sheet.TxtPds.setText("60");
    form.sheet.Txt2T(5).setText("Voie abdominale");
    form.sheet.Txt2T(66).setText("0,8");
    form.LblAgeGesta.setText("22");
    form.TxtTypecho.setText("2");
    form.sheet.txtDatexam.setText("01/01/2001");
    newLater();
    EXPECT_EQ(form.sheet.TxtPds.text(), "");
    EXPECT_EQ(form.sheet.Txt2T(5).text(), "");
    EXPECT_EQ(form.sheet.Txt2T(66).text(), "");
    EXPECT_EQ(form.sheet.txtDatexam.text(), "05/04/2002");
    EXPECT_EQ(form.LblAgeGesta.text(), "22");
    EXPECT_EQ(form.TxtTypecho.text(), "2");
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "2");
    EXPECT_TRUE(form.Option2.checked());
    EXPECT_TRUE(shows(form.sheet, false, true, false));
    EXPECT_FALSE(form.sheet.Frame5.visible());
}

TEST_F(LaterWritingWindow, AnOpeningOverAFilledStartClearsTheAgeByItsChange) {
    for (const int start : {3, 4}) {
        Form8& form = newLater();
        write(form.sheet.Txt2T(start), "01/11/2001");
        EXPECT_EQ(form.LblAgeGesta.text(), "24,1");
        newLater();
        EXPECT_EQ(form.LblAgeGesta.text(), "") << start;
    }
}

TEST_F(LaterWritingWindow, TheNumberOfFetusesHoldsOneDigit) {
    Form8& form = newLater();
    type(form.sheet.TxtNbrE, u'2');
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "2");
    type(form.sheet.TxtNbrE, u'3');
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "3");
    type(form.sheet.TxtNbrE, u'x');
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "");
}

TEST_F(LaterWritingWindow, AMeasureTakesAnyKey) {
    Form8& form = newLater();
    for (int i = 1; i <= 66; ++i) {
        EXPECT_FALSE(form.sheet.Txt2T(i).onKey) << i;
    }
}

TEST_F(LaterWritingWindow, TheFocusOffersThePhrasesOfEachField) {
    for (const int rubric : {1, 2, 3, 6, 7, 8, 9, 10, 12, 13, 17, 18, 25, 55}) {
        store(rubric, QString::number(rubric));
    }
    Form8& form = newLater();
    form.sheet.showFirstFetuses(1);
    const std::vector<std::pair<int, int>> rubrics{
        {1, 1},   {5, 2},   {6, 3},   {7, 7},   {8, 8},  {9, 9},  {10, 10}, {11, 55}, {12, 55}, {30, 12}, {31, 13},
        {32, 18}, {13, 25}, {33, 25}, {50, 25}, {14, 6}, {34, 6}, {51, 6},  {27, 17}, {47, 17}, {64, 17}};
    for (const auto& [index, rubric] : rubrics) {
        form.sheet.Text1.setFocus();
        form.sheet.showFetus(index < 33 ? 0 : index < 50 ? 1 : 2);
        form.sheet.Txt2T(index).setFocus();
        EXPECT_EQ(form.sheet.List1.items(), QStringList({QString::number(rubric) + " "})) << index;
        EXPECT_FALSE(form.sheet.List2.visible()) << index;
        EXPECT_FALSE(form.sheet.Calendar1.visible()) << index;
    }
}

TEST_F(LaterWritingWindow, TheFocusOffersTheNumbersOfEachMeasure) {
    // The place behind the presentation of each fetus; the first and last number, and the one chosen.
    const std::vector<std::tuple<int, const char*, const char*, const char*>> runs{
        {2, "100", "200", "150"},  // heart rate
        {3, "50", "100", "60"},    // biparietal
        {4, "120", "350", "175"},  // head circumference
        {5, "20", "35", "23"},     // orbits
        {6, "20", "50", "23"},     // cerebellum
        {7, "40", "110", "50"},    // abdominal diameter
        {8, "150", "380", "175"},  // abdominal circumference
        {9, "35", "75", "40"},     // femur
        {10, "35", "70", "40"},    // foot
        {11, "30", "60", "35"},    // tibia
        {12, "33", "65", "38"},    // humerus
        {13, "2", "12", "8"},      // nasal bone
        {15, "0", "3", "1"},       // umbilical artery
        {16, "0", "3", "1"}};      // cerebral artery
    Form8& form = newLater();
    const std::array presentations{13, 33, 50};
    for (int fetus = 0; fetus < 3; ++fetus) {
        form.sheet.showFetus(fetus);
        for (const auto& [place, first, last, chosen] : runs) {
            const int index = presentations[static_cast<std::size_t>(fetus)] + place;
            form.sheet.Txt2T(index).setFocus();
            EXPECT_TRUE(form.sheet.List2.visible()) << index;
            EXPECT_EQ(form.sheet.List2.items().first(), first) << index;
            EXPECT_EQ(form.sheet.List2.items().last(), last) << index;
            EXPECT_EQ(form.sheet.List2.count(), QString(last).toInt() - QString(first).toInt() + 1) << index;
            EXPECT_EQ(form.sheet.List2.text(), chosen) << index;
        }
    }
}

TEST_F(LaterWritingWindow, ADateFieldShowsTheCalendarAndTheIndexLeavesTheListsAlone) {
    store(2, "Voie abdominale.");
    Form8& form = newLater();
    form.sheet.Txt2T(5).setFocus();
    form.sheet.Txt2T(0).setFocus();
    EXPECT_EQ(form.sheet.List1.items(), QStringList({"Voie abdominale. "}));
    for (const int date : {2, 3, 4}) {
        form.sheet.Txt2T(5).setFocus();
        form.sheet.Txt2T(date).setFocus();
        EXPECT_EQ(form.sheet.List1.count(), 0) << date;
        EXPECT_TRUE(form.sheet.Calendar1.visible()) << date;
    }
    desk().act([&] { form.sheet.Calendar1.choose(QDate(2001, 11, 1)); });
    EXPECT_EQ(form.sheet.Txt2T(4).text(), "01/11/2001");
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(5));
}

TEST_F(LaterWritingWindow, APhraseThatClosesItsFieldGoesOnFromTheConclusionToTheFirstField) {
    for (const int rubric : {13, 18}) {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", "fin"}, {"TERMINAIS", "C"}});
    }
    Form8& form = newLater();
    form.sheet.Txt2T(31).setFocus();
    form.sheet.List1.setRow(0);
    desk().act([&] { form.sheet.List1.doubleClick(); });
    EXPECT_EQ(form.sheet.Txt2T(31).text(), "fin");
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(32));
    form.sheet.List1.setRow(0);
    desk().act([&] { form.sheet.List1.doubleClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(1));
}

TEST_F(LaterWritingWindow, AFieldOfTheOtherFetusesGoesOnToTheFirstField) {
    for (const int rubric : {6, 25}) {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", "fin"}, {"TERMINAIS", "C"}});
    }
    Form8& form = newLater();
    for (const int index : {33, 34, 50, 51}) {
        form.sheet.showFetus(index < 50 ? 1 : 2);
        form.sheet.Txt2T(index).setFocus();
        form.sheet.List1.setRow(0);
        desk().act([&] { form.sheet.List1.doubleClick(); });
        EXPECT_EQ(form.sheet.Txt2T(index).text(), "fin") << index;
        EXPECT_EQ(form.focused(), &form.sheet.Txt2T(1)) << index;
    }
    form.sheet.Txt2T(66).setFocus();
    desk().act([&] { form.sheet.List2.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(1));
}

TEST_F(LaterWritingWindow, ARightClickGoesOnWithTheThirdFetusAloneInView) {
    Form8& form = newLater();
    form.sheet.Txt2T(7).setFocus();
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(7));
    form.sheet.showFetus(2);
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(8));
    form.sheet.Txt2T(32).setFocus();
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(1));
}

TEST_F(LaterWritingWindow, TheDeletingButtonEmptiesTheCurrentFieldAndTheFreeEntryAppendsToIt) {
    Form8& form = newLater();
    form.sheet.Txt2T(32).setFocus();
    form.sheet.Txt2T(32).setText("avant");
    form.sheet.Text1.setFocus();
    form.sheet.Text1.setText("libre");
    desk().act([&] { form.sheet.Text1.onEnter(); });
    EXPECT_EQ(form.sheet.Txt2T(32).text(), "avant libre ");
    press(form.sheet.CmdEfface);
    EXPECT_EQ(form.sheet.Txt2T(32).text(), "");
}

TEST_F(LaterWritingWindow, StartsWithThePracticesOwnMorphologyAndNoZones) {
    const Form8& form = newLater();
    EXPECT_TRUE(form.Perso.checked());
    EXPECT_FALSE(form.Bourgeois.checked());
    EXPECT_TRUE(zonesShown(form, false));
}

TEST_F(LaterWritingWindow, TakesItsMarksFromTheSettingsFile) {
    settingsFile("\"Faux\",\"Vrai\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n");
    const Form8& form = newLater();
    EXPECT_FALSE(form.Perso.checked());
    EXPECT_TRUE(form.Bourgeois.checked());
    EXPECT_TRUE(zonesShown(form, true));
}

TEST_F(LaterWritingWindow, ABrokenSettingsFileLeavesTheMarks) {
    settingsFile("\"Faux\",\"peut");
    const Form8& form = newLater();
    EXPECT_TRUE(form.Perso.checked());
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(LaterWritingWindow, TheTwoMorphologiesExcludeEachOtherAndShowOrHideTheZones) {
    Form8& form = newLater();
    press(form.Bourgeois);
    EXPECT_TRUE(form.Bourgeois.checked() && !form.Perso.checked());
    EXPECT_TRUE(zonesShown(form, true));
    press(form.Perso);
    EXPECT_TRUE(form.Perso.checked() && !form.Bourgeois.checked());
    EXPECT_TRUE(zonesShown(form, false));
}

TEST_F(LaterWritingWindow, ThePublishedMorphologyOffersItsFourZonesInTheirOrder) {
    storeZones();
    store(17, "la nôtre");
    Form8& form = newLater();
    press(form.Bourgeois);
    form.sheet.Txt2T(27).setFocus();
    EXPECT_EQ(form.sheet.List1.items(), QStringList({"a1 ", "a2 ", "b1 ", "c1 ", "c2 ", "d1 "}));
    form.sheet.Txt2T(5).setFocus();
    press(form.Perso);
    form.sheet.Txt2T(27).setFocus();
    EXPECT_EQ(form.sheet.List1.items(), QStringList({"la nôtre "}));
}

TEST_F(LaterWritingWindow, WithNeitherMorphologyTheListsStayAsTheyWere) {
    storeZones();
    store(2, "Voie abdominale.");
    Form8& form = newLater();
    form.Perso.setChecked(false);
    form.sheet.Txt2T(5).setFocus();
    form.sheet.Txt2T(27).setFocus();
    EXPECT_EQ(form.sheet.List1.items(), QStringList({"Voie abdominale. "}));
}

TEST_F(LaterWritingWindow, AZoneGoesIntoTheFetusInView) {
    storeZones();
    Form8& form = newLater();
    press(form.Bourgeois);
    press(form.CmdZoneA);
    EXPECT_EQ(form.sheet.Txt2T(27).text(), " a1 a2");
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(27));
    EXPECT_EQ(form.sheet.Txt2T(27).selectionStart(), 6);
    press(form.CmdZoneB);
    EXPECT_EQ(form.sheet.Txt2T(27).text(), " a1 a2\r\n b1");
    EXPECT_EQ(form.sheet.Txt2T(47).text(), "");
    EXPECT_EQ(form.sheet.Txt2T(64).text(), "");
}

TEST_F(LaterWritingWindow, EachZoneHasItsRubric) {
    storeZones();
    Form8& form = newLater();
    press(form.Bourgeois);
    press(form.CmdZoneC);
    press(form.CmdZoneD);
    EXPECT_EQ(form.sheet.Txt2T(27).text(), " c1 c2\r\n d1");
}

TEST_F(LaterWritingWindow, OfTwinsOnTopOfEachOtherTheFirstTakesTheZoneAndTheSecondALineBreak) {
    storeZones();
    Form8& form = newLater();
    press(form.Bourgeois);
    choose(form.Option2);
    ASSERT_TRUE(shows(form.sheet, true, true, false));
    form.sheet.Txt2T(47).setText("avant");
    press(form.CmdZoneA);
    EXPECT_EQ(form.sheet.Txt2T(27).text(), " a1 a2");
    EXPECT_EQ(form.sheet.Txt2T(47).text(), "avant\r\n");
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(47));
    form.sheet.Txt2T(47).setText("");
    press(form.CmdZoneB);
    EXPECT_EQ(form.sheet.Txt2T(47).text(), "");
}

TEST_F(LaterWritingWindow, TheSecondFetusTakesTheZoneWhenItIsAloneInView) {
    storeZones();
    Form8& form = newLater();
    press(form.Bourgeois);
    choose(form.Option3);
    press(form.sheet.CmdJ2);
    press(form.CmdZoneA);
    EXPECT_EQ(form.sheet.Txt2T(27).text(), "");
    EXPECT_EQ(form.sheet.Txt2T(47).text(), " a1 a2");
    press(form.sheet.CmdJ3);
    press(form.CmdZoneD);
    EXPECT_EQ(form.sheet.Txt2T(64).text(), " d1");
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(64));
}

TEST_F(LaterWritingWindow, AZoneWithoutPhrasesLeavesALineBreakAlone) {
    Form8& form = newLater();
    press(form.Bourgeois);
    press(form.CmdZoneA);
    EXPECT_EQ(form.sheet.Txt2T(27).text(), "");
    form.sheet.Txt2T(27).setText("avant");
    press(form.CmdZoneA);
    EXPECT_EQ(form.sheet.Txt2T(27).text(), "avant\r\n");
}

TEST_F(LaterWritingWindow, AnOptionWritesTheNumberAndShowsThePanel) {
    Form8& form = newLater();
    const LaterSheet& sheet = form.sheet;
    choose(form.Option2);
    EXPECT_EQ(sheet.TxtNbrE.text(), "2");
    EXPECT_TRUE(sheet.Frame5.visible() && sheet.CmdJ1.visible() && sheet.CmdJ2.visible() && !sheet.CmdJ3.visible());
    EXPECT_TRUE(shows(sheet, true, true, false));
    choose(form.Option3);
    EXPECT_EQ(sheet.TxtNbrE.text(), "3");
    EXPECT_TRUE(sheet.Frame5.visible() && sheet.CmdJ1.visible() && sheet.CmdJ2.visible() && sheet.CmdJ3.visible());
    EXPECT_TRUE(shows(sheet, true, true, true));
    choose(form.Option1);
    EXPECT_EQ(sheet.TxtNbrE.text(), "1");
    EXPECT_FALSE(sheet.Frame5.visible());
    EXPECT_TRUE(shows(sheet, true, false, false));
}

TEST_F(LaterWritingWindow, TheOptionsExcludeEachOther) {
    Form8& form = newLater();
    choose(form.Option3);
    EXPECT_TRUE(!form.Option1.checked() && !form.Option2.checked() && form.Option3.checked());
}

TEST_F(LaterWritingWindow, AClickOnAnOptionBringsThePanelBackThoughTheNumberStays) {
    Form8& form = newLater();
    choose(form.Option2);
    newLater();
    ASSERT_FALSE(form.sheet.Frame5.visible());
    choose(form.Option2);
    EXPECT_TRUE(form.sheet.Frame5.visible());
    EXPECT_TRUE(shows(form.sheet, true, true, false));
}

TEST_F(LaterWritingWindow, ATypedNumberActsAsTheOptionsDo) {
    Form8& form = newLater();
    write(form.sheet.TxtNbrE, "3");
    EXPECT_TRUE(shows(form.sheet, true, true, true));
    write(form.sheet.TxtNbrE, "2");
    EXPECT_TRUE(shows(form.sheet, true, true, false));
    EXPECT_FALSE(form.sheet.CmdJ3.visible());
    for (const char* nothing : {"0", "", "deux"}) {
        write(form.sheet.TxtNbrE, nothing);
        EXPECT_TRUE(form.sheet.Frame5.visible()) << nothing;
        EXPECT_TRUE(shows(form.sheet, true, true, false)) << nothing;
    }
    write(form.sheet.TxtNbrE, "1");
    EXPECT_FALSE(form.sheet.Frame5.visible());
    EXPECT_TRUE(form.Option1.checked());
}

TEST_F(LaterWritingWindow, FourFetusesAreRefusedOnceAndTheFramesStay) {
    Form8& form = newLater();
    write(form.sheet.TxtNbrE, "2");
    write(form.sheet.TxtNbrE, "4");
    EXPECT_EQ(world_.boxes.said, QStringList({"Désolé le logiciel ne traite pas plus de 3 foetus"}));
    EXPECT_EQ(form.sheet.TxtNbrE.text(), "");
    EXPECT_TRUE(form.sheet.Frame5.visible());
    EXPECT_TRUE(shows(form.sheet, true, true, false));
}

TEST_F(LaterWritingWindow, OfSeveralVisibleFetusesTheLastLiesOnTop) {
    Form8& form = newLater();
    choose(form.Option3);
    form.sheet.Txt2T(16).setFocus();
    EXPECT_NE(form.focused(), &form.sheet.Txt2T(16));
    form.sheet.Txt2T(53).setFocus();
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(53));
    press(form.sheet.CmdJ1);
    form.sheet.Txt2T(16).setFocus();
    EXPECT_EQ(form.focused(), &form.sheet.Txt2T(16));
}

TEST_F(LaterWritingWindow, EachButtonBringsOneFetusInViewAndPaintsThePanel) {
    Form8& form = newLater();
    choose(form.Option3);
    press(form.sheet.CmdJ2);
    EXPECT_TRUE(shows(form.sheet, false, true, false));
    EXPECT_EQ(form.sheet.Frame5.back(), 0xFFFFFFU);
    press(form.sheet.CmdJ3);
    EXPECT_TRUE(shows(form.sheet, false, false, true));
    EXPECT_EQ(form.sheet.Frame5.back(), 0xFFC0C0U);
    press(form.sheet.CmdJ1);
    EXPECT_TRUE(shows(form.sheet, true, false, false));
    EXPECT_EQ(form.sheet.Frame5.back(), 0xC0FFFFU);
}

TEST_F(LaterWritingWindow, AnAnswerOfNoLeavesTheWindowWithItsEntriesAndKeepsTheMarks) {
    Form8& form = newLater();
    press(form.Bourgeois);
    write(form.sheet.Txt2T(16), "53");
    world_.boxes.whenAsked = [this] {
        EXPECT_EQ(settings(), "\"Faux\",\"Vrai\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n");
        EXPECT_EQ(desk().at<Form8>().pointer(), forms::Pointer::Normal);
    };
    press(form.CmdEnregis);
    EXPECT_EQ(world_.boxes.asked, QStringList({"Voulez vous vraiment enregistrer ce compte rendu ?"}));
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
    EXPECT_TRUE(shown("Form8"));
    EXPECT_EQ(form.sheet.Txt2T(16).text(), "53");
}

TEST_F(LaterWritingWindow, SavesWithoutAnyCheck) {
    save(newLater());
    EXPECT_EQ(world_.boxes.said, QStringList({"Enregistré"}));
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1"}));
    EXPECT_EQ(stored(2, "NBRE"), QStringList({"1"}));
    for (const char* field : {"BIP", "MACHINE", "DATECIRC", "AGESTA", "DG", "CONCLU1"}) {
        EXPECT_FALSE(query("SELECT*FROM 1TER WHERE NUMERO=2").field(field).isNull()) << field;
        EXPECT_EQ(stored(2, field), QStringList({""})) << field;
    }
}

TEST_F(LaterWritingWindow, ANumberThatIsTakenIsSavedAsItStands) {
    addLater(2, 1, "10/01/2002", {{"CONCLU1", "ancien"}});
    Form8& form = newLater();
    write(form.sheet.TxtNumEcho, "1");
    write(form.sheet.Txt2T(32), "nouveau");
    save(form);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "1"}));
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({"ancien", "nouveau"}));
}

TEST_F(LaterWritingWindow, ADateThatCannotBeReadIsSavedAsTyped) {
    Form8& form = newLater();
    write(form.sheet.Txt2T(4), "mi-novembre");
    write(form.sheet.txtDatexam, "ce matin");
    save(form);
    EXPECT_EQ(stored(2, "DGUS"), QStringList({"mi-novembre"}));
    EXPECT_EQ(stored(2, "DATEXAM"), QStringList({"ce matin"}));
    EXPECT_EQ(stored(2, "AGESTA"), QStringList({""}));
}

// What the record holds when each field of the window holds its index: copied by hand from the sheet of the practice,
// not from the program's own rows.
const std::vector<std::pair<const char*, const char*>> kSavedFields{{"NUMERO", "2"},
                                                                    {"NUMECHO", "1"},
                                                                    {"AGESTA", "22,3"},
                                                                    {"TYPECHO", "0"},
                                                                    {"NBRE", "1"},
                                                                    {"MACHINE", "ORIVANNE"},
                                                                    {"DATECIRC", "01/02/2001"},
                                                                    {"DATEXAM", "hier"},
                                                                    {"BMI", "t0"},
                                                                    {"OPERATEUR", "t1"},
                                                                    {"DDR", "t2"},
                                                                    {"DG", "t3"},
                                                                    {"DGUS", "t4"},
                                                                    {"MODEXAM", "t5"},
                                                                    {"CONDITIONS", "t6"},
                                                                    {"INDI", "t7"},
                                                                    {"UTERUS", "t8"},
                                                                    {"ANNEXES", "t9"},
                                                                    {"DOUGLAS", "t10"},
                                                                    {"UTD", "t11"},
                                                                    {"UTG", "t12"},
                                                                    {"NUQUE", "t13"},
                                                                    {"MA", "t14"},
                                                                    {"AC", "t15"},
                                                                    {"BIP", "t16"},
                                                                    {"CC", "t17"},
                                                                    {"DIO", "t18"},
                                                                    {"CERV", "t19"},
                                                                    {"DAT", "t20"},
                                                                    {"CA", "t21"},
                                                                    {"FEM", "t22"},
                                                                    {"PIED", "t23"},
                                                                    {"TIBIA", "t24"},
                                                                    {"HUM", "t25"},
                                                                    {"OSNEZ", "t26"},
                                                                    {"MORPHO", "t27"},
                                                                    {"ARTO", "t28"},
                                                                    {"ARTC", "t29"},
                                                                    {"LA", "t30"},
                                                                    {"PL", "t31"},
                                                                    {"CONCLU1", "t32"},
                                                                    {"NUQUE2", "t33"},
                                                                    {"MA2", "t34"},
                                                                    {"AC2", "t35"},
                                                                    {"BIP2", "t36"},
                                                                    {"CC2", "t37"},
                                                                    {"DIO2", "t38"},
                                                                    {"CERV2", "t39"},
                                                                    {"DAT2", "t40"},
                                                                    {"CA2", "t41"},
                                                                    {"FEM2", "t42"},
                                                                    {"PIED2", "t43"},
                                                                    {"TIBIA2", "t44"},
                                                                    {"HUM2", "t45"},
                                                                    {"OSNEZ2", "t46"},
                                                                    {"MORPHO2", "t47"},
                                                                    {"ARTO2", "t48"},
                                                                    {"ARTC2", "t49"},
                                                                    {"NUQUE3", "t50"},
                                                                    {"MA3", "t51"},
                                                                    {"AC3", "t52"},
                                                                    {"BIP3", "t53"},
                                                                    {"CC3", "t54"},
                                                                    {"DIO3", "t55"},
                                                                    {"CERV3", "t56"},
                                                                    {"DAT3", "t57"},
                                                                    {"CA3", "t58"},
                                                                    {"FEM3", "t59"},
                                                                    {"PIED3", "t60"},
                                                                    {"TIBIA3", "t61"},
                                                                    {"HUM3", "t62"},
                                                                    {"OSNEZ3", "t63"},
                                                                    {"MORPHO3", "t64"},
                                                                    {"ARTO3", "t65"},
                                                                    {"ARTC3", "t66"}};

TEST_F(LaterWritingWindow, SavesEachFieldAsText) {
    store(14, "ORIVANNE");
    store(15, "01/02/2001");
    Form8& form = newLater();
    for (int i = 0; i <= 66; ++i) {
        form.sheet.Txt2T(i).setText(QStringLiteral("t%1").arg(i));
    }
    form.LblAgeGesta.setText("22,3");
    form.sheet.txtDatexam.setText("hier");
    save(form);
    EXPECT_EQ(world_.boxes.said, QStringList({"Enregistré"}));
    for (const auto& [field, text] : kSavedFields) {
        EXPECT_EQ(stored(2, field), QStringList({text})) << field;
    }
}

TEST_F(LaterWritingWindow, TheOptionDecidesTheSavedNumber) {
    Form8& form = newLater();
    write(form.sheet.TxtNbrE, "2");
    EXPECT_TRUE(form.sheet.Frame5.visible());
    save(form);
    EXPECT_EQ(stored(2, "NBRE"), QStringList({"1"}));
    EXPECT_FALSE(form.sheet.Frame5.visible());
    newLater();
    choose(form.Option2);
    save(form);
    newLater();
    choose(form.Option3);
    save(form);
    EXPECT_EQ(stored(2, "NBRE"), QStringList({"1", "2", "3"}));
}

TEST_F(LaterWritingWindow, AnOvertypedKindIsSaved) {
    Form8& form = newLater();
    write(form.TxtTypecho, "3");
    save(form);
    EXPECT_EQ(stored(2, "TYPECHO"), QStringList({"3"}));
    EXPECT_EQ(laterView().Label1.text(), "Echographie du 3ème Trimestre");
}

TEST_F(LaterWritingWindow, ShowsTheSavedExamAndStaysBehindIt) {
    Form8& form = newLater();
    write(form.sheet.Txt2T(16), "53");
    save(form);
    EXPECT_TRUE(shown("Form10"));
    EXPECT_TRUE(shown("Form8"));
    EXPECT_EQ(laterView().TxtBip(0).text(), "53");
    EXPECT_EQ(form.sheet.Txt2T(16).text(), "53");
}

TEST_F(LaterWritingWindow, AnOvertypedLowerNumberBringsUpTheHighestExam) {
    addLater(2, 5, "10/01/2002");
    Form8& form = newLater();
    write(form.sheet.TxtNumEcho, "2");
    save(form);
    EXPECT_EQ(laterView().LblNumEcho.text(), "5");
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"2", "5"}));
}

TEST_F(LaterWritingWindow, AStoreErrorKeepsTheWindowAndItsEntries) {
    Form8& form = newLater();
    write(form.sheet.Txt2T(32), "Conclusion");
    write(form.sheet.TxtNumEcho, "deux");
    save(form);
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_TRUE(shown("Form8"));
    EXPECT_EQ(form.sheet.Txt2T(32).text(), "Conclusion");
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
    write(form.sheet.TxtNumEcho, "2");
    save(form);
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({"Conclusion"}));
}

TEST_F(LaterWritingWindow, WhatIsStillInTheFreeEntryIsSaved) {
    Form8& form = newLater();
    form.sheet.Txt2T(32).setFocus();
    form.sheet.Text1.setText("libre");
    save(form);
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({" libre "}));
}

TEST_F(LaterWritingWindow, LeavingItKeepsTheMarksAndHidesTheSteppingUntilAnEndIsAskedFor) {
    addLater(2, 1, "10/01/2002");
    viewLastLater();
    press(laterView().Hlb2T);
    Form8& form = desk().at<Form8>();
    press(form.Bourgeois);
    press(form.CmdQuitter);
    EXPECT_EQ(settings(), "\"Faux\",\"Vrai\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n");
    EXPECT_EQ(desk().peek("Form8"), nullptr);
    for (const ObstetricView* window :
         {static_cast<ObstetricView*>(&view()), static_cast<ObstetricView*>(&laterView())}) {
        EXPECT_FALSE(window->CmdRec.visible() || window->CmdAv.visible());
    }
    press(laterView().CmdDer);
    EXPECT_TRUE(laterView().CmdRec.visible() && laterView().CmdAv.visible());
}

TEST_F(LaterWritingWindow, ItsUnloadingBringsTheCursorBackAndHidesTheDossiersSteps) {
    addLater(2, 1, "10/01/2002");
    addLater(2, 2, "10/02/2002");
    viewLastLater();
    press(laterView().CmdPrem);
    press(laterView().Ter2);
    press(desk().at<Form8>().Bourgeois);
    desk().act([&] { desk().at<Form8>().close(); });
    EXPECT_EQ(settings(), "\"Faux\",\"Vrai\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n");
    EXPECT_EQ(state_.Rs.text("NUMECHO"), "1");
    EXPECT_FALSE(desk().at<dossier::Form4>().Command3.visible());
    EXPECT_FALSE(desk().at<dossier::Form4>().Command4.visible());
    EXPECT_TRUE(laterView().CmdRec.visible());
    press(laterView().CmdAv);
    EXPECT_EQ(laterView().LblNumEcho.text(), "2");
}

TEST_F(LaterWritingWindow, ItHidesTheDossiersStepsEvenWhereTheCursorCantComeBack) {
    Form8& form = newLater();
    const QString base = fakes::pathOf(world_, store::FileKind::Echo);
    ASSERT_TRUE(QFile::rename(base, base + ".ailleurs"));
    press(form.CmdQuitter);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3024}));
    EXPECT_EQ(desk().peek("Form8"), nullptr);
    EXPECT_FALSE(desk().at<dossier::Form4>().Command3.visible());
    EXPECT_FALSE(desk().at<dossier::Form4>().Command4.visible());
}

TEST_F(LaterWritingWindow, ClosingTheViewTakesItAlong) {
    for (const bool keeps : {true, false}) {
        addLater(2, keeps ? 1 : 2, "10/01/2002");
        viewLastLater();
        press(laterView().Ter2);
        QFile::remove(world_.folder.filePath("Settings"));
        desk().act([&] { keeps ? laterView().CmdQuitter.click() : laterView().fermer.click(); });
        EXPECT_EQ(desk().peek("Form8"), nullptr);
        EXPECT_EQ(desk().peek("Form10"), nullptr);
        EXPECT_TRUE(shown("Form4"));
        EXPECT_TRUE(desk().at<dossier::Form4>().Command3.visible());
        EXPECT_EQ(QFile::exists(world_.folder.filePath("Settings")), keeps);
    }
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(LaterWritingWindow, ADeletionInTheViewClearsIt) {
    addLater(2, 1, "10/01/2002");
    viewLastLater();
    world_.boxes.answers = {true, true};
    press(laterView().CmdSupprime);
    EXPECT_EQ(desk().peek("Form8"), nullptr);
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
    EXPECT_EQ(newLater().sheet.TxtNumEcho.text(), "1");
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(LaterWritingWindow, NumbersLeaveGapsAndComeBackAtTheEnd) {
    for (int number = 1; number <= 3; ++number) {
        addLater(2, number, "10/01/2002");
    }
    viewLastLater();
    press(laterView().CmdRec);
    world_.boxes.answers = {true, true};
    press(laterView().CmdSupprime);
    EXPECT_EQ(newLater().sheet.TxtNumEcho.text(), "4");
    press(desk().at<Form8>().CmdQuitter);
    viewLastLater();
    world_.boxes.answers = {true, true};
    press(laterView().CmdSupprime);
    EXPECT_EQ(newLater().sheet.TxtNumEcho.text(), "2");
}

}  // namespace
}  // namespace exams
