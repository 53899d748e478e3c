// A set of up to seven cards as four suits in one word: what the evaluator works on. Sets without a
// common card are joined with +, and a part is taken out with -.
#pragma once

#include <array>
#include <bit>

#include "cards/card.h"

namespace holdem {

// One 16-bit lane per suit, and in each lane the number of its cards above their ranks:
//
//   63     48      32      16       0          15   13 12             0
//   | Hearts | Clubs | Diam. | Spades |        | count | A K Q ... 3 2 |
//
using CardSet = std::uint64_t;

// The ranks of a suit, or of several suits joined; bit = weight - 2.
using RankMask = std::uint32_t;

inline constexpr int kLaneBits = 16;
inline constexpr CardSet kAllRanks = 0x1fff'1fff'1fff'1fff;
inline constexpr int kRankMasks = 1 << kRankCount;

constexpr RankMask RankBit(int weight) { return RankMask{1} << (weight - 2); }

namespace internal {
constexpr std::array<CardSet, kCardCount + 1> MakeCardBits() {
  std::array<CardSet, kCardCount + 1> bits{};
  for (int card = 1; card <= kCardCount; ++card) {
    const CardSet lane = RankBit(RankWeight(RankOf(card))) | kRankMasks;
    bits[card] = lane << (kLaneBits * (SuitOf(card) - 1));
  }
  return bits;
}
inline constexpr auto kCardBits = MakeCardBits();
}  // namespace internal

// The set of one card; the empty set for no card. REQUIRES 0 <= card <= 52.
constexpr CardSet SetOf(Card card) { return internal::kCardBits[card]; }

constexpr int CountOf(CardSet cards) { return std::popcount(cards & kAllRanks); }

}  // namespace holdem
