#include "engine/outs.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "effort.h"
#include "fakes/fake_ports.h"
#include "reference/card_text.h"
#include "reference/literal_evaluator.h"
#include "reference/literal_simulation.h"

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

// A card as its rank and suit, the outs as "row cards"; the literal search below sees the rest.
TEST_F(OutsTest, OutsOfKnownHands) {
  const struct {
    const char* cards;
    std::map<int, const char*> outs;  // by row
    int currentRow;
  } cases[] = {
      {"AS 7D 9C 9H 2S", {{1, "AD AC AH 7S 7C 7H"}}, 0},
      // From the straight to the Nine to the one to the Ten: 4.09 and 4.10.
      {"8S 9D 7C 6H 5S", {{3, "TS TD TC TH"}}, 3},
      // A set: four of a kind, or the board pairs.
      {"9S 9D 9C 4H 2S", {{5, "4S 4D 4C 2D 2C 2H"}, {6, "9H"}}, 2},
      // A flush to the Ace has nothing to hope for.
      {"AH 3D KH TH 7H 5H", {}, 4},
  };
  for (const auto& c : cases) {
    results = {};
    Mark(CardsOf(c.cards));
    RowByCard expected = NoOuts();
    for (const auto& [row, outs] : c.outs) {
      for (const Card card : CardsOf(outs)) expected[card] = row;
    }
    EXPECT_EQ(results.OutRows, expected) << c.cards;
    for (int row = 0; row < 9; ++row) {
      EXPECT_EQ(results.lblMe[row], row == c.currentRow ? "Current" : "") << c.cards;
    }
  }
}

// What a value is worth as an improvement: its category and as many of its five digits as count.
constexpr long long kCategoryUnit = 10'000'000'000;
long long ClassByDigits(double value) {
  constexpr std::array<long long, 9> kUnits = {
      kCategoryUnit,         kCategoryUnit,       kCategoryUnit / 10000,
      kCategoryUnit,         kCategoryUnit / 100, kCategoryUnit / 100,
      kCategoryUnit / 10000, kCategoryUnit,       kCategoryUnit / 100};
  const long long digits = std::llround(value * kCategoryUnit);
  const long long unit = kUnits[digits / kCategoryUnit];
  return digits / unit * unit;
}

TEST_F(OutsTest, AgreeWithEveryFreeCardTriedSlowly) {
  for (int situation = 0; situation < Effort(120000); ++situation) {
    std::vector<Card> all(kCardCount);
    std::iota(all.begin(), all.end(), 1);
    // Mostly whole hands; sometimes any slots, in any order of filling. A short deck makes the high
    // categories frequent.
    const bool gaps = literal::NextFloat(generator) < 0.2F;
    const int count = static_cast<int>(literal::NextFloat(generator) * 8);
    const int pool = literal::NextFloat(generator) < 0.5F ? 52 : 12;
    std::vector<Card> held, mine, board;
    for (int i = 0; i < 7; ++i) {
      const bool empty = gaps ? literal::NextFloat(generator) < 0.4F : i >= count;
      const int pick = static_cast<int>(literal::NextFloat(generator) * (pool - i));
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
        if (with > known && with > classWith(board, card))
          row = static_cast<int>(with / kCategoryUnit) - 1;
      }
      ASSERT_EQ(results.OutRows[card], row) << "card " << card << " in situation " << situation;
    }
  }
}

}  // namespace
}  // namespace holdem
