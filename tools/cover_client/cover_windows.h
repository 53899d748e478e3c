// Real windows that cover a table, in whatever window system there is: x11_covers.cpp or
// win32_covers.cpp. Used by main.
#pragma once

#include <memory>

#include "random_covers.h"
#include "state/window_handle.h"

namespace holdem::cover_client {

class CoverWindows {
 public:
  virtual ~CoverWindows() = default;  // closes them

  // In place of those of before. Comes back when they are on the screen.
  virtual void Show(const Covers& covers, WindowHandle table) = 0;
};

std::unique_ptr<CoverWindows> MakeCoverWindows();

}  // namespace holdem::cover_client
