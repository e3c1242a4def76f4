#include "exams/form7.h"

#include "exams/exam_windows.h"
#include "exams/first_trimester_offers.h"

namespace exams {
namespace {

class CorrectionWindow : public ExamWindows {
protected:
    CorrectionWindow() {
        addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}});
        addExam(2, 2, "11/02/2002",
                {{"TYPECHO", "1"},
                 {"NBRE", "3"},
                 {"AGESTA", "12,3"},
                 {"BMI", "21,5"},
                 {"MACHINE", "ANCIEN"},
                 {"DATECIRC", "01/01/1999"},
                 {"DDR", "17/11/2001"},
                 {"Ca", "55"},
                 {"CA2", "56"},
                 {"LCC2", "61"},
                 {"CONCLU1", "avant"}});
        addExam(2, 3, "12/03/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}});
        store(14, "ORIVANNE");
    }

    Form7& openOnSecond() {
        viewLast();
        press(view().CmdRec);
        return correct();
    }
    void save(bool answer) {
        world_.boxes.answers = {answer};
        press(desk().at<Form7>().CmdModifs);
    }
};

TEST_F(CorrectionWindow, LoadsTheExamInView) {
    const Form7& form = openOnSecond();
    EXPECT_EQ(form.sheet.LblNom.text(), "DUPONT");
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "2");
    EXPECT_EQ(form.sheet.TxtTypecho.text(), "1");
    EXPECT_EQ(form.sheet.TxtDate.text(), "11/02/2002");
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "12,3");
    EXPECT_EQ(form.sheet.LblMachine.text(), "ANCIEN");
    EXPECT_EQ(form.sheet.LblDateCirc.text(), "01/01/1999");
    EXPECT_EQ(form.sheet.Txt1Ter(0).text(), "21,5");
    EXPECT_EQ(form.sheet.Txt1Ter(29).text(), "61");
    EXPECT_EQ(form.sheet.TxtPds.text(), "");
    EXPECT_EQ(form.sheet.TxtTaille.text(), "");
    EXPECT_TRUE(form.sheet.FrameJ1.visible() && !form.sheet.FrameJ2.visible() && !form.sheet.FrameJ3.visible());
    EXPECT_TRUE(form.sheet.Frame5.visible() && form.sheet.CmdJ3.visible());
    EXPECT_TRUE(shown("Form6"));
    EXPECT_TRUE(form.exclusive());
}

TEST_F(CorrectionWindow, LoadsAndSavesEachFieldInTheBoxOfItsNumber) {
    const QStringList fields{"BMI",    "OPERATEUR", "DDR",     "DG",   "DGUS",      "MODEXAM", "CONDITIONS", "INDI",
                             "UTERUS", "ANNEXES",   "DOUGLAS", "NBRS", "SITUATION", "DIM",     "ASPECT",     "NBRE",
                             "MA",     "AC",        "LCC",     "BIP",  "FEM",       "NUQUE",   "OSNEZ",      "MORPHO",
                             "LA",     "PL",        "CONCLU1", "MA2",  "AC2",       "LCC2",    "BIP2",       "FEM2",
                             "NUQUE2", "OSNEZ2",    "MORPHO2", "MA3",  "AC3",       "LCC3",    "BIP3",       "FEM3",
                             "NUQUE3", "OSNEZ3",    "MORPHO3"};
    ASSERT_EQ(fields.size(), 43);
    fakes::Fields record{{"TYPECHO", "1"}};
    for (const QString& field : fields) {
        record << std::pair(field, store::Value("~" + field));
    }
    addExam(3, 1, "05/04/2002", record);
    viewLast("MARTIN");
    Form7& form = correct();
    for (int i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(form.sheet.Txt1Ter(i).text(), "~" + fields[i]) << i;
        write(form.sheet.Txt1Ter(i), QString::number(i));
    }
    save(true);
    for (int i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(stored(3, fields[i]), QStringList({QString::number(i)})) << i;
    }
}

