// How the main window and its controls fit the screen. Needs no window: sizes go in and come out.
#pragma once

#include <string>

#include "platform/canvas.h"

namespace holdem::modResize {

// Whether the program has to be resized for this screen, and what to tell the user then.
bool IsSmallScreen();
std::string SmallScreenMessage();

// The box of a control as designed, in a window that is this much wider and higher.
Rect Scaled(const Rect& design, double xRatio, double yRatio);

// The font of a control at a scaled size in points, kept between 2 and 72; up to 7 points it is one
// for small sizes.
Font ScaledFont(double points);

// The two windows at the top of the screen, flush with its right edge: side by side, or the deck
// window below where that would take the main window off a screen that is not small. A main window
// that would leave less than 550 of the screen's own pixels below it is made smaller, in
// proportion. Outer sizes, and places from the screen's left and top, in logical pixels, of which
// each takes `scale` of the screen's own.
struct Arrangement {
  int mainLeft = 0;  // at the top
  int mainWidth = 0;
  int mainHeight = 0;
  int deckLeft = 0;
  int deckTop = 0;

  bool operator==(const Arrangement&) const = default;
};
Arrangement Arrange(int mainWidth, int mainHeight, int deckWidth, double scale);

}  // namespace holdem::modResize
