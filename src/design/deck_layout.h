// The deck window as designed: where its cards stand, in twips from the left and top of the client
// area.
#pragma once

#include <array>

#include "cards/card.h"
#include "platform/canvas.h"

namespace holdem {

struct DeckLayout {
  std::array<Rect, kCardCount + 1> picDeck;  // by card code
  Size window;                               // with its frame
  Size cards;  // the right and the bottom of the last ones: what the client area has to show
};

// Smaller cards on a screen lower than 800 of its own pixels.
DeckLayout LayoutDeck(int screenHeightPx);

}  // namespace holdem