TEST_F(CorrectionWindow, ItsControlsHaveTheirCaptionsAndTheirNumbers) {
    const std::vector<std::pair<const char*, const char*>> captions{{"CmdModifs", "Enregistrer Modifs"},
                                                                    {"CmdQuitter", "Quitter sans Enregistrer"},
                                                                    {"Frame5", "G Multiple"},
                                                                    {"CmdJ1", "J1"},
                                                                    {"CmdJ2", "J2"},
                                                                    {"CmdJ3", "J3"},
                                                                    {"FrameJ1", "Embryon"},
                                                                    {"FrameJ2", "Embryon N°2"},
                                                                    {"FrameJ3", "Embryon N°3"}};
    const Form7& form = openOnSecond();
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
    EXPECT_EQ(form.find(u"FrameJ3", 2), &form.sheet.FrameJ3);
    EXPECT_EQ(form.find(u"Frame5", 3), &form.sheet.Frame5);
}

TEST_F(CorrectionWindow, TheCalendarTheListsAndTheErasingServeItsFields) {
    store(16, "fin", "C");
    Form7& form = openOnSecond();
    form.sheet.Txt1Ter(4).setFocus();
    desk().act([&] { form.sheet.Calendar1.choose(QDate(2002, 3, 1)); });
    EXPECT_EQ(form.sheet.Txt1Ter(4).text(), "01/03/2002");
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(5));
    form.sheet.Txt1Ter(26).setFocus();
    form.sheet.List1.setRow(0);
    desk().act([&] { form.sheet.List1.doubleClick(); });
    EXPECT_EQ(form.sheet.Txt1Ter(26).text(), "avantfin");
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(1));
    form.sheet.Txt1Ter(17).setFocus();
    desk().act([&] { form.sheet.List2.doubleClick(); });
    desk().act([&] { form.sheet.List2.doubleClick(); });
    EXPECT_EQ(form.sheet.Txt1Ter(17).text(), "170 170");
    press(form.sheet.CmdEfface);
    EXPECT_EQ(form.sheet.Txt1Ter(17).text(), "");
    form.sheet.Text1.setText("libre");
    save(true);
    EXPECT_EQ(stored(2, "AC").at(1), " libre ");
}

TEST_F(CorrectionWindow, TheNumberOfEmbryosShowsThePanelAtLoad) {
    viewLast();
    EXPECT_FALSE(correct().sheet.Frame5.visible());
    press(desk().at<Form7>().CmdQuitter);
    addExam(2, 4, "12/03/2002", {{"TYPECHO", "1"}, {"NBRE", "2"}});
    viewLast();
    const Form7& form = correct();
    EXPECT_TRUE(form.sheet.Frame5.visible() && form.sheet.CmdJ1.visible() && form.sheet.CmdJ2.visible());
    EXPECT_FALSE(form.sheet.CmdJ3.visible());
}

TEST_F(CorrectionWindow, HasNeitherTheCircumferencesNorTheButtonsOfAWritingWindow) {
    const Form7& form = openOnSecond();
    for (const char16_t* name : {u"TxtCa1", u"TxtCa2", u"TxtCa3", u"Command2", u"CmdPhotos", u"TxtNumFoet"}) {
        EXPECT_EQ(form.find(name), nullptr);
    }
}

TEST_F(CorrectionWindow, LeavesTheAgeWhateverIsTypedInTheDates) {
    Form7& form = openOnSecond();
    for (const int date : {2, 3, 4}) {
        write(form.sheet.Txt1Ter(date), "01/12/2001");
    }
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "12,3");
    EXPECT_EQ(form.sheet.Txt1Ter(3).text(), "01/12/2001");
    save(true);
    EXPECT_EQ(stored(2, "AGESTA").at(1), "12,3");
    EXPECT_EQ(stored(2, "DG").at(1), "01/12/2001");
}

TEST_F(CorrectionWindow, FiltersNoKeyAndAcceptsAnyNumberOfEmbryos) {
    Form7& form = openOnSecond();
    for (const int field : {11, 15, 18}) {
        write(form.sheet.Txt1Ter(field), "");
        type(form.sheet.Txt1Ter(field), u'1');
        type(form.sheet.Txt1Ter(field), u'x');
        EXPECT_EQ(form.sheet.Txt1Ter(field).text(), "1x") << field;
    }
    write(form.sheet.Txt1Ter(15), "4");
    EXPECT_TRUE(form.sheet.Frame5.visible());
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    save(true);
    EXPECT_EQ(stored(2, "NBRE").at(1), "4");
}

