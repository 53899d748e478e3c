// The deck window as designed: where its cards stand, in twips from the left and top of the client
// area.
#pragma once

#include <array>

#include "cards/card.h"
#include "platform/canvas.h"

namespace holdem {

struct DeckLayout {
  std::array<Rect, kCardCount + 1> picDeck;  // by card code
  Size window;                               // the frame included
  Size cards;  // up to the edges of the last ones: the client area shows at least this
};

// Smaller cards on a screen lower than 800 of its own pixels.
DeckLayout LayoutDeck(int screenHeightPx);

}  // namespace holdem
