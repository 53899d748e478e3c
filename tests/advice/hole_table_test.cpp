#include "advice/hole_table.h"

#include <gtest/gtest.h>

namespace holdem::modHole {
namespace {

// FNV-1a over all kinds, the empty places included: nine chances to win, then the straight.
std::uint64_t Fingerprint() {
  std::uint64_t hash = 0xcbf29ce484222325;
  const auto add = [&](std::uint8_t value) { hash = (hash ^ value) * 0x100000001b3; };
  for (int hi = 1; hi <= kRankCount; ++hi) {
    for (int lo = 1; lo <= hi; ++lo) {
      for (const bool suited : {false, true}) {
        for (int rival = 1; rival <= 9; ++rival) add(HoleOdds[{hi, lo, suited}][rival]);
        add(HoleStraightPct[{hi, lo, suited}]);
      }
    }
  }
  return hash;
}

TEST(HoleTable, StaysAsItIs) {
  for (int load = 0; load < 2; ++load) {
    LoadHoleTable();
    EXPECT_EQ(Fingerprint(), 0x7f11d7b768a8bc4aU);
  }
  EXPECT_EQ(HoleOddsMax, (ByOpponents{0, 85, 74, 64, 56, 50, 44, 39, 35, 31}));
  EXPECT_EQ(HoleOddsMin, (ByOpponents{0, 35, 22, 15, 12, 10, 8, 7, 7, 6}));
}

}  // namespace
}  // namespace holdem::modHole
