// Cards entered by their letters: the rank, then the suit, as in "as", "TH" or "10c".
#pragma once

#include "state/slots.h"

namespace holdem {

// The rank waits, and is shown, until its suit follows; then the card goes to the focused slot when
// that is an empty one, else to the next to fill (kNoSlot: none has the focus). A character that is
// no part of a card ends the waiting.
void TypeCharacter(char character, Slot focusedSlot);

}  // namespace holdem
