#include "exams/form7.h"

#include "base/numbers.h"
#include "exams/exam_record.h"
#include "exams/form6.h"

namespace exams {
namespace {

namespace fields = first_trimester;

const QString kFields = QStringLiteral("Txt1Ter");

}  // namespace

Form7::Form7(ObstetricExams& exams)
    : Form(exams.life().desk(), kName.toString(), QStringLiteral("Correction 1 Ter")),
      sheet(*this, exams),
      exams_(exams) {
    for (int i = 0; i < FetusPanels::kMost; ++i) {
        sheet.buttons()[static_cast<std::size_t>(i)]->onClick = [this, i] { sheet.showFetus(i); };
    }
    CmdModifs.onClick = [this] { save(); };
    CmdQuitter.onClick = [this] { unload(); };
}

void Form7::AFFCIVILITES() {
    sheet.copyIdentity();
    sheet.TxtNumEcho.setText(desk().at<Form6>().LblNumEcho.text());
}

void Form7::load() {
    exams_.life().openBase();
    sheet.readDevice();
    openExam();
    AFFCIVILITES();
    readRecord(*this, kFields, kFirstTrimesterFields, exams_.life().state().Rs);
    sheet.showFetus(0);
    showPanel();
}

void Form7::openExam() {
    dossier_ = exams_.life().dossierNumber();
    number_ = base::queryNumber(desk().at<Form6>().LblNumEcho.text());
    exams_.life().openBase();
    exams_.life().query(
        QStringLiteral("SELECT*FROM 1TER WHERE NUMERO=%1And NUMECHO=%2 ORDER BY NUMECHO").arg(dossier_, number_));
    exams_.life().state().Rs.findFirst(QStringLiteral("NUMECHO=") + number_);
}

void Form7::unloading() {
    exams_.bringCursorBack();
}

void Form7::showPanel() {
    const QString text = sheet.Txt1Ter(fields::kEmbryos).text();
    const double count = base::leadingNumber(text);
    if (count == 1) {
        sheet.Frame5.hide();
    } else if (count == 2 || count == 3) {
        sheet.offerFetuses(count == 3);
    }
}

void Form7::save() {
    sheet.panel.takeFreeEntries();
    store::Recordset exam;
    {
        const forms::BusyPointer busy(*this);
        openExam();
        exam = exams_.life().state().Rs;
        if (exams_.life().confirmCorrection()) {
            writeChanges();
            setPointer(forms::Pointer::Normal);
            exams_.life().boxes().message(QStringLiteral("Compte rendu modifié"));
        }
    }
    hide();
    unload();
    refillView(exam);
}

void Form7::writeChanges() {
    forms::TextBox& count = sheet.Txt1Ter(fields::kEmbryos);
    if (!base::isNumeric(count.text())) {
        count.setText(QStringLiteral("0"));
    }
    store::Recordset& record = exams_.life().state().Rs;
    record.edit();
    writeRecord(*this, kFields, kFirstTrimesterFields, record);
    record.update();
}

// The viewing window shows the record just corrected, whatever its number is now; the cursor then stands on it among
// the exams of the dossier.
void Form7::refillView(const store::Recordset& exam) {
    exams_.life().state().Rs = exam;
    exams_.life().state().Rs.findFirst(QStringLiteral("NUMECHO=") + number_);
    desk().at<Form6>().refillAfterCorrection();
    exams_.bringCursorBack();
    desk().show(Form6::kName.toString());
}

}  // namespace exams
