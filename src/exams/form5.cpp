#include "exams/form5.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "biometry/dating.h"
#include "exams/exam_record.h"
#include "exams/form6.h"

namespace exams {
namespace {

namespace fields = first_trimester;

}  // namespace

Form5::Form5(ObstetricExams& exams)
    : Form(exams.life().desk(), kName.toString(), QStringLiteral("Rédaction 1 Ter")),
      sheet(*this, exams),
      exams_(exams),
      dating_(sheet, sheet.LblAgeGesta, exams.life()) {
    sheet.FrameJ1.holds(TxtCa1);
    sheet.FrameJ2.holds(TxtCa2);
    sheet.FrameJ3.holds(TxtCa3);
    wireFields();
    wireButtons();
}

void Form5::wireFields() {
    field(fields::kEmbryos).onChange = [this] { onEmbryosChange(); };
    for (const int count : {fields::kSacs, fields::kEmbryos}) {
        field(count).onKey = [this, count](forms::KeyPress& key) { oneDigit(field(count), key); };
    }
    field(fields::kCrownRumpLength).onKey = digitsOnly;
}

void Form5::wireButtons() {
    for (int i = 0; i < FetusPanels::kMost; ++i) {
        sheet.buttons()[static_cast<std::size_t>(i)]->onClick = [this, i] { sheet.paintFetus(i); };
    }
    Command2.onClick = [this] { onDateFromLength(); };
    CmdPhotos.onClick = [this] { exams_.life().showCapture(sheet.TxtNumEcho.text()); };
    CmdEnregis.onClick = [this] { save(); };
    CmdQuitter.onClick = [this] {
        unload();
        exams_.setStepping(false);
    };
}

void Form5::unloading() {
    exams_.leaveWriting();
    exams_.hideDossierSteps();
}

void Form5::AFFCIVILITES() {
    sheet.copyIdentity();
}

void Form5::openNew() {
    sheet.Frame5.hide();
    // A window that stayed loaded holds the last exam written: were the base out of reach, it would stay on screen.
    AFFCIVILITES();
    clear();
    sheet.TxtNumEcho.setText({});
    show();
    exams_.life().openBase();
    sheet.readDevice();
    const QString number = exams_.nextNumber();
    // Emptying the number of embryos may have brought the panel back.
    sheet.Frame5.hide();
    sheet.TxtNumEcho.setText(number);
    field(sheet_fields::kOperator).setFocus();
}

void Form5::clear() {
    sheet.TxtDate.setText(base::shortDate(exams_.life().around().clock.today()));
    sheet.LblAgeGesta.setText({});
    sheet.clearFields();
}

void Form5::onEmbryosChange() {
    const QString text = field(fields::kEmbryos).text();
    if (base::isNumeric(text)) {
        embryos_ = base::toInt16(base::toNumber(text));
    } else {
        sheet.Frame5.hide();
    }
    if (embryos_ == 1) {
        sheet.Frame5.hide();
    } else if (embryos_ == 2 || embryos_ == FetusPanels::kMost) {
        sheet.offerFetuses(embryos_ == FetusPanels::kMost);
    } else if (embryos_ > FetusPanels::kMost) {
        // Emptying the field runs these steps again, with the number as it stands: the message comes twice.
        field(fields::kEmbryos).setText({});
        exams_.life().boxes().message(QStringLiteral("Désolé le logiciel ne traite pas plus de 3 foetus"));
    }
}

void Form5::onDateFromLength() {
    const auto start =
        biometry::startFromCrownRump(field(fields::kCrownRumpLength).text(), exams_.life().around().clock.today());
    start.orThrow();
    if (start.kind() == biometry::Outcome::Kind::Refuse) {
        exams_.life().boxes().message(start.text());
    } else if (start.writes() && start.text() == field(sheet_fields::kUltrasoundStart).text()) {
        dating_.ageFrom(sheet_fields::kUltrasoundStart);
    } else if (start.writes()) {
        field(sheet_fields::kUltrasoundStart).setText(start.text());
    }
}

void Form5::save() {
    sheet.panel.takeFreeEntries();
    if (field(fields::kEmbryos).text().isEmpty()) {
        exams_.life().boxes().message(QStringLiteral("Veuillez saisir le nombre d'embryons avant d'enregistrer."));
        return;
    }
    if (!exams_.life().confirmSaving()) {
        return;
    }
    {
        const forms::BusyPointer busy(*this);
        addRecord();
    }
    exams_.life().boxes().message(QStringLiteral("Enregistré"));
    desk().show(Form6::kName.toString());
    exams_.showLast();
    hide();
}

void Form5::addRecord() {
    const ExamLife& life = exams_.life();
    life.openBase();
    life.query(QStringLiteral("SELECT*FROM 1TER WHERE NUMERO=%1 ORDER BY NUMECHO").arg(life.dossierNumber()));
    if (!base::isNumeric(field(fields::kEmbryos).text())) {
        field(fields::kEmbryos).setText(QStringLiteral("0"));
    }
    store::Recordset& record = life.state().Rs;
    record.addNew();
    writeRecord(*this, QStringLiteral("Txt1Ter"), kFirstTrimesterFields, record);
    record.update();
}

}  // namespace exams