TEST_F(CorrectionWindow, WeightAndHeightStillGiveTheIndex) {
    Form7& form = openOnSecond();
    write(form.sheet.TxtPds, "60");
    EXPECT_EQ(form.sheet.Txt1Ter(0).text(), "");
    write(form.sheet.TxtTaille, "170");
    EXPECT_EQ(form.sheet.Txt1Ter(0).text(), "20,8");
}

TEST_F(CorrectionWindow, TheButtonsSetNoColour) {
    Form7& form = openOnSecond();
    press(form.sheet.CmdJ2);
    EXPECT_TRUE(form.sheet.FrameJ2.visible() && !form.sheet.FrameJ1.visible());
    EXPECT_EQ(form.sheet.Frame5.back(), std::nullopt);
}

TEST_F(CorrectionWindow, OffersWhatTheWritingWindowDoes) {
    store(2, "Voie abdominale.");
    Form7& form = openOnSecond();
    form.sheet.Txt1Ter(5).setFocus();
    EXPECT_EQ(form.sheet.List1.items(), QStringList({"Voie abdominale. "}));
    form.sheet.Txt1Ter(17).setFocus();
    EXPECT_EQ(form.sheet.List2.items().first(), "130");
    EXPECT_EQ(form.sheet.List2.text(), "170");
}

TEST_F(CorrectionWindow, EachFieldOffersWhatItsRowSays) {
    for (const auto& [index, rubric] : kFirstTrimesterRubrics) {
        if (index < 27) {
            store(rubric, QString::number(rubric));
        }
    }
    expectOffersOfEachField(openOnSecond().sheet);
}

TEST_F(CorrectionWindow, SavesTheFieldsButTheCircumferences) {
    Form7& form = openOnSecond();
    write(form.sheet.Txt1Ter(26), "après");
    write(form.sheet.Txt1Ter(15), "");
    save(true);
    EXPECT_EQ(world_.boxes.asked,
              QStringList({"Voulez vous vraiment enregistrer les modifications apportées à ce compte rendu ?"}));
    EXPECT_EQ(world_.boxes.said, QStringList({"Compte rendu modifié"}));
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "après");
    EXPECT_EQ(stored(2, "NBRE").at(1), "0");
    EXPECT_EQ(stored(2, "Ca").at(1), "55");
    EXPECT_EQ(stored(2, "CA2").at(1), "56");
    EXPECT_EQ(desk().peek("Form7"), nullptr);
}

TEST_F(CorrectionWindow, AsksUnderABusyPointer) {
    openOnSecond();
    world_.boxes.whenAsked = [this] { EXPECT_EQ(desk().at<Form7>().pointer(), forms::Pointer::Busy); };
    save(false);
}

TEST_F(CorrectionWindow, ANoClosesTheWindowAndLosesTheEntries) {
    Form7& form = openOnSecond();
    write(form.sheet.Txt1Ter(26), "après");
    save(false);
    EXPECT_EQ(desk().peek("Form7"), nullptr);
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "avant");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_EQ(view().TxtConclu1.text(), "avant");
    EXPECT_EQ(view().LblAgeGesta.text(), "");
}

TEST_F(CorrectionWindow, TheViewIsRefilledWithoutTheAgeAndWithTheOldIndex) {
    Form7& form = openOnSecond();
    write(form.sheet.Txt1Ter(0), "30");
    write(form.sheet.Txt1Ter(26), "après");
    save(true);
    EXPECT_EQ(view().TxtConclu1.text(), "après");
    EXPECT_EQ(view().LblAgeGesta.text(), "");
    EXPECT_EQ(view().LblIMC.text(), "21,5");
    press(view().CmdRec);
    press(view().CmdAv);
    EXPECT_EQ(view().LblAgeGesta.text(), "12,3 Sem. A.");
    EXPECT_EQ(view().LblIMC.text(), "30");
}

TEST_F(CorrectionWindow, ALoweredNumberKeepsTheOtherEmbryosAndHidesThePanel) {
    Form7& form = openOnSecond();
    write(form.sheet.Txt1Ter(15), "1");
    save(true);
    EXPECT_EQ(stored(2, "LCC2").at(1), "61");
    EXPECT_FALSE(view().Frame5.visible());
}

