#include "autoread/mod_windows.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <utility>

#include "autoread/confirmed_tables.h"
#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "platform/ports.h"
#include "state/seats.h"

namespace holdem::modWindows {
namespace {

constexpr PixelPoint kFeltPoint{398, 366};  // the one point that tells two layouts apart

// Whether the text has the form of the pattern, in which * stands for any run of characters. Every
// other character stands for itself, the case included.
bool Matches(std::string_view text, std::string_view pattern) {
  const auto star = pattern.find('*');
  if (star == std::string_view::npos) return text == pattern;
  if (text.substr(0, star) != pattern.substr(0, star)) return false;
  const std::string_view rest = pattern.substr(star + 1);
  for (std::size_t skipped = star; skipped <= text.size(); ++skipped) {
    if (Matches(text.substr(skipped), rest)) return true;
  }
  return false;
}

PixelArea FeltArea() { return PixelArea{0, 0, 1, 1}.Moved(modCardRead::InWindow(kFeltPoint)); }

// Whether the window shows green felt; nothing when that point cannot be seen.
std::optional<bool> HasGreenFelt(WindowHandle window) {
  constexpr int kGreenFelt = 75;  // well above the felts of other colours, and all cards and chips
  const std::array area = {FeltArea()};
  const auto read = ports.desktop->Read(window, area);
  if (!read || read->front().pixels[0] == kUnreadable) return std::nullopt;
  if (!IsInSight(window, area)) return std::nullopt;
  return modCardRead::GreenExcess(read->front().pixels[0]) >= kGreenFelt;
}

bool HasClass(const WindowRecord& window, const WindowSign& sign) {
  return !sign.className.empty() && Matches(window.className, sign.className);
}

bool FitsSign(const WindowRecord& window, const WindowSign& sign) {
  if (!HasClass(window, sign) || !Matches(window.caption, sign.caption)) return false;
  const int height = window.height + (sign.captionBarCounts ? autoRead.CaptionAdjust : 0);
  return sign.width == 0 || (window.width == sign.width && height == sign.height);
}

bool HasSign(const WindowRecord& window, const WindowSign& sign) {
  if (!FitsSign(window, sign)) return false;
  return !sign.greenFelt || HasGreenFelt(window.windowHandle) == sign.greenFelt;
}

using SignTest = bool (*)(const WindowRecord& window, const WindowSign& sign);

bool HasSignOf(int layout, const WindowRecord& window, SignTest test) {
  return std::ranges::any_of(LayoutOf(layout).signs,
                             [&](const WindowSign& sign) { return test(window, sign); });
}

// The last layout of which the window has a sign, 0 for none.
int LayoutBySign(const WindowRecord& window, SignTest test) {
  int layout = kLayouts;
  while (layout > 0 && !HasSignOf(layout, window, test)) --layout;
  return layout;
}

// The layout 1..5 of the table that the window shows by its class, caption and size, 0 for none.
// May read one pixel of the window.
int ClassifyTable(const WindowRecord& window) { return LayoutBySign(window, HasSign); }

// Whether a window of a table's class is nearly one, by its caption or by its size.
bool ComesNear(const WindowRecord& window) {
  constexpr int kNear = 60;  // pixels
  const PixelArea size = NearestSize(window);
  return SaysHoldem(window.caption) || (std::abs(size.Width() - window.width) <= kNear &&
                                        std::abs(size.Height() - window.height) <= kNear);
}

constexpr int kGridStep = 50;

// From the first point of the grid to the last; empty in a window too small for one.
PixelArea GridOf(const PixelArea& outer) {
  constexpr int kMargin = 100;
  const int width = outer.Width() - 2 * kMargin;
  const int height = outer.Height() - 2 * kMargin;
  if (width < 0 || height < 0) return {};
  return PixelArea{0, 0, width / kGridStep * kGridStep + 1, height / kGridStep * kGridStep + 1}
      .Moved({outer.left + kMargin, outer.top + kMargin});
}

std::vector<PixelPoint> GridPoints(const PixelArea& grid) {
  std::vector<PixelPoint> points;
  for (int y = grid.top; y < grid.bottom; y += kGridStep) {
    for (int x = grid.left; x < grid.right; x += kGridStep) points.push_back({x, y});
  }
  return points;
}

std::vector<PixelPoint> PointsToSee(const PixelArea& outer) {
  const int layout = autoRead.TableLayout;
  std::vector<PixelPoint> points;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!LayoutHasSeat(layout, seat)) continue;
    points.push_back(seat == seats.MySeat ? CardPoints[layout][seat][1]
                                          : HoldingPoints[layout][seat]);
    points.push_back(ButtonPoints[layout][seat]);
  }
  for (PixelPoint& point : points) point = {outer.left + point.x, outer.top + point.y};
  return points;
}

std::optional<PixelPoint> FirstHidden(WindowHandle window, const std::vector<PixelPoint>& points) {
  const auto shown = ports.desktop->WindowsAt(points, window);
  WindowHandle own = window;  // the last that has been found to belong to it
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (shown[i] == own || shown[i] == window) continue;
    if (!BelongsTo(window, shown[i])) return points[i];
    own = shown[i];
  }
  return std::nullopt;
}

