#include "biometry/form12.h"

#include "biometry/biometry_windows.h"

namespace biometry {
namespace {

using Texts = std::vector<std::string>;

Texts measuresOf(const Form12& form) {
    Texts texts;
    for (const auto& row : form.rows()) {
        texts.push_back(row.field.text().toStdString());
    }
    return texts;
}

Texts mediansOf(const Form12& form) {
    Texts texts;
    for (const Measure measure : kClassified) {
        texts.push_back(form.row(measure).median->text().toStdString());
    }
    return texts;
}

Texts wordsOf(const Form12& form) {
    Texts texts;
    for (const auto& row : form.rows()) {
        texts.push_back(row.label.text().toStdString());
    }
    return texts;
}

// Bip, Cc, Dat, Ca, Fem, Pied, Hum, Cer, Orb
const Texts kFirst{"53", "196", "52", "173", "38", "38", "35", "23", "24"};
const Texts kSecond{"47", "217", "59", "160", "33", "37", "40", "24", "22"};
const Texts kEmpty(9);
const Texts kNoMedians(8);

class Loading : public BiometryWindows {};

TEST_F(Loading, ShowsWhoseBiometryItIs) {
    const Form12& form = open();
    EXPECT_EQ(form.title(), "Madame  DUPONT  Marie");
    EXPECT_EQ(form.LblCivilite.text(), "Madame  DUPONT  Marie");
    EXPECT_TRUE(form.shown());
}

TEST_F(Loading, TakesTheDatesAndTheirWeek) {
    const Form12& form = open();
    EXPECT_EQ(form.DateDGf3.text(), "01/01/2002");
    EXPECT_EQ(form.DateJourF3.text(), "21/05/2002");
    EXPECT_EQ(form.LblDatExam.text(), "21/05/2002");
    EXPECT_EQ(form.LblDGUS.text(), "01/01/2002");
    EXPECT_EQ(form.SAF3.text(), "22");
    EXPECT_EQ(form.LblAgeGesta.text(), "22");
}

TEST_F(Loading, TakesTheMeasuresOfTheFetusInView) {
    EXPECT_EQ(measuresOf(open()), kFirst);
    EXPECT_EQ(desk().at<Form12>().TxtEspion.text(), "0");
    EXPECT_EQ(measuresOf(openFetus(1)), kFirst);
    EXPECT_EQ(desk().at<Form12>().TxtEspion.text(), "1");
    EXPECT_EQ(measuresOf(openFetus(2)), kSecond);
    EXPECT_EQ(desk().at<Form12>().TxtEspion.text(), "2");
    EXPECT_EQ(openFetus(3).Bip.text(), "60");
    EXPECT_EQ(desk().at<Form12>().TxtEspion.text(), "3");
}

TEST_F(Loading, PaintsTheTagOfOneOfSeveralPaleCyan) {
    EXPECT_EQ(open().Frame2.back(), std::nullopt);
    EXPECT_EQ(desk().at<Form12>().LblFoetus.text(), "Foetus ");
    for (int fetus = 1; fetus <= 3; ++fetus) {
        const Form12& form = openFetus(fetus);
        EXPECT_EQ(form.Frame2.back(), forms::Color(0xC0FFFF));
        EXPECT_EQ(form.LblFoetus.text(), QStringLiteral("G. Multiple Foetus N°%1").arg(fetus));
    }
}

TEST_F(Loading, ClassifiesEachMeasureAsItIsWritten) {
    const Form12& form = openFetus(2);
    EXPECT_EQ(wordsOf(form), (Texts{"< 3 ème Percentile", "> 97 ème Percentile", "90 ème à 97 ème Percentile",
                                    "10 ème à 50 ème Percentile", "3 ème à 10 ème Percentile", "< 50 ème Percentile",
                                    "> 97,5 ème Percentile", "50 ème à 90 ème Percentile", ""}));
    EXPECT_EQ(form.LabelBip.color(), forms::Color(0xFF0000));
    EXPECT_EQ(form.LabelBip.points(), 10);
    EXPECT_EQ(form.LabelCc.color(), forms::Color(0x0000FF));
    EXPECT_EQ(form.LabelCc.points(), 8);
    EXPECT_EQ(form.LabelHum.color(), forms::Color(0xFF0000));
}

TEST_F(Loading, PutsThePageTogetherAsTheCalculatorStands) {
    for (int fetus = 1; fetus <= 3; ++fetus) {
        const Form12& form = openFetus(fetus);
        for (const auto& row : form.rows()) {
            EXPECT_EQ(row.onPage.text(), row.field.text());
            EXPECT_EQ(row.wordOnPage.text(), row.label.text());
        }
        EXPECT_EQ(form.LblPoidsTheo.text(), form.Label22.text());
    }
}

TEST_F(Loading, FillsThePage) {
    const Form12& form = open();
    EXPECT_EQ(form.LblBip.text(), "53");
    EXPECT_EQ(form.LblCBip.text(), "50 ème Percentile");
    EXPECT_EQ(form.LblCOrb.text(), "");
    EXPECT_EQ(form.LblPiedFem.text(), "1,00");
    EXPECT_EQ(form.LblDioBip.text(), "0,45");
    EXPECT_EQ(form.LblPoids.text(), "441 g");
    EXPECT_EQ(form.LblPoidsTheo.text(), "441 g");
}

TEST_F(Loading, LeavesTheRatioBoxesOfTheCalculatorEmpty) {
    const Form12& form = open();
    EXPECT_EQ(form.FemPied.text(), "");
    EXPECT_EQ(form.DioBip.text(), "");
    EXPECT_EQ(form.Poids.text(), "");
}

TEST_F(Loading, HidesTheCalculatorAndTheRecall) {
    const Form12& form = open();
    EXPECT_FALSE(form.Frame8.visible());
    EXPECT_FALSE(form.Frame10.visible());
    EXPECT_FALSE(form.TxtEspion.visible());
}

TEST_F(Loading, ShowsThePresentPoints) {
    const Form12& form = open();
    EXPECT_TRUE(form.ShPtBip.visible() && form.ShPtCa.visible() && form.ShPtFem.visible());
    // 138 + 9 x 3735/29 and 8610 - 53 x 4455/120
    EXPECT_FLOAT_EQ(form.ShPtBip.spot()->left, 1297.1379F);
    EXPECT_FLOAT_EQ(form.ShPtBip.spot()->top, 6642.375F);
    // 4095 + 7 x 3735/27 and 8600 - 173 x 4450/400
    EXPECT_FLOAT_EQ(form.ShPtCa.spot()->left, 5063.3335F);
    EXPECT_FLOAT_EQ(form.ShPtCa.spot()->top, 6675.375F);
    // 8045 + 9 x 3735/29 and 8610 - 38 x 4455/90
    EXPECT_FLOAT_EQ(form.ShPtFem.spot()->left, 9204.138F);
    EXPECT_FLOAT_EQ(form.ShPtFem.spot()->top, 6729.0F);
    EXPECT_EQ(form.ShPtBip.side(), 105);
}

TEST_F(Loading, WithoutAStartHasNoWeekAndNoWordsButTheWeight) {
    exam().start.clear();
    const Form12& form = open();
    EXPECT_EQ(form.DateDGf3.text(), "");
    EXPECT_EQ(form.SAF3.text(), "");
    EXPECT_EQ(measuresOf(form), kFirst);
    EXPECT_EQ(wordsOf(form), kEmpty);
    EXPECT_EQ(form.LblCBip.text(), "");
    EXPECT_EQ(form.LblPoids.text(), "441 g");
    EXPECT_FALSE(form.ShPtBip.visible());
}

TEST_F(Loading, WithoutADateOfTheExamCountsToToday) {
    world_.clock.date = QDate(2002, 6, 14);
    exam().examDate.clear();
    const Form12& form = open();
    EXPECT_EQ(form.SAF3.text(), "25");
    EXPECT_EQ(form.DateJourF3.text(), "");
    EXPECT_EQ(form.LblAgeGesta.text(), "25");
}

TEST_F(Loading, NeedsNoDisplay) {
    desk().act([&] { desk().at<Form12>(); });
    EXPECT_FALSE(desk().at<Form12>().shown());
    EXPECT_EQ(desk().at<Form12>().LblCBip.text(), "50 ème Percentile");
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(Loading, FailsWholeForAMeasureBeyond16Bits) {
    exam().fetuses[0][indexOf(Measure::Bip)] = "40000";
    desk().act([&] { showBiometry(desk()); });
    EXPECT_EQ(world_.boxes.reported, QList<int>({6}));
    EXPECT_EQ(desk().peek("Form12"), nullptr);
}

TEST_F(Loading, IsDoneAnewForTheExamAndFetusInView) {
    write(open().Bip, "99");
    exam().surname = "MARTIN";
    EXPECT_EQ(open().title(), "Madame  MARTIN  Marie");
    EXPECT_EQ(desk().at<Form12>().Bip.text(), "53");
    EXPECT_EQ(openFetus(2).Bip.text(), "47");
}

TEST_F(Loading, CaptionsItsMenusButtonsAndFrames) {
    const Form12& form = open();
    const std::vector<std::pair<const forms::Control*, const char*>> captions{
        {&form.Quitter, "&Quitter"},        {&form.Imprime, "&Imprimer"},   {&form.Courbe, "&Courbes"},
        {&form.ReCalculer, "&Re-Calculer"}, {&form.Rappel, "R&appel"},      {&form.Command1, "C&alcule"},
        {&form.Command2, "Calc&ule"},       {&form.CmdQuitter, "Q&uitter"}, {&form.Command3, "&Fermer"},
        {&form.Frame10, "Rappel"},
    };
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(control->text(), caption) << control->name().toStdString();
    }
}

class ChangeOfTheWeek : public BiometryWindows {};

TEST_F(ChangeOfTheWeek, EmptiesTheMeasuresAndSetsTheMedians) {
    Form12& form = open();
    write(form.SAF3, "30");
    EXPECT_EQ(measuresOf(form), kEmpty);
    EXPECT_EQ(wordsOf(form), kEmpty);
    EXPECT_EQ(mediansOf(form), (Texts{"76", "271", "76", "255", "57", "58", "51", "36"}));
    // (271² x 0.053 x 57 + 255² x 0.32 x 57) / 1000 = 221.86 + 1186.06
    EXPECT_EQ(form.Label22.text(), "1408 g");
}

TEST_F(ChangeOfTheWeek, LeavesThePageAlone) {
    Form12& form = open();
    write(form.SAF3, "30");
    EXPECT_EQ(form.LblAgeGesta.text(), "22");
    EXPECT_EQ(form.LblBip.text(), "53");
    EXPECT_EQ(form.LblCBip.text(), "50 ème Percentile");
    EXPECT_EQ(form.LblPoidsTheo.text(), "441 g");
}

TEST_F(ChangeOfTheWeek, MovesTheScrollBarsToTheMedians) {
    Form12& form = open();
    write(form.SAF3, "30");
    EXPECT_EQ(form.BipScroll.value(), 76);
    EXPECT_EQ(form.OrbScroll.value(), 36);  // 76 / 2 - 2
    EXPECT_EQ(form.CCScroll.value(), 271);
    EXPECT_EQ(form.DatScroll.value(), 76);
    EXPECT_EQ(form.CAScroll.value(), 255);
    EXPECT_EQ(form.FemurScroll.value(), 57);
    EXPECT_EQ(form.PiedScroll.value(), 58);
    EXPECT_EQ(form.HumScroll.value(), 51);
    EXPECT_EQ(form.CerScroll.value(), 36);
}

TEST_F(ChangeOfTheWeek, MovesTheBarOfTheOrbitsAfterThatOfTheBip) {
    Form12& form = open();
    QStringList moved;
    for (const auto& row : form.rows()) {
        row.scroll.onChange = [&moved, &row] { moved << row.scroll.name(); };
    }
    write(form.SAF3, "30");
    EXPECT_EQ(moved, (QStringList{"BipScroll", "OrbScroll", "CCScroll", "DatScroll", "CAScroll", "FemurScroll",
                                  "PiedScroll", "HumScroll", "CerScroll"}));
}

TEST_F(ChangeOfTheWeek, RoundsTheHalfOfTheOrbitBarToTheEvenNumber) {
    Form12& form = open();
    write(form.SAF3, "23");  // 57 / 2 - 2 = 26.5
    EXPECT_EQ(form.OrbScroll.value(), 26);
    write(form.SAF3, "31");  // 79 / 2 - 2 = 37.5
    EXPECT_EQ(form.OrbScroll.value(), 38);
}

TEST_F(ChangeOfTheWeek, LeavesTheBarsWithoutAMedianWhereTheyWere) {
    Form12& form = open();
    write(form.SAF3, "13");
    EXPECT_EQ(mediansOf(form), (Texts{"24", "", "21", "", "10", "11", "11", ""}));
    EXPECT_EQ(form.BipScroll.value(), 24);
    EXPECT_EQ(form.CCScroll.value(), 196);
    EXPECT_EQ(form.CAScroll.value(), 173);
    EXPECT_EQ(form.CerScroll.value(), 23);
    EXPECT_EQ(form.Label22.text(), "");
}

TEST_F(ChangeOfTheWeek, ToNothingEmptiesMeasuresAndMedians) {
    Form12& form = open();
    write(form.SAF3, "");
    EXPECT_EQ(measuresOf(form), kEmpty);
    EXPECT_EQ(mediansOf(form), kNoMedians);
    EXPECT_EQ(form.Label22.text(), "441 g");
    EXPECT_EQ(form.BipScroll.value(), 53);
}

TEST_F(ChangeOfTheWeek, ToNothingKeepsTheWordsButNotTheirAlarm) {
    Form12& form = openFetus(2);
    const Texts before = wordsOf(form);
    ASSERT_EQ(form.LabelBip.color(), forms::Color(0xFF0000));
    write(form.SAF3, "");
    EXPECT_EQ(wordsOf(form), before);
    EXPECT_EQ(form.LabelBip.text(), "< 3 ème Percentile");
    EXPECT_EQ(form.LabelBip.color(), forms::Color(0x0000FF));
    EXPECT_EQ(form.LabelBip.points(), 8);
    EXPECT_FALSE(form.ShPtBip.visible());
}

TEST_F(ChangeOfTheWeek, ToNoNumberDoesNothing) {
    Form12& form = open();
    write(form.SAF3, "abc");
    EXPECT_EQ(measuresOf(form), kFirst);
    EXPECT_EQ(form.CBip.text(), "53");
}

TEST_F(ChangeOfTheWeek, Below13EmptiesMediansAndWords) {
    Form12& form = open();
    write(form.SAF3, "12");
    EXPECT_EQ(mediansOf(form), kNoMedians);
    EXPECT_EQ(wordsOf(form), kEmpty);
    EXPECT_EQ(form.Label22.text(), "");
}

TEST_F(ChangeOfTheWeek, HasATheoreticalWeightFrom16To41) {
    Form12& form = open();
    const std::vector<std::pair<const char*, const char*>> weights{
        {"15", ""}, {"16", "88 g"}, {"41", "3342 g"}, {"42", ""}};
    for (const auto& [week, weight] : weights) {
        write(form.SAF3, week);
        EXPECT_EQ(form.Label22.text(), weight) << week;
    }
}

TEST_F(ChangeOfTheWeek, At41HasNoMedianOfFootAndCerebellumAndAt42None) {
    Form12& form = open();
    write(form.SAF3, "41");
    EXPECT_EQ(mediansOf(form), (Texts{"93", "331", "104", "348", "75", "", "65", ""}));
    write(form.SAF3, "42");
    EXPECT_EQ(mediansOf(form), kNoMedians);
}

TEST_F(ChangeOfTheWeek, WithoutTheThreeMediansEmptiesTheWeight) {
    Form12& form = open();
    press(form.Command2);
    EXPECT_EQ(form.Poids.text(), "441 g");
    exam().fetuses[0] = {};
    Form12& bare = open();
    bare.Poids.setText("441 g");
    write(bare.SAF3, "14");
    EXPECT_EQ(bare.Poids.text(), "");
}

TEST_F(ChangeOfTheWeek, ComesByItsScrollBar) {
    Form12& form = open();
    EXPECT_EQ(form.SaScroll.value(), 22);
    scroll(form.SaScroll, 27);
    EXPECT_EQ(form.SAF3.text(), "27");
    EXPECT_EQ(form.CBip.text(), "68");
}

TEST_F(ChangeOfTheWeek, ComesByTheDates) {
    Form12& form = open();
    write(form.DateJourF3, "28/05/2002");
    EXPECT_EQ(form.SAF3.text(), "23");
    write(form.DateDGf3, "08/01/2002");
    EXPECT_EQ(form.SAF3.text(), "22");
    write(form.DateDGf3, "08/01/");
    EXPECT_EQ(form.SAF3.text(), "22");
    EXPECT_EQ(form.LblDGUS.text(), "01/01/2002");
}

TEST_F(ChangeOfTheWeek, AStartWithoutADayTakesToday) {
    Form12& form = open();
    write(form.DateJourF3, "");
    EXPECT_EQ(form.SAF3.text(), "22");
    write(form.DateDGf3, "04/01/2002");  // 91 days to the 5th of April
    EXPECT_EQ(form.DateJourF3.text(), "05/04/2002");
    EXPECT_EQ(form.SAF3.text(), "15");
}

TEST_F(ChangeOfTheWeek, TakesDigitsFromTheKeyboardOnly) {
    Form12& form = open();
    form.SAF3.setText("");
    for (const QChar c : QStringLiteral("-2,3a")) {
        type(form.SAF3, c);
    }
    EXPECT_EQ(form.SAF3.text(), "23");
}

class Retrying : public BiometryWindows {};

TEST_F(Retrying, ShowsAndHidesTheCalculator) {
    Form12& form = open();
    press(form.ReCalculer);
    EXPECT_TRUE(form.Frame8.visible());
    press(form.CmdQuitter);
    EXPECT_FALSE(form.Frame8.visible());
    EXPECT_TRUE(form.shown());
}

TEST_F(Retrying, StartsItsScrollBarsWhereTheyBelong) {
    exam().start.clear();
    exam().fetuses[0] = {};
    const Form12& form = open();
    const std::vector<std::pair<const forms::ScrollBar*, std::array<int, 4>>> bars{
        {&form.SaScroll, {13, 41, 5, 22}},     {&form.BipScroll, {10, 130, 10, 50}},
        {&form.OrbScroll, {0, 50, 1, 20}},     {&form.CCScroll, {100, 360, 20, 270}},
        {&form.DatScroll, {10, 150, 10, 50}},  {&form.CAScroll, {50, 400, 20, 250}},
        {&form.FemurScroll, {5, 100, 10, 50}}, {&form.PiedScroll, {5, 90, 1, 50}},
        {&form.HumScroll, {5, 90, 1, 45}},     {&form.CerScroll, {5, 55, 1, 5}},
    };
    for (const auto& [bar, expected] : bars) {
        const auto& range = bar->range();
        EXPECT_EQ((std::array{range.min, range.max, range.largeStep, bar->value()}), expected)
            << bar->name().toStdString();
    }
}

TEST_F(Retrying, AScrollBarWritesItsMeasure) {
    Form12& form = open();
    for (const auto& row : form.rows()) {
        scroll(row.scroll, row.scroll.value() + 1);
        EXPECT_EQ(row.field.text(), QString::number(row.scroll.value()));
    }
}

TEST_F(Retrying, ANewMeasureTakesItsWord) {
    Form12& form = open();
    write(form.Bip, "47");
    EXPECT_EQ(form.LabelBip.text(), "< 3 ème Percentile");
    EXPECT_EQ(form.LabelBip.color(), forms::Color(0xFF0000));
    write(form.Bip, "60");
    EXPECT_EQ(form.LabelBip.text(), "> 97 ème Percentile");
    EXPECT_EQ(form.LabelBip.color(), forms::Color(0x0000FF));
    EXPECT_EQ(form.LabelBip.points(), 8);
    EXPECT_EQ(form.LblCBip.text(), "50 ème Percentile");
}

TEST_F(Retrying, AMeasureInNoClassKeepsItsWord) {
    Form12& form = open();
    write(form.Cc, "217");
    EXPECT_EQ(form.LabelCc.text(), "> 97 ème Percentile");
    write(form.Cc, "176");  // between 175 and 177
    EXPECT_EQ(form.LabelCc.text(), "> 97 ème Percentile");
}

TEST_F(Retrying, ComputesTheRatios) {
    Form12& form = open();
    press(form.Command1);
    EXPECT_EQ(form.FemPied.text(), "1,00");
    EXPECT_EQ(form.DioBip.text(), "0,45");
    EXPECT_EQ(world_.boxes.said, QStringList());
}

TEST_F(Retrying, RefusesTheRatiosWithoutTheirMeasures) {
    for (const Measure missing : {Measure::Pied, Measure::Fem, Measure::Orb, Measure::Bip}) {
        Form12& form = open();
        press(form.Command1);
        write(form.row(missing).field, "");
        form.FemPied.setText("stays");
        world_.boxes.said.clear();
        press(form.Command1);
        EXPECT_EQ(world_.boxes.said, QStringList{"Veuillez saisir une valeur pour Pied, Fémur, Orbites et Bip"});
        EXPECT_EQ(form.FemPied.text(), "stays");
    }
}

TEST_F(Retrying, FailsToDivideByAFemurOfZeroOrAWord) {
    for (const char* femur : {"0", "court"}) {
        Form12& form = open();
        write(form.Fem, femur);
        world_.boxes.reported.clear();
        press(form.Command1);
        EXPECT_EQ(world_.boxes.reported, QList<int>({11})) << femur;
        EXPECT_EQ(form.FemPied.text(), "");
    }
}

TEST_F(Retrying, HasTheFirstRatioWhenTheSecondFailsToDivide) {
    Form12& form = open();
    write(form.Bip, "0");
    press(form.Command1);
    EXPECT_EQ(world_.boxes.reported, QList<int>({11}));
    EXPECT_EQ(form.FemPied.text(), "1,00");
    EXPECT_EQ(form.DioBip.text(), "");
}

TEST_F(Retrying, ComputesTheWeight) {
    Form12& form = open();
    write(form.Cc, "217");
    write(form.Ca, "160");
    write(form.Fem, "33");
    press(form.Command2);
    EXPECT_EQ(form.Poids.text(), "353 g");
    EXPECT_EQ(form.LblPoids.text(), "441 g");
}

TEST_F(Retrying, RefusesTheWeightWithoutItsMeasuresAndKeepsTheOldOne) {
    for (const Measure missing : {Measure::Cc, Measure::Ca, Measure::Fem}) {
        Form12& form = open();
        write(form.row(missing).field, "");
        form.Poids.setText("441 g");
        world_.boxes.said.clear();
        press(form.Command2);
        EXPECT_EQ(world_.boxes.said,
                  QStringList{"Veuillez saisir une valeur pour Circonf. céphalique, Circonf. abdominale et Fémur."});
        EXPECT_EQ(form.Poids.text(), "441 g");
    }
}

TEST_F(Retrying, ANewMeasureEmptiesWeightAndRatiosButTheHumerusOnlyTheWeight) {
    Form12& form = open();
    for (const auto& row : form.rows()) {
        press(form.Command1);
        press(form.Command2);
        write(row.field, row.field.text() + "0");
        EXPECT_EQ(form.Poids.text(), "");
        EXPECT_EQ(form.FemPied.text().isEmpty(), row.measure != Measure::Hum);
        EXPECT_EQ(form.DioBip.text().isEmpty(), row.measure != Measure::Hum);
        write(row.field, row.field.text().chopped(1));
    }
}

TEST_F(Retrying, LocksWhatIsOnlyComputed) {
    const Form12& form = open();
    EXPECT_TRUE(form.CBip.locked() && form.FemPied.locked() && form.DioBip.locked() && form.Poids.locked());
    EXPECT_FALSE(form.Bip.locked());
}

class PresentPoint : public BiometryWindows {};

TEST_F(PresentPoint, FollowsItsMeasure) {
    Form12& form = open();
    write(form.Bip, "120");
    EXPECT_TRUE(form.ShPtBip.visible());
    EXPECT_FLOAT_EQ(form.ShPtBip.spot()->top, 4155);
    EXPECT_FLOAT_EQ(form.ShPtBip.spot()->left, 1297.1379F);
}

TEST_F(PresentPoint, IsHiddenAboveItsChart) {
    Form12& form = open();
    write(form.Bip, "121");
    EXPECT_FALSE(form.ShPtBip.visible());
    write(form.Ca, "400");
    EXPECT_TRUE(form.ShPtCa.visible());
    write(form.Ca, "401");
    EXPECT_FALSE(form.ShPtCa.visible());
    write(form.Fem, "90");
    EXPECT_TRUE(form.ShPtFem.visible());
    write(form.Fem, "91");
    EXPECT_FALSE(form.ShPtFem.visible());
}

TEST_F(PresentPoint, IsHiddenForNoNumber) {
    Form12& form = open();
    write(form.Bip, "grand");
    EXPECT_FALSE(form.ShPtBip.visible());
    write(form.Bip, "53");
    EXPECT_TRUE(form.ShPtBip.visible());
    write(form.Bip, "");
    EXPECT_FALSE(form.ShPtBip.visible());
}

TEST_F(PresentPoint, IsPlacedLeftOfItsChartBeforeItsFirstWeek) {
    Form12& form = open();
    write(form.SAF3, "13");
    write(form.Ca, "80");
    EXPECT_TRUE(form.ShPtCa.visible());
    EXPECT_FLOAT_EQ(form.ShPtCa.spot()->left, 3818.3333F);
}

TEST_F(PresentPoint, GoesWithTheMeasuresWhenTheWeekChanges) {
    Form12& form = open();
    write(form.SAF3, "30");
    EXPECT_FALSE(form.ShPtBip.visible() || form.ShPtCa.visible() || form.ShPtFem.visible());
}

class Recall : public BiometryWindows {
protected:
    void eightExams() {
        for (int i = 1; i <= 8; ++i) {
            addExam(
                i, "01/01/2002",
                {{"AGESTA", QString::number(20 + i)}, {"Bip", QString::number(50 + i)}, {"Ca", "150"}, {"Fem", "30"}});
        }
    }
    static QList<bool> visible(const forms::Array<forms::Marker>& markers) {
        QList<bool> all;
        for (int i = 0; i < 6; ++i) {
            all << markers(i).visible();
        }
        return all;
    }
};

const QList<bool> kAll{true, true, true, true, true, true};
const QList<bool> kNone{false, false, false, false, false, false};

TEST_F(Recall, ListsEightExamsAndPlacesSix) {
    eightExams();
    Form12& form = open();
    press(form.Rappel);
    EXPECT_TRUE(form.Frame10.visible());
    EXPECT_EQ(form.ListNumecho.items(), (QStringList{"1", "2", "3", "4", "5", "6", "7", "8"}));
    EXPECT_EQ(form.ListSA.items(), (QStringList{"21", "22", "23", "24", "25", "26", "27", "28"}));
    EXPECT_EQ(form.ListBip.items(), (QStringList{"51", "52", "53", "54", "55", "56", "57", "58"}));
    EXPECT_EQ(form.ListDate.items().count("21/05/2002"), 8);
    EXPECT_EQ(form.ListCa.count(), 8);
    EXPECT_EQ(form.ListFem.count(), 8);
    EXPECT_EQ(visible(form.PtBip), kAll);
    EXPECT_EQ(visible(form.PtCa), kAll);
    EXPECT_EQ(visible(form.PtFem), kAll);
    // The third: week 23, 53 mm.
    EXPECT_FLOAT_EQ(form.PtBip(2).spot()->left, 1425.9310F);
    EXPECT_FLOAT_EQ(form.PtBip(2).spot()->top, 6642.375F);
}

TEST_F(Recall, TakesTheFieldsOfTheFetusInView) {
    addExam(1, "01/01/2002",
            {{"AGESTA", "22"},
             {"Bip", "51"},
             {"Ca", "151"},
             {"Fem", "31"},
             {"Bip2", "52"},
             {"CA2", "152"},
             {"FEM2", "32"},
             {"Bip3", "53"},
             {"CA3", "153"},
             {"FEM3", "33"}});
    press(open().Rappel);
    EXPECT_EQ(
        desk().at<Form12>().ListBip.items() + desk().at<Form12>().ListCa.items() + desk().at<Form12>().ListFem.items(),
        (QStringList{"51", "151", "31"}));
    for (int fetus = 1; fetus <= 3; ++fetus) {
        Form12& form = openFetus(fetus);
        press(form.Rappel);
        EXPECT_EQ(
            form.ListBip.items() + form.ListCa.items() + form.ListFem.items(),
            (QStringList{QString::number(50 + fetus), QString::number(150 + fetus), QString::number(30 + fetus)}));
    }
}

TEST_F(Recall, BringsThisPregnancyOnlyByTheTextOfItsStart) {
    addExam(1, "01/01/2002", {{"Bip", "51"}});
    addExam(2, "1/1/2002", {{"Bip", "52"}});
    addExam(3, "02/02/2000", {{"Bip", "53"}});
    addExam(4, "01/01/2002", {{"Bip", "54"}}, 3);
    addExam(5, "01/01/2002", {{"Bip", "55"}});
    Form12& form = open();
    press(form.Rappel);
    EXPECT_EQ(form.ListBip.items(), (QStringList{"51", "55"}));
}

TEST_F(Recall, CountsTheDaysOfAnAgeAsTenths) {
    addExam(1, "01/01/2002", {{"AGESTA", "22,6"}, {"Bip", "53"}});
    Form12& form = open();
    press(form.Rappel);
    // 138 + 9.6 x 3735/29
    EXPECT_FLOAT_EQ(form.PtBip(0).spot()->left, 1374.4138F);
}

TEST_F(Recall, HidesThePresentPointsAndThoseOfNoNumber) {
    addExam(1, "01/01/2002", {{"AGESTA", "22"}, {"Bip", ""}, {"Ca", "150"}});
    addExam(2, "01/01/2002", {{"AGESTA", ""}, {"Bip", "53"}});
    Form12& form = open();
    press(form.Rappel);
    EXPECT_FALSE(form.ShPtBip.visible() || form.ShPtCa.visible() || form.ShPtFem.visible());
    EXPECT_EQ(visible(form.PtBip), kNone);
    EXPECT_EQ(visible(form.PtCa), (QList<bool>{true, false, false, false, false, false}));
}

TEST_F(Recall, PlacesAValueAboveTheChart) {
    addExam(1, "01/01/2002", {{"AGESTA", "22"}, {"Bip", "121"}});
    Form12& form = open();
    press(form.Rappel);
    EXPECT_TRUE(form.PtBip(0).visible());
    EXPECT_FLOAT_EQ(form.PtBip(0).spot()->top, 4117.875F);
}

TEST_F(Recall, WithoutAnExamLeavesTheListsEmptyAndHidesAllPoints) {
    Form12& form = open();
    press(form.Rappel);
    EXPECT_EQ(form.ListDate.count(), 0);
    EXPECT_EQ(visible(form.PtBip), kNone);
    EXPECT_EQ(visible(form.PtCa), kNone);
    EXPECT_EQ(visible(form.PtFem), kNone);
}

// The start goes into the query as it stands.
TEST_F(Recall, FailsForAStartWithAQuotationMark) {
    eightExams();
    Form12& form = open();
    press(form.Rappel);
    press(form.Command3);
    exam().start = "01/01/20'02";
    Form12& quoted = open();
    press(quoted.Rappel);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3075}));
    EXPECT_TRUE(quoted.Frame10.visible());
    EXPECT_FALSE(quoted.ShPtBip.visible() || quoted.ShPtCa.visible() || quoted.ShPtFem.visible());
    EXPECT_EQ(quoted.ListDate.count(), 0);
    EXPECT_EQ(visible(quoted.PtBip), kNone);
}

