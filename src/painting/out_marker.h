// The marker of an out on a deck card, and the same marker beside the title of the result row that
// the card would make. Each row has a sign of its own beside its colour, for those who cannot tell
// colours.
#pragma once

#include "platform/canvas.h"

namespace holdem {

// A small disc at the lower left of the card's face. `row` is 0..7.
void DrawOutMarker(Canvas& surface, int row);

// Likewise, at the left edge of the row's title; and the width, in twips, that the title leaves for
// it there. In a high row the marker stays small enough to leave room for the title.
void DrawRowMarker(Canvas& surface, int row);
double RowMarkerRoom(const Size& title);

}  // namespace holdem
