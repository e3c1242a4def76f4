#include "exams/form5.h"

#include "exams/exam_windows.h"
#include "exams/first_trimester_offers.h"
#include "pictures/form19.h"

namespace exams {
namespace {

class WritingWindow : public ExamWindows {
protected:
    void save(Form5& form) {
        world_.boxes.answers = {true};
        press(form.CmdEnregis);
    }
};

TEST_F(WritingWindow, OpensEmptyOnTheFirstExamOfADossier) {
    Form5& form = newExam();
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "1");
    EXPECT_EQ(form.sheet.TxtDate.text(), "05/04/2002");
    EXPECT_EQ(form.sheet.TxtTypecho.text(), "1");
    EXPECT_EQ(form.sheet.LblNom.text(), "DUPONT");
    EXPECT_EQ(form.sheet.LblPrenom.text(), "Marie");
    EXPECT_EQ(form.sheet.LblNumInt.text(), "2");
    EXPECT_EQ(form.sheet.LblMachine.text(), "");
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(1));
    for (int i = 0; i <= 42; ++i) {
        EXPECT_EQ(form.sheet.Txt1Ter(i).text(), "") << i;
    }
    EXPECT_TRUE(shown("Form5"));
}

TEST_F(WritingWindow, ItsControlsHaveTheirCaptionsAndTheirNumbers) {
    const std::vector<std::pair<const char*, const char*>> captions{{"Frame5", "G Multiple"},
                                                                    {"CmdJ1", "J1"},
                                                                    {"CmdJ2", "J2"},
                                                                    {"CmdJ3", "J3"},
                                                                    {"FrameJ1", "Embryon"},
                                                                    {"FrameJ2", "Embryon N°2"},
                                                                    {"FrameJ3", "Embryon N°3"},
                                                                    {"TxtNumFoet", "1"},
                                                                    {"Label31", "Embryon N°"},
                                                                    {"Label32", "2"},
                                                                    {"Command2", "DGUS"},
                                                                    {"CmdPhotos", "&Photos"},
                                                                    {"CmdEnregis", "&Enregistrer"},
                                                                    {"CmdQuitter", "&Quitter"}};
    const Form5& form = newExam();
    EXPECT_EQ(form.title(), "Rédaction 1 Ter");
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
    EXPECT_EQ(form.find(u"FrameJ1", 0), &form.sheet.FrameJ1);
    EXPECT_EQ(form.find(u"FrameJ2", 1), &form.sheet.FrameJ2);
    EXPECT_EQ(form.find(u"FrameJ3", 2), &form.sheet.FrameJ3);
    EXPECT_EQ(form.find(u"Frame5", 3), &form.sheet.Frame5);
}

TEST_F(WritingWindow, OpensFromEachOfItsButtonsAndMenus) {
    addExam(2, 1, "10/01/2002");
    addLater(2, 2, "10/02/2002");
    viewLastLater();
    press(view().Echo1T);
    EXPECT_EQ(desk().at<Form5>().sheet.TxtNumEcho.text(), "3");
    for (forms::Control* opener :
         std::initializer_list<forms::Control*>{&view().Hlb1T, &laterView().Ter1, &laterView().Hlb1T}) {
        press(desk().at<Form5>().CmdQuitter);
        press(*opener);
        EXPECT_TRUE(shown("Form5"));
    }
}

TEST_F(WritingWindow, WithoutADeviceSavesEmptyTexts) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    save(form);
    EXPECT_EQ(query("SELECT*FROM 1TER WHERE NUMERO=2").field("MACHINE"), store::Value(QString("")));
    EXPECT_EQ(query("SELECT*FROM 1TER WHERE NUMERO=2").field("DATECIRC"), store::Value(QString("")));
}

