#include "exams/obstetric_exams.h"

#include "base/numbers.h"
#include "exams/form5.h"
#include "exams/form6.h"
#include "exams/settings_file.h"

namespace exams {
namespace {

using store::Recordset;

// The later family's viewing window, which steps and counts as the first one does.
const QString kLaterView = QStringLiteral("Form10");

}  // namespace

bool isFirstTrimester(const Recordset& exam) {
    const QString kind = exam.text(QStringLiteral("TYPECHO"));
    return base::isNumeric(kind) && base::toNumber(kind) == 1;
}

void ObstetricExams::openNew(dossier::ExamFamily family) {
    if (family == dossier::ExamFamily::FirstTrimester) {
        life_.desk().at<Form5>().openNew();
    } else {
        life_.desk().show(QStringLiteral("Form8"));
    }
}

void ObstetricExams::display() {
    forms::Desk& desk = life_.desk();
    if (!isFirstTrimester(life_.state().Rs)) {
        desk.hide(Form6::kName.toString());
        desk.show(kLaterView);
        return;
    }
    desk.hide(kLaterView);
    desk.show(Form6::kName.toString());
    desk.at<Form6>().display();
}

void ObstetricExams::showLast() {
    life_.dossierWindow().showLastObstetricExam();
}

QString ObstetricExams::numberInView() const {
    for (const QString& name : {Form6::kName.toString(), kLaterView}) {
        const forms::Form* view = life_.desk().peek(name);
        if (view && view->shown()) {
            return base::queryNumber(view->find(u"LblNumEcho")->text());
        }
    }
    const auto* view = life_.desk().peek<Form6>();
    return base::queryNumber(view ? view->LblNumEcho.text() : QString());
}

void ObstetricExams::reopenDossier() {
    life_.openBase();
    life_.query(QStringLiteral("SELECT*FROM 1TER  WHERE NUMERO=%1 ORDER BY NUMECHO").arg(life_.dossierNumber()));
}

void ObstetricExams::bringCursorBack() {
    reopenDossier();
    life_.state().Rs.findFirst(QStringLiteral("NUMECHO=") + numberInView());
}

QString ObstetricExams::nextNumber() {
    return life_.nextNumber(QStringLiteral("1TER"));
}

void ObstetricExams::closeBiometry() {
    life_.desk().unload(QStringLiteral("Form12"));
    life_.desk().unload(QStringLiteral("Form13"));
}

void ObstetricExams::showEnd(void (Recordset::*move)()) {
    closeBiometry();
    reopenDossier();
    (life_.state().Rs.*move)();
    display();
    setStepping(true);
}

void ObstetricExams::showFirst() {
    showEnd(&Recordset::moveFirst);
}

void ObstetricExams::showFinal() {
    showEnd(&Recordset::moveLast);
}

void ObstetricExams::step(void (Recordset::*move)(), bool (Recordset::*fellOff)() const, void (Recordset::*back)()) {
    closeBiometry();
    Recordset& exams = life_.state().Rs;
    (exams.*move)();
    if ((exams.*fellOff)()) {
        (exams.*back)();
    }
    display();
}

void ObstetricExams::showPrevious() {
    step(&Recordset::movePrevious, &Recordset::bof, &Recordset::moveFirst);
}

void ObstetricExams::showNext() {
    step(&Recordset::moveNext, &Recordset::eof, &Recordset::moveLast);
}

void ObstetricExams::setStepping(bool possible) {
    for (const QString& name : {Form6::kName.toString(), kLaterView}) {
        if (life_.desk().known().contains(name)) {
            forms::Form& view = life_.desk().at(name);
            view.find(u"CmdRec")->setVisible(possible);
            view.find(u"CmdAv")->setVisible(possible);
        }
    }
}

void ObstetricExams::leaveWriting() {
    closeBiometry();
    bringCursorBack();
    if (auto* window = life_.desk().peek<dossier::Form4>()) {
        window->Command3.hide();
        window->Command4.hide();
    }
}

void ObstetricExams::keepReportStyle() {
    LoadedMarks marks;
    if (const auto* view = life_.desk().peek<Form6>()) {
        marks.firstDetailed = view->CptrD.checked();
        marks.firstIntroduction = view->Intro.checked();
    }
    writeSettings(life_.around().programFolder, marks);
}

bool ObstetricExams::deleteInView(const QString& number) {
    if (!life_.dossierOpen() ||
        !life_.confirmDeletion(QStringLiteral("ATTENTION cette Echographie va être supprimée. CONTINUER ?"))) {
        return false;
    }
    life_.openBase();
    life_.query(
        QStringLiteral("SELECT * FROM 1TER WHERE NUMERO =%1 AND NUMECHO=%2").arg(life_.dossierNumber(), number));
    life_.state().Rs.remove();
    return true;
}

}  // namespace exams
