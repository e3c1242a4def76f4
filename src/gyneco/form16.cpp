#include "gyneco/form16.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "exams/exam_record.h"

namespace gyneco {

Form16::Form16(GynaecologyExams& exams)
    : Form(exams.life().desk(), kName.toString(), QStringLiteral("Rédaction Echo Gynéco")),
      sheet(*this, exams),
      exams_(exams) {
    CmdEnregis.onClick = [this] { save(); };
    CmdPhotos.onClick = [this] { exams_.life().showCapture(sheet.TxtNumEcho.text()); };
    CmdQuitter.onClick = [this] { unload(); };
}

void Form16::openNew() {
    // A window that stayed loaded holds the last exam written: were the base out of reach, it would stay on screen.
    sheet.copyIdentity();
    clear();
    sheet.TxtNumEcho.setText({});
    show();
    exams_.life().openBase();
    sheet.readDevice();
    const QString number = exams_.nextNumber();
    sheet.TxtNumEcho.setText(number);
    sheet.TxtDate.setText(base::shortDate(exams_.life().around().clock.today()));
    sheet.showPelvic();
    sheet.TxtGyneco(kOperator).setFocus();
}

void Form16::clear() {
    for (int i = kOperator; i <= kLastGynaecologyField; ++i) {
        sheet.TxtGyneco(i).setText({});
    }
}

void Form16::save() {
    sheet.panel.takeFreeEntries();
    if (!exams_.life().confirmSaving()) {
        return;
    }
    {
        const forms::BusyPointer busy(*this);
        addRecord();
    }
    exams_.life().boxes().message(QStringLiteral("Enregistré"));
    showSaved();
    hide();
}

void Form16::addRecord() {
    const exams::ExamLife& life = exams_.life();
    life.openBase();
    life.query(QStringLiteral("SELECT*FROM GYNECO WHERE NUMERO=%1 ORDER BY NUMECHO").arg(life.dossierNumber()));
    store::Recordset& record = life.state().Rs;
    record.addNew();
    exams::writeRecord(*this, QStringLiteral("TxtGyneco"), kGynaecologyFields, record);
    record.update();
}

void Form16::showSaved() {
    const exams::ExamLife& life = exams_.life();
    const QString number = base::queryNumber(sheet.TxtNumEcho.text());
    life.query(QStringLiteral("SELECT*FROM GYNECO WHERE NUMERO=%1 AND NUMECHO=%2 ORDER BY NUMECHO")
                   .arg(life.dossierNumber(), number));
    life.state().Rs.findLast(QStringLiteral("NUMECHO=") + number);
    exams_.display();
}

}  // namespace gyneco
