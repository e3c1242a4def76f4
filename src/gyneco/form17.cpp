#include "gyneco/form17.h"

#include "base/errors.h"
#include "exams/exam_record.h"

namespace gyneco {
namespace {

const QString kFields = QStringLiteral("TxtGyneco");

}  // namespace

Form17::Form17(GynaecologyExams& exams)
    : Form(exams.life().desk(), kName.toString(), QStringLiteral("Correction Echo Gynéco")),
      sheet(*this, exams),
      exams_(exams) {
    CmdModifs.onClick = [this] { save(); };
    CmdQuitter.onClick = [this] { unload(); };
}

void Form17::load() {
    const exams::ExamLife& life = exams_.life();
    life.openBase();
    sheet.copyIdentity();
    const QString number = exams_.numberInView();
    life.query(QStringLiteral("SELECT*FROM GYNECO WHERE NUMERO=%1And NUMECHO=%2").arg(life.dossierNumber(), number));
    life.state().Rs.findFirst(QStringLiteral("NUMECHO=") + number);
    exams::readRecord(*this, kFields, kGynaecologyFields, life.state().Rs);
}

void Form17::unloading() {
    exams_.standOnExamInView();
}

void Form17::save() {
    const exams::ExamLife& life = exams_.life();
    sheet.panel.takeFreeEntries();
    store::Recordset exam;
    {
        const forms::BusyPointer busy(*this);
        exams_.standOnExamInView();
        exam = life.state().Rs;
        if (life.confirmCorrection()) {
            writeChanges();
            life.boxes().message(QStringLiteral("Compte rendu modifié"));
        }
    }
    hide();
    unload();
    // The exam just corrected, whatever its number is now.
    life.state().Rs = exam;
    exams_.display();
    exams_.standOnExamInView();
}

void Form17::writeChanges() {
    store::Recordset& record = exams_.life().state().Rs;
    // Another station may have deleted the exam; the cursor stands on another one then.
    if (record.noMatch()) {
        throw base::RuntimeError(base::ErrorNumber::RecordDeleted);
    }
    record.edit();
    exams::writeRecord(*this, kFields, kGynaecologyFields, record);
    record.update();
}

}  // namespace gyneco