// Asks for the first and the last point, and for the others only if both are in sight: then there
// are no more of them than the screen has room for. A window that claims to be huge would have
// millions.
std::optional<PixelPoint> FirstHiddenOfGrid(WindowHandle window, const PixelArea& grid) {
  if (grid.IsEmpty()) return std::nullopt;
  const auto corner = FirstHidden(window, {grid.Corner(), {grid.right - 1, grid.bottom - 1}});
  return corner ? corner : FirstHidden(window, GridPoints(grid));
}

}  // namespace

bool BelongsTo(WindowHandle table, WindowHandle hit) {
  constexpr int kDeepest = 32;  // windows in windows
  for (int depth = 0; depth < kDeepest && hit != 0; ++depth) {
    if (hit == table) return true;
    hit = ports.desktop->Parent(hit);
  }
  return false;
}

void MeasureCaptionBar(WindowHandle window) {
  autoRead.CaptionAdjust = kCaptionBarHeight - ports.desktop->CaptionBarHeight(window);
}

bool MayShow(const WindowRecord& window, int layout) { return HasSignOf(layout, window, FitsSign); }
bool MayShowATable(const WindowRecord& window) { return LayoutBySign(window, FitsSign) != 0; }

bool HasClassOfTable(std::string_view className) {
  return LayoutBySign({.className = std::string(className)}, HasClass) != 0;
}

bool SaysHoldem(std::string caption) {
  for (char& c : caption) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return Matches(caption, "*hold'em*");
}

PixelArea NearestSize(const WindowRecord& window) {
  PixelArea nearest;
  const auto distance = [&](const PixelArea& size) {
    const int across = std::abs(size.Width() - window.width);
    const int down = std::abs(size.Height() - window.height);
    return std::pair(std::max(across, down), across + down);
  };
  for (int layout = 1; layout <= kLayouts; ++layout) {
    for (const WindowSign& sign : LayoutOf(layout).signs) {
      if (sign.width == 0 || !HasClass(window, sign)) continue;
      const int raised = sign.captionBarCounts ? autoRead.CaptionAdjust : 0;
      const PixelArea size{0, 0, sign.width, sign.height - raised};
      if (nearest.IsEmpty() || distance(size) < distance(nearest)) nearest = size;
    }
  }
  return nearest;
}

std::vector<PixelArea> AreasOfSign(const WindowRecord& window) {
  if (window.layout == 0) return {FeltArea()};
  if (LayoutOf(window.layout).hasMarker) return {modCardRead::Layout3MarkerArea()};
  return {};
}

bool HasAnotherLayout() {
  if (Confirmed() != nullptr) return false;
  const int layout = ClassifyTable(autoRead.CurrentTable);  // 0: it cannot be read
  if (layout == 0 || layout == autoRead.TableLayout) return false;
  const auto outer = ports.desktop->OuterRectangle(autoRead.WatchedWindow);
  return outer &&
         !FirstHidden(autoRead.WatchedWindow, {FeltArea().Moved(outer->Corner()).Corner()});
}

// Of most windows no more is asked than the class.
std::optional<WindowRecord> CollectWindow(WindowHandle handle) {
  WindowRecord window{.windowHandle = handle, .className = ports.desktop->ClassName(handle)};
  if (!HasClassOfTable(window.className)) return std::nullopt;
  const auto outer = ports.desktop->OuterRectangle(handle);
  if (!outer) return std::nullopt;
  window.width = outer->Width();
  window.height = outer->Height();
  window.caption = ports.desktop->GetWindowCaption(handle);
  MeasureCaptionBar(handle);
  window.layout = ClassifyTable(window);
  if (window.layout != 0) window.processId = ports.desktop->ProcessId(handle);
  return window;
}

void FindTableWindows() {
  autoRead.TableCandidates.clear();
  autoRead.NearTable = {};
  for (const WindowHandle handle : ports.desktop->TopLevelWindows()) {
    const auto window = CollectWindow(handle);
    if (!window) continue;
    if (autoRead.NearTable.windowHandle == 0 && ComesNear(*window)) autoRead.NearTable = *window;
    if (window->layout != 0) autoRead.TableCandidates.push_back(*window);
  }
}

std::optional<PixelPoint> HiddenPoint(WindowHandle window, const PixelArea& outer, Points points) {
  if (points == Points::WholeWindow) return FirstHiddenOfGrid(window, GridOf(outer));
  return FirstHidden(window, PointsToSee(outer));
}

std::optional<PixelPoint> HiddenPoint(WindowHandle window, const PixelArea& outer,
                                      std::span<const PixelArea> areas) {
  const auto covers = ports.desktop->Covers(window);
  if (!covers) return outer.Corner();
  for (const PixelArea& cover : *covers) {
    for (const PixelArea& area : areas) {
      if (cover.Touches(area)) return cover.Intersected(area).Moved(outer.Corner()).Corner();
    }
  }
  return std::nullopt;
}

bool IsInSight(WindowHandle window, std::span<const PixelArea> areas) {
  return !HiddenPoint(window, {}, areas);
}

bool IsTableObscured(WindowHandle window, Points points) {
  const auto outer = ports.desktop->OuterRectangle(window);
  if (!outer || HiddenPoint(window, *outer, points)) return true;
  return points == Points::SeatsOfTable && !IsInSight(window, modCardRead::AreasOfTable().all);
}

}  // namespace holdem::modWindows
