#include "cards/deck.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>
#include <cstring>

namespace holdem {
namespace {

constexpr int kMostCards = Dealer::kMostCards;

// A byte for each card of a deal, in two registers.
using Bytes = std::array<std::int8_t, kMostCards>;
using Register = std::int8_t __attribute__((vector_size(16)));
using Registers = std::array<Register, kMostCards / sizeof(Register)>;

// The n-th window of this row holds more than any place in its bytes 0..n, and nothing in the rest.
constexpr auto kBeyond = [] {
  std::array<std::int8_t, sizeof(Bytes) * 2> row{};
  std::fill_n(row.begin(), kMostCards, std::int8_t{127});
  return row;
}();
Register BeyondUpTo(int n, std::size_t which) {
  Register window;
  std::memcpy(&window, &kBeyond[kMostCards - 1 - n + which * sizeof(Register)], sizeof(Register));
  return window;
}

}  // namespace

Card DealRandomCard() {
  if (deck.free == 0) std::_Exit(EXIT_FAILURE);
  int toPass = generator.Below(deck.CardsLeft());
  Card card = 1;
  while (deck.DeckUsed(card) || --toPass >= 0) ++card;
  deck.Use(card);
  return card;
}

Dealer::Dealer(const Deck& from) {
  for (Card card = 1; card <= kCardCount; ++card) {
    if (!from.DeckUsed(card)) freeCards_[++cardsLeft_] = card;
  }
}

// A draw passes over some of the cards that are left by then. Reckoned back to the whole deck, from
// the last draw to the first, a place moves up by one for every earlier draw at or before it.
std::array<Card, kMostCards> Dealer::Deal(int count, RandomGenerator& source) const {
  assert(count <= kMostCards && count <= cardsLeft_);
  Bytes passed{};
  RandomGenerator random = source;  // a copy that no store can touch
  for (int i = 0; i < count; ++i) {
    passed[i] = static_cast<std::int8_t>(random.Below(cardsLeft_ - i));
  }
  source = random;

  auto places = std::bit_cast<Registers>(passed);
  for (Register& some : places) some += 1;
  for (int i = count - 2; i >= 0; --i) {
    for (std::size_t which = 0; which < places.size(); ++which) {
      places[which] -= places[which] > (passed[i] | BeyondUpTo(i, which));  // true is -1
    }
  }
  const auto place = std::bit_cast<Bytes>(places);
  std::array<Card, kMostCards> cards;
  for (int i = 0; i < count; ++i) cards[i] = freeCards_[place[i]];
  return cards;
}

}  // namespace holdem
