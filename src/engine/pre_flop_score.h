// How strong two hole cards are by themselves: of the simulated opponents the weakest fold first
// before the flop.
#pragma once

#include <algorithm>
#include <array>

#include "cards/card.h"

namespace holdem {

// In points, 0 unless both codes are real cards. Only their order counts; at most 58, a pair of
// Aces.
constexpr int PreFlopScore(Card card1, Card card2) {
  if (!IsRealCard(card1) || !IsRealCard(card2)) return 0;
  // By rank: its number, but more for each court card and the Ten, with which high pairs and
  // straights are made, and most for the Ace.
  constexpr std::array<int, kRankCount + 1> kPoints = {0, 19, 2, 3,  4,  5,  6,
                                                       7, 8,  9, 12, 14, 15, 16};
  constexpr int kPair = 20;  // with it, two Twos are worth an Ace and a Two of another suit
  constexpr int kSuited = 5;
  constexpr int kNoStraight = 4;  // from this gap on; a smaller one is worth what is lacking to it

  const int rank1 = RankOf(card1);
  const int rank2 = RankOf(card2);
  const int low = std::min(rank1, rank2);
  const int high = std::max(rank1, rank2);
  const bool aceHigh = low == Ace && high >= Jack;
  const int gap = aceHigh ? 14 - high : high - low;
  return kPoints[rank1] + kPoints[rank2] + (rank1 == rank2 ? kPair : 0) +
         (SuitOf(card1) == SuitOf(card2) ? kSuited : 0) +
         (gap >= 1 && gap < kNoStraight ? kNoStraight - gap : 0);
}

}  // namespace holdem
