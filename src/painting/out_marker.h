// The marker of an out on a deck card, and its like beside the title of the result row that the
// card would make. Each row has a colour and a sign of its own, so that it can be told without
// colours.
#pragma once

#include "platform/canvas.h"

namespace holdem {

// A small disc at the lower left of the card's face. `row` is 0..7.
void DrawOutMarker(Canvas& surface, int row);

// Likewise, at the left edge of the row's title; and how wide the room is that it has for itself
// there, which in a high row leaves the title its own.
void DrawRowMarker(Canvas& surface, int row);
double RowMarkerRoom(const Size& title);

}  // namespace holdem
