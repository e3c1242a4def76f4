#include "biometry/form13.h"

#include "biometry/biometry_windows.h"
#include "biometry/chart_painter.h"

namespace biometry {
namespace {

class Curves : public BiometryWindows {
protected:
    struct Family {
        forms::Button& button;
        forms::Image& chart;
        const char* caption;
        const char* title;
        const char* heading;
        const char* source;
        int echoTop;
    };
    static std::vector<Family> families(Form13& form) {
        return {
            {form.CommandBip, form.BipCourbe, "&Bip", "Diamètre Bipariétal", "Diamètre Bipariétal", "Courbe CFEF",
             4000},
            {form.CommandCc, form.CcCourbe, "&Circonf. Céphal.", "Circonférence céphalique", "Circonférence Céphalique",
             "Courbe CFEF", 4000},
            {form.CommandDat, form.DatCourbe, "&D.A.T.", "Diamètre Abdominal Transverse", "Abdominal Transverse",
             "Courbe CFEF", 4100},
            {form.CommandCa, form.CaCourbe, "Circonf. &Abdo.", "Circonférence Abdominale", "Circonférence Abdominale",
             "Courbe CFEF", 4000},
            {form.CommandFem, form.FemCourbe, "&Fémur", "Fémur", "Fémur", "Courbe CFEF", 4000},
            {form.CommandLp, form.LpCourbe, "&Pied", "Pied", "Pied", "", 4000},
            {form.CommandCerv, form.CervCourbe, "C&ervelet", "Cervelet", "Cervelet", "Courbe CFEF", 4100},
        };
    }
    static int visibleCharts(Form13& form) {
        const auto all = families(form);
        return static_cast<int>(
            std::count_if(all.begin(), all.end(), [](const Family& f) { return f.chart.visible(); }));
    }
};

TEST_F(Curves, OpenWithoutAChartOnTheWeekOfTheCalculator) {
    open();
    Form13& form = curves();
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(visibleCharts(form), 0);
    EXPECT_EQ(form.Sem_Entier.text(), "22");
    EXPECT_FALSE(form.Sem_Entier.visible());
    EXPECT_FALSE(form.Frame2.visible());
    EXPECT_EQ(form.Frame2.text(), "Sem. A.");
    EXPECT_FALSE(form.Centile.visible());
    EXPECT_FALSE(form.Croix.visible());
    EXPECT_TRUE(form.Label3.visible());
    EXPECT_EQ(form.Label3.text(),
              "Les courbes biométriques foetales sont pour la plupart celles données par Le Collège Français "
              "d'Echographie Foetale. Elles representent le 3 ème, 10 ème, 50 ème, 90 ème et 97 ème percentile.");
    // 1945 + 9 x 8175/29
    EXPECT_FLOAT_EQ(form.Abscisse.spot()->left, 4482.0689F);
    EXPECT_EQ(form.Abscisse.text(), "22 Sem. A.");
}

TEST_F(Curves, OpenAnewEachTime) {
    Form12& biometry = open();
    press(curves().CommandBip);
    write(biometry.SAF3, "30");
    Form13& form = curves();
    EXPECT_EQ(visibleCharts(form), 0);
    EXPECT_EQ(form.Sem_Entier.text(), "30");
}

TEST_F(Curves, OfEachButtonShowTheirOwnChartAndCaptions) {
    open();
    Form13& form = curves();
    for (const Family& family : families(form)) {
        EXPECT_EQ(family.button.text(), family.caption);
        press(family.button);
        EXPECT_EQ(visibleCharts(form), 1) << family.title;
        EXPECT_TRUE(family.chart.visible()) << family.title;
        EXPECT_EQ(form.title(), family.title);
        EXPECT_EQ(form.Label1.text(), family.heading);
        EXPECT_EQ(form.Label2.text(), family.source);
        EXPECT_FALSE(form.Label3.visible());
        EXPECT_TRUE(form.Ordonnee.visible());
    }
}

TEST_F(Curves, ShowWhereTheirMeasureIsTaken) {
    open();
    Form13& form = curves();
    QStringList drawings;
    for (const Family& family : families(form)) {
        press(family.button);
        drawings << form.Echo.drawing();
        EXPECT_EQ(form.Echo.place()->left, 6000);
        EXPECT_EQ(form.Echo.place()->top, family.echoTop) << family.title;
    }
    EXPECT_EQ(drawings, (QStringList{"bip", "cc", "dat", "ca", "femur", "pied", "cervelet"}));
}

TEST_F(Curves, PlaceTheCrossByTheirGeometry) {
    open();  // 22 weeks; Bip 53, Cc 196, Dat 52, Ca 173, Fem 38, Pied 38, Cer 23
    Form13& form = curves();
    struct Expected {
        double left, top;
        const char* value;
    };
    const std::vector<Expected> expected{
        {1855 + 9 * 6880.0 / 29, 6195 - 53 * 4990.0 / 120, "53"},
        {1100 + 9 * 6880.0 / 26, 6090 - 196 * 4990.0 / 400, "196"},
        {1855 + 9 * 6870.0 / 29, 6195 - 52 * 4990.0 / 140, "52"},
        {1380 + 9 * 6860.0 / 27, 6090 - 173 * 4990.0 / 400, "173"},
        {1820 + 9 * 6940.0 / 29, 6090 - 38 * 4990.0 / 90, "38"},
        {1855 + 9 * 6880.0 / 29, 6095 - 38 * 4995.0 / 100, "38"},
        {1255 + 9 * 6900.0 / 23, 6090 - 23 * 4990.0 / 60, "23"},
    };
    const auto all = families(form);
    for (std::size_t i = 0; i < all.size(); ++i) {
        press(all[i].button);
        EXPECT_TRUE(form.Croix.visible());
        EXPECT_EQ(form.Croix.spot()->left, static_cast<float>(expected[i].left)) << all[i].title;
        EXPECT_EQ(form.Croix.spot()->top, static_cast<float>(expected[i].top)) << all[i].title;
        EXPECT_EQ(form.Ordonnee.spot()->top, form.Croix.spot()->top);
        EXPECT_EQ(form.Ordonnee.text(), expected[i].value);
        EXPECT_EQ(form.Abscisse.spot()->left, form.Croix.spot()->left);
        EXPECT_EQ(form.Abscisse.text(), "22 Sem. A.");
    }
}

TEST_F(Curves, TellTheWordThatTheCalculatorShowsNow) {
    Form12& biometry = open();
    Form13& form = curves();
    press(form.CommandBip);
    EXPECT_TRUE(form.Centile.visible());
    EXPECT_EQ(form.Centile.text(), "50 ème Percentile");
    write(biometry.Bip, "47");
    EXPECT_EQ(form.Centile.text(), "50 ème Percentile");
    press(form.CommandBip);
    EXPECT_EQ(form.Centile.text(), "< 3 ème Percentile");
    EXPECT_EQ(form.Ordonnee.text(), "47");
}

TEST_F(Curves, WithoutTheMeasureHideCrossAndWord) {
    Form12& biometry = open();
    Form13& form = curves();
    press(form.CommandBip);
    write(biometry.Ca, "");
    press(form.CommandCa);
    EXPECT_TRUE(form.CaCourbe.visible());
    EXPECT_FALSE(form.Croix.visible());
    EXPECT_FALSE(form.Ordonnee.visible());
    EXPECT_FALSE(form.Centile.visible());
    EXPECT_EQ(form.Label1.text(), "Circonférence Abdominale");
}

TEST_F(Curves, WithoutAWeekShowTheChartWithoutACrossAndStillTheWord) {
    exam().start.clear();
    open();
    Form13& form = curves();
    press(form.CommandBip);
    EXPECT_TRUE(form.BipCourbe.visible());
    EXPECT_FALSE(form.Croix.visible());
    EXPECT_FALSE(form.Ordonnee.visible());
    EXPECT_TRUE(form.Centile.visible());
    EXPECT_FALSE(form.Abscisse.spot().has_value());
}

TEST_F(Curves, PlaceTheCrossAboveTheirSpanToo) {
    Form12& biometry = open();
    Form13& form = curves();
    write(biometry.Bip, "130");
    press(form.CommandBip);
    EXPECT_TRUE(form.Croix.visible());
    // 6195 - 130 x 4990/120
    EXPECT_FLOAT_EQ(form.Croix.spot()->top, 789.16669F);
}

TEST_F(Curves, ShowTheCrossAgainForAMeasureAfterOneWithout) {
    Form12& biometry = open();
    Form13& form = curves();
    write(biometry.Ca, "grande");
    press(form.CommandCa);
    EXPECT_FALSE(form.Croix.visible());
    EXPECT_FALSE(form.Ordonnee.visible());
    press(form.CommandFem);
    EXPECT_TRUE(form.Croix.visible());
    EXPECT_TRUE(form.Ordonnee.visible());
    EXPECT_TRUE(form.Centile.visible());
}

TEST_F(Curves, OfTheTibiaAreNotThere) {
    open();
    Form13& form = curves();
    EXPECT_EQ(form.CommandTib.text(), "Tibia");
    press(form.CommandTib);
    EXPECT_EQ(visibleCharts(form), 0);
    EXPECT_TRUE(form.Label3.visible());
}

TEST_F(Curves, CloseByTheirButton) {
    open();
    Form13& form = curves();
    EXPECT_EQ(form.Command1.text(), "&Quitter");
    press(form.Command1);
    EXPECT_EQ(desk().peek("Form13"), nullptr);
    EXPECT_TRUE(desk().at<Form12>().shown());
}

TEST_F(Curves, TakeDigitsFromTheKeyboardOnlyAndMoveTheWeekWithThem) {
    open();
    Form13& form = curves();
    form.Sem_Entier.setText("");
    for (const QChar c : QStringLiteral("3,a1")) {
        type(form.Sem_Entier, c);
    }
    EXPECT_EQ(form.Sem_Entier.text(), "31");
    // 1945 + 18 x 8175/29
    EXPECT_FLOAT_EQ(form.Abscisse.spot()->left, 7019.1379F);
    EXPECT_EQ(form.Abscisse.text(), "31 Sem. A.");
}

}  // namespace
}  // namespace biometry