TEST_F(WritingWindow, NumbersOnFromTheHighestAndLeavesGaps) {
    addExam(2, 1, "10/01/2002");
    addExam(2, 2, "11/02/2002", {{"TYPECHO", "2"}});
    addExam(2, 3, "12/03/2002");
    addExam(3, 7, "12/03/2002");
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "4");
    auto rows = store::Database::open(fakes::pathOf(world_, store::FileKind::Echo))
                    .openRecordset("SELECT*FROM 1TER WHERE NUMERO=2And NUMECHO=2");
    rows.remove();
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "4");
    rows = store::Database::open(fakes::pathOf(world_, store::FileKind::Echo))
               .openRecordset("SELECT*FROM 1TER WHERE NUMERO=2And NUMECHO=3");
    rows.remove();
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "2");
}

TEST_F(WritingWindow, ClearsItselfButForTheCircumferencesTheFrameAndTheColour) {
    Form5& form = newExam();
    form.TxtCa1.setText("55");
    form.sheet.Txt1Ter(5).setText("Voie abdominale");
    form.sheet.LblAgeGesta.setText("12");
    form.sheet.TxtPds.setText("60");
    press(form.sheet.CmdJ2);
    form.sheet.TxtTypecho.setText("3");
    newExam();
    EXPECT_EQ(form.TxtCa1.text(), "55");
    EXPECT_EQ(form.sheet.TxtTypecho.text(), "3");
    EXPECT_EQ(form.sheet.Txt1Ter(5).text(), "");
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "");
    EXPECT_EQ(form.sheet.TxtPds.text(), "");
    EXPECT_TRUE(form.sheet.FrameJ2.visible());
    EXPECT_EQ(form.sheet.Frame5.back(), 0xFFFFFFU);
}

const QString kDateFormat = QStringLiteral("Veuillez saisir les dates selon le format JJ/MM/AA");

TEST_F(WritingWindow, ATheoreticalStartBeyond16BitsOfDaysIsRefusedToo) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(2), "01/03/2002");
    // 32,767 days before 05/04/2002 is 19/07/1912.
    write(form.sheet.Txt1Ter(3), "19/07/1912");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "4683");
    write(form.sheet.Txt1Ter(3), "18/07/1912");
    EXPECT_EQ(world_.boxes.said, QStringList({kDateFormat}));
    EXPECT_EQ(form.sheet.Txt1Ter(2).text(), "");
    EXPECT_EQ(form.sheet.Txt1Ter(3).text(), "");
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "");
}

TEST_F(WritingWindow, TheCrownRumpLengthGivesTheStartCountedFromToday) {
    Form5& form = newExam();
    write(form.sheet.TxtDate, "01/04/2002");
    write(form.sheet.Txt1Ter(18), "60");
    press(form.Command2);
    // 05/04/2002 less 87 days plus 14.
    EXPECT_EQ(form.sheet.Txt1Ter(4).text(), "22/01/2002");
    // 69 days to 01/04: 9 weeks 6 days.
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "11,6");
}

TEST_F(WritingWindow, TheButtonRecomputesTheAgeAlsoWhenTheStartStaysTheSame) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(18), "60");
    press(form.Command2);
    write(form.sheet.Txt1Ter(3), "01/03/2002");
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "7");
    press(form.Command2);
    EXPECT_EQ(form.sheet.LblAgeGesta.text(), "12,3");
}

TEST_F(WritingWindow, ALengthAbove85IsRefusedAndNoneDoesNothing) {
    Form5& form = newExam();
    press(form.Command2);
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    write(form.sheet.Txt1Ter(18), "86");
    press(form.Command2);
    EXPECT_EQ(world_.boxes.said,
              QStringList({"Valeur de LCC trop élevée, Calculez l 'âge gestationnel à l'aide du Fémur et du Bip"}));
    EXPECT_EQ(form.sheet.Txt1Ter(4).text(), "");
}

TEST_F(WritingWindow, TheTwoCountsHoldOneDigit) {
    Form5& form = newExam();
    for (const int count : {11, 15}) {
        forms::TextBox& box = form.sheet.Txt1Ter(count);
        type(box, u'1');
        type(box, u'2');
        EXPECT_EQ(box.text(), "2");
        type(box, u'x');
        EXPECT_EQ(box.text(), "");
        write(box, "12");
        type(box, forms::kBackspace);
        EXPECT_EQ(box.text(), "");
    }
}

