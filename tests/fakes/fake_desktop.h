// A desktop of windows made up by the test: their pixels are pictures, and they may be covered or
// die.
#pragma once

#include <algorithm>
#include <functional>

#include "platform/desktop.h"

namespace holdem {

struct FakeWindow {
  WindowHandle handle = 0;
  std::string className;
  std::string caption;
  PixelArea outer;  // on the screen
  // Row by row, over the whole outer rectangle; empty while it is as it was painted.
  std::vector<PixelColor> pixels;
  WindowHandle parent = 0;
  std::function<PixelColor(int x, int y)> painted;  // all black without

  PixelColor Shown(int x, int y) const {
    if (pixels.empty()) return painted ? painted(x, y) : 0;
    return pixels[static_cast<std::size_t>(y * outer.Width() + x)];
  }
  // To be changed.
  PixelColor& At(int x, int y) {
    if (pixels.empty()) {
      std::vector<PixelColor> all;
      for (int row = 0; row < outer.Height(); ++row) {
        for (int column = 0; column < outer.Width(); ++column) all.push_back(Shown(column, row));
      }
      pixels = std::move(all);
    }
    return pixels[static_cast<std::size_t>(y * outer.Width() + x)];
  }
};

// Every pixel of the areas, as the function has it.
template <typename PixelAt>
std::vector<Capture> CaptureAll(std::span<const PixelArea> areas, PixelAt pixelAt) {
  std::vector<Capture> captures;
  for (const PixelArea& area : areas) {
    Capture& capture = captures.emplace_back(Capture{.area = area});
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) capture.pixels.push_back(pixelAt(x, y));
    }
  }
  return captures;
}

class FakeDesktop : public Desktop {
 public:
  std::vector<FakeWindow> windows;  // from top to bottom
  int captionBarHeight = 26;
  std::function<void()> beforeCall;  // the other program's hand, between any two calls

  FakeWindow* Find(WindowHandle handle) {
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [&](const FakeWindow& w) { return w.handle == handle; });
    return found == windows.end() ? nullptr : &*found;
  }

  std::vector<WindowHandle> TopLevelWindows() override {
    Turn();
    std::vector<WindowHandle> handles;
    for (const FakeWindow& window : windows) {
      if (window.parent == 0) handles.push_back(window.handle);
    }
    return handles;
  }
  std::string ClassName(WindowHandle handle) override {
    Turn();
    const FakeWindow* const window = Find(handle);
    return window == nullptr ? std::string() : window->className;
  }
  std::string Caption(WindowHandle handle) override {
    Turn();
    const FakeWindow* const window = Find(handle);
    return window == nullptr ? std::string() : window->caption;
  }
  std::uint32_t ProcessId(WindowHandle handle) override {
    Turn();
    return static_cast<std::uint32_t>(handle) + 1000;
  }
  std::optional<PixelArea> OuterRectangle(WindowHandle handle) override {
    Turn();
    const FakeWindow* const window = Find(handle);
    return window == nullptr ? std::nullopt : std::optional(window->outer);
  }
  std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> points, WindowHandle) override {
    Turn();
    std::vector<WindowHandle> hits;
    for (const PixelPoint& point : points) {
      const auto hit = std::find_if(windows.begin(), windows.end(), [&](const FakeWindow& w) {
        return Covers(w, point.x, point.y);
      });
      hits.push_back(hit == windows.end() ? 0 : hit->handle);
    }
    return hits;
  }
  WindowHandle Parent(WindowHandle handle) override {
    Turn();
    const FakeWindow* const window = Find(handle);
    return window == nullptr ? 0 : window->parent;
  }
  std::optional<std::vector<Capture>> Read(WindowHandle handle,
                                           std::span<const PixelArea> areas) override {
    Turn();
    const FakeWindow* const window = Find(handle);
    if (window == nullptr) return std::nullopt;
    return CaptureAll(areas, [&](int x, int y) { return Shown(*window, x, y); });
  }
  int CaptionBarHeight(WindowHandle) override { return captionBarHeight; }

 private:
  static bool Covers(const FakeWindow& window, int x, int y) {
    return x >= window.outer.left && x < window.outer.right && y >= window.outer.top &&
           y < window.outer.bottom;
  }

  // What the screen shows at a point of the window: its own pixel, or black where it is covered.
  PixelColor Shown(const FakeWindow& window, int x, int y) const {
    const int screenX = window.outer.left + x;
    const int screenY = window.outer.top + y;
    if (!Covers(window, screenX, screenY)) return kUnreadable;
    for (const FakeWindow& above : windows) {
      if (&above == &window) break;
      if (Covers(above, screenX, screenY)) return 0;
    }
    return window.Shown(x, y);
  }

  void Turn() {
    if (beforeCall) beforeCall();
  }
};

}  // namespace holdem
