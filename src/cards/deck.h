// The deck: which of the 52 cards are still free, and the random dealing of one of them. Rebuilt by
// every analysis pass from what the deck window shows; dealt from by the simulation and by random
// card entry.
#pragma once

#include <bit>
#include <cstdint>

#include "cards/card.h"

namespace holdem {

struct Deck {
  static constexpr std::uint64_t kAllFree = (std::uint64_t{1} << kCardCount) - 1;

  std::uint64_t free = kAllFree;  // bit (card code - 1)

  bool DeckUsed(Card card) const { return (free >> (card - 1) & 1) == 0; }
  int CardsLeft() const { return std::popcount(free); }
  void Use(Card card) { free &= ~(std::uint64_t{1} << (card - 1)); }
};

inline Deck deck;

// The k-th free card in the order of the codes. REQUIRES 1 <= k <= from.CardsLeft().
Card FreeCard(const Deck& from, int k);

// Which free card a draw picks: the integer part of r x cardsLeft + 1, in 1..cardsLeft for r in [0,
// 1). The product is exact in double precision; in single precision it would round up to cardsLeft
// + 1.
constexpr int DrawnPlace(float r, int cardsLeft) {
  return static_cast<int>(static_cast<double>(r) * cardsLeft + 1);
}

// Takes one free card at random from the deck, each with the same chance. With no card left the
// process ends at once: no caller lets that happen, and none could carry on.
Card DealRandomCard();

}  // namespace holdem