TEST_F(WritingWindow, BackspaceCorrectsTheOtherNumbers) {
    Form5& form = newExam();
    for (forms::TextBox* box : {&form.sheet.Txt1Ter(18), &form.sheet.TxtPds, &form.sheet.TxtTaille}) {
        write(*box, "60");
        type(*box, forms::kBackspace);
        EXPECT_EQ(box->text(), "6");
    }
}

TEST_F(WritingWindow, OnlyTheFirstLengthFiltersItsKeys) {
    Form5& form = newExam();
    for (const QChar c : QStringLiteral("6b0")) {
        type(form.sheet.Txt1Ter(18), c);
        type(form.sheet.Txt1Ter(29), c);
        type(form.sheet.Txt1Ter(37), c);
    }
    EXPECT_EQ(form.sheet.Txt1Ter(18).text(), "60");
    EXPECT_EQ(form.sheet.Txt1Ter(29).text(), "6b0");
    EXPECT_EQ(form.sheet.Txt1Ter(37).text(), "6b0");
}

TEST_F(WritingWindow, TheNumberOfEmbryosShowsThePanelAndItsButtons) {
    Form5& form = newExam();
    FirstTrimesterSheet& sheet = form.sheet;
    write(sheet.Txt1Ter(15), "2");
    EXPECT_TRUE(sheet.Frame5.visible() && sheet.CmdJ1.visible() && sheet.CmdJ2.visible());
    EXPECT_FALSE(sheet.CmdJ3.visible());
    write(sheet.Txt1Ter(15), "3");
    EXPECT_TRUE(sheet.Frame5.visible() && sheet.CmdJ3.visible());
    write(sheet.Txt1Ter(15), "0");
    EXPECT_TRUE(sheet.Frame5.visible());
    write(sheet.Txt1Ter(15), "1");
    EXPECT_FALSE(sheet.Frame5.visible());
    write(sheet.Txt1Ter(15), "0");
    EXPECT_FALSE(sheet.Frame5.visible());
    EXPECT_TRUE(sheet.FrameJ1.visible());
}

TEST_F(WritingWindow, FourEmbryosAreRefusedTwiceAndThePanelEndsHidden) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "2");
    write(form.sheet.Txt1Ter(15), "4");
    const QString refusal = QStringLiteral("Désolé le logiciel ne traite pas plus de 3 foetus");
    EXPECT_EQ(world_.boxes.said, QStringList({refusal, refusal}));
    EXPECT_EQ(form.sheet.Txt1Ter(15).text(), "");
    EXPECT_FALSE(form.sheet.Frame5.visible());
}

TEST_F(WritingWindow, AnOpeningEndsWithThePanelHidden) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "2");
    newExam();
    EXPECT_FALSE(form.sheet.Frame5.visible());
}

TEST_F(WritingWindow, EachButtonBringsOneEmbryoInViewAndPaintsThePanel) {
    Form5& form = newExam();
    FirstTrimesterSheet& sheet = form.sheet;
    press(sheet.CmdJ2);
    EXPECT_TRUE(!sheet.FrameJ1.visible() && sheet.FrameJ2.visible() && !sheet.FrameJ3.visible());
    EXPECT_EQ(sheet.Frame5.back(), 0xFFFFFFU);
    press(sheet.CmdJ3);
    EXPECT_TRUE(!sheet.FrameJ1.visible() && !sheet.FrameJ2.visible() && sheet.FrameJ3.visible());
    EXPECT_EQ(sheet.Frame5.back(), 0xFFC0C0U);
    press(sheet.CmdJ1);
    EXPECT_TRUE(sheet.FrameJ1.visible() && !sheet.FrameJ2.visible() && !sheet.FrameJ3.visible());
    EXPECT_EQ(sheet.Frame5.back(), 0xC0FFFFU);
}

