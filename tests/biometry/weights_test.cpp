#include <gtest/gtest.h>

#include "biometry/texts.h"
#include "biometry/weights.h"

namespace {

using namespace biometry;

const std::string kWeightRefusal =
    "[refuse] Veuillez saisir une valeur pour Circonf. céphalique, Circonf. abdominale et Fémur.";
const std::string kRatioRefusal = "[refuse] Veuillez saisir une valeur pour Pied, Fémur, Orbites et Bip";

// (122² x 0.053 x 20 + 106² x 0.32 x 20) / 1000 is 87.7, (331² x 0.053 x 75 + 348² x 0.32 x 75) / 1000 is 3342.001.
TEST(EstimatedWeight, IsAWholeNumberOfGrams) {
    EXPECT_EQ(told(estimatedWeight(u"122", u"106", u"20")), "88 g");
    EXPECT_EQ(told(estimatedWeight(u"331", u"348", u"75")), "3342 g");
}

// 100² x 0.053 x 50 is 26500, which with no abdomen is 26.5 g; x 150 it is 79.5 g.
TEST(EstimatedWeight, SendsTiesToTheEvenGram) {
    EXPECT_EQ(told(estimatedWeight(u"100", u"0", u"50")), "26 g");
    EXPECT_EQ(told(estimatedWeight(u"100", u"0", u"150")), "80 g");
}

TEST(EstimatedWeight, ReadsTheLeadingNumbers) {
    EXPECT_EQ(told(estimatedWeight(u"122 mm", u"106,9", u"20,5")), "88 g");
    // (122² x 0.053 x 20.5 + 106² x 0.32 x 20.5) / 1000 is 89.9
    EXPECT_EQ(told(estimatedWeight(u"122", u"106", u"20.5")), "90 g");
    EXPECT_EQ(told(estimatedWeight(u"?", u"?", u"?")), "0 g");
}

TEST(EstimatedWeight, NeedsAllThreeMeasures) {
    EXPECT_EQ(told(estimatedWeight(u"", u"106", u"20")), kWeightRefusal);
    EXPECT_EQ(told(estimatedWeight(u"122", u"", u"20")), kWeightRefusal);
    EXPECT_EQ(told(estimatedWeight(u"122", u"106", u"")), kWeightRefusal);
}

TEST(TheoreticalWeight, IsThatOfTheMediansFromWeek16To41) {
    EXPECT_EQ(theoreticalWeight(16, medians(16).value()).toStdString(), "88 g");
    EXPECT_EQ(theoreticalWeight(41, medians(41).value()).toStdString(), "3342 g");
    EXPECT_EQ(theoreticalWeight(15, medians(16).value()).toStdString(), "");
    EXPECT_EQ(theoreticalWeight(42, medians(41).value()).toStdString(), "");
}

TEST(Ratio, HasTwoDecimals) {
    EXPECT_EQ(told(ratio(u"39", u"38")), "1,03");
    EXPECT_EQ(told(ratio(u"20", u"53")), "0,38");
    EXPECT_EQ(told(ratio(u"40", u"40")), "1,00");
    EXPECT_EQ(told(ratio(u"0", u"40")), "0,00");
}

TEST(Ratio, SendsATieUp) {
    EXPECT_EQ(told(ratio(u"33", u"40")), "0,83");    // 0.825
    EXPECT_EQ(told(ratio(u"35", u"40")), "0,88");    // 0.875
    EXPECT_EQ(told(ratio(u"201", u"200")), "1,01");  // 1.005
}

TEST(Ratio, GroupsTheThousands) {
    EXPECT_EQ(told(ratio(u"12345", u"2")), "6\u202F172,50");
}

TEST(Ratio, LeavesTheFieldWithoutBothMeasuresAndFailsBy0) {
    EXPECT_EQ(told(ratio(u"", u"38")), "[leave]");
    EXPECT_EQ(told(ratio(u"39", u"")), "[leave]");
    EXPECT_EQ(told(ratio(u"39", u"0")), "[error 11]");
    EXPECT_EQ(told(ratio(u"39", u"non vu")), "[error 11]");
    EXPECT_EQ(told(ratio(u"0", u"0")), "[error 11]");
}

TEST(Ratios, NeedAllFourMeasures) {
    for (const auto& [pied, fem, orb, bip] :
         {std::array{u"", u"38", u"20", u"53"}, std::array{u"39", u"", u"20", u"53"},
          std::array{u"39", u"38", u"", u"53"}, std::array{u"39", u"38", u"20", u""}}) {
        const Ratios both = ratios(pied, fem, orb, bip);
        EXPECT_EQ(told(both.footToFemur), kRatioRefusal);
        EXPECT_EQ(told(both.orbitToBip), kRatioRefusal);
    }
}

TEST(Ratios, AreFootToFemurAndOrbitToBip) {
    const Ratios both = ratios(u"39", u"38", u"20", u"53");
    EXPECT_EQ(told(both.footToFemur), "1,03");
    EXPECT_EQ(told(both.orbitToBip), "0,38");
}

TEST(Ratios, FailEachOnItsOwn) {
    const Ratios both = ratios(u"39", u"38", u"20", u"0");
    EXPECT_EQ(told(both.footToFemur), "1,03");
    EXPECT_EQ(told(both.orbitToBip), "[error 11]");
}

}  // namespace
