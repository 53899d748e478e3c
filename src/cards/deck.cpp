#include "cards/deck.h"

#include <array>
#include <cassert>
#include <cstdlib>

#include "cards/random.h"

namespace holdem {
namespace {

constexpr std::uint64_t kEveryByte = 0x0101010101010101;

// In byte i, how many bits are set in bytes 0..i.
std::uint64_t RunningBitCounts(std::uint64_t word) {
  word -= (word >> 1) & 0x5555555555555555;
  word = (word & 0x3333333333333333) + ((word >> 2) & 0x3333333333333333);
  word = (word + (word >> 4)) & 0x0f0f0f0f0f0f0f0f;
  return word * kEveryByte;
}

// By byte and k = 1..8: the place 0..7 of the byte's k-th set bit.
using BitPlaces = std::array<std::array<std::uint8_t, 9>, 256>;
constexpr BitPlaces MakeBitPlaces() {
  BitPlaces places{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    int k = 0;
    for (unsigned bit = 0; bit < 8; ++bit) {
      if (byte >> bit & 1) places[byte][++k] = static_cast<std::uint8_t>(bit);
    }
  }
  return places;
}
constexpr BitPlaces kBitPlaces = MakeBitPlaces();

Card FreeCard(std::uint64_t free, std::uint64_t counts, int k) {
  // The high bit of a byte is set where its running count reaches k; the first such byte holds the
  // card.
  constexpr std::uint64_t kHighBits = 0x80 * kEveryByte;
  const std::uint64_t reached =
      ((counts | kHighBits) - static_cast<std::uint64_t>(k) * kEveryByte) & kHighBits;
  const int shift = std::countr_zero(reached) & ~7;
  const int before = shift == 0 ? 0 : static_cast<int>(counts >> (shift - 8) & 0xff);
  return static_cast<Card>(shift + kBitPlaces[free >> shift & 0xff][k - before] + 1);
}

}  // namespace

Card FreeCard(const Deck& from, int k) {
  assert(k >= 1 && k <= from.CardsLeft());
  return FreeCard(from.free, RunningBitCounts(from.free), k);
}

Card DealRandomCard() {
  if (deck.free == 0) std::_Exit(EXIT_FAILURE);
  const std::uint64_t counts = RunningBitCounts(deck.free);
  const int cardsLeft = static_cast<int>(counts >> 56);
  const Card card = FreeCard(deck.free, counts, DrawnPlace(generator.NextFloat(), cardsLeft));
  deck.Use(card);
  return card;
}

}  // namespace holdem
