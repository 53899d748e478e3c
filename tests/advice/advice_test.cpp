#include <cmath>

#include "advice/hole_table.h"
#include "advice/post_flop.h"
#include "advice/pre_flop.h"
#include "cards/evaluator.h"
#include "effort.h"
#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using modHole::ByOpponents, modHole::HoleOdds;

class HoleTable : public ProgramTest {};

TEST_F(HoleTable, KeepsItsRowsWithTheRanksInEitherOrder) {
  modHole::HoleOddsMax = modHole::HoleOddsMin = {};
  const ByOpponents sevenTwo = {0, 38, 22, 16, 12, 10, 8, 7, 7, 6};
  for (const char* row : {"2,7,0,38,22,16,12,10,8,7,7,6,3", "7,2,0,38,22,16,12,10,8,7,7,6,3"}) {
    HoleOdds = {};
    modHole::HoleStraightPct = {};
    modHole::ParseHoleRow(row);
    EXPECT_EQ((HoleOdds[{7, 2, false}]), sevenTwo);
    EXPECT_EQ((modHole::HoleStraightPct[{7, 2, false}]), 3);
    EXPECT_TRUE(modHole::HoleOddsMax == sevenTwo && modHole::HoleOddsMin == sevenTwo);
  }
  modHole::LoadHoleTable();
  EXPECT_EQ((HoleOdds[{King, Ace, true}]), (ByOpponents{0, 68, 52, 42, 36, 32, 29, 26, 24, 22}));
  EXPECT_EQ(modHole::HoleOddsMax, (ByOpponents{0, 85, 74, 64, 56, 50, 44, 39, 35, 31}));
  EXPECT_EQ(modHole::HoleOddsMin, (ByOpponents{0, 35, 22, 15, 12, 10, 8, 7, 7, 6}));
  // The figures were measured: dealing tells within some percent whether one is right, as below,
  // and nothing short of dealing millions of hands whether the last digit is.
  Fingerprint table;
  table.Add(HoleOdds);
  table.Add(modHole::HoleStraightPct);
  EXPECT_EQ(table.value, 5140977201689636472U);
}

TEST_F(HoleTable, SaysOfEachHandWhatDealingGives) {
  modHole::LoadHoleTable();
  const int deals = Effort(6000);
  const auto expectNear = [&](int percent, int count) {
    const double deviation = std::sqrt(percent * (100.0 - percent) / deals);
    EXPECT_NEAR(percent, 100.0 * count / deals, 1 + 3.5 * deviation);
  };
  for (int kind = 0; kind < 13 * 13; ++kind) {
    const int one = kind / 13 + 1, other = kind % 13 + 1;  // those in descending order suited
    const int hi = std::max(one, other), lo = std::min(one, other);
    const Card mine[] = {CardOf(Spades, hi), CardOf(one > other ? Spades : Hearts, lo)};
    SCOPED_TRACE(TextOf(mine[0]) + " " + TextOf(mine[1]));
    std::array<int, kSeats> won{};
    int straights = 0;
    for (int deal = 0; deal < deals; ++deal) {
      deck = {};
      for (const Card card : mine) deck.Use(card);
      CardSet board = 0;
      for (int i = 0; i < 5; ++i) board += SetOf(DealRandomCard());
      const PackedValue value = PackedValueOf(SetOf(mine[0]) + SetOf(mine[1]) + board);
      straights += CategoryOf(value) == Straight;
      for (int opponents = 1; opponents <= 9; ++opponents) {
        const CardSet holes = SetOf(DealRandomCard()) + SetOf(DealRandomCard());
        if (PackedValueOf(holes + board) > value) break;
        ++won[opponents];
      }
    }
    const ByOpponents& odds = HoleOdds[{hi, lo, one > other}];
    const ByOpponents& offsuit = HoleOdds[{hi, lo, false}];
    for (int opponents = 1; opponents <= 9; ++opponents) {
      expectNear(odds[opponents], won[opponents]);
      EXPECT_LE(odds[opponents], opponents == 1 ? 100 : odds[opponents - 1]);
      EXPECT_GE(odds[opponents], offsuit[opponents]);
    }
    expectNear(modHole::HoleStraightPct[{hi, lo, one > other}], straights);
  }
}

