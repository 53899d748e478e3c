#include "advice/hole_table.h"
#include "advice/post_flop.h"
#include "advice/pre_flop.h"
#include "advice/show_advice.h"
#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "gestures/settings_gestures.h"

namespace holdem {
namespace {

TEST(HoleTable, StaysAsItIs) {
  Fingerprint table;
  modHole::LoadHoleTable();
  modHole::ParseHoleRow("13,12,1,64,48,40,33,29,26,24,21,20,5");  // the ranks in the other order
  table.Add(modHole::HoleOdds);
  table.Add(modHole::HoleStraightPct);
  EXPECT_EQ(table.value, 5140977201689636472U);
  EXPECT_EQ(modHole::HoleOddsMax, (modHole::ByOpponents{0, 85, 74, 64, 56, 50, 44, 39, 35, 31}));
  EXPECT_EQ(modHole::HoleOddsMin, (modHole::ByOpponents{0, 35, 22, 15, 12, 10, 8, 7, 7, 6}));
}

class AdviceTest : public ProgramTest {
 protected:
  AdviceTest() { modHole::LoadHoleTable(); }

  // The score of two hole cards.
  static double BeforeFlop(const std::string& cards, int players, int percent, int level) {
    Put(cards);
    results = {};
    analysis = {.PlayerCount = players, .PositionPercent = percent};
    settings.LevelPre = level;
    PreFlopStep();
    return advice.MeterValue;
  }

  // The score of a chance.
  static double AfterFlop(int players, int folded, Street street, int percent, int startOpponents,
                          int level, double chance) {
    analysis.PlayerCount = players;
    analysis.FoldedCount = folded;
    analysis.CurrentStreet = street;
    analysis.PositionPercent = percent;
    advice.StartOpponents = startOpponents;
    advice.WinSplitChance = static_cast<float>(chance);
    settings.LevelPost = level;
    PostFlopStep();
    return advice.MeterValue;
  }

