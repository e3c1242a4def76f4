// What the viewing windows of both families do alike.

#include "exams/obstetric_view.h"

#include "exams/exam_windows.h"

namespace exams {
namespace {

/// What the tests need to know of each window.
template <class View>
struct Family;
template <>
struct Family<Form6> {
    static constexpr const char* kKind = "1";
    static constexpr auto kPhotos = &Form6::Command3;
    static constexpr const char* kOtherStyle = R"("Faux","Vrai","Vrai","Faux","Faux","Vrai","Faux")";
};
template <>
struct Family<Form10> {
    static constexpr const char* kKind = "2";
    static constexpr auto kPhotos = &Form10::Command2;
    static constexpr const char* kOtherStyle = R"("Faux","Vrai","Faux","Vrai","Vrai","Faux","Faux")";
};

template <class View>
class ObstetricViews : public ExamWindows {
protected:
    void addOne(int patient, int number, const QString& date, const QString& fetuses = "1") {
        addExam(patient, number, date, {{"TYPECHO", Family<View>::kKind}, {"NBRE", fetuses}});
    }
    View& form() { return desk().template at<View>(); }
    /// Shows the last exam of a patient.
    View& viewLast(const QString& surname = "DUPONT") {
        press(dossierOf(surname).HlbCptDer);
        return form();
    }
    /// Shows the only exam there is.
    View& viewOne(const QString& fetuses = "1") {
        addOne(2, 4, "12/03/2002", fetuses);
        return viewLast();
    }
};
using Views = ::testing::Types<Form6, Form10>;
TYPED_TEST_SUITE(ObstetricViews, Views);

TYPED_TEST(ObstetricViews, TakeTheirMarksFromTheSettingsFile) {
    this->settingsFile(QByteArray(Family<TypeParam>::kOtherStyle) + "\r\n");
    const TypeParam& form = this->viewOne();
    EXPECT_FALSE(form.CptrD.checked());
    EXPECT_TRUE(form.CptrM.checked());
    EXPECT_FALSE(form.Intro.checked());
}

TYPED_TEST(ObstetricViews, StartDetailedWithIntroductionWhenThereIsNoFile) {
    const TypeParam& form = this->viewOne();
    EXPECT_TRUE(form.CptrD.checked());
    EXPECT_FALSE(form.CptrM.checked());
    EXPECT_TRUE(form.Intro.checked());
}

TYPED_TEST(ObstetricViews, TheTwoStylesExcludeEachOtherAndTheIntroductionFlips) {
    TypeParam& form = this->viewOne();
    this->press(form.CptrM);
    EXPECT_TRUE(form.CptrM.checked() && !form.CptrD.checked());
    this->press(form.CptrD);
    EXPECT_TRUE(form.CptrD.checked() && !form.CptrM.checked());
    this->press(form.Intro);
    EXPECT_FALSE(form.Intro.checked());
    this->press(form.Intro);
    EXPECT_TRUE(form.Intro.checked());
}

TYPED_TEST(ObstetricViews, AButtonBringsAFetusInViewAndSteppingIsOfferedWithTheFirstAlone) {
    TypeParam& form = this->viewOne("3");
    EXPECT_TRUE(form.FrameJ1.visible() && !form.FrameJ2.visible() && !form.FrameJ3.visible());
    this->press(form.CmdJ2);
    EXPECT_TRUE(!form.FrameJ1.visible() && form.FrameJ2.visible() && !form.FrameJ3.visible());
    EXPECT_EQ(form.Frame5.back(), 0xFFFFFFU);
    EXPECT_FALSE(form.Frame12.visible());
    this->press(form.CmdJ3);
    EXPECT_TRUE(!form.FrameJ1.visible() && !form.FrameJ2.visible() && form.FrameJ3.visible());
    EXPECT_EQ(form.Frame5.back(), 0xFFC0C0U);
    EXPECT_FALSE(form.Frame12.visible());
    this->press(form.CmdJ1);
    EXPECT_TRUE(form.FrameJ1.visible() && !form.FrameJ2.visible() && !form.FrameJ3.visible());
    EXPECT_EQ(form.Frame5.back(), 0xC0FFFFU);
    EXPECT_TRUE(form.Frame12.visible());
}

TYPED_TEST(ObstetricViews, ALoneFetusIsNeverLeftOutOfSight) {
    this->addOne(3, 1, "10/01/2002");
    this->press(this->viewOne("2").CmdJ2);
    const TypeParam& form = this->viewLast("MARTIN");
    EXPECT_TRUE(form.FrameJ1.visible() && !form.FrameJ2.visible());
    EXPECT_TRUE(form.Frame12.visible());
}

TYPED_TEST(ObstetricViews, NeverShowOnePatientsExamUnderAnothersName) {
    this->addOne(3, 1, "11/01/2002");
    this->viewOne();
    const TypeParam& form = this->viewLast("MARTIN");
    EXPECT_EQ(form.LblDatExam.text(), "11/01/2002");
    EXPECT_EQ(form.LblNom.text(), "MARTIN");
    EXPECT_EQ(form.LblPrenom.text(), "Anne");
    EXPECT_EQ(form.LblNumInt.text(), "3");
}

TYPED_TEST(ObstetricViews, ADeletionAsksTwice) {
    TypeParam& form = this->viewOne();
    for (const QList<bool>& answers : {QList<bool>{false}, QList<bool>{true, false}}) {
        this->world_.boxes.answers = answers;
        this->press(form.CmdSupprime);
        EXPECT_EQ(this->stored(2, "NUMECHO"), QStringList({"4"}));
        EXPECT_TRUE(form.shown());
    }
    EXPECT_EQ(this->world_.boxes.asked.first(), "Voulez vous vraiment SUPPRIMER cette Echographie ?");
    EXPECT_EQ(this->world_.boxes.asked.last(), "ATTENTION cette Echographie va être supprimée. CONTINUER ?");
}

TYPED_TEST(ObstetricViews, WithoutAnOpenDossierADeletionAsksNothing) {
    TypeParam& form = this->viewOne();
    this->desk().template at<dossier::Form4>().NomLbl.setText({});
    this->world_.boxes.answers = {true, true};
    this->press(form.CmdSupprime);
    EXPECT_TRUE(this->world_.boxes.asked.isEmpty());
    EXPECT_EQ(this->stored(2, "NUMECHO"), QStringList({"4"}));
    EXPECT_TRUE(form.shown());
}

TYPED_TEST(ObstetricViews, OpenANewExamOfEitherFamily) {
    TypeParam& form = this->viewOne();
    this->press(form.Hlb1T);
    EXPECT_EQ(this->desk().template at<Form5>().sheet.TxtNumEcho.text(), "5");
    this->press(form.Hlb2T);
    EXPECT_EQ(this->desk().template at<Form8>().sheet.TxtNumEcho.text(), "5");
    EXPECT_TRUE(form.shown());
}

TYPED_TEST(ObstetricViews, HandThePatientAndTheExamToTheAlbum) {
    using Album = typename TestFixture::PictureWindow;
    this->desk().add("Form20", [this] { return std::make_unique<Album>(this->desk(), "Form20"); });
    this->press(this->viewOne().*Family<TypeParam>::kPhotos);
    const auto& album = static_cast<Album&>(this->desk().at("Form20"));
    EXPECT_TRUE(album.shown());
    EXPECT_EQ(album.TxtRechNom.text(), "DUPONT");
    EXPECT_EQ(album.TxtRechDate.text(), "12/03/2002");
    EXPECT_EQ(album.TxtRechNumEcho.text(), "4");
}

TYPED_TEST(ObstetricViews, OpenTheHelpBesideTheProgram) {
    this->press(this->viewOne().Aide);
    EXPECT_EQ(this->world_.help.shown, QStringList({this->world_.folder.path() + "/VERANOX.HLP"}));
}

}  // namespace
}  // namespace exams
