#include "gyneco/form17.h"

#include "gyneco/gynaecology_windows.h"

namespace gyneco {
namespace {

class GynaecologyCorrection : public GynaecologyWindows {
protected:
    void answer(Form17& form, bool yes) {
        world_.boxes.answers = {yes};
        press(form.CmdModifs);
    }
};

TEST_F(GynaecologyCorrection, OpensOnTheExamInViewFieldByField) {
    store(14, "AUTRE APPAREIL");
    addExam(2, 3, "11/02/2002", namedFields());
    viewLast();
    Form17& form = correct();
    EXPECT_TRUE(shown("Form17"));
    EXPECT_TRUE(form.exclusive());
    EXPECT_EQ(form.sheet.LblNom.text(), "DUPONT");
    EXPECT_EQ(form.sheet.LblPrenom.text(), "Marie");
    EXPECT_EQ(form.sheet.LblNumInt.text(), "2");
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "3");
    EXPECT_EQ(form.sheet.TxtDate.text(), "11/02/2002");
    EXPECT_EQ(form.sheet.LblMachine.text(), "MACHINE");
    EXPECT_EQ(form.sheet.LblDateCirc.text(), "DATECIRC");
    for (int i = 1; i <= 36; ++i) {
        EXPECT_EQ(form.sheet.TxtGyneco(i).text(), kFieldNames[i - 1]) << i;
    }
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(1));
}

TEST_F(GynaecologyCorrection, OpensOnThePelvicPageAlsoForAMonitoringExam) {
    addExam(2, 1, "11/02/2002", {{"JSTIM", "9"}});
    press(viewLast().Command2);
    Form17& form = correct();
    EXPECT_EQ(form.sheet.pages.Label1.text(), "Echographie Pelvienne");
    EXPECT_FALSE(form.sheet.pages.Frame8.visible());
    press(form.sheet.Command1);
    EXPECT_EQ(form.focused(), &form.sheet.TxtGyneco(27));
    EXPECT_EQ(form.sheet.TxtGyneco(27).text(), "9");
}

TEST_F(GynaecologyCorrection, AYesStoresTheChangesAndShowsThem) {
    addExam(2, 1, "11/02/2002", namedFields());
    viewLast();
    Form17& form = correct();
    form.sheet.TxtGyneco(26).setText("Corrigée");
    form.sheet.TxtGyneco(33).setText("12 14");
    form.sheet.TxtDate.setText("12/02/2002");
    answer(form, true);
    EXPECT_EQ(world_.boxes.asked,
              QStringList({"Voulez vous vraiment enregistrer les modifications apportées à ce compte rendu ?"}));
    EXPECT_EQ(world_.boxes.said, QStringList({"Compte rendu modifié"}));
    EXPECT_FALSE(loaded("Form17"));
    EXPECT_TRUE(shown("Form18"));
    EXPECT_EQ(view().TxtGyneco(21).text(), "Corrigée");
    EXPECT_EQ(view().TxtTFolG.text(), "12 14");
    EXPECT_EQ(view().TxtDate.text(), "12/02/2002");
    EXPECT_EQ(stored(2, "CONCLU"), QStringList({"Corrigée"}));
    EXPECT_EQ(stored(2, "MACHINE"), QStringList({"MACHINE"}));
}

TEST_F(GynaecologyCorrection, ANoClosesTheWindowAndLosesTheEntries) {
    addExam(2, 1, "11/02/2002", {{"CONCLU", "Première"}});
    viewLast();
    Form17& form = correct();
    form.sheet.TxtGyneco(26).setText("Perdue");
    answer(form, false);
    EXPECT_FALSE(loaded("Form17"));
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_TRUE(shown("Form18"));
    EXPECT_EQ(view().TxtGyneco(21).text(), "Première");
    EXPECT_EQ(stored(2, "CONCLU"), QStringList({"Première"}));
}

TEST_F(GynaecologyCorrection, TheHourglassStandsFromTheQuestionToTheReport) {
    addExam(2, 1, "11/02/2002");
    viewLast();
    Form17& form = correct();
    std::vector<forms::Pointer> pointers;
    const auto look = [&] { pointers.push_back(form.pointer()); };
    world_.boxes.whenAsked = look;
    world_.boxes.whenSaid = look;
    const auto seen = form.observePointer(look);
    answer(form, true);
    // Set, asked, reported, set back.
    EXPECT_EQ(pointers,
              std::vector({forms::Pointer::Busy, forms::Pointer::Busy, forms::Pointer::Busy, forms::Pointer::Normal}));
}

TEST_F(GynaecologyCorrection, ItsControlsHaveTheirCaptions) {
    addExam(2, 1, "11/02/2002");
    viewLast();
    const std::vector<std::pair<const char*, const char*>> captions{
        {"Command1", "Monit. Ovulation"},
        {"Command2", "&Gynéco"},
        {"Frame3", "Utérus"},
        {"Frame4", "Annexes"},
        {"Frame5", "Douglas"},
        {"Frame6", "Masse"},
        {"Frame7", "Conclusion"},
    };
    const Form17& form = correct();
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
    EXPECT_EQ(form.find(u"CmdPhotos"), nullptr);
}

TEST_F(GynaecologyCorrection, ARenumberedExamIsTheOneThatShows) {
    addExam(2, 1, "10/01/2002", {{"CONCLU", "Une"}});
    addExam(2, 2, "11/02/2002", {{"CONCLU", "Deux"}});
    addExam(2, 3, "12/03/2002", {{"CONCLU", "Trois"}});
    press(viewLast().CmdRec);
    Form17& form = correct();
    form.sheet.TxtNumEcho.setText("9");
    answer(form, true);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "3", "9"}));
    EXPECT_EQ(view().TxtNumEcho.text(), "9");
    EXPECT_EQ(view().TxtGyneco(21).text(), "Deux");
    press(view().CmdRec);
    EXPECT_EQ(view().TxtGyneco(21).text(), "Trois");
}

