// Auto Read's flags: which table window is followed, if any.
#pragma once

#include <cstdint>
#include <string>

namespace holdem {

using WindowHandle = std::uintptr_t;

struct AutoRead {
  WindowHandle WatchedWindow = 0;  // the poker client's table window; 0 in Manual Mode
  int CaptionHeight = 0;           // of a window's caption bar, in pixels
  int CaptionAdjust = 0;           // 26 - CaptionHeight
  std::string lblMessage;

  bool Following() const { return WatchedWindow != 0; }
};

inline AutoRead autoRead;

}  // namespace holdem
