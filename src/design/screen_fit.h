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

// The font of a control at a scaled size in points, which is kept between 2 and 72; up to 7 points
// it is a font made for small sizes.
Font ScaledFont(double points);

// From here on all sizes are in logical pixels, each of which takes `scale` of the screen's own,
// and with the window's frame. `free` is the area that the windows may cover.

// The logical pixels that lie wholly in an area of the screen's own.
PixelArea LogicalArea(const PixelArea& own, double scale);

// Where the main window goes: to the top and the right of the free area, or so far left of that
// that the deck window, `deckWidth` wide, fits beside it, where both fit. A window that would leave
// less than 550 of the screen's own pixels below it is made smaller, in proportion, and so is one
// that is wider than the free area.
PixelArea PlaceMain(int width, int height, int deckWidth, const PixelArea& free, double scale);

// The corner of the deck window: right of the main window where it fits there, else below it, moved
// up as far as it takes to be seen.
PixelPoint PlaceDeck(const PixelArea& main, int deckWidth, int deckHeight, const PixelArea& free);

}  // namespace holdem::modResize