TEST_F(WritingWindow, TheFocusOffersWhatTheFieldHasInItsRow) {
    store(2, "Voie abdominale.");
    Form5& form = newExam();
    form.sheet.Txt1Ter(5).setFocus();
    EXPECT_EQ(form.sheet.List1.items(), QStringList({"Voie abdominale. "}));
    form.sheet.Txt1Ter(0).setFocus();
    EXPECT_EQ(form.sheet.List1.count(), 1);
    form.sheet.Txt1Ter(2).setFocus();
    EXPECT_EQ(form.sheet.List1.count(), 0);
    EXPECT_TRUE(form.sheet.Calendar1.visible());
    form.sheet.Txt1Ter(21).setFocus();
    EXPECT_FALSE(form.sheet.Calendar1.visible());
    EXPECT_TRUE(form.sheet.List2.visible());
    EXPECT_EQ(form.sheet.List2.count(), 45);
    EXPECT_EQ(form.sheet.List2.items().first(), "0,6");
    EXPECT_EQ(form.sheet.List2.items().last(), "5");
    EXPECT_EQ(form.sheet.List2.text(), "2");
}

TEST_F(WritingWindow, EachFieldOffersWhatItsRowSays) {
    for (const auto& [index, rubric] : kFirstTrimesterRubrics) {
        if (index < 27) {
            store(rubric, QString::number(rubric));
        }
    }
    expectOffersOfEachField(newExam().sheet);
}

TEST_F(WritingWindow, TheCalendarTheListsAndTheErasingServeItsFields) {
    store(16, "fin", "C");
    Form5& form = newExam();
    for (const int date : {2, 3, 4}) {
        form.sheet.Txt1Ter(date).setFocus();
        desk().act([&] { form.sheet.Calendar1.choose(QDate(2002, 3, 1)); });
        EXPECT_EQ(form.sheet.Txt1Ter(date).text(), "01/03/2002");
        EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(date + 1));
    }
    form.sheet.Txt1Ter(26).setFocus();
    form.sheet.List1.setRow(0);
    desk().act([&] { form.sheet.List1.doubleClick(); });
    EXPECT_EQ(form.sheet.Txt1Ter(26).text(), "fin");
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(1));
    form.sheet.Txt1Ter(17).setFocus();
    desk().act([&] { form.sheet.List2.doubleClick(); });
    EXPECT_EQ(form.sheet.Txt1Ter(17).text(), "170");
    press(form.sheet.CmdEfface);
    EXPECT_EQ(form.sheet.Txt1Ter(17).text(), "");
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(17));
    form.sheet.Text1.setText("libre");
    desk().act([&] { form.sheet.Text1.onEnter(); });
    EXPECT_EQ(form.sheet.Txt1Ter(17).text(), " libre ");
}

TEST_F(WritingWindow, ARightClickGoesOnWithTheThirdEmbryoAloneInView) {
    Form5& form = newExam();
    form.sheet.Txt1Ter(7).setFocus();
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(7));
    press(form.sheet.CmdJ3);
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(8));
    form.sheet.Txt1Ter(26).setFocus();
    desk().act([&] { form.sheet.List1.onRightClick(); });
    EXPECT_EQ(form.focused(), &form.sheet.Txt1Ter(1));
}

TEST_F(WritingWindow, SavesNothingWithoutTheNumberOfEmbryos) {
    Form5& form = newExam();
    save(form);
    EXPECT_EQ(world_.boxes.said, QStringList({"Veuillez saisir le nombre d'embryons avant d'enregistrer."}));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
}

TEST_F(WritingWindow, AnAnswerOfNoLeavesTheWindowWithItsEntries) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    world_.boxes.answers = {false};
    press(form.CmdEnregis);
    EXPECT_EQ(world_.boxes.asked, QStringList({"Voulez vous vraiment enregistrer ce compte rendu ?"}));
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
    EXPECT_TRUE(shown("Form5"));
    EXPECT_EQ(form.sheet.Txt1Ter(15).text(), "1");
}

