#include "exams/form6.h"

#include "base/numbers.h"
#include "exams/exam_record.h"
#include "exams/first_trimester_reports.h"
#include "exams/form10.h"
#include "exams/form5.h"
#include "reports/riche_t.h"

namespace exams {
namespace {

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

}  // namespace

Form6::Form6(ObstetricExams& exams)
    : ObstetricView(exams, kName, QStringLiteral("Echographie du 1er Trimestre"), QStringLiteral("Embryon"), 2) {
    Examens.holds(Echo1T, Echo2T, Modif, Supprim, Quitte);
    Rapports.holds(Cptrendu, Datation);
    for (int i = 0; i < kMost; ++i) {
        frames()[static_cast<std::size_t>(i)]->holds(LblMA(i), LblAC(i), LblLCC(i), LblBip(i), LblFem(i), LblNuque(i),
                                                     LblOPN(i), TxtMorpho(i));
    }
    forms::lockBoxes(*this);
    wireEntries(Echo1T, Echo2T, Quitte);
    wireSteps();
}

void Form6::wireSteps() {
    Modif.onClick = [this] { desk().show(QStringLiteral("Form7")); };
    Supprim.onClick = [this] { Supprime1T(); };
    Cptrendu.onClick = [this] { CptRendu1T(); };
    Datation.onClick = [this] { CptRenduDat(); };
    Command1.onClick = [this] { Cptrendu.click(); };
    Command2.onClick = [this] { Datation.click(); };
    Command3.onClick = [this] { showPhotos(); };
    CmdModifs.onClick = [this] { Modif.click(); };
    CmdSupprime.onClick = [this] { Supprime1T(); };
}

void Form6::load() {
    takeMarks(&MenuMarks::firstDetailed, &MenuMarks::firstOther);
    AFFCIVILITES();
}

void Form6::unloading() {
    exams().leaveViewing({Form10::kName, Form5::kName});
}

void Form6::AFFCIVILITES() {
    copyIdentity();
}

void Form6::AFFICHEVOIR() {
    showFields(*this, kShownFields, record());
    LblIMC.setText(record().text(QStringLiteral("BMI")));
    LblAgeGesta.setText(record().text(QStringLiteral("AGESTA")));
}

// The identity goes with each exam: a window that stayed loaded out of sight may hold another patient's.
void Form6::display() {
    AFFCIVILITES();
    AFFICHEVOIR();
    LblAgeGesta.setText(LblAgeGesta.text() + QStringLiteral(" Sem. A."));
    adjustEmbryoButtons();
}

void Form6::refillAfterCorrection() {
    AFFCIVILITES();
    showFields(*this, kShownFields, record());
    LblAgeGesta.setText({});
    showPanelAgain(LblNbrE.text());
}

void Form6::adjustEmbryoButtons() {
    const QString text = LblNbrE.text();
    const double count = base::isNumeric(text) ? base::toNumber(text) : 1;
    if (count == 1) {
        hidePanel();
    } else if (count == 2 || count == 3) {
        offerFetuses(count == 3);
    }
}

void Form6::CptRendu1T() {
    reports::RicheT& editor = reports::openEditor(desk(), reports::kFirstTrimesterTitle);
    const reports::FirstTrimesterExam exam = examOnShow(*this, exams().life());
    reports::type(reports::CptRendu1T(exam, detail(), introduction()), editor.RichTextBox1);
}

void Form6::CptRenduDat() {
    reports::RicheT& editor = reports::openEditor(desk(), reports::kDatingTitle);
    reports::type(reports::CptRenduDat(examOnShow(*this, exams().life())), editor.RichTextBox1);
}

void Form6::Supprime1T() {
    deleteExam([this] { desk().at<Form5>().clear(); });
}

}  // namespace exams
