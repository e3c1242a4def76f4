#include "dossier/form4.h"

#include <array>

#include "base/numbers.h"
#include "dossier/deletion.h"
#include "dossier/form2.h"
#include "dossier/form3.h"
#include "dossier/paths.h"
#include "dossier/patient_lines.h"
#include "forms/key_filters.h"

namespace dossier {
namespace {

using forms::KeyPress;
using store::Recordset;

const QString kByName = QStringLiteral("SELECT*FROM FICHEPATIENT ORDER BY NOM");
const QString kByNames = QStringLiteral("SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM");

// No quote can reach a criterion from the keyboard.
void capitalsWithoutApostrophe(KeyPress& key) {
    if (key.character() == u'\'') {
        key.swallow();
    } else {
        forms::capitals(key);
    }
}

}  // namespace

Form4::Form4(ports::Surroundings& around, store::State& state, ExamDoors& exams)
    : Form(around.desk, kName.toString(), QStringLiteral("VERANOX 3.11")),
      around_(around),
      state_(state),
      exams_(exams),
      obstetric_{QStringLiteral("1TER"), List1, QStringLiteral("Pas d'échographie 1er Ter dans ce dossier"),
                 &ExamDoors::showObstetricExam},
      gynaecology_{QStringLiteral("GYNECO"), List2, QStringLiteral("Pas d'échographie Pelvienne dans ce dossier"),
                   &ExamDoors::showGynaecologyExam} {
    Frame5.holds(Text1, Text2, Command1, Command2, Command3, Command4);
    Frame2.holds(Cmd1Ter, Cmd2Ter, CmdGyneco);
    Frame3.holds(HlbCptDate, HlbCptDer, List1);
    Frame6.holds(Command6, Command5, List2);
    Frame4.holds(TxtEta, TxtNom, TxtAdress, TxtVille, TxtTel);
    wireSearch();
    wireBrowsing();
    wireExams();
    wireDossier();
}

void Form4::wireSearch() {
    for (forms::TextBox* box : {&Text1, &Text2}) {
        box->onKey = capitalsWithoutApostrophe;
        box->onKeyDown = [this](forms::Key key) {
            step(key == forms::Key::Left ? &Recordset::stepBack : &Recordset::stepOn);
        };
    }
    Text1.onFocus = [this] { Text2.setText({}); };
    Text1.onChange = [this] { onText1Change(); };
    Text2.onChange = [this] { onText2Change(); };
}

void Form4::wireBrowsing() {
    Command1.onClick = [this] { showEnd(&Recordset::moveFirst); };
    Command2.onClick = [this] { showEnd(&Recordset::moveLast); };
    Command3.onClick = [this] {
        history_.reset();
        step(&Recordset::stepBack);
    };
    Command4.onClick = [this] {
        history_.reset();
        step(&Recordset::stepOn);
    };
}

void Form4::wireExams() {
    NomLbl.onClick = [this] { List1.clear(); };
    HlbCptDate.onClick = [this] { fillList(obstetric_); };
    Command6.onClick = [this] { fillList(gynaecology_); };
    List1.onDoubleClick = [this] { openFromList(obstetric_); };
    List2.onDoubleClick = [this] { openFromList(gynaecology_); };
    HlbCptDer.onClick = [this] { showLastObstetricExam(); };
    Command5.onClick = [this] { openLast(gynaecology_); };
    Cmd1Ter.onClick = [this] { startExam(ExamFamily::FirstTrimester); };
    Cmd2Ter.onClick = [this] { startExam(ExamFamily::LaterTrimesters); };
    CmdGyneco.onClick = [this] { startExam(ExamFamily::Gynaecology); };
}

void Form4::wireDossier() {
    CmdCreeDossier.onClick = [this] { onCmdCreeDossierClick(); };
    CmdModifie.onClick = [this] { onCmdModifieClick(); };
    CmdSupprime.onClick = [this] { onCmdSupprimeClick(); };
    CmdATCD.onClick = [this] { history_.show(); };
    CmdEnregATCD.onClick = [this] { history_.save(); };
    CmdQuitter.onClick = [this] { unload(); };
    Menu.onClick = [this] { unload(); };
}

void Form4::load() {
    Command3.setEnabled(false);
    Command4.setEnabled(false);
    CmdEnregATCD.setEnabled(false);
    readPaths(around_, state_);
    state_.DbEcho = store::Database::open(state_.WorkEcho);
    loadLetterhead();
    reopenPatients();
}

void Form4::unloading() {
    desk().show(QStringLiteral("Form1"));
}

void Form4::loadLetterhead() {
    struct Row {
        int rubric;
        forms::TextBox& field;
        QString lead;
    };
    const std::array<Row, 5> rows{{{19, TxtEta, {}},
                                   {20, TxtNom, {}},
                                   {21, TxtAdress, {}},
                                   {22, TxtVille, {}},
                                   {23, TxtTel, QStringLiteral("Tél :   ")}}};
    for (const Row& row : rows) {
        state_.queryExams(QStringLiteral("SELECT*FROM OPTIONS WHERE NUMEROS = %1 ").arg(row.rubric));
        row.field.setText({});
        for (; !state_.Rs.eof(); state_.Rs.moveNext()) {
            row.field.setText(row.lead + state_.Rs.text(QStringLiteral("Texte")));
        }
    }
}

void Form4::queryByName() {
    state_.queryPatients(kByName);
}

void Form4::reopenPatients() {
    state_.DbNom = store::Database::open(state_.WorkNom);
    queryByName();
}

void Form4::AFFICHE_FICHE() {
    const Recordset& rs = state_.Rs;
    NumLbl.setText(rs.text(QStringLiteral("Numint")));
    LblCivilite.setText(rs.text(QStringLiteral("CIVILITEE")));
    NomLbl.setText(rs.text(QStringLiteral("Nom")));
    PrenomLbl.setText(rs.text(QStringLiteral("Prenom")));
    LstCiv.clear();
    for (const QString& line : patientLines(rs, around_.clock.today())) {
        LstCiv.add(line);
    }
}

void Form4::AFFICHE_1() {
    exams_.nameNewExam(state_.Rs.text(QStringLiteral("Nom")), state_.Rs.text(QStringLiteral("Prenom")));
}

void Form4::clearDisplay() {
    NomLbl.setText({});
    PrenomLbl.setText({});
    LstCiv.clear();
    TxtATCD.setText({});
}

void Form4::onText1Change() {
    history_.reset();
    enableBrowsing();
    if (Text1.text().isEmpty()) {
        return;
    }
    state_.queryPatients(kByNames);
    state_.Rs.findFirst(QStringLiteral("NOM>='") + Text1.text() + u'\'');
    if (state_.Rs.noMatch()) {
        around_.boxes.message(QStringLiteral("Ce Nom n'existe pas"));
        return;
    }
    AFFICHE_FICHE();
}

void Form4::onText2Change() {
    enableBrowsing();
    if (dossierOpen()) {
        state_.queryPatients(QStringLiteral("SELECT*FROM FICHEPATIENT WHERE NOM='") + NomLbl.text() +
                             QStringLiteral("' ORDER BY NOM, PRENOM"));
        state_.Rs.findFirst(QStringLiteral("PRENOM>='") + Text2.text() + u'\'');
    } else {
        state_.queryPatients(kByName);
        state_.Rs.findFirst(QStringLiteral("NOM>='") + Text2.text() + u'\'');
    }
    AFFICHE_FICHE();
}

// A step onto another table hides the two buttons as well; the ends of the patients bring them back.
void Form4::enableBrowsing() {
    Command3.setEnabled(true);
    Command4.setEnabled(true);
}

void Form4::showEnd(void (Recordset::*move)()) {
    history_.reset();
    enableBrowsing();
    Command3.show();
    Command4.show();
    state_.queryPatients(kByName);
    (state_.Rs.*move)();
    AFFICHE_FICHE();
}

void Form4::step(void (Recordset::*move)()) {
    Recordset& rs = state_.Rs;
    if (rs.bof() && rs.eof()) {
        return;
    }
    (rs.*move)();
    AFFICHE_FICHE();
}

bool Form4::requireDossier() {
    if (!dossierOpen()) {
        around_.boxes.message(QStringLiteral("Veuillez ouvrir un dossier patient au préalable."));
    }
    return dossierOpen();
}

QString Form4::number() const {
    return base::queryNumber(NumLbl.text());
}

void Form4::fillList(const ExamList& exams) {
    exams.list.clear();
    if (!requireDossier()) {
        return;
    }
    state_.openExams();
    state_.queryExams(QStringLiteral("SELECT*FROM %1 WHERE NUMERO=%2 ORDER BY NUMECHO").arg(exams.table, number()));
    state_.Rs.findFirst(QStringLiteral("NUMERO=") + number());
    if (state_.Rs.noMatch()) {
        reopenPatients();
        return;
    }
    for (state_.Rs.moveFirst(); !state_.Rs.eof(); state_.Rs.moveNext()) {
        exams.list.add(state_.Rs.text(QStringLiteral("DATEXAM")));
    }
    state_.queryExams(QStringLiteral("SELECT*FROM CIVILITES ORDER BY NOM, PRENOM"));
}

void Form4::openFromList(const ExamList& exams) {
    if (dossierOpen() && exams.list.row() >= 0) {
        openFound(exams, QStringLiteral("DATEXAM='") + exams.list.text() + u'\'', exams.noneOfThisDate);
    }
}

void Form4::openLast(const ExamList& exams) {
    if (requireDossier()) {
        openFound(exams, QStringLiteral("NUMERO=") + number(), QStringLiteral("Pas d'échographie  dans ce dossier"));
    }
}

void Form4::showLastObstetricExam() {
    openLast(obstetric_);
}

void Form4::openFound(const ExamList& exams, const QString& criterion, const QString& none) {
    state_.openExams();
    state_.queryExams(QStringLiteral("SELECT*FROM %1  WHERE NUMERO=%2 ORDER BY NUMECHO").arg(exams.table, number()));
    state_.Rs.findLast(criterion);
    if (state_.Rs.noMatch()) {
        around_.boxes.message(none);
        reopenPatients();
        return;
    }
    (exams_.*exams.display)();
}

void Form4::startExam(ExamFamily family) {
    if (requireDossier()) {
        exams_.openNew(family);
    }
}

void Form4::onCmdCreeDossierClick() {
    desk().show(Form2::kName.toString());
    desk().at<Form2>().begin();
}

void Form4::onCmdModifieClick() {
    if (NumLbl.text().isEmpty()) {
        return;
    }
    standOnShownPatient();
    desk().show(Form3::kName.toString());
    desk().at<Form3>().begin();
}

// The cursor may stand elsewhere, after a list of exams say. A patient who is gone leaves it on the first one.
void Form4::standOnShownPatient() {
    const Recordset& rs = state_.Rs;
    if (!rs.standsOn(QStringLiteral("FICHEPATIENT")) || rs.text(QStringLiteral("Numint")) != NumLbl.text()) {
        state_.queryPatients(kByNames);
        state_.Rs.findFirst(QStringLiteral("NUMINT=") + number());
    }
}

void Form4::onCmdSupprimeClick() {
    if (!dossierOpen()) {
        return;
    }
    const QString n = number();
    if (around_.boxes.ask(QStringLiteral("Voulez vous vraiment SUPPRIMER ce DOSSIER ?")) &&
        around_.boxes.ask(QStringLiteral("ATTENTION ce dossier patient a être supprimé. CONTINUER ?"),
                          ports::Icon::Critical)) {
        deleteDossier(state_, n);
        reopenPatients();
        clearDisplay();
    }
}

}  // namespace dossier