// What the record holds when each field of the window holds its index: copied by hand from the sheet of the practice,
// not from the program's own rows.
const std::vector<std::pair<const char*, const char*>> kSavedFields{{"MACHINE", "ORIVANNE"},
                                                                    {"DATECIRC", "01/02/2001"},
                                                                    {"Numero", "2"},
                                                                    {"TYPECHO", "1"},
                                                                    {"NUMECHO", "1"},
                                                                    {"AGESTA", "12,3"},
                                                                    {"DATEXAM", "05/04/2002"},
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
                                                                    {"NBRS", "t11"},
                                                                    {"SITUATION", "t12"},
                                                                    {"DIM", "t13"},
                                                                    {"ASPECT", "t14"},
                                                                    {"NBRE", "1"},
                                                                    {"MA", "t16"},
                                                                    {"AC", "t17"},
                                                                    {"LCC", "t18"},
                                                                    {"BIP", "t19"},
                                                                    {"FEM", "t20"},
                                                                    {"NUQUE", "t21"},
                                                                    {"OSNEZ", "t22"},
                                                                    {"MORPHO", "t23"},
                                                                    {"CA", "c1"},
                                                                    {"LA", "t24"},
                                                                    {"PL", "t25"},
                                                                    {"CONCLU1", "t26"},
                                                                    {"MA2", "t27"},
                                                                    {"AC2", "t28"},
                                                                    {"LCC2", "t29"},
                                                                    {"BIP2", "t30"},
                                                                    {"FEM2", "t31"},
                                                                    {"NUQUE2", "t32"},
                                                                    {"OSNEZ2", "t33"},
                                                                    {"MORPHO2", "t34"},
                                                                    {"CA2", "c2"},
                                                                    {"MA3", "t35"},
                                                                    {"AC3", "t36"},
                                                                    {"LCC3", "t37"},
                                                                    {"BIP3", "t38"},
                                                                    {"FEM3", "t39"},
                                                                    {"NUQUE3", "t40"},
                                                                    {"OSNEZ3", "t41"},
                                                                    {"MORPHO3", "t42"},
                                                                    {"CA3", "c3"}};

TEST_F(WritingWindow, SavesEachFieldAsText) {
    store(14, "ORIVANNE");
    store(15, "01/02/2001");
    Form5& form = newExam();
    for (int i = 0; i <= 42; ++i) {
        form.sheet.Txt1Ter(i).setText(QStringLiteral("t%1").arg(i));
    }
    form.sheet.Txt1Ter(15).setText("1");
    form.TxtCa1.setText("c1");
    form.TxtCa2.setText("c2");
    form.TxtCa3.setText("c3");
    form.sheet.LblAgeGesta.setText("12,3");
    save(form);
    EXPECT_EQ(world_.boxes.said, QStringList({"Enregistré"}));
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    for (const auto& [field, text] : kSavedFields) {
        EXPECT_EQ(stored(2, field), QStringList({text})) << field;
    }
}

TEST_F(WritingWindow, ASavedSingletonHasEmptyTextsForTheOtherEmbryos) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    save(form);
    EXPECT_EQ(stored(2, "LCC2"), QStringList({""}));
    EXPECT_EQ(stored(2, "MORPHO3"), QStringList({""}));
}

TEST_F(WritingWindow, NoEmbryoIsANumberToo) {
    Form5& form = newExam();
    type(form.sheet.Txt1Ter(15), u'0');
    save(form);
    EXPECT_EQ(world_.boxes.said, QStringList({"Enregistré"}));
    EXPECT_EQ(stored(2, "NBRE"), QStringList({"0"}));
}

TEST_F(WritingWindow, WhatWasTypedForAnEmbryoIsSavedThoughTheNumberIsLowered) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "2");
    press(form.sheet.CmdJ2);
    write(form.sheet.Txt1Ter(29), "61");
    write(form.sheet.Txt1Ter(15), "1");
    EXPECT_TRUE(form.sheet.FrameJ2.visible());
    save(form);
    EXPECT_EQ(stored(2, "LCC2"), QStringList({"61"}));
    EXPECT_EQ(stored(2, "NBRE"), QStringList({"1"}));
}

