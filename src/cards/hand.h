// The hand record: up to seven cards with their suits and ranks, hole cards first. Filled by
// whoever collects a player's cards and completed by FillHand; the evaluator reads the cards.
#pragma once

#include <array>

#include "cards/card.h"

namespace holdem {

struct Hand {
  struct Entry {
    Card card = kNoCard;
    std::int16_t suit = 0;
    std::int16_t rank = 0;
  };

  static constexpr int kMaxCards = 7;

  std::int16_t count = 0;                    // valid entries, 0..7; set by FillHand
  std::array<Entry, kMaxCards + 1> entries;  // by 1..7: 1 and 2 the hole cards, 3..7 the board
};

// Completes suit and rank of the leading entries, up to entry n (at most 7) or the first gap, and
// sets the count. Returns whether there is at least one card.
bool FillHand(Hand& hand, int n);

}  // namespace holdem
