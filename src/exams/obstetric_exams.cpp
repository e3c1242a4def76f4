#include "exams/obstetric_exams.h"

#include <QScopedValueRollback>

#include "base/numbers.h"
#include "exams/form10.h"
#include "exams/form5.h"
#include "exams/form6.h"
#include "exams/form8.h"
#include "exams/settings_file.h"

namespace exams {
namespace {

using store::Recordset;

/// Shows one viewing window on the exam under the cursor in the place of the other.
template <class Shown, class Hidden>
void bring(forms::Desk& desk) {
    desk.hide(Hidden::kName.toString());
    desk.show(Shown::kName.toString());
    desk.at<Shown>().display();
}

}  // namespace

bool isFirstTrimester(const Recordset& exam) {
    const QString kind = exam.text(QStringLiteral("TYPECHO"));
    return base::isNumeric(kind) && base::toNumber(kind) == 1;
}

void ObstetricExams::openNew(dossier::ExamFamily family) {
    if (family == dossier::ExamFamily::FirstTrimester) {
        life_.desk().at<Form5>().openNew();
    } else {
        life_.desk().at<Form8>().openNew();
    }
}

void ObstetricExams::display() {
    if (isFirstTrimester(life_.state().Rs)) {
        bring<Form6, Form10>(life_.desk());
    } else {
        bring<Form10, Form6>(life_.desk());
    }
}

void ObstetricExams::showLast() {
    life_.dossierWindow().showLastObstetricExam();
}

QString ObstetricExams::numberInView() const {
    const ObstetricView* first = life_.desk().peek<Form6>();
    const ObstetricView* later = life_.desk().peek<Form10>();
    const ObstetricView* view = first && (first->shown() || !later) ? first : later;
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

void ObstetricExams::step(void (Recordset::*move)()) {
    closeBiometry();
    (life_.state().Rs.*move)();
    display();
}

void ObstetricExams::showPrevious() {
    step(&Recordset::stepBack);
}

void ObstetricExams::showNext() {
    step(&Recordset::stepOn);
}

void ObstetricExams::setStepping(bool possible) {
    for (ObstetricView* view :
         std::initializer_list<ObstetricView*>{&life_.desk().at<Form6>(), &life_.desk().at<Form10>()}) {
        view->CmdRec.setVisible(possible);
        view->CmdAv.setVisible(possible);
    }
}

void ObstetricExams::leaveWriting() {
    closeBiometry();
    bringCursorBack();
}

void ObstetricExams::hideDossierSteps() {
    if (auto* window = life_.desk().peek<dossier::Form4>()) {
        window->Command3.hide();
        window->Command4.hide();
    }
}

void ObstetricExams::keepMarks() {
    if (!keepsMarks_) {
        return;
    }
    LoadedMarks marks;
    if (const auto* writing = life_.desk().peek<Form8>()) {
        marks.bourgeois = writing->Bourgeois.checked();
    }
    if (const auto* view = life_.desk().peek<Form10>()) {
        marks.laterDetailed = view->CptrD.checked();
        marks.laterIntroduction = view->Intro.checked();
    }
    if (const auto* view = life_.desk().peek<Form6>()) {
        marks.firstDetailed = view->CptrD.checked();
        marks.firstIntroduction = view->Intro.checked();
    }
    writeSettings(life_.around().programFolder, marks);
}

void ObstetricExams::withoutKeepingMarks(const std::function<void()>& close) {
    const QScopedValueRollback quiet(keepsMarks_, false);
    close();
}

void ObstetricExams::leaveViewing(std::initializer_list<QStringView> along) {
    keepMarks();
    const bool outer = !leaving_;
    {
        const QScopedValueRollback leaving(leaving_, true);
        for (const QStringView window : along) {
            life_.desk().unload(window.toString());
        }
    }
    if (outer) {
        life_.returnToDossier();
    }
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
