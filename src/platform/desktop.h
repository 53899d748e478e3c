// Other programs' windows, read only. Auto Read finds and reads the poker client's table through
// it, and the program's own windows keep clear of panels (FreeArea). Sizes and points of a window
// are in the pixels in which that window's own program counts: the screen's own, but larger ones
// where the screen is scaled and that program does not know of it. A window may die between any two
// calls.
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
  std::size_t PixelCount() const {
    return static_cast<std::size_t>(Width()) * static_cast<std::size_t>(Height());
  }
  // Of a pixel of the area, row by row.
  std::size_t IndexOf(PixelPoint point) const {
    return static_cast<std::size_t>(point.y - top) * static_cast<std::size_t>(Width()) +
           static_cast<std::size_t>(point.x - left);
  }
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

  // The pixel at this point, counted as the area is; kUnreadable outside the area.
  PixelColor At(int x, int y) const {
    return area.Contains({x, y}) ? pixels[area.IndexOf({x, y})] : kUnreadable;
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

  // The window under each point of the screen, 0 where there is none. Points are in the pixels of
  // `measuredBy`, as its OuterRectangle is. Many points cost no more round trips than one.
  virtual std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> points,
                                              WindowHandle measuredBy) = 0;

  // The window that it lies in or that owns it; 0 for none.
  virtual WindowHandle Parent(WindowHandle window) = 0;

  // The pixels of these areas, counted from the outer top-left corner, all read together. Pixels
  // off the screen or off the window are kUnreadable. Nothing when the window is gone.
  virtual std::optional<std::vector<Capture>> Read(WindowHandle window,
                                                   std::span<const PixelArea> areas) = 0;

  // The areas of the window, from its outer top-left corner, where another window is seen instead
  // of it. Every window above counts that draws anything, whoever owns it and whether it takes the
  // mouse or not. There are none where the window system keeps a picture of each window, which no
  // other window can spoil. Nothing when the window is gone.
  virtual std::optional<std::vector<PixelArea>> Covers(WindowHandle window) = 0;

  // The windows that the user has minimised. They have no outer rectangle.
  virtual std::vector<WindowHandle> MinimisedWindows() = 0;

  // The height of the window's caption bar; on X11 with the frame's edge above it. 0 where there is
  // none.
  virtual int CaptionBarHeight(WindowHandle window) = 0;

  // The part of one screen, of perhaps several, that panels and taskbars leave free, in the
  // screen's own pixels.
  virtual PixelArea FreeArea(const PixelArea& screen) = 0;
};

}  // namespace holdem
