// The two slot operations, through which every card enters and leaves a slot, and the marker on the
// next slot to fill.
#pragma once

#include "state/slots.h"

namespace holdem {

// Puts the card into the slot, or none; a card that the slot held goes back to the deck.
void FillSlot(Slot slot, Card card);

// Sends the slot's card back to the deck.
void EmptySlot(Slot slot);

// Moves the card from one slot to another. It keeps its turn in the order of entering, by which
// Backspace takes cards back.
void MoveCard(Slot source, Slot target);

// The user picks a card up, and puts it down again wherever that is; in between Auto Read waits.
void LiftCard();
void LowerCard();

// The first empty slot in the order of filling, kNoSlot when all are filled.
Slot NextEmptySlot();

// Shows in the slot that a rank has been typed and waits for its suit. With intoNext it is shown in
// whichever slot is next to fill, also when that becomes another one.
void ShowTyped(char rank, Slot slot, bool intoNext);

// No rank waits any more.
void ForgetTyped();

// Shows the "?" on the next slot to fill or takes it off, by turns; always shown where nothing is
// to flash, never while a table is followed.
void BlinkMarker(bool flashing);

// The marker is not shown until the next blink.
void HideMarker();

}  // namespace holdem
