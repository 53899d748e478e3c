#include "engine/outs.h"

#include <algorithm>
#include <cmath>

#include "effort.h"
#include "fakes/fake_ports.h"
#include "reference/card_text.h"
#include "reference/literal_evaluator.h"

namespace holdem {
namespace {

class OutsTest : public ProgramTest {
 protected:
  // In the order of filling; kNoCard leaves a slot empty.
  static void Mark(const std::vector<Card>& cards) {
    for (std::size_t i = 0; i < kSlotOrder.size(); ++i) {
      slots.picHand[kSlotOrder[i]] = i < cards.size() ? cards[i] : kNoCard;
    }
    MarkOuts();
  }
};

// Among them are values whose binary form falls short of the digits they stand for.
TEST_F(OutsTest, WhatCountsAsAnImprovement) {
  const struct {
    HandValue value;
    float handClass;
  } cases[] = {{0, 0},
               {0.1413121109, 0},
               {1.14131211, 1},
               {3.071413, 3},
               {7.1402, 7},
               {2.131204, 2.1312F},
               {2.1312, 2.1312F},
               {2.020314, 2.0203F},
               {6.0204, 6.0204F},
               {6.1413, 6.1413F},
               {4.05, 4.05F},
               {4.06, 4.06F},
               {4.1, 4.10F},
               {4.14, 4.14F},
               {5.1413121109, 5.14F},
               {8.12, 8.12F}};
  for (const auto& c : cases) EXPECT_EQ(HandClass(c.value), c.handClass) << c.value;
}

// A card as its rank and suit, the outs as "row: cards".
TEST_F(OutsTest, OutsOfKnownHands) {
  const struct {
    const char* cards;
    std::array<const char*, 8> outs;  // by row
    int currentRow;
  } cases[] = {
      {"9S 9D", {"", "", "9C 9H"}, 0},
      {"AS KD", {"AD AC AH KS KC KH"}, -1},
      {"AS 7D 9C 9H 2S", {"", "AD AC AH 7S 7C 7H"}, 0},
      // A flush draw with an overcard.
      {"AH 8H KH 6H 2C", {"AS AD AC 8S 8D 8C", "", "", "", "2H 3H 4H 5H 7H 9H TH JH QH"}, -1},
      // From the straight to the Nine to the one to the Ten: 4.09 and 4.10.
      {"8S 9D 7C 6H 5S", {"", "", "", "TS TD TC TH"}, 3},
      // A set: four of a kind, or the board pairs.
      {"9S 9D 9C 4H 2S", {"", "", "", "", "", "4S 4D 4C 2D 2C 2H", "9H"}, 2},
      // A flush to the Ace has nothing to hope for.
      {"AH 3D KH TH 7H 5H", {}, 4},
      {"6S", {"6D 6C 6H"}, -1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.cards);
    results = {};
    Mark(CardsOf(c.cards));
    std::array<int, kCardCount + 1> expected;
    expected.fill(kNoOut);
    for (int row = 0; row < 8; ++row) {
      if (c.outs[row] == nullptr) continue;
      for (const Card card : CardsOf(c.outs[row])) expected[card] = row;
    }
    for (Card card = 1; card <= kCardCount; ++card) {
      EXPECT_EQ(results.OutRows[card], expected[card]) << card;
    }
    for (int row = 0; row < 9; ++row) {
      EXPECT_EQ(results.lblMe[row], row == c.currentRow ? "Current" : "") << row;
    }
  }
}

// What a value is worth as an improvement: its category and as many of its five digits as count.
long long ClassByDigits(double value) {
  constexpr long long kCategoryUnit = 10'000'000'000;
  constexpr std::array<long long, 9> kUnits = {
      kCategoryUnit,         kCategoryUnit,       kCategoryUnit / 10000,
      kCategoryUnit,         kCategoryUnit / 100, kCategoryUnit / 100,
      kCategoryUnit / 10000, kCategoryUnit,       kCategoryUnit / 100};
  const long long digits = std::llround(value * kCategoryUnit);
  const long long unit = kUnits[digits / kCategoryUnit];
  return digits / unit * unit;
}

int CategoryOfClass(long long byDigits) { return static_cast<int>(byDigits / 10'000'000'000); }

TEST_F(OutsTest, AgreeWithEveryFreeCardTriedSlowly) {
  std::array<int, 8> outsByRow{};
  for (int situation = 0; situation < Effort(120000); ++situation) {
    std::vector<Card> all;
    for (Card card = 1; card <= kCardCount; ++card) all.push_back(card);
    std::vector<Card> held;
    // Mostly whole hands; sometimes any slots, in any order of filling.
    const bool gaps = generator.NextFloat() < 0.2F;
    const int count = static_cast<int>(generator.NextFloat() * 8);
    // A short deck makes the high categories frequent.
    const int pool = generator.NextFloat() < 0.5F ? 52 : 12;
    std::vector<Card> mine, board;
    for (int i = 0; i < 7; ++i) {
      const bool empty = gaps ? generator.NextFloat() < 0.4F : i >= count;
      const int pick = static_cast<int>(generator.NextFloat() * (pool - i));
      held.push_back(empty ? kNoCard : all[pick]);
      if (empty) continue;
      mine.push_back(all[pick]);
      if (i >= 2) board.push_back(all[pick]);
      all.erase(all.begin() + pick);
    }
    Mark(held);

    const auto classWith = [](std::vector<Card> cards, Card card) {
      cards.push_back(card);
      return ClassByDigits(literal::EvaluateHand(HandOf(cards), false));
    };
    const bool marked = !mine.empty() && mine.size() < 7;
    const long long known = ClassByDigits(literal::EvaluateHand(HandOf(mine), false));
    for (Card card = 1; card <= kCardCount; ++card) {
      int row = kNoOut;
      if (marked && std::count(mine.begin(), mine.end(), card) == 0) {
        const long long with = classWith(mine, card);
        if (with > known && with > classWith(board, card)) row = CategoryOfClass(with) - 1;
      }
      ASSERT_EQ(results.OutRows[card], row) << "card " << card << " in situation " << situation;
      if (row != kNoOut) ++outsByRow[row];
    }
  }
  for (const int outs : outsByRow) EXPECT_GT(outs, 0);
}

TEST_F(OutsTest, NothingIsMarkedWithoutTheDeckWindowOrWithAllCardsKnown) {
  Mark(CardsOf("9S 9D"));
  const auto marked = results.OutRows;
  slots.DeckShown = false;
  Mark({});
  EXPECT_EQ(results.OutRows, marked);
  slots.DeckShown = true;
  for (const char* const cards : {"", "9S 9D 2C 3H 8S 5D KC"}) {
    Mark(CardsOf("9S 9D"));
    results.lblMe[0] = "before";
    Mark(CardsOf(cards));
    EXPECT_EQ(results.OutRows, NoOuts()) << cards;
    EXPECT_EQ(results.lblMe[0], "before") << cards;
  }
}

}  // namespace
}  // namespace holdem
