#include "engine/outs.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "cards/evaluator.h"
#include "engine/results_grid.h"
#include "state/results.h"
#include "state/slots.h"

namespace holdem {
namespace {

// Cuts the digits after the given number of hundreds. It does so by rounding, which is safe because
// these digits add less than 0.15; plain truncation would make 4.09 of 4.10, since the nearest
// double lies below it.
float CutAfter(HandValue value, double hundreds) {
  return static_cast<float>(std::round(value * hundreds) / hundreds);
}

CardSet CardsIn(std::span<const Slot> of) {
  CardSet cards = 0;
  for (const Slot slot : of) cards += SetOf(slots.picHand[slot]);
  return cards;
}

HandValue ValueOf(CardSet cards) { return HandValueOf(PackedValueOf(cards)); }

// The part of a value that counts as an improvement: the category, in two pair and full houses with
// both ranks, in straights and flushes with the top card. Never a kicker.
float HandClass(HandValue value) {
  const int category = static_cast<int>(value);
  switch (category) {
    case TwoPair:
    case FullHouse: return CutAfter(value, 10000);
    case Straight:
    case Flush:
    case StraightFlush: return CutAfter(value, 100);
    default: return static_cast<float>(category);
  }
}

}  // namespace

void MarkOuts() {
  results.OutRows = NoOuts();
  const CardSet mine = CardsIn(kSlotOrder);
  const CardSet board = CardsIn(kBoardSlots);
  if (CountOf(mine) == Hand::kMaxCards) return;

  const HandValue known = ValueOf(mine);
  MarkCurrentCategory(known);
  for (Card card = 1; card <= kCardCount; ++card) {
    if (!slots.InDeck(card)) continue;
    const HandValue with = ValueOf(mine + SetOf(card));
    // A card that improves the board alone improves everybody's hand, so it is no out. What is left
    // is at least a pair, and has a row.
    const HandValue boardWith = ValueOf(board + SetOf(card));
    if (HandClass(with) > std::max(HandClass(known), HandClass(boardWith))) {
      results.OutRows[card] = static_cast<int>(with) - 1;
    }
  }
}

}  // namespace holdem
