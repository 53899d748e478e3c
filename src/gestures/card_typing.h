// Cards entered by their letters: the rank, then the suit, as in "as", "TH" or "10c".
#pragma once

#include "state/slots.h"

namespace holdem {

// A rank is shown in its slot and waits for its suit, with which the card is entered. It goes to
// the focused slot when that is an empty one, else to the next slot to fill; `focusedSlot` is
// kNoSlot when no slot has the keyboard. A character that is no part of a card ends the waiting.
void TypeCharacter(char character, Slot focusedSlot);

}  // namespace holdem
