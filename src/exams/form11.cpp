#include "exams/form11.h"

#include <string_view>

#include "base/errors.h"
#include "base/numbers.h"
#include "biometry/dating.h"
#include "exams/exam_record.h"
#include "exams/form10.h"

namespace exams {
namespace {

using namespace later;

const QString kFields = QStringLiteral("Txt2T");

// A measure is retyped here, not picked: all of them offer the same short run.
constexpr auto kRetyped = numbers(0, 3, 1);
constexpr auto kCorrectedArtery = phrases(10);

constexpr bool savedIn(const responses::ExamField& row, std::u16string_view field) {
    return std::u16string_view(row.field.utf16(), static_cast<std::size_t>(row.field.size())) == field;
}

constexpr responses::Offer offerOf(const responses::ExamField& row) {
    if (savedIn(row, u"UTD") || savedIn(row, u"UTG")) {
        return kCorrectedArtery;
    }
    for (std::size_t fetus = 0; fetus < kFirstOfFetus.size(); ++fetus) {
        const int place = row.index - kFirstOfFetus[fetus];
        if (place == kPresentationPlace && fetus > 0) {
            return nothing();
        }
        if (place >= kHeartRatePlace && place <= kNasalBonePlace) {
            return kRetyped;
        }
        if (place == kMorphologyPlace) {
            return phrases(17);
        }
    }
    return row.offer;
}

/// The fields of the writing window with what they offer here.
constexpr auto kCorrectedFields = [] {
    auto rows = kLaterFields;
    for (responses::ExamField& row : rows) {
        row.offer = offerOf(row);
        if (savedIn(row, u"AGESTA")) {
            row.control = u"txtAgeGesta";
        }
    }
    return rows;
}();

}  // namespace

Form11::Form11(ObstetricExams& exams)
    : Form(exams.life().desk(), kName.toString(),
           QStringLiteral("Echographie du 2ème et 3ème Trimestre - Mode Correction")),
      sheet(*this, exams, kCorrectedFields),
      exams_(exams) {
    for (int i = 0; i < FetusPanels::kMost; ++i) {
        sheet.buttons()[static_cast<std::size_t>(i)]->onClick = [this, i] { sheet.showFetus(i); };
    }
    sheet.TxtNbrE.onChange = [this] { onFetusesChange(); };
    CmdModifs.onClick = [this] { save(); };
    CmdQuitter.onClick = [this] { unload(); };
}

void Form11::load() {
    const ExamLife& life = exams_.life();
    life.openBase();
    sheet.readDevice();
    dossier_ = life.dossierNumber();
    number_ = exams_.numberInView();
    sheet.copyIdentity();
    life.query(
        QStringLiteral("SELECT*FROM 1TER WHERE NUMERO=%1And NUMECHO=%2 ORDER BY NUMECHO").arg(dossier_, number_));
    life.state().Rs.findFirst(QStringLiteral("NUMECHO=") + number_);
    readRecord(*this, kFields, kCorrectedFields, life.state().Rs);
    roundLoadedAge();
    for (int i = sheet.fields.first(); i <= sheet.fields.last(); ++i) {
        sheet.fields(i).onChange = [this] { roundAge(); };
    }
}

void Form11::unloading() {
    exams_.bringCursorBack();
}

// A button stays for each fetus, whatever their number; a lone fetus leaves the panel as it is.
void Form11::onFetusesChange() {
    const QString text = sheet.TxtNbrE.text();
    if (!base::isNumeric(text)) {
        sheet.Frame5.hide();
        return;
    }
    const std::int16_t count = base::toInt16(base::toNumber(text));
    if (count > 1) {
        sheet.Frame5.show();
    }
    if (count > FetusPanels::kMost) {
        exams_.life().boxes().message(kTooManyFetuses.toString());
        sheet.TxtNbrE.setText({});
    }
}

void Form11::roundAge() {
    txtAgeGesta.setText(biometry::roundedAge(sheet.fields(sheet_fields::kUltrasoundStart).text(), sheet.examDate.text(),
                                             exams_.life().around().clock.today())
                            .orThrow()
                            .text());
}

// An exam whose date can't be read has to come up all the same, or nobody could correct it.
void Form11::roundLoadedAge() {
    txtAgeGesta.setText({});
    try {
        roundAge();
    } catch (const base::RuntimeError& error) {
        exams_.life().boxes().report(error);
    }
}

void Form11::save() {
    sheet.panel.takeFreeEntries();
    store::Recordset exam;
    {
        const forms::BusyPointer busy(*this);
        exams_.reopenDossier();
        exam = exams_.life().state().Rs;
        exam.findFirst(QStringLiteral("NUMECHO=") + number_);
        writeChanges(exam);
        if (exams_.life().confirmCorrection()) {
            exam.update();
            exams_.life().boxes().message(QStringLiteral("Compte rendu modifié"));
        } else {
            // The find drops what was being edited.
            exam.findFirst(QStringLiteral("NUMECHO=") + number_);
        }
    }
    hide();
    unload();
    refillView(exam);
}

void Form11::writeChanges(store::Recordset& exam) {
    // Another station may have deleted the exam; the cursor stands on another one then.
    if (exam.noMatch()) {
        throw base::RuntimeError(base::ErrorNumber::RecordDeleted);
    }
    exam.edit();
    writeRecord(*this, kFields, kCorrectedFields, exam);
}

// The viewing window shows the record just corrected, whatever its number is now; the cursor then stands on it among
// the exams of the dossier.
void Form11::refillView(const store::Recordset& exam) {
    exams_.life().state().Rs = exam;
    desk().at<Form10>().refillAfterCorrection();
    exams_.bringCursorBack();
    desk().show(Form10::kName.toString());
}

}  // namespace exams
