#include "cards/deck.h"

#include <cstdlib>

#include "cards/random.h"

namespace holdem {

Card DealRandomCard() {
  if (deck.free == 0) std::_Exit(EXIT_FAILURE);
  int toSkip = generator.Below(deck.CardsLeft());
  Card card = 1;
  while (deck.DeckUsed(card) || --toSkip >= 0) ++card;
  deck.Use(card);
  return card;
}

}  // namespace holdem
