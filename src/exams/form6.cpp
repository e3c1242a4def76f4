#include "exams/form6.h"

#include <array>

#include "base/numbers.h"
#include "exams/first_trimester_reports.h"
#include "exams/form5.h"
#include "exams/report_head.h"
#include "exams/settings_file.h"
#include "reports/riche_t.h"

namespace exams {
namespace {

/// A field of the record and the control that shows it; index -1 outside the arrays.
struct ShownField {
    const char16_t* control;
    int index;
    const char16_t* field;
};

constexpr auto kShownFields = std::to_array<ShownField>({
    {u"LblMachine", -1, u"MACHINE"},
    {u"LblDateCirc", -1, u"DATECIRC"},
    {u"LblNumEcho", -1, u"NUMECHO"},
    {u"LblDatExam", -1, u"DATEXAM"},
    {u"LblDatExamb", -1, u"DATEXAM"},
    {u"LblOperateur", -1, u"OPERATEUR"},
    {u"LblDDR", -1, u"DDR"},
    {u"LblDG", -1, u"DG"},
    {u"LblDGUS", -1, u"DGUS"},
    {u"LblModalites", -1, u"MODEXAM"},
    {u"LblConditions", -1, u"CONDITIONS"},
    {u"TxtIndic", -1, u"INDI"},
    {u"TxtUterus", -1, u"UTERUS"},
    {u"TxtAnnexes", -1, u"ANNEXES"},
    {u"TxtDouglas", -1, u"DOUGLAS"},
    {u"LblNbr", -1, u"NBRS"},
    {u"LblSituation", -1, u"SITUATION"},
    {u"LblDim", -1, u"Dim"},
    {u"LblAspect", -1, u"ASPECT"},
    {u"LblNbrE", -1, u"NBRE"},
    {u"TxtLA", -1, u"LA"},
    {u"TxtPl", -1, u"PL"},
    {u"TxtConclu1", -1, u"CONCLU1"},
    {u"LblMA", 0, u"MA"},
    {u"LblMA", 1, u"MA2"},
    {u"LblMA", 2, u"MA3"},
    {u"LblAC", 0, u"AC"},
    {u"LblAC", 1, u"AC2"},
    {u"LblAC", 2, u"AC3"},
    {u"LblLCC", 0, u"LCC"},
    {u"LblLCC", 1, u"LCC2"},
    {u"LblLCC", 2, u"LCC3"},
    {u"LblBip", 0, u"Bip"},
    {u"LblBip", 1, u"Bip2"},
    {u"LblBip", 2, u"Bip3"},
    {u"LblFem", 0, u"Fem"},
    {u"LblFem", 1, u"FEM2"},
    {u"LblFem", 2, u"FEM3"},
    {u"LblNuque", 0, u"NUQUE"},
    {u"LblNuque", 1, u"NUQUE2"},
    {u"LblNuque", 2, u"NUQUE3"},
    {u"LblOPN", 0, u"OSNEZ"},
    {u"LblOPN", 1, u"OSNEZ2"},
    {u"LblOPN", 2, u"OSNEZ3"},
    {u"TxtMorpho", 0, u"MORPHO"},
    {u"TxtMorpho", 1, u"MORPHO2"},
    {u"TxtMorpho", 2, u"MORPHO3"},
});

void showAll(const forms::Form& form, const store::Recordset& exam) {
    for (const ShownField& shown : kShownFields) {
        auto* control = static_cast<forms::TextControl*>(form.find(shown.control, shown.index));
        control->setText(exam.text(QString::fromUtf16(shown.field)));
    }
}

}  // namespace

Form6::Form6(ObstetricExams& exams)
    : Form(exams.life().desk(), kName.toString(), QStringLiteral("Echographie du 1er Trimestre")), exams_(exams) {
    Examens.holds(Echo1T, Echo2T, Modif, Supprim, Quitte);
    Rapports.holds(Cptrendu, Datation);
    TypeCptR.holds(CptrD, CptrM, Intro);
    Frame5.holds(CmdJ1, CmdJ2, CmdJ3);
    Frame12.holds(CmdPrem, CmdRec, CmdAv, CmdDer);
    const std::array frames{&FrameJ1, &FrameJ2, &FrameJ3};
    for (int i = 0; i < 3; ++i) {
        frames[static_cast<std::size_t>(i)]->holds(LblMA(i), LblAC(i), LblLCC(i), LblBip(i), LblFem(i), LblNuque(i),
                                                   LblOPN(i), TxtMorpho(i));
    }
    for (forms::Control* control : controls()) {
        if (control->kind() == forms::Kind::TextBox) {
            static_cast<forms::TextBox*>(control)->setLocked(true);
        }
    }
    Frame5.hide();
    FrameJ2.hide();
    FrameJ3.hide();
    wireMenus();
    wireButtons();
}

void Form6::wireMenus() {
    CptrD.onClick = [this] { chooseStyle(true); };
    CptrM.onClick = [this] { chooseStyle(false); };
    Intro.onClick = [this] { Intro.setChecked(!Intro.checked()); };
    Modif.onClick = [this] { desk().show(QStringLiteral("Form7")); };
    Supprim.onClick = [this] { Supprime1T(); };
    Quitte.onClick = [this] { leaveByMenu(); };
    Echo1T.onClick = [this] { exams_.openNew(dossier::ExamFamily::FirstTrimester); };
    Echo2T.onClick = [this] { exams_.openNew(dossier::ExamFamily::LaterTrimesters); };
    Cptrendu.onClick = [this] { CptRendu1T(); };
    Datation.onClick = [this] { CptRenduDat(); };
    Aide.onClick = [this] {
        const ports::Surroundings& around = exams_.life().around();
        around.help.showContents(around.programFolder + QStringLiteral("/VERANOX.HLP"));
    };
}

void Form6::wireButtons() {
    CmdJ1.onClick = [this] { showEmbryo(0); };
    CmdJ2.onClick = [this] { showEmbryo(1); };
    CmdJ3.onClick = [this] { showEmbryo(2); };
    CmdPrem.onClick = [this] { exams_.showFirst(); };
    CmdRec.onClick = [this] { exams_.showPrevious(); };
    CmdAv.onClick = [this] { exams_.showNext(); };
    CmdDer.onClick = [this] { exams_.showFinal(); };
    Hlb1T.onClick = [this] { Echo1T.click(); };
    Hlb2T.onClick = [this] { Echo2T.click(); };
    Command1.onClick = [this] { Cptrendu.click(); };
    Command2.onClick = [this] { Datation.click(); };
    Command3.onClick = [this] { desk().show(QStringLiteral("Form20")); };
    CmdModifs.onClick = [this] { Modif.click(); };
    CmdSupprime.onClick = [this] { Supprime1T(); };
    CmdQuitter.onClick = [this] { unload(); };
}

void Form6::load() {
    if (const auto marks = readSettings(exams_.life().around().programFolder)) {
        CptrD.setChecked(marks->firstDetailed);
        CptrM.setChecked(marks->firstOther);
        Intro.setChecked(marks->introduction);
    }
    AFFCIVILITES();
}

void Form6::unloading() {
    if (writesSettings_) {
        exams_.keepReportStyle();
    }
    for (const char* name : {"Form10", "Form5"}) {
        desk().unload(QString::fromLatin1(name));
    }
    exams_.life().returnToDossier();
}

void Form6::AFFCIVILITES() {
    exams_.life().copyIdentity(LblNom, LblPrenom, LblNumInt);
}

void Form6::AFFICHEVOIR() {
    const store::Recordset& exam = exams_.life().state().Rs;
    showAll(*this, exam);
    LblIMC.setText(exam.text(QStringLiteral("BMI")));
    LblAgeGesta.setText(exam.text(QStringLiteral("AGESTA")));
}

// The identity goes with each exam: a window that stayed loaded out of sight may hold another patient's.
void Form6::display() {
    AFFCIVILITES();
    AFFICHEVOIR();
    LblAgeGesta.setText(LblAgeGesta.text() + QStringLiteral(" Sem. A."));
    adjustEmbryoButtons();
}

void Form6::refillAfterCorrection() {
    showAll(*this, exams_.life().state().Rs);
    LblAgeGesta.setText({});
    Frame5.setVisible(base::isNumeric(LblNbrE.text()) && base::toNumber(LblNbrE.text()) >= 2);
}

void Form6::adjustEmbryoButtons() {
    const QString text = LblNbrE.text();
    const double count = base::isNumeric(text) ? base::toNumber(text) : 1;
    if (count == 1) {
        Frame5.hide();
        // A lone embryo is always the one in view: without the panel nobody could bring it back.
        showEmbryo(0);
    } else if (count == 2 || count == 3) {
        Frame5.show();
        CmdJ1.show();
        CmdJ2.show();
        CmdJ3.setVisible(count == 3);
    }
}

void Form6::showEmbryo(int which) {
    const std::array frames{&FrameJ1, &FrameJ2, &FrameJ3};
    for (int i = 0; i < 3; ++i) {
        frames[static_cast<std::size_t>(i)]->setVisible(i == which);
    }
    Frame5.setBack(kEmbryoColors[static_cast<std::size_t>(which)]);
    Frame12.setVisible(which == 0);
}

void Form6::chooseStyle(bool detailed) {
    CptrD.setChecked(detailed);
    CptrM.setChecked(!detailed);
}

void Form6::CptRendu1T() {
    reports::RicheT& editor = reports::openEditor(desk(), reports::kFirstTrimesterTitle);
    const reports::FirstTrimesterExam exam = examOnShow(*this, exams_.life());
    const QString introduction = introductionOf(exams_.life());
    reports::type(reports::CptRendu1T(exam, CptrM.checked() ? reports::Detail::Minimum : reports::Detail::Full,
                                      Intro.checked() ? std::optional(introduction) : std::nullopt),
                  editor.RichTextBox1);
}

void Form6::CptRenduDat() {
    reports::RicheT& editor = reports::openEditor(desk(), reports::kDatingTitle);
    reports::type(reports::CptRenduDat(examOnShow(*this, exams_.life())), editor.RichTextBox1);
}

void Form6::leaveByMenu() {
    writesSettings_ = false;
    unload();
}

void Form6::Supprime1T() {
    if (!exams_.deleteInView(base::queryNumber(LblNumEcho.text()))) {
        return;
    }
    desk().at<Form5>().clear();
    unload();
    exams_.life().dossierWindow().reopenPatients();
}

}  // namespace exams
