#include "advice/post_flop.h"

#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using PostFlopTest = ProgramTest;

// Players, folded, street, position, opponents before the flop, level, chance.
void Advise(int players, int folded, Street street, int percent, int startOpponents, int level,
            double chance) {
  analysis.PlayerCount = players;
  analysis.FoldedCount = folded;
  analysis.CurrentStreet = street;
  analysis.PositionPercent = percent;
  advice.StartOpponents = startOpponents;
  advice.WinSplitChance = static_cast<float>(chance);
  settings.LevelPost = level;
  PostFlopStep();
}

TEST_F(PostFlopTest, ScoreByChanceSeatAndLevel) {
  const struct {
    int players, folded;
    Street street;
    int percent, startOpponents, level;
    double chance, factor, score;
  } cases[] = {
      {6, 2, Flop, 50, 5, Avg, 0.40, 1, 0.4},
      {6, 2, Turn, 50, 5, Avg, 0.75, 1, 4.0 / 3},
      {6, 2, Flop, 50, 5, Avg, 1.00, 1, 2},
      {6, 2, Flop, 50, 5, Avg, 0.00, 1, -1},
      {6, 2, River, 50, 5, Avg, 0.275, 1.1, 0},
      {6, 2, River, 50, 5, Tight, 0.3125, 1.25, 0},
      {6, 2, River, 50, 5, Loose, 0.475, 0.95, 0.475 / 0.7625},
      {6, 2, Flop, 50, 5, -1, 0.25, 1, 0},
      {6, 2, Flop, 33, 5, Avg, 0.22, 1.1, -0.2},
      {6, 2, Flop, 34, 5, Avg, 0.20, 1, -0.2},
      {6, 2, Flop, 65, 5, Avg, 0.20, 1, -0.2},
      {6, 2, Flop, 66, 5, Avg, 0.18, 0.9, -0.2},
      {6, 2, Flop, 99, 5, Avg, 0.18, 0.9, -0.2},
      {6, 2, Flop, 100, 5, Avg, 0.17, 0.85, -0.2},
      // Two seated: no position. What counts as heads-up is the last deal seen before the flop.
      {2, 0, Flop, 100, 1, Avg, 0.32, 0.8, -0.2},
      {2, 0, Flop, 0, 0, Avg, 0.40, 1, -0.2},
      {6, 4, Flop, 50, 1, Avg, 0.32, 0.8, -0.2},
      {6, 4, Flop, 50, 5, Avg, 0.40, 1, -0.2},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    Advise(c.players, c.folded, c.street, c.percent, c.startOpponents, c.level, c.chance);
    EXPECT_EQ(advice.FairShare, 1.0 / (c.players - c.folded));
    EXPECT_FLOAT_EQ(advice.LevelFactor, c.factor);
    EXPECT_DOUBLE_EQ(advice.MeterThreshold, advice.LevelFactor * advice.FairShare);
    EXPECT_NEAR(advice.MeterValue, c.score, 3e-7);
    EXPECT_EQ(advice.MeterScore, advice.MeterValue);
    EXPECT_EQ(results.lblAdvice, c.score < 0     ? "Check or Fold"
                                 : c.score < 0.5 ? "Check or call one small bet"
                                 : c.score < 1   ? "Bet or call one small bet"
                                 : c.score < 1.5 ? "Raise or call one Raise"
                                                 : "Raise or Re-Raise");
  }
}

// The exact score lies on a border; single precision decides.
TEST_F(PostFlopTest, ScoresAHairFromABorderStayOnTheirSide) {
  Advise(3, 1, River, 100, 2, Loose, 600 / 1500.0);
  EXPECT_TRUE(advice.MeterValue < 0 && advice.MeterValue > -3e-7);
  Advise(3, 1, River, 100, 2, Loose, 825 / 1500.0);
  EXPECT_TRUE(advice.MeterValue < 0.5 && advice.MeterValue > 0.5 - 3e-7);
  Advise(3, 0, Flop, 0, 1, Loose, 375 / 1500.0);
  EXPECT_TRUE(advice.MeterValue < 0 && advice.MeterValue > -3e-7);
  Advise(3, 1, River, 0, 1, Avg, 1125 / 1500.0);
  EXPECT_TRUE(advice.MeterValue >= 1 && advice.MeterValue < 1 + 3e-7);
  // A threshold that rounds to the very chance is not passed: the score is the chance over the
  // unrounded threshold, on whichever side of it that lies.
  Advise(5, 0, River, 50, 4, Avg, 0.22);
  EXPECT_EQ(advice.MeterValue, 0.22F / (1.1F * (1 / 5.0)) - 1);
  EXPECT_LT(advice.MeterValue, 0);
  Advise(6, 0, Flop, 50, 5, Avg, 250 / 1500.0);
  EXPECT_EQ(advice.MeterValue, static_cast<float>(1 / 6.0) / (1 / 6.0) - 1);
  EXPECT_GT(advice.MeterValue, 0);
}

}  // namespace
}  // namespace holdem
