#include "advice/post_flop.h"

#include "advice/hole_table.h"
#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "reference/card_text.h"
#include "table/settings_gestures.h"

namespace holdem {
namespace {

using PostFlopTest = ProgramTest;

struct Situation {
  int players, folded;
  Street street;
  int percent, startOpponents, level;
  double chance;
  double factor;
  double score;
  const char* text;
};

void Advise(const Situation& s) {
  analysis.PlayerCount = s.players;
  analysis.FoldedCount = s.folded;
  analysis.CurrentStreet = s.street;
  analysis.PositionPercent = s.percent;
  advice.StartOpponents = s.startOpponents;
  advice.WinSplitChance = static_cast<float>(s.chance);
  settings.LevelPost = s.level;
  PostFlopStep();
}

constexpr const char* kCheckOrFold = "Check or Fold";
constexpr const char* kCallSmallBet = "Check or call one small bet";
constexpr const char* kBet = "Bet or call one small bet";
constexpr const char* kRaise = "Raise or call one Raise";
constexpr const char* kReRaise = "Raise or Re-Raise";

TEST_F(PostFlopTest, AdviceByChanceSeatAndLevel) {
  const Situation cases[] = {
      {6, 2, Flop, 50, 5, Avg, 0.25, 1, 0, kCallSmallBet},
      {6, 2, Flop, 50, 5, Avg, 0.40, 1, 0.4, kCallSmallBet},
      {6, 2, Flop, 50, 5, Avg, 0.50, 1, 2.0 / 3, kBet},
      {6, 2, Flop, 50, 5, Avg, 0.10, 1, -0.6, kCheckOrFold},
      {6, 2, Turn, 50, 5, Avg, 0.75, 1, 4.0 / 3, kRaise},
      {6, 2, Flop, 50, 5, Avg, 1.00, 1, 2, kReRaise},
      {6, 2, Flop, 50, 5, Avg, 0.00, 1, -1, kCheckOrFold},
      {6, 2, River, 50, 5, Avg, 0.275, 1.1, 0, kCallSmallBet},
      {6, 2, River, 50, 5, Tight, 0.3125, 1.25, 0, kCallSmallBet},
      {6, 2, River, 50, 5, Loose, 0.475, 0.95, 0.475 / 0.7625, kBet},
      {6, 2, Flop, 50, 5, Loose, 0.17, 0.85, -0.2, kCheckOrFold},
      {6, 2, Flop, 50, 5, 3, 0.25, 1, 0, kCallSmallBet},
      {6, 2, Flop, 50, 5, -1, 0.25, 1, 0, kCallSmallBet},
      {6, 2, Flop, 0, 5, Avg, 0.22, 1.1, -0.2, kCheckOrFold},
      {6, 2, Flop, 33, 5, Avg, 0.22, 1.1, -0.2, kCheckOrFold},
      {6, 2, Flop, 34, 5, Avg, 0.20, 1, -0.2, kCheckOrFold},
      {6, 2, Flop, 65, 5, Avg, 0.20, 1, -0.2, kCheckOrFold},
      {6, 2, Flop, 66, 5, Avg, 0.18, 0.9, -0.2, kCheckOrFold},
      {6, 2, Flop, 99, 5, Avg, 0.18, 0.9, -0.2, kCheckOrFold},
      {6, 2, Flop, 100, 5, Avg, 0.17, 0.85, -0.2, kCheckOrFold},
      // Two seated: no position. What counts as heads-up is the last deal seen before the flop.
      {2, 0, Flop, 100, 1, Avg, 0.32, 0.8, -0.2, kCheckOrFold},
      {2, 0, Flop, 0, 0, Avg, 0.40, 1, -0.2, kCheckOrFold},
      {6, 4, Flop, 50, 1, Avg, 0.32, 0.8, -0.2, kCheckOrFold},
      {6, 4, Flop, 50, 5, Avg, 0.40, 1, -0.2, kCheckOrFold},
  };
  for (const Situation& s : cases) {
    SCOPED_TRACE(testing::Message() << s.chance << " on street " << s.street << " at " << s.percent
                                    << ", level " << s.level);
    Advise(s);
    EXPECT_EQ(advice.FairShare, 1.0 / (s.players - s.folded));
    EXPECT_FLOAT_EQ(advice.LevelFactor, s.factor);
    EXPECT_DOUBLE_EQ(advice.MeterThreshold, advice.LevelFactor * advice.FairShare);
    EXPECT_NEAR(advice.MeterValue, s.score, 3e-7);
    EXPECT_EQ(advice.MeterScore, advice.MeterValue);
    EXPECT_EQ(results.lblAdvice, s.text);
  }
}

// The exact score lies on a border; single precision decides.
TEST_F(PostFlopTest, ScoresAHairFromABorderStayOnTheirSide) {
  const Situation cases[] = {
      {5, 0, River, 50, 4, Avg, 0.22, 1.1, 0, kCheckOrFold},
      {3, 1, River, 100, 2, Loose, 600 / 1500.0, 0.8, 0, kCheckOrFold},
      {3, 1, River, 100, 2, Loose, 825 / 1500.0, 0.8, 0.5, kCallSmallBet},
      {3, 0, Flop, 0, 1, Loose, 375 / 1500.0, 0.75, 0, kCheckOrFold},
      {3, 0, Flop, 50, 1, Loose, 325 / 1500.0, 0.65, 0, kCheckOrFold},
      {3, 1, Flop, 67, 2, Avg, 675 / 1500.0, 0.9, 0, kCallSmallBet},
      {3, 1, River, 0, 1, Avg, 750 / 1500.0, 1, 0, kCallSmallBet},
      {3, 1, River, 0, 1, Avg, 1125 / 1500.0, 1, 1, kRaise},
  };
  for (const Situation& s : cases) {
    Advise(s);
    EXPECT_EQ(results.lblAdvice, s.text) << s.chance;
    EXPECT_NEAR(advice.MeterValue, s.score, 3e-7) << s.chance;
  }
}

// A threshold that rounds to the very chance is not passed: the score is the chance over the
// unrounded threshold, on whichever side of it that lies.
TEST_F(PostFlopTest, OnlyTheComparisonRoundsTheThreshold) {
  Advise({5, 0, River, 50, 4, Avg, 0.22, 1.1, 0, kCheckOrFold});
  EXPECT_EQ(advice.MeterValue, 0.22F / (1.1F * (1 / 5.0)) - 1);
  EXPECT_LT(advice.MeterValue, 0);
  Advise({6, 0, Flop, 50, 5, Avg, 250 / 1500.0, 1, 0, kCallSmallBet});
  EXPECT_EQ(advice.MeterValue, static_cast<float>(1 / 6.0) / (1 / 6.0) - 1);
  EXPECT_GT(advice.MeterValue, 0);
}

// The user holds the best hand there is, so the score is 2 at any level.
TEST_F(PostFlopTest, LevelClicks) {
  modHole::LoadHoleTable();
  settings.DealsPerRun = 12;
  const std::vector<Card> cards = CardsOf("AS KS QS JS TS");
  for (std::size_t i = 0; i < 2; ++i) slots.picHand[kSlotOrder[i]] = cards[i];
  seats.SeatStates = {Empty, In, In};  // heads-up
  RunAnalysis();
  EXPECT_EQ(advice.StartOpponents, 1);
  for (std::size_t i = 2; i < 5; ++i) slots.picHand[kSlotOrder[i]] = cards[i];
  run.RecalcNeeded = true;
  RunAnalysis();
  EXPECT_EQ(results.lblAdvice, kReRaise);
  EXPECT_EQ(advice.MeterScore, 2);
  EXPECT_FLOAT_EQ(advice.LevelFactor, 0.8);

  const int yields = display.yields;
  results.lblAdvice = "as it was";
  ChooseLevelPre(Tight);
  ChooseLevelPost(Avg);  // the framed one
  EXPECT_EQ(display.yields, yields);
  EXPECT_EQ(results.lblAdvice, "as it was");
  EXPECT_EQ(advice.MeterScore, 2);
  EXPECT_EQ(store.writes, std::vector<std::string>{"LevelPre=0"});

  ChooseLevelPost(Loose);
  EXPECT_GT(display.yields, yields);
  EXPECT_FLOAT_EQ(advice.LevelFactor, 0.65);
  EXPECT_EQ(results.lblAdvice, kReRaise);
}

}  // namespace
}  // namespace holdem
