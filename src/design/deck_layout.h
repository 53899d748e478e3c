// The deck window as designed: where its cards stand, in twips from the left and top of the client
// area.
#pragma once

#include <array>

#include "cards/card.h"
#include "platform/canvas.h"

namespace holdem {

struct DeckLayout {
  std::array<Rect, kCardCount + 1> picDeck;  // by card code
  Size window;
};

// Smaller cards on a screen lower than 800 pixels.
DeckLayout LayoutDeck(int screenHeightPx);

}  // namespace holdem