TEST_F(CorrectionWindow, AnExamThatIsNoLongerOfSeveralShowsTheFirstEmbryoInTheView) {
    viewLast();
    press(view().CmdRec);
    press(view().CmdJ3);
    write(correct().sheet.Txt1Ter(15), "1");
    save(true);
    EXPECT_FALSE(view().Frame5.visible());
    EXPECT_TRUE(view().FrameJ1.visible() && !view().FrameJ2.visible() && !view().FrameJ3.visible());
    EXPECT_TRUE(view().Frame12.visible());
}

TEST_F(CorrectionWindow, TheRefillShowsThePanelFromTwoOnAndNeverForZero) {
    Form7& form = openOnSecond();
    write(form.sheet.Txt1Ter(15), "2");
    save(true);
    EXPECT_TRUE(view().Frame5.visible());
    EXPECT_TRUE(view().CmdJ3.visible());
    write(correct().sheet.Txt1Ter(15), "0");
    save(true);
    EXPECT_FALSE(view().Frame5.visible());
}

TEST_F(CorrectionWindow, SteppingWorksAgainAfterASaveAndAfterLeaving) {
    openOnSecond();
    save(true);
    press(view().CmdAv);
    EXPECT_EQ(view().LblNumEcho.text(), "3");
    press(view().CmdRec);
    correct();
    press(desk().at<Form7>().CmdQuitter);
    EXPECT_EQ(desk().peek("Form7"), nullptr);
    press(view().CmdRec);
    EXPECT_EQ(view().LblNumEcho.text(), "1");
    press(view().CmdAv);
    correct();
    desk().act([this] { desk().at<Form7>().close(); });
    press(view().CmdAv);
    EXPECT_EQ(view().LblNumEcho.text(), "3");
}

TEST_F(CorrectionWindow, AnOvertypedNumberShowsThatSameRecord) {
    Form7& form = openOnSecond();
    write(form.sheet.TxtNumEcho, "8");
    write(form.sheet.Txt1Ter(26), "renumérotée");
    save(true);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "3", "8"}));
    EXPECT_EQ(view().LblNumEcho.text(), "8");
    EXPECT_EQ(view().TxtConclu1.text(), "renumérotée");
    press(view().CmdRec);
    EXPECT_EQ(view().LblNumEcho.text(), "3");
}

// The dossier window can be moved on behind the viewing window, and the correction takes the dossier that is open.
TEST_F(CorrectionWindow, TheViewNamesThePatientWhoseExamWasCorrected) {
    addExam(3, 3, "20/03/2002");
    viewLast("DUPONT");
    dossierOf("MARTIN");
    write(correct().sheet.Txt1Ter(26), "de Anne");
    save(true);
    EXPECT_EQ(view().TxtConclu1.text(), "de Anne");
    EXPECT_EQ(view().LblNom.text(), "MARTIN");
    EXPECT_EQ(view().LblPrenom.text(), "Anne");
    EXPECT_EQ(view().LblNumInt.text(), "3");
}

// The save looks for the exam anew, and there is none.
TEST_F(CorrectionWindow, AnExamDeletedMeanwhileIsReportedAndNoOtherIsWritten) {
    const Form7& form = openOnSecond();
    write(desk().at<Form7>().sheet.Txt1Ter(26), "après");
    query("SELECT*FROM 1TER WHERE NUMERO=2And NUMECHO=2").remove();
    save(true);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3021}));
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(form.sheet.Txt1Ter(26).text(), "après");
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "3"}));
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({"", ""}));
}

TEST_F(CorrectionWindow, AStoreErrorKeepsTheWindowAndItsEntries) {
    Form7& form = openOnSecond();
    write(form.sheet.TxtNumEcho, "deux");
    write(form.sheet.Txt1Ter(26), "après");
    save(true);
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_TRUE(shown("Form7"));
    EXPECT_EQ(form.sheet.Txt1Ter(26).text(), "après");
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    EXPECT_EQ(stored(2, "CONCLU1").at(1), "avant");
}

}  // namespace
}  // namespace exams
