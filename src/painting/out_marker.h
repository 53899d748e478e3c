// The marker of an out on a deck card, drawn after the card's face.
#pragma once

#include "platform/canvas.h"

namespace holdem {

// A small disc at the lower left, in the colour of the result row that the card would make.
void DrawOutMarker(Canvas& surface, Color color);

}  // namespace holdem
