// How the main window and its controls fit the screen. Needs no window: sizes go in and come out.
#pragma once

#include <string>

#include "platform/canvas.h"
#include "platform/desktop.h"

namespace holdem::modResize {

// Whether the program has to be resized for this screen, and what to tell the user then.
bool IsSmallScreen();
std::string SmallScreenMessage();

// The box of a control as designed, in a window that is this much wider and higher.
Rect Scaled(const Rect& design, double xRatio, double yRatio);

// The font of a control at a scaled size in points, kept between 2 and 72; up to 7 points it is one
// for small sizes.
Font ScaledFont(double points);

// Everything from here on is in logical pixels, of which each takes `scale` of the screen's own,
// and outer sizes. `free` is what the windows may cover.

// The logical pixels that lie wholly in an area of the screen's own.
PixelArea LogicalArea(const PixelArea& own, double scale);

// The main window at the top, flush with the right edge, or with a deck of that width beside it,
// where both fit. One that would leave less than 550 of the screen's own pixels below it is made
// smaller, in proportion, as is one that is wider than what is free.
PixelArea PlaceMain(int width, int height, int deckWidth, const PixelArea& free, double scale);

// The corner of the deck: right of the main window; where it does not fit there, below it, as far
// as it fits there.
PixelPoint PlaceDeck(const PixelArea& main, int deckWidth, int deckHeight, const PixelArea& free);

}  // namespace holdem::modResize
