// Other programs' windows, read only. Auto Read finds the poker client's table through it and reads
// its pixels; the program's own windows keep clear of what it says is taken. Everything that is
// said of a window is in the pixels that its own program counts in: physical ones, unless the
// screen is scaled and the program does not know. A window may die between any two calls.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "state/window_handle.h"

namespace holdem {

// 0x00BBGGRR; all ones for a pixel that cannot be read.
using PixelColor = std::uint32_t;
inline constexpr PixelColor kUnreadable = 0xFFFFFFFF;

struct PixelPoint {
  int x = 0;
  int y = 0;

  bool operator==(const PixelPoint&) const = default;
};

// Right and bottom lie outside.
struct PixelArea {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool operator==(const PixelArea&) const = default;

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  PixelPoint Corner() const { return {left, top}; }
  bool IsEmpty() const { return left >= right || top >= bottom; }
  bool Touches(const PixelArea& other) const { return !Intersected(other).IsEmpty(); }
  bool Contains(PixelPoint point) const {
    return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
  }
  PixelArea Intersected(const PixelArea& other) const {
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
  }
  PixelArea Moved(PixelPoint by) const {
    return {left + by.x, top + by.y, right + by.x, bottom + by.y};
  }
};

// Part of a window as it stood on the screen.
struct Capture {
  PixelArea area;                  // from the window's outer top-left corner
  std::vector<PixelColor> pixels;  // row by row

  // Whether every pixel could be read. One that could not, as off the screen, says nothing.
  bool IsWhole() const { return std::ranges::count(pixels, kUnreadable) == 0; }

  // By window coordinates; kUnreadable outside the area.
  PixelColor At(int x, int y) const {
    if (!area.Contains({x, y})) return kUnreadable;
    return pixels[static_cast<std::size_t>(y - area.top) * static_cast<std::size_t>(area.Width()) +
                  static_cast<std::size_t>(x - area.left)];
  }
};

class Desktop {
 public:
  virtual ~Desktop() = default;

  virtual std::vector<WindowHandle> TopLevelWindows() = 0;  // from top to bottom

  // At most 259 bytes, of any content; empty when the window is gone.
  virtual std::string ClassName(WindowHandle window) = 0;
  virtual std::string GetWindowCaption(WindowHandle window) = 0;

  virtual std::uint32_t ProcessId(WindowHandle window) = 0;  // 0 when unknown

  // Frame and caption bar included, on the screen; nothing when the window is gone.
  virtual std::optional<PixelArea> OuterRectangle(WindowHandle window) = 0;

  // The window under each of the screen points, 0 where there is none. The points are measured as
  // the rectangle of `measuredBy` is. Asked together, they cost the window system no more than one.
  virtual std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> points,
                                              WindowHandle measuredBy) = 0;

  // The window that it lies in or that owns it; 0 for none.
  virtual WindowHandle Parent(WindowHandle window) = 0;

  // The named areas of a window, from its outer top-left corner, all read together; pixels off the
  // screen or off the window are kUnreadable. Nothing when the window is gone.
  virtual std::optional<std::vector<Capture>> Read(WindowHandle window,
                                                   std::span<const PixelArea> areas) = 0;

  // What is seen over the window instead of it: the parts of the windows above that draw anything,
  // whoever owns them and whether they take the mouse or not, from the window's outer top-left
  // corner. None where each window keeps its own picture, which nothing above it harms. Nothing
  // when the window is gone.
  virtual std::optional<std::vector<PixelArea>> Covers(WindowHandle window) = 0;

  // Those that the user has put away; they have no rectangle.
  virtual std::vector<WindowHandle> MinimisedWindows() = 0;

  // Of the window's caption bar; on X11 with the frame's edge above it, and 0 where there is none.
  virtual int CaptionBarHeight(WindowHandle window) = 0;

  // What panels and taskbars leave free of a screen, one of several perhaps, in its own pixels.
  virtual PixelArea FreeArea(const PixelArea& screen) = 0;
};

}  // namespace holdem
