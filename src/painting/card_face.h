// Card faces and the slot marker, painted from the card code at whatever size the surface has.
#pragma once

#include <string_view>

#include "cards/card.h"
#include "platform/canvas.h"

namespace holdem {

// The face of a card over the whole surface. REQUIRES a real card.
void DrawCardFace(Canvas& surface, Card card, Color background);

// The text in black in the middle of the surface, at a size at which one character fills it. Clears
// nothing.
void DrawSlotText(Canvas& surface, std::string_view text);

}  // namespace holdem
