// Deals many cards at once, over and over from the same deck: for the simulation.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstdint>

#include "cards/deck.h"
#include "cards/random.h"

namespace holdem {

class Dealer {
 public:
  // Where a card lies among those that were free when the dealer was made: 1..CardsLeft(), in the
  // order of the codes.
  using Place = std::uint8_t;

  explicit Dealer(const Deck& from) {
    for (Card card = 1; card <= kCardCount; ++card) {
      if (!from.DeckUsed(card)) cards_[++cardsLeft_] = card;
    }
  }

  int CardsLeft() const { return cardsLeft_; }
  Card CardAt(int place) const { return cards_[place]; }  // REQUIRES 1 <= place <= CardsLeft()

  // The places of the very cards that so many calls of DealRandomCard would take from the deck, by
  // the same draws from the source; further places are undefined. At most 32 cards, which fill two
  // registers. REQUIRES: the deck has as many.
  template <int kCount>
  auto Deal(RandomGenerator& source) const;

 private:
  // A byte for each card of a deal, in registers of 16.
  using Register = std::int8_t __attribute__((vector_size(16)));
  using Words = std::uint64_t __attribute__((vector_size(16)));
  static constexpr int kLanes = sizeof(Register);

  static Register RegisterOf(std::uint64_t low, std::uint64_t high) {
    return std::bit_cast<Register>(Words{low, high});
  }

  int cardsLeft_ = 0;
  std::array<Card, kCardCount + 1> cards_{};  // by place
};

namespace internal {

// How far to the left a lane's byte is shifted within its word of eight lanes, which lie in memory
// in their order.
constexpr int ShiftOfLane(int lane) {
  return 8 * (std::endian::native == std::endian::little ? lane % 8 : 7 - lane % 8);
}

// By n: more than any place in lanes 0..n, nothing in the rest.
inline constexpr auto kBeyondUpTo = [] {
  std::array<std::array<std::int8_t, 16>, 16> rows{};
  for (int n = 0; n < 16; ++n) std::fill_n(rows[n].begin(), n + 1, std::int8_t{127});
  return rows;
}();

}  // namespace internal

// A draw skips some of the cards that are left by then, so it says a place in what the earlier
// draws have left of the deck. The loop gives draw i's card back to the deck, from the last i that
// has a later one to the first: by that, the places of all later draws that are at or beyond that
// card's move up by one - beyond `skipped`, which counts from 0 where places count from 1. Those of
// draws 0..i stay, for they were made while the card was there.
template <int kCount>
auto Dealer::Deal(RandomGenerator& source) const {
  constexpr int kRegisters = (kCount + kLanes - 1) / kLanes;
  static_assert(1 <= kCount && kRegisters <= 2,
                "later lanes are in the register of the draw or in the one after it");
  static_assert(std::endian::native == std::endian::little ||
                std::endian::native == std::endian::big);
  assert(kCount <= cardsLeft_);
  RandomGenerator random = source;  // a copy, which the compiler can keep in registers
  std::array<std::uint64_t, kCount> skipped;
  std::array<std::uint64_t, 2 * kRegisters> words{};
#pragma GCC unroll 32
  for (int i = 0; i < kCount; ++i) {
    skipped[i] = static_cast<std::uint64_t>(random.Below(cardsLeft_ - i));
    words[i / 8] |= skipped[i] << internal::ShiftOfLane(i);
  }
  source = random;

  std::array<Register, kRegisters> places;
#pragma GCC unroll 2
  for (int r = 0; r < kRegisters; ++r) places[r] = RegisterOf(words[2 * r], words[2 * r + 1]) + 1;
#pragma GCC unroll 32
  for (int i = kCount - 2; i >= 0; --i) {
    const std::uint64_t eightTimes = skipped[i] * 0x0101'0101'0101'0101;
    const Register earlier = RegisterOf(eightTimes, eightTimes);
    const auto notLater = std::bit_cast<Register>(internal::kBeyondUpTo[i % kLanes]);
    places[i / kLanes] -= places[i / kLanes] > (earlier | notLater);  // true is -1
    if (i / kLanes + 1 < kRegisters) places[kRegisters - 1] -= places[kRegisters - 1] > earlier;
  }
  return std::bit_cast<std::array<Place, kRegisters * kLanes>>(places);
}

}  // namespace holdem
