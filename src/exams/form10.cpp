#include "exams/form10.h"

#include "base/numbers.h"
#include "biometry/form12.h"
#include "exams/exam_record.h"
#include "exams/form11.h"
#include "exams/form6.h"
#include "exams/form8.h"
#include "exams/later_trimesters_reports.h"
#include "reports/riche_t.h"

namespace exams {
namespace {

constexpr auto kShownFields = std::to_array<ShownField>({
    {u"LblNumInt", -1, u"Numero"},
    {u"LblNumEcho", -1, u"NUMECHO"},
    {u"TxtTypecho", -1, u"TYPECHO"},
    {u"LblMachine", -1, u"MACHINE"},
    {u"LblDateCirc", -1, u"DATECIRC"},
    {u"LblIMC", -1, u"BMI"},
    {u"LblDatExam", -1, u"DATEXAM"},
    {u"LblDDR", -1, u"DDR"},
    {u"LblDG", -1, u"DG"},
    {u"LblDGUS", -1, u"DGUS"},
    {u"LblAgeGesta", -1, u"AGESTA"},
    {u"TxtIndic", -1, u"INDI"},
    {u"TxtUterus", -1, u"UTERUS"},
    {u"TxtAnnexes", -1, u"ANNEXES"},
    {u"TxtDouglas", -1, u"DOUGLAS"},
    {u"Txt1T", 5, u"LA"},
    {u"Txt1T", 6, u"PL"},
    {u"LblConditions", -1, u"CONDITIONS"},
    {u"LblOperateur", -1, u"OPERATEUR"},
    {u"LblModalites", -1, u"MODEXAM"},
    {u"TxtNbrE", -1, u"NBRE"},
    {u"TxtUtD", -1, u"UTD"},
    {u"TxtUtG", -1, u"UTG"},
    {u"TxtConclu1", -1, u"CONCLU1"},
    {u"TxtPres", 0, u"NUQUE"},
    {u"TxtPres", 1, u"NUQUE2"},
    {u"TxtPres", 2, u"NUQUE3"},
    {u"CmbMa", 0, u"MA"},
    {u"CmbMa", 1, u"MA2"},
    {u"CmbMa", 2, u"MA3"},
    {u"TxtAC", 0, u"AC"},
    {u"TxtAC", 1, u"AC2"},
    {u"TxtAC", 2, u"AC3"},
    {u"TxtBip", 0, u"Bip"},
    {u"TxtBip", 1, u"Bip2"},
    {u"TxtBip", 2, u"Bip3"},
    {u"TxtCc", 0, u"Cc"},
    {u"TxtCc", 1, u"Cc2"},
    {u"TxtCc", 2, u"Cc3"},
    {u"TxtCerv", 0, u"CERV"},
    {u"TxtCerv", 1, u"CERV2"},
    {u"TxtCerv", 2, u"CERV3"},
    {u"TxtDio", 0, u"DIO"},
    {u"TxtDio", 1, u"DIO2"},
    {u"TxtDio", 2, u"DIO3"},
    {u"TxtDat", 0, u"Dat"},
    {u"TxtDat", 1, u"Dat2"},
    {u"TxtDat", 2, u"Dat3"},
    {u"TxtCa", 0, u"Ca"},
    {u"TxtCa", 1, u"CA2"},
    {u"TxtCa", 2, u"CA3"},
    {u"TxtFem", 0, u"Fem"},
    {u"TxtFem", 1, u"FEM2"},
    {u"TxtFem", 2, u"FEM3"},
    {u"TxtPied", 0, u"Pied"},
    {u"TxtPied", 1, u"Pied2"},
    {u"TxtPied", 2, u"Pied3"},
    {u"TxtTibia", 0, u"TIBIA"},
    {u"TxtTibia", 1, u"TIBIA2"},
    {u"TxtTibia", 2, u"TIBIA3"},
    {u"TxtHum", 0, u"Hum"},
    {u"TxtHum", 1, u"Hum2"},
    {u"TxtHum", 2, u"Hum3"},
    {u"TxtNez", 0, u"OSNEZ"},
    {u"TxtNez", 1, u"OSNEZ2"},
    {u"TxtNez", 2, u"OSNEZ3"},
    {u"TxtArtO", 0, u"ARTO"},
    {u"TxtArtO", 1, u"ARTO2"},
    {u"TxtArtO", 2, u"ARTO3"},
    {u"TxtArtC", 0, u"ARTC"},
    {u"TxtArtC", 1, u"ARTC2"},
    {u"TxtArtC", 2, u"ARTC3"},
    // Not in the order of the fetuses.
    {u"Txt1T", 4, u"MORPHO"},
    {u"Txt1T", 0, u"MORPHO2"},
    {u"Txt1T", 1, u"MORPHO3"},
});

constexpr std::array kMorphologies{4, 0, 1};

/// The heading of each kind of exam.
struct Heading {
    double kind;
    QStringView text;
};
constexpr auto kHeadings = std::to_array<Heading>({
    {0, u"Echographie Obstétricale"},
    {1, u"Echographie du 1er Trimestre"},
    {2, u"Echographie du 2ème Trimestre"},
    {3, u"Echographie du 3ème Trimestre"},
});

}  // namespace

Form10::Form10(ObstetricExams& exams)
    : ObstetricView(exams, kName, QStringLiteral("Echographie du 2ème et 3ème Trimestre"), QStringLiteral("Foetus"),
                    1) {
    Examens.holds(Ter1, Ter2, Modif, Supprim, fermer);
    Rapports.holds(imprimer, Biometrie);
    CptrD.setText(QStringLiteral("Compte Rendu détaillé"));
    for (int i = 0; i < kMost; ++i) {
        frames()[static_cast<std::size_t>(i)]->holds(
            TxtPres(i), CmbMa(i), TxtAC(i), TxtBip(i), TxtCc(i), TxtDio(i), TxtCerv(i), TxtDat(i), TxtCa(i), TxtFem(i),
            TxtPied(i), TxtTibia(i), TxtHum(i), TxtNez(i), TxtArtO(i), TxtArtC(i), morphology(i));
    }
    forms::lockBoxes(*this, {TxtPied(0).name(), TxtPres(0).name(), TxtNbrE.name()});
    wireEntries(Ter1, Ter2, fermer);
    wireSteps();
}

forms::TextBox& Form10::morphology(int fetus) {
    return Txt1T(kMorphologies[static_cast<std::size_t>(fetus)]);
}

const forms::TextBox& Form10::morphology(int fetus) const {
    return Txt1T(kMorphologies[static_cast<std::size_t>(fetus)]);
}

void Form10::wireSteps() {
    Modif.onClick = [this] { desk().show(Form11::kName.toString()); };
    CmdModifs.onClick = [this] {
        Modif.click();
        desk().at<Form11>().sheet.fields(sheet_fields::kOperator).setFocus();
    };
    Supprim.onClick = [this] { Supprime(); };
    CmdSupprime.onClick = [this] { Supprime(); };
    Biometrie.onClick = [this] { biometry::showBiometry(desk()); };
    CmdBiometrie.onClick = [this] { Biometrie.click(); };
    imprimer.onClick = [this] { CptRendu2T(); };
    Command1.onClick = [this] { CptRendu2T(); };
    Command2.onClick = [this] { showPhotos(); };
}

void Form10::load() {
    takeMarks(&MenuMarks::laterDetailed, &MenuMarks::laterOther);
    copyIdentity();
}

void Form10::unloading() {
    exams().leaveViewing({Form6::kName, u"Form12", u"Form13", Form8::kName});
}

// The identity goes with each exam: a window that stayed loaded out of sight may hold another patient's.
void Form10::display() {
    copyIdentity();
    showFields(*this, kShownFields, record());
    Sem_Entier.setText(LblAgeGesta.text());
    LblAgeGesta.setText(LblAgeGesta.text() + QStringLiteral(" Sem. A."));
    LblDatExamb.setText(LblDatExam.text());
    nameExam();
    adjustFetusButtons();
}

void Form10::refillAfterCorrection() {
    copyIdentity();
    showFields(*this, kShownFields, record());
    showPanelAgain(TxtNbrE.text());
}

void Form10::nameExam() {
    const QString kind = TxtTypecho.text();
    const auto heading = std::ranges::find_if(
        kHeadings, [&](const Heading& row) { return base::isNumeric(kind) && base::toNumber(kind) == row.kind; });
    if (heading != kHeadings.end()) {
        Label1.setText(heading->text.toString());
    }
}

void Form10::adjustFetusButtons() {
    const QString text = TxtNbrE.text();
    if (base::isNumeric(text) && base::toNumber(text) > 1) {
        offerFetuses(base::toNumber(text) >= kMost);
    } else {
        hidePanel();
    }
}

void Form10::CptRendu2T() {
    const reports::LaterExam exam = examOnShow(*this, exams().life());
    reports::RicheT& editor = reports::openEditor(desk(), reports::kLaterTrimestersTitle);
    reports::type(reports::CptRendu2T(exam, detail(), introduction()), editor.RichTextBox1);
}

void Form10::Supprime() {
    deleteExam([this] { desk().at<Form8>().clear(); });
}

}  // namespace exams