class AdviceTest : public ProgramTest {
 protected:
  AdviceTest() { modHole::LoadHoleTable(); }

  // The score to the hundredth, and the advice.
  static std::string Advised() {
    std::ostringstream text;
    text << std::lround(100 * advice.MeterValue) << " " << results.lblAdvice;
    return text.str();
  }
};

// Where a score lies on a border, single precision puts it a hair to one side.
TEST_F(AdviceTest, BeforeTheFlop) {
  enum Blind { None, Small, Big };
  const std::tuple<const char*, int, int, Blind, const char*> cases[] = {
      {"KS KD", 10, 50, None, "162 Raise or Re-Raise"},
      {"QS QD", 10, 50, None, "124 Raise or call raised"},
      {"KS 9S", 10, 50, None, "57 Raise or call 1 small raise"},
      {"KS 9D", 10, 50, None, "19 Call unraised only"},
      {"KS 2D", 10, 0, Small, "-40 Small Blind: Call. Fold if raised."},
      {"KS 2D", 10, 11, Big, "-40 Big Blind: Check or Fold"},
      {"7S 2D", 10, 0, Small, "-100 Small Blind: Fold"},
      {"7S 2D", 2, 100, Small, "26 Small Blind: Call. Fold if raised."},
      {"AS AD", 10, 0, Small, "200 Raise or Re-Raise"},
      {"AS 2D", 5, 25, None, "0 Fold"},
      {"JS 2D", 5, 50, Small, "-50 Small Blind: Fold"},
      {"TS TD", 2, 0, None, "150 Raise or call raised"}};
  for (const auto& [cards, players, percent, blind, advised] : cases) {
    Put(cards);
    analysis = {.PlayerCount = players,
                .PositionPercent = percent,
                .IsSmallBlind = blind == Small,
                .IsBigBlind = blind == Big};
    PreFlopStep();
    EXPECT_EQ(Advised(), advised) << cards << ", " << players << " players";
  }
}

TEST_F(AdviceTest, AfterTheFlop) {
  const std::tuple<int, int, Street, int, int, Level, double, const char*> cases[] = {
      {6, 2, Flop, 50, 5, Avg, 0.25, "0 Check or call one small bet"},
      {6, 2, Flop, 50, 5, Avg, 0.5, "67 Bet or call one small bet"},
      {6, 2, River, 50, 5, Tight, 0.25, "-20 Check or Fold"},
      {2, 0, Flop, 100, 1, Avg, 0.5, "33 Check or call one small bet"},
      {9, 0, Turn, 100, 8, Avg, 1, "200 Raise or Re-Raise"},
      {3, 1, River, 100, 2, Loose, 600 / 1500.0, "0 Check or Fold"},
      {3, 1, River, 100, 2, Loose, 825 / 1500.0, "50 Check or call one small bet"},
      {3, 0, Flop, 0, 1, Loose, 375 / 1500.0, "0 Check or Fold"},
      {3, 1, River, 0, 1, Avg, 1125 / 1500.0, "100 Raise or call one Raise"},
      // A threshold that rounds to the very chance is not passed, and lies to either side of it.
      {5, 0, River, 50, 4, Avg, 0.22, "0 Check or Fold"},
      {6, 0, Flop, 50, 5, Avg, 1 / 6.0, "0 Check or call one small bet"}};
  for (const auto& [players, folded, street, percent, dealt, level, chance, advised] : cases) {
    analysis = {.FoldedCount = folded,
                .PlayerCount = players,
                .PositionPercent = percent,
                .CurrentStreet = street};
    advice.StartOpponents = dealt;
    advice.WinSplitChance = static_cast<float>(chance);
    settings.LevelPost = level;
    PostFlopStep();
    EXPECT_EQ(Advised(), advised) << players << " players, chance " << chance;
  }
}

}  // namespace
}  // namespace holdem
