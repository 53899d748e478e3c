// The hand evaluator: turns up to seven cards into one comparable number, for everybody who must
// know which hand is better. The simulation compares packed values; all others use the double.
#pragma once

#include "cards/card_set.h"
#include "cards/hand.h"

namespace holdem {

enum HandCategory : int {
  HighCard,
  OnePair,
  TwoPair,
  ThreeOfAKind,
  Straight,
  Flush,
  FullHouse,
  FourOfAKind,
  StraightFlush
};
inline constexpr int kCategoryCount = 9;

// The category of the best five cards and its deciding rank weights d1..d5, in the order of hand
// strength:
//
//   24    21  20  19    16 15    12 11     8 7      4 3      0
//   | categ. | ½ |   d1   |   d2   |   d3   |   d4   |   d5   |     missing digits are 0
//
// Larger is better, equal is a tie. The half point is for scores that count draws: added up in half
// points, their bonus carries into the category.
using PackedValue = std::uint32_t;

inline constexpr int kHalfPointShift = 20;
inline constexpr int kCategoryShift = 21;

constexpr int CategoryOf(PackedValue value) { return static_cast<int>(value >> kCategoryShift); }

// Category plus d1/100 + d2/100^2 + ... + d5/100^5, summed from left to right, so that equal hands
// give bit-identical doubles. Same order as PackedValue.
using HandValue = double;

// Values 0..7 distinct cards. No allocation, no loop over ranks.
PackedValue PackedValueOf(CardSet cards);

HandValue HandValueOf(PackedValue value);

// The value plus the bonus for flush and straight draws; made hands from a straight up get none.
// It is only a score, which no longer decodes: its category means nothing. REQUIRES: cards holds
// count cards, 5 (flop) or 6 (turn), the two hole cards among them.
PackedValue DrawScore(CardSet cards, int count, Card hole1, Card hole2);

// The value of a hand completed by FillHand. REQUIRES: codes 1..52 only.
HandValue EvaluateHand(const Hand& hand);

}  // namespace holdem
