// What the user can do with cards: click and drag them between the deck window and the slots. What
// cannot be done is ignored silently, and so is a drop whose source no longer holds the card. Every
// change works out the figures anew. A drop on a full slot changes nothing: it runs a pass, but
// asks for no new simulation.
#pragma once

#include "state/slots.h"

namespace holdem {

// Where a card can be picked up or dropped: a slot, or one of the deck window's cards.
struct CardSpot {
  Slot slot = kNoSlot;
  Card deckCard = kNoCard;  // when it is no slot
};

// The card that left `source` is dropped on `target`; a deck card dropped on itself is a click.
void DropCard(const CardSpot& source, Card card, const CardSpot& target);

// Whether that would move the card.
bool CanDropCard(const CardSpot& source, const CardSpot& target);

void ClickDeckCard(Card card);
void DropDeckCard(Card card, Slot slot);
void DropSlotCard(Slot source, Card card, Slot target);
void ReturnSlotCard(Slot source, Card card);  // to the deck
void RightPressSlot(Slot slot);
void TakeLastCardBack();          // the card that was entered last; first what is half typed
void DoubleClickSlot(Slot slot);  // an empty slot receives a random card

// All cards back to the deck; in Manual Mode everybody back in, and the button moves on.
void NewHand();

}  // namespace holdem