TEST_F(GynaecologyCorrection, AnExamThatTakesTheNumberOfAnotherIsTheOneThatShows) {
    addExam(2, 1, "10/01/2002", {{"CONCLU", "Une"}});
    addExam(2, 2, "11/02/2002", {{"CONCLU", "Deux"}});
    viewLast();
    Form17& form = correct();
    form.sheet.TxtNumEcho.setText("1");
    answer(form, true);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "1"}));
    EXPECT_EQ(view().TxtGyneco(21).text(), "Deux");
}

TEST_F(GynaecologyCorrection, LeavingItPutsTheCursorBackOnTheExamsOfTheDossier) {
    addExams({"10/01/2002", "11/02/2002", "12/03/2002"});
    press(viewLast().CmdRec);
    Form17& form = correct();
    focus(form.sheet.TxtGyneco(3));
    press(form.CmdQuitter);
    EXPECT_FALSE(loaded("Form17"));
    EXPECT_TRUE(shown("Form18"));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    ASSERT_TRUE(state_.Rs.standsOn("GYNECO"));
    EXPECT_EQ(state_.Rs.text("NUMECHO"), "2");
    EXPECT_EQ(state_.Rs.recordCount(), 3);
}

TEST_F(GynaecologyCorrection, ClosingItByItsFramePutsTheCursorBackToo) {
    addExams({"10/01/2002", "11/02/2002"});
    viewLast();
    Form17& form = correct();
    focus(form.sheet.TxtGyneco(3));
    desk().act([&] { form.close(); });
    ASSERT_TRUE(state_.Rs.standsOn("GYNECO"));
    EXPECT_EQ(state_.Rs.text("NUMECHO"), "2");
}

TEST_F(GynaecologyCorrection, ARefusingDiskLeavesTheWindowWithItsEntries) {
    addExam(2, 1, "11/02/2002", {{"CONCLU", "Première"}});
    viewLast();
    Form17& form = correct();
    form.sheet.TxtGyneco(26).setText("Corrigée");
    {
        const fakes::RefusingFile refusing(fakes::pathOf(world_, store::FileKind::Echo), "UPDATE", "GYNECO");
        answer(form, true);
    }
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_TRUE(shown("Form17"));
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    EXPECT_EQ(form.sheet.TxtGyneco(26).text(), "Corrigée");
    answer(form, true);
    EXPECT_EQ(stored(2, "CONCLU"), QStringList({"Corrigée"}));
}

TEST_F(GynaecologyCorrection, AnExamDeletedElsewhereIsNotWrittenOverAnotherOne) {
    addExam(2, 1, "10/01/2002", {{"CONCLU", "Une"}});
    addExam(2, 2, "11/02/2002", {{"CONCLU", "Deux"}});
    viewLast();
    Form17& form = correct();
    form.sheet.TxtGyneco(26).setText("Corrigée");
    query("SELECT*FROM GYNECO WHERE NUMERO=2And NUMECHO=2").remove();
    answer(form, true);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3167}));
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_TRUE(shown("Form17"));
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    EXPECT_EQ(form.sheet.TxtGyneco(26).text(), "Corrigée");
    EXPECT_EQ(stored(2, "CONCLU"), QStringList({"Une"}));
}

TEST_F(GynaecologyCorrection, TheOnlyExamDeletedElsewhereIsReportedAndNotWrittenAnew) {
    addExam(2, 1, "10/01/2002", {{"CONCLU", "Une"}});
    viewLast();
    Form17& form = correct();
    form.sheet.TxtGyneco(26).setText("Corrigée");
    query("SELECT*FROM GYNECO WHERE NUMERO=2And NUMECHO=1").remove();
    answer(form, true);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3167}));
    EXPECT_EQ(form.sheet.TxtGyneco(26).text(), "Corrigée");
    EXPECT_TRUE(stored(2, "CONCLU").isEmpty());
    press(form.CmdQuitter);
    EXPECT_FALSE(loaded("Form17"));
    EXPECT_TRUE(shown("Form18"));
}

TEST_F(GynaecologyCorrection, ANoAfterTheExamWasDeletedElsewhereClosesTheWindow) {
    addExam(2, 1, "10/01/2002", {{"CONCLU", "Une"}});
    addExam(2, 2, "11/02/2002", {{"CONCLU", "Deux"}});
    viewLast();
    Form17& form = correct();
    query("SELECT*FROM GYNECO WHERE NUMERO=2And NUMECHO=2").remove();
    answer(form, false);
    EXPECT_FALSE(loaded("Form17"));
    EXPECT_EQ(view().TxtGyneco(21).text(), "Une");
    EXPECT_EQ(stored(2, "CONCLU"), QStringList({"Une"}));
}

TEST_F(GynaecologyCorrection, AnExamDeletedElsewhereBeforeItIsOpenedIsReported) {
    addExam(2, 1, "10/01/2002");
    viewLast();
    query("SELECT*FROM GYNECO WHERE NUMERO=2And NUMECHO=1").remove();
    press(view().CmdModifs);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3021}));
    EXPECT_FALSE(loaded("Form17"));
    EXPECT_TRUE(shown("Form18"));
}

}  // namespace
}  // namespace gyneco