TEST_F(Recall, PlacesEachExamOnAllThreeCharts) {
    addExam(1, "01/01/2002", {{"AGESTA", "22"}, {"Bip", "53"}, {"Ca", "173"}, {"Fem", "38"}});
    addExam(2, "01/01/2002", {{"AGESTA", "13"}, {"Bip", "24"}, {"Ca", "80"}, {"Fem", "10"}});
    Form12& form = open();
    press(form.Rappel);
    // 4095 + 7 x 3735/27 and 8600 - 173 x 4450/400; 8045 + 9 x 3735/29 and 8610 - 38 x 4455/90
    EXPECT_FLOAT_EQ(form.PtCa(0).spot()->left, 5063.3335F);
    EXPECT_FLOAT_EQ(form.PtCa(0).spot()->top, 6675.375F);
    EXPECT_FLOAT_EQ(form.PtFem(0).spot()->left, 9204.138F);
    EXPECT_FLOAT_EQ(form.PtFem(0).spot()->top, 6729.0F);
    // Two weeks before the first of its chart: 4095 - 2 x 3735/27
    EXPECT_TRUE(form.PtCa(1).visible());
    EXPECT_FLOAT_EQ(form.PtCa(1).spot()->left, 3818.3333F);
    EXPECT_FLOAT_EQ(form.PtFem(1).spot()->top, 8115.0F);
}

