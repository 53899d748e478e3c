// What a run of the simulation works on, copied at its start: whatever changes during the run
// touches only the next one.
#pragma once

#include <array>

#include "cards/dealer.h"
#include "cards/seven_cards.h"
#include "state/seats.h"

namespace holdem {

inline constexpr int kHoleCards = 2;
inline constexpr int kFullBoard = 5;

struct KnownCards {
  CardSet set = 0;
  CardSum sum = 0;

  void Add(Card card);
};

struct RunInputs {
  int playerCount = 0;
  int deals = 0;    // to be played, settings.DealsPerRun
  KnownCards mine;  // the hole cards
  KnownCards board{.sum = SevenCards::kNoCards};
  int boardCount = 0;
  std::array<CardSet, kFullBoard + 1> boardUpTo{};   // the first n known board cards, by n
  std::array<int, FoldedRiver + 1> foldsByStreet{};  // by folded state
  bool anybodyFolds = false;
  Deck startDeck = deck;  // as the run finds the deck, and leaves it
  Dealer dealer{startDeck};
  std::array<CardSet, kCardCount + 1> setAt{};  // by the dealer's places
  std::array<CardSum, kCardCount + 1> sumAt{};
  const SevenCards& sevenCards = SevenCards::Table();
};

// REQUIRES: as RunSimulation.
RunInputs CopyInputs();

}  // namespace holdem
