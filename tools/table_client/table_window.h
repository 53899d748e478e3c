// The stand-in client's real top-level window, in whatever window system there is: x11_window.cpp
// or win32_window.cpp. Used by main.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "table_picture.h"

namespace holdem::table_client {

class TableWindow {
 public:
  virtual ~TableWindow() = default;  // closes it

  virtual std::uintptr_t Id() const = 0;  // as other programs name it
  virtual void SetCaption(const std::string& caption) = 0;

  // Shows a table as DrawTable has drawn it, shifted by what the caption bar is higher or lower.
  // Returns when it is on the screen.
  virtual void Show(const Picture& picture) = 0;

  // Answers the window system without waiting for it; false once the window has been closed.
  virtual bool Pump() = 0;
};

struct WindowWanted {
  int layout = 1;
  std::string caption;
  std::optional<Point> position{};  // of the outer top-left corner
  // The window counts the screen's own pixels, also where the screen is scaled. Only Windows tells
  // such programs apart.
  bool aware = false;
};

// Of exactly the size that the layout has under the caption bar that it gets. Throws
// std::runtime_error when it cannot be had.
std::unique_ptr<TableWindow> OpenTableWindow(const WindowWanted& wanted);

}  // namespace holdem::table_client
