// The deck: which of the 52 cards are still free, and the random dealing from them. Rebuilt by
// every analysis pass from what the deck window shows; dealt from by the simulation and by random
// card entry.
// Written by: cards/ engine/
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

  bool operator==(const Deck&) const = default;
};

inline Deck deck;

// Takes one free card at random from the deck, each with the same chance. With no card left the
// process ends at once: no caller lets that happen, and none could carry on.
Card DealRandomCard();

}  // namespace holdem
