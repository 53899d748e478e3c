// The screen as measured at start-up, and whether the main window has been seen on it.
// Written by: ui/program ui/form1
#pragma once

namespace holdem {

inline constexpr int kTwipsPerPixel = 15;  // a logical pixel is 1/96 inch, a twip 1/1440

struct Screen {
  int ScreenWidthPx = 0;  // the screen's own pixels, whatever the desktop's scale
  int ScreenHeightPx = 0;
  bool MainShown = false;  // the main window has been activated at least once
};

inline Screen screenState;

}  // namespace holdem