TEST_F(WritingWindow, DatesAndMeasuresThatMakeNoSenseAreSavedAsTyped) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    write(form.sheet.TxtDate, "hier");
    for (const int index : {2, 3, 4, 18, 21}) {
        write(form.sheet.Txt1Ter(index), QStringLiteral("n%1").arg(index));
    }
    save(form);
    for (const auto& [field, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"DATEXAM", "hier"}, {"DDR", "n2"}, {"DG", "n3"}, {"DGUS", "n4"}, {"LCC", "n18"}, {"NUQUE", "n21"}}) {
        EXPECT_EQ(stored(2, field), QStringList({text})) << field;
    }
}

TEST_F(WritingWindow, AsksUnderANormalPointer) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    world_.boxes.whenAsked = [&form] { EXPECT_EQ(form.pointer(), forms::Pointer::Normal); };
    save(form);
    EXPECT_EQ(world_.boxes.asked.size(), 1);
}

TEST_F(WritingWindow, AnOvertypedKindIsSavedAndOpensTheOtherView) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    write(form.sheet.TxtTypecho, "2");
    save(form);
    EXPECT_EQ(stored(2, "TYPECHO"), QStringList({"2"}));
    EXPECT_TRUE(shown("Form10"));
    EXPECT_FALSE(shown("Form6"));
    EXPECT_FALSE(shown("Form5"));
}

TEST_F(WritingWindow, LeavingItAsksNothingAndSavesNothing) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    press(form.CmdQuitter);
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
}

TEST_F(WritingWindow, ANumberOfEmbryosThatIsNoneIsSavedAsZero) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "un");
    save(form);
    EXPECT_EQ(stored(2, "NBRE"), QStringList({"0"}));
}

TEST_F(WritingWindow, ShowsTheSavedExamAndHides) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    save(form);
    EXPECT_TRUE(shown("Form6"));
    EXPECT_FALSE(shown("Form5"));
    EXPECT_NE(desk().peek("Form5"), nullptr);
    EXPECT_EQ(view().LblNumEcho.text(), "1");
}

TEST_F(WritingWindow, AnOvertypedLowerNumberBringsUpTheHighestExam) {
    addExam(2, 5, "10/01/2002");
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    write(form.sheet.TxtNumEcho, "2");
    save(form);
    EXPECT_EQ(view().LblNumEcho.text(), "5");
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"2", "5"}));
}

TEST_F(WritingWindow, AStoreErrorKeepsTheWindowAndItsEntries) {
    Form5& form = newExam();
    write(form.sheet.Txt1Ter(15), "1");
    write(form.sheet.Txt1Ter(26), "Conclusion");
    write(form.sheet.TxtNumEcho, "deux");
    save(form);
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_TRUE(shown("Form5"));
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    EXPECT_EQ(form.sheet.Txt1Ter(26).text(), "Conclusion");
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
    write(form.sheet.TxtNumEcho, "2");
    save(form);
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({"Conclusion"}));
}

TEST_F(WritingWindow, LeavingItHidesTheSteppingUntilAnEndIsAskedFor) {
    addExam(2, 1, "10/01/2002");
    viewLast();
    press(view().Echo1T);
    press(desk().at<Form5>().CmdQuitter);
    EXPECT_EQ(desk().peek("Form5"), nullptr);
    EXPECT_FALSE(view().CmdRec.visible());
    EXPECT_FALSE(view().CmdAv.visible());
    EXPECT_TRUE(view().CmdPrem.visible() && view().CmdDer.visible());
    press(view().CmdPrem);
    EXPECT_TRUE(view().CmdRec.visible() && view().CmdAv.visible());
}

TEST_F(WritingWindow, ItsUnloadingBringsTheCursorBackAndHidesTheDossiersSteps) {
    addExam(2, 1, "10/01/2002");
    addExam(2, 2, "10/02/2002");
    viewLast();
    press(view().CmdPrem);
    press(view().Echo1T);
    desk().act([&] { desk().at<Form5>().close(); });
    EXPECT_EQ(state_.Rs.text("NUMECHO"), "1");
    EXPECT_FALSE(desk().at<dossier::Form4>().Command3.visible());
    EXPECT_FALSE(desk().at<dossier::Form4>().Command4.visible());
    EXPECT_TRUE(view().CmdRec.visible());
}

}  // namespace
}  // namespace exams
