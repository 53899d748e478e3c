#include <cmath>

#include "advice/hole_table.h"
#include "cards/evaluator.h"
#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using modHole::ByOpponents, modHole::HoleOdds;

class HoleTable : public ProgramTest {};

// Dealing tells within some percent whether a figure is right, and nothing short of dealing
// millions of hands whether its last digit is; so the sums of the table's columns are known
// besides.
TEST_F(HoleTable, SaysOfEachHandWhatDealingGives) {
  const int deals = Effort(6000);
  std::array<int, kSeats> sums{};  // of the straights, then by opponents
  for (int kind = 0; kind < 13 * 13; ++kind) {
    const int one = kind / 13 + 1, other = kind % 13 + 1;  // those in descending order suited
    const int hi = std::max(one, other), lo = std::min(one, other);
    const Card mine[] = {CardOf(Spades, hi), CardOf(one > other ? Spades : Hearts, lo)};
    SCOPED_TRACE(TextOf(mine[0]) + " " + TextOf(mine[1]));
    std::array<int, kSeats> won{};  // against so many; straights in the place of none
    for (int deal = 0; deal < deals; ++deal) {
      deck = {};
      for (const Card card : mine) deck.Use(card);
      CardSet board = 0;
      for (int i = 0; i < 5; ++i) board += SetOf(DealRandomCard());
      const PackedValue value = PackedValueOf(SetOf(mine[0]) + SetOf(mine[1]) + board);
      won[0] += CategoryOf(value) == Straight;
      for (int opponents = 1; opponents <= 9; ++opponents) {
        const CardSet holes = SetOf(DealRandomCard()) + SetOf(DealRandomCard());
        if (PackedValueOf(holes + board) > value) break;
        ++won[opponents];
      }
    }
    ByOpponents odds = HoleOdds[{hi, lo, one > other}];
    odds[0] = modHole::HoleStraightPct[{hi, lo, one > other}];
    for (int opponents = 0; opponents <= 9; ++opponents) {
      sums[opponents] += odds[opponents];
      const double percent = odds[opponents], dealt = 100.0 * won[opponents] / deals;
      EXPECT_NEAR(percent, dealt, 1 + 3.5 * std::sqrt(percent * (100 - percent) / deals));
    }
  }
  EXPECT_EQ(modHole::HoleOddsMax, (ByOpponents{0, 85, 74, 64, 56, 50, 44, 39, 35, 31}));
  EXPECT_EQ(modHole::HoleOddsMin, (ByOpponents{0, 35, 22, 15, 12, 10, 8, 7, 7, 6}));
  EXPECT_EQ(sums, (std::array{754, 8956, 6123, 4688, 3824, 3246, 2823, 2526, 2276, 2083}));
}

}  // namespace
}  // namespace holdem
