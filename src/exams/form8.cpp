#include "exams/form8.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "exams/exam_record.h"
#include "exams/form10.h"
#include "exams/settings_file.h"

namespace exams {
namespace {

// The published morphology list has a rubric for each of its zones.
constexpr int kFirstZone = 26;

const QString kOwnMorphology = QStringLiteral("SELECT*FROM OPTIONS WHERE NUMEROS = 17 ORDER BY INDEX");
const QString kPublishedMorphology = QStringLiteral(
    "SELECT*FROM OPTIONS WHERE NUMEROS = 26OR NUMEROS = 27 OR NUMEROS = 28 OR NUMEROS = 29 ORDER BY NUMEROS, INDEX");

}  // namespace

Form8::Form8(ObstetricExams& exams)
    : Form(exams.life().desk(), kName.toString(), QStringLiteral("Echographie du 2ème et 3ème Trimestre")),
      sheet(*this, exams, kLaterFields),
      exams_(exams),
      dating_(sheet, LblAgeGesta, exams.life()) {
    Morphologie.holds(Perso, Bourgeois);
    wireFields();
    wireZones();
    wireButtons();
}

void Form8::wireFields() {
    sheet.TxtNbrE.onChange = [this] { onFetusesChange(); };
    for (int i = 0; i < FetusPanels::kMost; ++i) {
        const int index = LaterSheet::morphologyIndex(i);
        sheet.fields(index).onFocus = [this, index] { offerMorphology(index); };
        options()[static_cast<std::size_t>(i)]->onClick = [this, i] { onOption(i + 1); };
        sheet.buttons()[static_cast<std::size_t>(i)]->onClick = [this, i] { sheet.paintFetus(i); };
    }
}

void Form8::wireZones() {
    int rubric = kFirstZone;
    for (forms::Button* zone : {&CmdZoneA, &CmdZoneB, &CmdZoneC, &CmdZoneD}) {
        zone->onClick = [this, rubric] { insertZone(rubric); };
        ++rubric;
    }
    choosePublished(false);
    Perso.onClick = [this] { choosePublished(false); };
    Bourgeois.onClick = [this] { choosePublished(true); };
}

void Form8::wireButtons() {
    CmdPhotos.onClick = [this] { exams_.life().showCapture(sheet.TxtNumEcho.text()); };
    CmdEnregis.onClick = [this] { save(); };
    CmdQuitter.onClick = [this] {
        unload();
        exams_.setStepping(false);
    };
}

void Form8::load() {
    if (const auto marks = readSettings(exams_.life().around().programFolder)) {
        choosePublished(marks->publishedMorphology);
        Perso.setChecked(marks->ownMorphology);
    }
}

void Form8::unloading() {
    exams_.keepMarks();
    exams_.hideDossierSteps();
    exams_.leaveWriting();
}

void Form8::openNew() {
    sheet.Frame5.hide();
    // A window that stayed loaded holds the last exam written: were the base out of reach, it would stay on screen.
    sheet.copyIdentity();
    clear();
    sheet.TxtNumEcho.setText({});
    show();
    exams_.life().openBase();
    sheet.readDevice();
    sheet.fields(sheet_fields::kOperator).setFocus();
    const QString number = exams_.nextNumber();
    const bool first = exams_.life().state().Rs.noMatch();
    sheet.TxtNumEcho.setText(number);
    if (!first) {
        lblNumEcho.setText(number);
    }
    sheet.examDate.setText(base::shortDate(exams_.life().around().clock.today()));
}

void Form8::clear() {
    sheet.clearFields();
}

void Form8::choosePublished(bool published) {
    Perso.setChecked(!published);
    Bourgeois.setChecked(published);
    for (forms::Button* zone : {&CmdZoneA, &CmdZoneB, &CmdZoneC, &CmdZoneD}) {
        zone->setVisible(published);
        zone->setEnabled(published);
    }
}

void Form8::offerMorphology(int index) {
    sheet.panel.enter(index);
    if (Bourgeois.checked()) {
        sheet.panel.offerPhrases(kPublishedMorphology);
    } else if (Perso.checked()) {
        sheet.panel.offerPhrases(kOwnMorphology);
    }
}

// The rows are read once: the first visible fetus takes them all, a later one gets at most the line break.
void Form8::insertZone(int rubric) {
    exams_.life().query(QStringLiteral("SELECT*FROM OPTIONS WHERE NUMEROS = %1 ORDER BY INDEX").arg(rubric));
    for (int i = 0; i < FetusPanels::kMost; ++i) {
        if (sheet.frames()[static_cast<std::size_t>(i)]->visible()) {
            appendZone(LaterSheet::morphologyIndex(i));
        }
    }
}

void Form8::appendZone(int index) {
    QString text = sheet.fields(index).text();
    if (!text.isEmpty()) {
        text += QStringLiteral("\r\n");
    }
    for (store::Recordset& rows = exams_.life().state().Rs; !rows.eof(); rows.moveNext()) {
        text += u' ' + rows.text(QStringLiteral("Texte"));
    }
    sheet.fields(index).setText(text);
    sheet.panel.goTo(index);
}

// The steps of the number run also where it stays: an opening hides the panel and leaves the number.
void Form8::onOption(int count) {
    const QString text = QString::number(count);
    if (!options()[static_cast<std::size_t>(count - 1)]->checked()) {
        return;
    }
    if (sheet.TxtNbrE.text() == text) {
        onFetusesChange();
    } else {
        sheet.TxtNbrE.setText(text);
    }
}

void Form8::onFetusesChange() {
    const QString text = sheet.TxtNbrE.text();
    if (!base::isNumeric(text)) {
        return;
    }
    const std::int16_t count = base::toInt16(base::toNumber(text));
    if (count > FetusPanels::kMost) {
        exams_.life().boxes().message(kTooManyFetuses.toString());
        sheet.TxtNbrE.setText({});
    } else if (count >= 1) {
        sheet.Frame5.setVisible(count > 1);
        if (count > 1) {
            sheet.offerFetuses(count == FetusPanels::kMost);
        }
        sheet.showFirstFetuses(count);
    }
}

void Form8::save() {
    exams_.keepMarks();
    sheet.panel.takeFreeEntries();
    if (!exams_.life().confirmSaving()) {
        return;
    }
    addRecord();
    exams_.life().boxes().message(QStringLiteral("Enregistré"));
    desk().show(Form10::kName.toString());
    exams_.showLast();
}

void Form8::addRecord() {
    const ExamLife& life = exams_.life();
    life.openBase();
    life.query(QStringLiteral("SELECT*FROM 1TER WHERE NUMERO=%1 ORDER BY NUMECHO").arg(life.dossierNumber()));
    for (int i = 0; i < FetusPanels::kMost; ++i) {
        if (options()[static_cast<std::size_t>(i)]->checked()) {
            sheet.TxtNbrE.setText(QString::number(i + 1));
        }
    }
    store::Recordset& record = life.state().Rs;
    record.addNew();
    writeRecord(*this, QStringLiteral("Txt2T"), kLaterFields, record);
    record.update();
}

}  // namespace exams