TEST_F(Recall, BeginsAnewEachTime) {
    eightExams();
    Form12& form = open();
    press(form.Rappel);
    press(form.Rappel);
    EXPECT_EQ(form.ListDate.count(), 8);
}

TEST_F(Recall, ClosesButKeepsItsPoints) {
    eightExams();
    Form12& form = open();
    press(form.Rappel);
    press(form.Command3);
    EXPECT_FALSE(form.Frame10.visible());
    EXPECT_EQ(visible(form.PtBip), kAll);
}

TEST_F(Recall, GivesEachChartAColourOfItsOwn) {
    const Form12& form = open();
    EXPECT_EQ(form.PtBip(0).color(), form.PtBip(5).color());
    EXPECT_NE(form.PtBip(0).color(), form.PtCa(0).color());
    EXPECT_NE(form.PtCa(0).color(), form.PtFem(0).color());
    EXPECT_EQ(form.ShPtBip.color(), form.ShPtFem.color());
}

TEST_F(Recall, HasPointsOf105TwipsThePresentOnesRed) {
    const Form12& form = open();
    for (const forms::Marker* present : {&form.ShPtBip, &form.ShPtCa, &form.ShPtFem}) {
        EXPECT_EQ(present->side(), 105);
        const forms::Color color = present->color().value();
        EXPECT_GT(color >> 16, 0xC0U);
        EXPECT_LT(color & 0xFFFF, 0x4000U);
    }
    for (const forms::Array<forms::Marker>* family : {&form.PtBip, &form.PtCa, &form.PtFem}) {
        EXPECT_EQ(family->first(), 0);
        EXPECT_EQ(family->last(), 5);
        for (int i = 0; i <= 5; ++i) {
            EXPECT_EQ((*family)(i).side(), 105);
        }
    }
}

