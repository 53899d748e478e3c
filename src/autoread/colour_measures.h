// What a pixel's colour says, as numbers. The tests of the table layouts are made of these.
#pragma once

#include "platform/desktop.h"

namespace holdem::modCardRead {

// All are -1..255; an unreadable pixel counts as red -1, green 0, blue 0.
int MinComponent(PixelColor colour);  // the smallest of red, green and blue
int GreenExcess(PixelColor colour);   // over the larger of the others, 0 when not above both
int RedExcess(PixelColor colour);     // likewise

}  // namespace holdem::modCardRead
