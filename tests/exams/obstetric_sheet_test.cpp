// What the writing windows of both families do alike.

#include "exams/obstetric_sheet.h"

#include <QFile>

#include "exams/exam_windows.h"
#include "pictures/form19.h"

namespace exams {
namespace {

const QString kDateFormat = QStringLiteral("Veuillez saisir les dates selon le format JJ/MM/AA");
constexpr int kIndication = 7;

/// The button of a new exam, and where a window has its age.
template <class Writing>
struct Family;
template <>
struct Family<Form5> {
    static constexpr auto kNewExam = &dossier::Form4::Cmd1Ter;
    static QString age(const Form5& form) { return form.sheet.LblAgeGesta.text(); }
};
template <>
struct Family<Form8> {
    static constexpr auto kNewExam = &dossier::Form4::Cmd2Ter;
    static QString age(const Form8& form) { return form.LblAgeGesta.text(); }
};

template <class Writing>
class ObstetricWritings : public ExamWindows {
protected:
    Writing& open(const QString& surname = "DUPONT") {
        press(dossierOf(surname).*Family<Writing>::kNewExam);
        return desk().template at<Writing>();
    }
    ObstetricSheet& openSheet(const QString& surname = "DUPONT") { return open(surname).sheet; }
    QString age() { return Family<Writing>::age(desk().template at<Writing>()); }
};
using Writings = ::testing::Types<Form5, Form8>;
TYPED_TEST_SUITE(ObstetricWritings, Writings);

TYPED_TEST(ObstetricWritings, TakeTheLastRowOfTheDeviceAndItsDate) {
    this->store(14, "Ancien");
    this->store(14, "ORIVANNE");
    this->store(15, "01/02/2001");
    const ObstetricSheet& sheet = this->openSheet();
    EXPECT_EQ(sheet.LblMachine.text(), "ORIVANNE");
    EXPECT_EQ(sheet.LblDateCirc.text(), "01/02/2001");
}

TYPED_TEST(ObstetricWritings, NeedAnOpenDossier) {
    this->desk().show("Form4");
    this->press(this->desk().template at<dossier::Form4>().*Family<TypeParam>::kNewExam);
    EXPECT_EQ(this->world_.boxes.said, QStringList({"Veuillez ouvrir un dossier patient au préalable."}));
    EXPECT_EQ(this->desk().template peek<TypeParam>(), nullptr);
}

TYPED_TEST(ObstetricWritings, ALastPeriodGivesTheTheoreticalStartAndTheAge) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.fields(2), "01/03/2002");
    EXPECT_EQ(sheet.fields(3).text(), "15/03/2002");
    EXPECT_EQ(this->age(), "5");
}

TYPED_TEST(ObstetricWritings, WhicheverStartChangedLastDecidesTheAge) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.fields(3), "01/03/2002");
    EXPECT_EQ(this->age(), "7");
    this->write(sheet.fields(4), "04/03/2002");
    EXPECT_EQ(this->age(), "6,4");
    this->write(sheet.fields(4), "");
    EXPECT_EQ(this->age(), "");
}

TYPED_TEST(ObstetricWritings, NothingFiresWhileADateIsStillBeingTyped) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.fields(2), "01/03/");
    this->write(sheet.fields(2), "01/03/200");
    EXPECT_EQ(sheet.fields(3).text(), "");
    EXPECT_TRUE(this->world_.boxes.said.isEmpty());
}

TYPED_TEST(ObstetricWritings, ChangingTheExamDateLeavesTheAge) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.fields(3), "01/03/2002");
    this->write(sheet.examDate, "12/04/2002");
    EXPECT_EQ(this->age(), "7");
}

TYPED_TEST(ObstetricWritings, AnUnreadableExamDateEmptiesBothFieldsOfTheTheoreticalStart) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.examDate, "hier");
    this->write(sheet.fields(2), "01/03/2002");
    EXPECT_EQ(this->world_.boxes.said, QStringList({kDateFormat}));
    EXPECT_EQ(sheet.fields(2).text(), "");
    EXPECT_EQ(sheet.fields(3).text(), "");
    EXPECT_EQ(this->age(), "");
}