class Leaving : public BiometryWindows {
protected:
    void twoExams() {
        addExam(1, "01/01/2002");
        addExam(3, "01/01/2002", {{"Bip", "53"}});
        addExam(4, "01/01/2002");
    }
};

TEST_F(Leaving, PutsTheCursorBackOnTheExamInView) {
    twoExams();
    Form12& form = open();
    press(form.Rappel);
    EXPECT_TRUE(state_.Rs.eof());
    press(form.Quitter);
    EXPECT_EQ(desk().peek("Form12"), nullptr);
    EXPECT_EQ(state_.Rs.text("NUMECHO"), "3");
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM 1TER  WHERE NUMERO=2 ORDER BY NUMECHO");
}

TEST_F(Leaving, ByTheFrameOfTheWindowDoesTheSame) {
    twoExams();
    Form12& form = open();
    press(form.Rappel);
    desk().act([&] { form.close(); });
    EXPECT_EQ(state_.Rs.text("NUMECHO"), "3");
}

TEST_F(Leaving, UnloadsTheCurves) {
    Form12& form = open();
    curves();
    press(form.Quitter);
    EXPECT_EQ(desk().peek("Form13"), nullptr);
}

TEST_F(Leaving, GoesOnWhenTheFileIsGone) {
    open();
    state_.PathEcho = "/nowhere/ECHO.MDB";
    desk().act([&] { desk().at<Form12>().close(); });
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_EQ(desk().peek("Form12"), nullptr);
}