  // What the last step has set, to the ninth digit, as every compiler works it out.
  static std::string Advised() {
    std::ostringstream text;
    text << std::fixed << std::setprecision(9) << advice.StartOpponents << results.lblAdvice;
    for (const double value : {advice.FairShare, double{advice.LevelFactor}, advice.MeterThreshold,
                               advice.MeterValue, advice.MeterScore}) {
      text << " " << value;
    }
    for (const std::string& shown : results.lblMe) text << shown << ";";
    return text.str() + results.lblThem[8];
  }
};

TEST_F(AdviceTest, WorkedScores) {
  EXPECT_NEAR(BeforeFlop("KS KD", 10, 50, Avg), 0.34 / 0.21, 3e-6);
  EXPECT_NEAR(AfterFlop(6, 2, River, 50, 5, Tight, 0.25), -0.2, 3e-7);
}

// Over hands, seats, levels and chances, kept as fingerprints: a change must be meant.
TEST_F(AdviceTest, EachStepAdvisesAsItDid) {
  constexpr std::array kPercents = {0, 33, 34, 65, 66, 99, 100};
  Fingerprint before, after;
  for (int n = 0; n < 9 * 13 * 25; ++n) {
    const int suited = n / 9 % 13 + 1, other = n / 9 / 13 + 2;  // spades; spades and diamonds
    if (suited == other) continue;
    BeforeFlop(TextOf(suited) + " " + TextOf(other), 2 + n % 9, kPercents[n % 7], n % 5 - 1);
    before.Add(Advised());
  }
  for (int n = 0; n < 9 * 7 * 5 * 4 * 11 * 3; ++n) {
    const int players = 2 + n % 9, startOpponents = n % 4, folded = std::min(startOpponents, 1);
    AfterFlop(players, folded, Street{Flop + n / 9 % 3}, kPercents[n % 7], startOpponents,
              n % 5 - 1, n % 11 / 10.0);
    after.Add(Advised());
  }
  EXPECT_EQ(before.value, 14402560880839867653U);
  EXPECT_EQ(after.value, 4648780941511764850U);
}

// The exact score lies on a border. Single precision puts it a hair to one side, and the advice
// follows.
TEST_F(AdviceTest, ScoresAHairFromABorderStayOnTheirSide) {
  EXPECT_LT(BeforeFlop("AS 2D", 5, 25, Avg), 0);
  EXPECT_LT(BeforeFlop("JS 2D", 5, 50, Avg), -0.5);
  EXPECT_LT(BeforeFlop("TS TD", 2, 0, Avg), 1.5);
  EXPECT_LT(AfterFlop(3, 1, River, 100, 2, Loose, 600 / 1500.0), 0);
  EXPECT_LT(AfterFlop(3, 1, River, 100, 2, Loose, 825 / 1500.0), 0.5);
  EXPECT_LT(AfterFlop(3, 0, Flop, 0, 1, Loose, 375 / 1500.0), 0);
  EXPECT_GE(AfterFlop(3, 1, River, 0, 1, Avg, 1125 / 1500.0), 1);
  // A threshold that rounds to the very chance is not passed: the score is the chance over the
  // unrounded threshold, on whichever side of it that lies.
  EXPECT_EQ(AfterFlop(5, 0, River, 50, 4, Avg, 0.22), 0.22F / (1.1F * (1 / 5.0)) - 1);
  EXPECT_LT(advice.MeterValue, 0);
  EXPECT_EQ(AfterFlop(6, 0, Flop, 50, 5, Avg, 1 / 6.0), float{1 / 6.0} / (1 / 6.0) - 1);
  EXPECT_GT(advice.MeterValue, 0);
}

// The whole pass: the pair that the user holds already stands in its row, and a level click redoes
// the advice. Ten seats, the user after the button: the small blind.
TEST_F(AdviceTest, ALevelClickRedoesTheAdviceAtOnce) {
  Put("5S 5D");
  RunAnalysis();
  EXPECT_EQ(results.lblMe[0] + ", " + results.lblCurrentScore, "Current, Pair of Fives");
  EXPECT_EQ(results.lblAdvice, "Small Blind: Call. Fold if raised.");
  ChooseLevelPre(Loose);
  EXPECT_FLOAT_EQ(advice.LevelFactor, 0.95);
  EXPECT_EQ(results.lblMe[0], "Current");
}

// The texts by their lowest score.
TEST_F(AdviceTest, TextsByScoreSeatAndStreet) {
  const std::string raises =
      ";0.5 Raise or call 1 small raise;1 Raise or call raised;1.5 Raise or Re-Raise;";
  const std::string afterFlop =
      "-9 Check or Fold;0 Check or call one small bet;0.5 Bet or call one small bet;"
      "1 Raise or call one Raise;1.5 Raise or Re-Raise;";
  const std::tuple<Street, bool, bool, std::string> cases[] = {
      {PreFlop, true, false,
       "-9 Small Blind: Fold;-0.5 Small Blind: Call. Fold if raised." + raises},
      {PreFlop, false, true, "-9 Big Blind: Check or Fold" + raises},
      {PreFlop, false, false, "-9 Fold;0 Call unraised only" + raises},
      {Flop, true, true, afterFlop}};
  for (const auto& [street, small, big, texts] : cases) {
    std::ostringstream shown;
    std::string last;
    analysis.IsSmallBlind = small;
    analysis.IsBigBlind = big;
    for (const double score : {-9.0, -0.51, -0.5, -0.01, 0.0, 0.49, 0.5, 0.99, 1.0, 1.49, 1.5}) {
      ShowAdvice(score, street);
      if (results.lblAdvice != last) shown << score << " " << results.lblAdvice << ";";
      last = results.lblAdvice;
      // The small blind's meter stands at zero where it calls.
      EXPECT_EQ(advice.MeterScore, small && score >= -0.5 && score < 0 ? 0 : score);
    }
    EXPECT_EQ(shown.str(), texts);
  }
}

}  // namespace
}  // namespace holdem