TYPED_TEST(ObstetricWritings, AnUnreadableExamDateEmptiesTheUltrasoundStartAlone) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.fields(3), "01/03/2002");
    this->write(sheet.examDate, "hier");
    this->write(sheet.fields(4), "01/03/2002");
    EXPECT_EQ(this->world_.boxes.said, QStringList({kDateFormat}));
    EXPECT_EQ(sheet.fields(4).text(), "");
    EXPECT_EQ(sheet.fields(3).text(), "01/03/2002");
    EXPECT_EQ(this->age(), "");
}

TYPED_TEST(ObstetricWritings, ALastPeriodAtTheEndOfTheCalendarIsRefusedAndStays) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.fields(2), "25/12/9999");
    EXPECT_EQ(this->world_.boxes.said, QStringList({kDateFormat}));
    EXPECT_EQ(sheet.fields(2).text(), "25/12/9999");
}

TYPED_TEST(ObstetricWritings, ComputeTheBodyMassIndex) {
    ObstetricSheet& sheet = this->openSheet();
    for (forms::TextBox* emptied : {&sheet.TxtPds, &sheet.TxtTaille}) {
        this->write(sheet.TxtPds, "60");
        this->write(sheet.TxtTaille, "170");
        EXPECT_EQ(sheet.fields(0).text(), "20,8");
        this->write(*emptied, "");
        EXPECT_EQ(sheet.fields(0).text(), "");
    }
}

TYPED_TEST(ObstetricWritings, AHeightOfZeroEndsInTheDefaultReport) {
    ObstetricSheet& sheet = this->openSheet();
    this->write(sheet.TxtPds, "60");
    this->write(sheet.TxtTaille, "0");
    EXPECT_EQ(this->world_.boxes.reported, QList<int>({11}));
}

TYPED_TEST(ObstetricWritings, WeightAndHeightTakeDigitsAlone) {
    ObstetricSheet& sheet = this->openSheet();
    for (forms::TextBox* box : {&sheet.TxtPds, &sheet.TxtTaille}) {
        for (const QChar c : QStringLiteral("1a,7.0")) {
            this->type(*box, c);
        }
        EXPECT_EQ(box->text(), "170");
    }
}

TYPED_TEST(ObstetricWritings, HandTheirNumberToTheCaptureOfPictures) {
    this->desk().add("Form19", [this] { return std::make_unique<pictures::Form19>(this->world_.around); });
    TypeParam& form = this->open();
    this->write(form.sheet.TxtNumEcho, "7");
    this->press(form.CmdPhotos);
    auto& window = this->desk().template at<pictures::Form19>();
    EXPECT_TRUE(window.shown());
    EXPECT_EQ(window.TxtNumEcho.text(), "7");
    EXPECT_EQ(window.TxtNom.text(), "DUPONT");
    // Opened again it takes the patient anew.
    window.TxtNom.setText("AUTRE");
    this->press(form.CmdPhotos);
    EXPECT_EQ(window.TxtNom.text(), "DUPONT");
}

TYPED_TEST(ObstetricWritings, AnOpeningThatFindsNoBaseShowsNothingOfTheLastExam) {
    TypeParam& form = this->open();
    this->write(form.sheet.fields(kIndication), "d'une autre");
    form.sheet.TxtNumEcho.setText("7");
    auto& dossier = this->dossierOf("MARTIN");
    ASSERT_TRUE(QFile::remove(fakes::pathOf(this->world_, store::FileKind::Echo)));
    this->press(dossier.*Family<TypeParam>::kNewExam);
    EXPECT_EQ(this->world_.boxes.reported.size(), 1);
    EXPECT_EQ(form.sheet.LblNom.text(), "MARTIN");
    EXPECT_EQ(form.sheet.LblPrenom.text(), "Anne");
    EXPECT_EQ(form.sheet.LblNumInt.text(), "3");
    EXPECT_EQ(form.sheet.fields(kIndication).text(), "");
    EXPECT_EQ(form.sheet.TxtNumEcho.text(), "");
}

}  // namespace
}  // namespace exams
