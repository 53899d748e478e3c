// What a pixel's colour says, as numbers. The tests of the table layouts are made of these.
#pragma once

#include "platform/desktop.h"

namespace holdem::modCardRead {

// Colour measures, -1..255; an unreadable pixel splits into red -1, green 0, blue 0.
struct Components {
  int red, green, blue;
};
Components SplitColour(PixelColor colour);
int MinComponent(PixelColor colour);  // the smallest of the three
int GreenExcess(
    PixelColor colour);  // green over the larger of the others, 0 when it is not above both
int RedExcess(PixelColor colour);  // likewise for red

}  // namespace holdem::modCardRead
