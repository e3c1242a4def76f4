#include "gyneco/gynaecology_exams.h"

#include "base/numbers.h"
#include "gyneco/form16.h"
#include "gyneco/form18.h"

namespace gyneco {

using store::Recordset;

void GynaecologyExams::openNew() {
    life_.desk().at<Form16>().openNew();
}

void GynaecologyExams::display() {
    // Fails where there is no record, before anything is shown.
    (void)life_.state().Rs.field(QStringLiteral("NUMECHO"));
    life_.desk().show(Form18::kName.toString());
    life_.desk().at<Form18>().display();
}

QString GynaecologyExams::numberInView() const {
    const auto* view = life_.desk().peek<Form18>();
    return base::queryNumber(view ? view->TxtNumEcho.text() : QString());
}

void GynaecologyExams::reopenDossier() {
    life_.openBase();
    life_.query(QStringLiteral("SELECT*FROM GYNECO WHERE NUMERO=%1 ORDER BY NUMECHO").arg(life_.dossierNumber()));
}

void GynaecologyExams::standOnExamInView() {
    reopenDossier();
    life_.state().Rs.findFirst(QStringLiteral("NUMECHO=") + numberInView());
}

QString GynaecologyExams::nextNumber() {
    return life_.nextNumber(QStringLiteral("GYNECO"));
}

void GynaecologyExams::showEnd(void (Recordset::*move)()) {
    reopenDossier();
    (life_.state().Rs.*move)();
    display();
}

void GynaecologyExams::showFirst() {
    showEnd(&Recordset::moveFirst);
}

void GynaecologyExams::showFinal() {
    showEnd(&Recordset::moveLast);
}

void GynaecologyExams::step(void (Recordset::*move)()) {
    standOnExamInView();
    (life_.state().Rs.*move)();
    display();
}

void GynaecologyExams::showPrevious() {
    step(&Recordset::stepBack);
}

void GynaecologyExams::showNext() {
    step(&Recordset::stepOn);
}

bool GynaecologyExams::deleteInView() {
    if (!life_.confirmDeletion(QStringLiteral("ATTENTION cette Echographie a être supprimée. CONTINUER ?"))) {
        return false;
    }
    life_.openBase();
    life_.query(QStringLiteral("SELECT * FROM GYNECO WHERE NUMERO =%1 AND NUMECHO=%2 ORDER BY NUMECHO")
                    .arg(life_.dossierNumber(), numberInView()));
    life_.state().Rs.remove();
    return true;
}

}  // namespace gyneco
