// A set of cards as four suit masks in one word: what the evaluator works on. Sets are joined with
// |.
#pragma once

#include <array>

#include "cards/card.h"

namespace holdem {

// One 16-bit lane per suit, 13 bits of it used:
//
//   63     48      32      16       0
//   | Hearts | Clubs | Diam. | Spades |      lane of a suit: bit 0 the Two .. bit 11 the King, bit
//   12 the Ace
//
using CardSet = std::uint64_t;

// A suit's lane, or the ranks of several suits joined; bit = weight - 2.
using RankMask = std::uint32_t;

inline constexpr int kRankMasks = 1 << kRankCount;

constexpr RankMask RankBit(int weight) { return RankMask{1} << (weight - 2); }

constexpr RankMask SuitLane(CardSet cards, int suit) {
  return static_cast<RankMask>(cards >> (16 * (suit - 1))) & (kRankMasks - 1);
}

namespace internal {
constexpr std::array<CardSet, kCardCount + 1> MakeCardBits() {
  std::array<CardSet, kCardCount + 1> bits{};
  for (int card = 1; card <= kCardCount; ++card) {
    bits[card] = CardSet{RankBit(RankWeight(RankOf(card)))} << (16 * (SuitOf(card) - 1));
  }
  return bits;
}
inline constexpr auto kCardBits = MakeCardBits();
}  // namespace internal

// The set of one card; the empty set for no card. REQUIRES 0 <= card <= 52.
constexpr CardSet SetOf(Card card) { return internal::kCardBits[card]; }

}  // namespace holdem
