#include "advice/hole_table.h"

#include <gtest/gtest.h>

#include "reference/card_text.h"

namespace holdem::modHole {
namespace {

class HoleTable : public testing::Test {
 protected:
  HoleTable() { Reload(); }
  ~HoleTable() override { Reload(); }

  static void Reload() {
    HoleOdds = {};
    HoleStraightPct = {};
    HoleOddsMax = HoleOddsMin = {};
    LoadHoleTable();
  }

  // FNV-1a over all kinds, the empty places included: nine chances to win, then the straight.
  static std::uint64_t Fingerprint() {
    std::uint64_t hash = 0xcbf29ce484222325;
    const auto add = [&](std::uint8_t value) { hash = (hash ^ value) * 0x100000001b3; };
    for (int hi = 1; hi <= kRankCount; ++hi) {
      for (int lo = 1; lo <= hi; ++lo) {
        for (const bool suited : {false, true}) {
          for (int opponents = 1; opponents <= 9; ++opponents) {
            add(HoleOdds[{hi, lo, suited}][opponents]);
          }
          add(HoleStraightPct[{hi, lo, suited}]);
        }
      }
    }
    return hash;
  }
};

TEST_F(HoleTable, StaysAsItIs) {
  EXPECT_EQ(Fingerprint(), 0x7f11d7b768a8bc4aU);
  LoadHoleTable();
  EXPECT_EQ(Fingerprint(), 0x7f11d7b768a8bc4aU);
  EXPECT_EQ(HoleOddsMax, (ByOpponents{0, 85, 74, 64, 56, 50, 44, 39, 35, 31}));
  EXPECT_EQ(HoleOddsMin, (ByOpponents{0, 35, 22, 15, 12, 10, 8, 7, 7, 6}));
}

TEST_F(HoleTable, WinChances) {
  const struct {
    const char* cards;
    ByOpponents percent;
    int straight;
  } cases[] = {{"AS KS", {0, 68, 52, 42, 36, 32, 29, 26, 24, 22}, 3},
               {"AH AC", {0, 85, 74, 64, 56, 50, 44, 39, 35, 31}, 1},
               {"7D 2H", {0, 38, 22, 16, 12, 10, 8, 7, 7, 6}, 3},
               {"JC KC", {0, 64, 47, 38, 32, 28, 25, 23, 20, 19}, 5},
               {"4S 5D", {0, 41, 27, 21, 17, 14, 13, 11, 10, 10}, 9}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.cards);
    const std::vector<Card> cards = CardsOf(c.cards);
    for (int opponents = 1; opponents <= 9; ++opponents) {
      const float chance = static_cast<float>(c.percent[opponents] / 100.0);
      EXPECT_EQ(HoleWinChance(cards[0], cards[1], opponents), chance);
      EXPECT_EQ(HoleWinChance(cards[1], cards[0], opponents), chance);
    }
    EXPECT_EQ(HoleStraightPct[KindOf(cards[1], cards[0])], c.straight);
  }
}

TEST_F(HoleTable, ARowMayGiveItsRanksInEitherOrder) {
  for (const char* const row :
       {"4,9,1,90,80,70,60,50,40,30,20,5,8", "9,4,1,90,80,70,60,50,40,30,20,5,8"}) {
    HoleOdds[{9, 4, true}] = {};
    ParseHoleRow(row);
    EXPECT_EQ((HoleOdds[{9, 4, true}]), (ByOpponents{0, 90, 80, 70, 60, 50, 40, 30, 20, 5}));
    EXPECT_EQ((HoleStraightPct[{9, 4, true}]), 8);
  }
  EXPECT_EQ(HoleOddsMax, (ByOpponents{0, 90, 80, 70, 60, 50, 44, 39, 35, 31}));
  EXPECT_EQ(HoleOddsMin, (ByOpponents{0, 35, 22, 15, 12, 10, 8, 7, 7, 5}));
}

}  // namespace
}  // namespace holdem::modHole
