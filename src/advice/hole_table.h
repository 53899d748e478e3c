// The starting-hand table: the chance to win before the flop, a split pot included, for all 169
// kinds of starting hand against one to nine opponents. Read by the pre-flop step. Dealing millions
// of hands gives the same figures to within a percent.
#pragma once

#include <array>
#include <cstdint>

#include "cards/card.h"
#include "state/seats.h"

namespace holdem::modHole {

// What kind of starting hand two hole cards are. The Ace counts as 1 here, so it is hi only in a
// pair of Aces.
struct HoleKind {
  int hi = 0;  // rank 1..13
  int lo = 0;  // rank 1..hi
  bool suited = false;
};

HoleKind KindOf(Card card1, Card card2);

using ByOpponents = std::array<std::uint8_t, kSeats>;  // by 1..9

// 0 where no hand is.
template <typename T>
struct ByKind {
  std::array<std::array<std::array<T, 2>, kRankCount + 1>, kRankCount + 1> cells{};

  constexpr T& operator[](const HoleKind& kind) { return cells[kind.hi][kind.lo][kind.suited]; }
  constexpr const T& operator[](const HoleKind& kind) const {
    return cells[kind.hi][kind.lo][kind.suited];
  }
};

extern const ByKind<ByOpponents> HoleOdds;          // chance to win, in percent
extern const ByKind<std::uint8_t> HoleStraightPct;  // chance to end with a straight, in percent
extern const ByOpponents HoleOddsMax;               // over all kinds
extern const ByOpponents HoleOddsMin;               // likewise

// 0..1. REQUIRES two real cards, 1..9 opponents.
float HoleWinChance(Card card1, Card card2, int opponents);

}  // namespace holdem::modHole
