// A desktop of windows made up by the test: their pixels are painted by functions, and they may be
// covered or die.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>

#include "platform/desktop.h"
#include "table_client/table_picture.h"

namespace holdem {

struct FakeWindow {
  WindowHandle handle = 0;
  std::string className;
  std::string caption;
  PixelArea outer;  // on the screen
  WindowHandle parent = 0;
  bool takesMouse = true;
  bool minimised = false;
  std::function<PixelColor(int x, int y)> painted;  // all black without
  std::map<std::pair<int, int>, PixelColor> changed;

  PixelColor Shown(int x, int y) const {
    const auto found = changed.find({x, y});
    return found != changed.end() ? found->second : painted ? painted(x, y) : 0;
  }
};

// Shows the stand-in client's picture of a table.
inline FakeWindow TableWindow(const table_client::Table& table, WindowHandle handle) {
  const auto [width, height] = table_client::OuterSize(table.layout, table_client::kDrawnCaption);
  const auto picture =
      std::make_shared<const table_client::Picture>(table_client::DrawTable(table));
  return {.handle = handle,
          .className = table_client::WindowClass(table.layout),
          .caption = table_client::DefaultCaption(table.layout),
          .outer = {100, 50, 100 + width, 50 + height},
          .painted = [picture](int x, int y) -> PixelColor {
            const table_client::Rgb color = picture->At(x, y);
            return (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
          }};
}

struct FakeDesktop : Desktop {
  std::vector<FakeWindow> windows;  // from top to bottom
  int captionBarHeight = 26;
  PixelArea screenArea{-5000, -5000, 70000, 70000};
  bool readable = true;
  std::size_t pointsAsked = 0;
  bool ownPictures = false;          // whatever covers a window, its pixels can be read
  std::function<void()> beforeCall;  // the other program's hand, between any two calls

  std::vector<WindowHandle> TopLevelWindows() override {
    return Handles([](const FakeWindow& window) { return window.parent == 0; });
  }
  std::vector<WindowHandle> MinimisedWindows() override {
    return Handles([](const FakeWindow& window) { return window.minimised; });
  }
  std::string ClassName(WindowHandle handle) override { return Found(handle).className; }
  std::string GetWindowCaption(WindowHandle handle) override { return Found(handle).caption; }
  std::uint32_t ProcessId(WindowHandle handle) override {
    return static_cast<std::uint32_t>(Found(handle).handle) + 1000;
  }
  std::optional<PixelArea> OuterRectangle(WindowHandle handle) override {
    const FakeWindow& window = Found(handle);
    return window.handle == 0 || window.minimised ? std::nullopt : std::optional(window.outer);
  }
  std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> points, WindowHandle) override {
    if (beforeCall) beforeCall();
    pointsAsked += points.size();
    std::vector<WindowHandle> hits;
    for (const PixelPoint& point : points) {
      const auto hit = Find(point, true);
      hits.push_back(hit == windows.end() ? 0 : hit->handle);
    }
    return hits;
  }
  WindowHandle Parent(WindowHandle handle) override { return Found(handle).parent; }
  std::optional<std::vector<Capture>> Read(WindowHandle handle,
                                           std::span<const PixelArea> areas) override {
    const FakeWindow& window = Found(handle);
    if (window.handle == 0 || !readable) return std::nullopt;
    std::vector<Capture> captures;
    for (const PixelArea& area : areas) {
      Capture& capture = captures.emplace_back(Capture{.area = area});
      for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
          // The window's own pixel, or the one of another that covers it.
          const PixelPoint at{window.outer.left + x, window.outer.top + y};
          const bool inside = window.outer.Contains(at) && screenArea.Contains(at);
          const FakeWindow& seen = inside && !ownPictures ? *Find(at, false) : window;
          const auto [left, top] = seen.outer.Corner();
          capture.pixels.push_back(inside ? seen.Shown(at.x - left, at.y - top) : kUnreadable);
        }
      }
    }
    return captures;
  }
  std::optional<std::vector<PixelArea>> Covers(WindowHandle handle) override {
    const auto outer = OuterRectangle(handle);
    if (!outer) return std::nullopt;
    std::vector<PixelArea> covers;
    for (std::size_t i = 0; !ownPictures && windows[i].handle != handle; ++i)
      covers.push_back(windows[i].outer.Moved({-outer->left, -outer->top}));
    return covers;
  }
  int CaptionBarHeight(WindowHandle) override { return captionBarHeight; }
  PixelArea FreeArea(const PixelArea& screen) override { return screen; }

 private:
  std::vector<WindowHandle> Handles(bool (*which)(const FakeWindow&)) {
    if (beforeCall) beforeCall();
    std::vector<WindowHandle> handles;
    for (const FakeWindow& window : windows)
      if (which(window)) handles.push_back(window.handle);
    return handles;
  }
  // One without a handle when the window is gone.
  const FakeWindow& Found(WindowHandle handle) {
    if (beforeCall) beforeCall();
    const auto found = std::ranges::find(windows, handle, &FakeWindow::handle);
    return found == windows.end() ? gone_ : *found;
  }
  std::vector<FakeWindow>::const_iterator Find(PixelPoint point, bool byMouse) const {
    if (!screenArea.Contains(point)) return windows.end();
    return std::ranges::find_if(windows, [&](const FakeWindow& window) {
      return window.outer.Contains(point) && (window.takesMouse || !byMouse);
    });
  }

  FakeWindow gone_;
};

}  // namespace holdem
