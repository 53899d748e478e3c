// Card codes, the vocabulary every other folder speaks: one number per card, split into suit and
// rank.
#pragma once

#include <cstdint>

namespace holdem {

// A card code: 1..52 = (suit - 1) x 13 + rank. Anything below 1 is no card. 53 and 54 are
// placeholders for an unknown card; their suit and rank read as 99. Other codes are invalid and
// read as 0.
using Card = std::int16_t;

enum Suit : int { Spades = 1, Diamonds, Clubs, Hearts };
enum Rank : int { Ace = 1, Jack = 11, Queen, King };

inline constexpr Card kNoCard = 0;
inline constexpr Card kCardCount = 52;
inline constexpr int kRankCount = 13;

constexpr bool IsRealCard(int card) { return card >= 1 && card <= kCardCount; }
constexpr bool IsPlaceholder(int card) { return card == 53 || card == 54; }

constexpr int SuitOf(int card) {
  return IsRealCard(card) ? (card - 1) / kRankCount + 1 : IsPlaceholder(card) ? 99 : 0;
}

// 1 the Ace .. 13 the King.
constexpr int RankOf(int card) {
  return IsRealCard(card) ? (card - 1) % kRankCount + 1 : IsPlaceholder(card) ? 99 : 0;
}

constexpr Card CardOf(int suit, int rank) {
  return static_cast<Card>((suit - 1) * kRankCount + rank);
}

// How high a rank counts: 2..13 for Two..King, 14 for an Ace.
constexpr int RankWeight(int rank) { return rank == Ace ? 14 : rank; }

}  // namespace holdem