class Printing : public BiometryWindows {
protected:
    Printing() { world_.printers.page = fakes::kA4; }
};

TEST_F(Printing, AsksForAPrinterAndPrintsOnePage) {
    press(open().Imprime);
    EXPECT_EQ(world_.printers.dialogs, 1);
    ASSERT_EQ(world_.printers.jobs.size(), 1U);
    EXPECT_EQ(world_.printers.jobs[0].title, "Madame  DUPONT  Marie");
    EXPECT_EQ(world_.printers.jobs[0].pages, 1);
    EXPECT_TRUE(world_.printers.jobs[0].ended);
}

TEST_F(Printing, GoesOnToASecondSheetBehindALongRecall) {
    for (int i = 1; i <= 25; ++i) {
        addExam(i, "01/01/2002", {{"AGESTA", "22"}, {"Bip", "51"}});
    }
    Form12& form = open();
    press(form.Rappel);
    press(form.Imprime);
    ASSERT_EQ(world_.printers.jobs.size(), 1U);
    EXPECT_EQ(world_.printers.jobs[0].pages, 2);
    EXPECT_TRUE(world_.printers.jobs[0].ended);
}

TEST_F(Printing, EndsWithoutAWordOnCancelAndOnAnError) {
    world_.printers.accepts = false;
    press(open().Imprime);
    world_.printers.accepts = true;
    world_.printers.refuses = true;
    press(open().Imprime);
    EXPECT_TRUE(world_.printers.jobs.empty());
    EXPECT_EQ(world_.boxes.reported, QList<int>());
    EXPECT_EQ(world_.boxes.said, QStringList());
}

