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
};

// Where two are seated, position does not count; heads-up is what was dealt before the flop.
TEST_F(AdviceTest, FactorAfterTheFlopByStreetSeatAndLevel) {
  const std::tuple<int, Street, int, int, int, double> cases[] = {
      {6, Turn, 50, 5, Avg, 1},       {6, River, 50, 5, Avg, 1.1},  {6, River, 50, 5, Tight, 1.25},
      {6, River, 50, 5, Loose, 0.95}, {6, Flop, 50, 5, -1, 1},      {6, Flop, 33, 5, Avg, 1.1},
      {6, Flop, 34, 5, Avg, 1},       {6, Flop, 65, 5, Avg, 1},     {6, Flop, 66, 5, Avg, 0.9},
      {6, Flop, 99, 5, Avg, 0.9},     {6, Flop, 100, 5, Avg, 0.85}, {2, Flop, 100, 1, Avg, 0.8},
      {2, Flop, 0, 0, Avg, 1},        {6, Flop, 50, 1, Avg, 0.8}};
  for (const auto& [players, street, percent, startOpponents, level, factor] : cases) {
    AfterFlop(players, 0, street, percent, startOpponents, level, 0.5);
    EXPECT_FLOAT_EQ(advice.LevelFactor, factor) << percent;
    EXPECT_DOUBLE_EQ(advice.MeterThreshold, advice.LevelFactor * (1.0 / players));
  }
}

TEST_F(AdviceTest, ScoreAfterTheFlopByChance) {
  const std::pair<double, double> cases[] = {{0, -1},    {0.2, -0.2},     {0.25, 0},
                                             {0.4, 0.4}, {0.75, 4.0 / 3}, {1, 2}};
  for (const auto& [chance, score] : cases) {
    EXPECT_NEAR(AfterFlop(6, 2, Flop, 50, 5, Avg, chance), score, 3e-7);
    EXPECT_EQ(advice.MeterScore, advice.MeterValue);
    EXPECT_EQ(results.lblAdvice, AdviceText(score, Flop, false, false));
  }
}

TEST_F(AdviceTest, ScoreBeforeTheFlopByHandSeatAndLevel) {
  const std::tuple<const char*, int, int, int, float, double> cases[] = {
      {"KS KD", 10, 50, Avg, 1, 0.34 / 0.21}, {"KS 2D", 10, 50, Avg, 1, -0.25},
      {"7S 2D", 10, 11, Avg, 1.1, -1},        {"AS AD", 10, 100, Tight, 0.97, 2},
      {"AS AD", 2, 0, Loose, 0.75, 2},        {"7S 2D", 2, 100, Avg, 0.62, 0.14 / 0.54}};
  for (const auto& [cards, players, percent, level, factor, score] : cases) {
    EXPECT_NEAR(BeforeFlop(cards, players, percent, level), score, 3e-6) << cards;
    EXPECT_EQ(advice.StartOpponents, players - 1);
    EXPECT_FLOAT_EQ(advice.LevelFactor, factor) << cards;
    EXPECT_EQ(advice.MeterScore, advice.MeterValue);
  }
}

// The exact score lies on a border. Single precision puts it a hair to one side, and the advice
// follows.
TEST_F(AdviceTest, ScoresAHairFromABorderStayOnTheirSide) {
  const std::tuple<const char*, int, int, int, double> cases[] = {
      {"AS 2D", 5, 25, Avg, 0},  {"TS 3S", 5, 25, Loose, 0}, {"JS 2D", 5, 50, Avg, -0.5},
      {"JS 9D", 2, 0, Avg, 0.5}, {"AS JD", 2, 0, Avg, 1},    {"TS TD", 2, 0, Avg, 1.5}};
  for (const auto& [cards, players, percent, level, border] : cases) {
    EXPECT_LT(BeforeFlop(cards, players, percent, level), border) << cards;
    EXPECT_NEAR(advice.MeterValue, border, 3e-7) << cards;
  }
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

// From a pair to four of a kind, and the chance to win against one that a hundredfold in single
// precision leaves short of 53.
TEST_F(AdviceTest, OutcomeColumn) {
  const std::tuple<const char*, int, decltype(results.lblMe), const char*> cases[] = {
      {"AS KS", 10, {"44%", "22%", "4%", " 3%", "7%", "2%", "", "", "22%"}, "78%"},
      {"5S 5D", 10, {"", "40%", "12%", " 2%", "2%", "9%", "1%", "", "13%"}, "87%"},
      {"KS 2D", 2, {"44%", "22%", "4%", " 2%", "2%", "2%", "", "", "53%"}, "47%"}};
  for (const auto& [cards, players, me, them] : cases) {
    BeforeFlop(cards, players, 50, Avg);
    EXPECT_EQ(results.lblMe, me);
    EXPECT_EQ(results.lblThem[8], them);
  }
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
      ";0.5 Raise or call 1 small raise;1 Raise or call raised;1.5 Raise or Re-Raise";
  const std::string afterFlop =
      "-9 Check or Fold;0 Check or call one small bet;0.5 Bet or call one small bet;"
      "1 Raise or call one Raise;1.5 Raise or Re-Raise";
  const std::tuple<Street, bool, bool, std::string> cases[] = {
      {PreFlop, true, false,
       "-9 Small Blind: Fold;-0.5 Small Blind: Call. Fold if raised." + raises},
      {PreFlop, false, true, "-9 Big Blind: Check or Fold" + raises},
      {PreFlop, false, false, "-9 Fold;0 Call unraised only" + raises},
      {Flop, true, false, afterFlop},
      {River, false, true, afterFlop}};
  for (const auto& [street, small, big, texts] : cases) {
    std::map<double, std::string> byLowest;
    std::istringstream all(texts);
    for (double lowest; all >> lowest;) std::getline(all >> std::ws, byLowest[lowest], ';');
    analysis.IsSmallBlind = small;
    analysis.IsBigBlind = big;
    for (const double score : {-9.0, -0.51, -0.5, -0.01, 0.0, 0.49, 0.5, 0.99, 1.0, 1.49, 1.5}) {
      ShowAdvice(score, street);
      EXPECT_EQ(results.lblAdvice, std::prev(byLowest.upper_bound(score))->second) << score;
      // The small blind's meter stands at zero where it calls.
      EXPECT_EQ(advice.MeterScore, small && score >= -0.5 && score < 0 ? 0 : score);
    }
  }
}

}  // namespace
}  // namespace holdem
