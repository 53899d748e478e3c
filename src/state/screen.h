// The screen as measured at start-up, and whether the main window has been seen on it.
// Written by: ui/program ui/form1
#pragma once

namespace holdem {

struct Screen {
  int ScreenWidthPx = 0;  // the screen's own pixels, whatever the desktop's scale
  int ScreenHeightPx = 0;
  bool MainShown = false;  // the main window has been activated at least once
};

inline Screen screenState;

}  // namespace holdem
