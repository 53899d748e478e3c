// What flashes in the main window, so that the eye finds it.
#pragma once

namespace holdem {

// What the main window's 600 ms timer does: blinks the advice text and the "?" on the next slot to
// fill. Where the user wants nothing to flash, both stay lit.
void Blink(bool flashing);

}  // namespace holdem