TEST_F(Printing, TakesTheWindowAsItStands) {
    addExam(1, "01/01/2002", {{"AGESTA", "22"}, {"Bip", "51"}});
    Form12& form = open();
    EXPECT_EQ(form.sheet().points.size(), 3U);
    EXPECT_FALSE(form.sheet().retried.has_value());
    EXPECT_FALSE(form.sheet().recalled.has_value());
    press(form.ReCalculer);
    write(form.Bip, "60");
    ASSERT_TRUE(form.sheet().retried.has_value());
    EXPECT_EQ(form.sheet().retried->measures[indexOf(Measure::Bip)], "60");
    EXPECT_EQ(form.sheet().retried->percentiles[indexOf(Measure::Bip)], "> 97 ème Percentile");
    EXPECT_EQ(form.sheet().retried->medians[indexOf(Measure::Bip)], "53");
    EXPECT_EQ(form.sheet().page.measure(Measure::Bip), "53");
    press(form.Rappel);
    ASSERT_TRUE(form.sheet().recalled.has_value());
    EXPECT_EQ(form.sheet().recalled->at(0), (RecalledExam{"21/05/2002", "1", "22", "51", "", ""}));
    EXPECT_EQ(form.sheet().points.size(), 1U);
}

}  // namespace
}  // namespace biometry
