#include "autoread/mod_windows.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "autoread/colour_measures.h"
#include "autoread/layouts.h"
#include "platform/ports.h"
#include "state/slots.h"

namespace holdem::modWindows {
namespace {

// Of the table at the one place where it tells two layouts apart. Nothing when the window is gone.
std::optional<bool> HasGreenFelt(WindowHandle window) {
  constexpr int kGreenFelt = 75;  // well above the felts of other colours, and all cards and chips
  const int y = 366 - autoRead.CaptionAdjust;
  const std::array<PixelArea, 1> area = {{{398, y, 399, y + 1}}};
  const auto read = ports.desktop->Read(window, area);
  if (!read) return std::nullopt;
  return modCardRead::GreenExcess(read->front().At(398, y)) >= kGreenFelt;
}

bool HasClass(const WindowRecord& window, const WindowSign& sign) {
  return !sign.className.empty() && Matches(window.className, sign.className);
}

bool HasSign(const WindowRecord& window, const WindowSign& sign) {
  if (!HasClass(window, sign) || !Matches(window.caption, sign.caption)) return false;
  const int height = window.height + (sign.captionCounts ? autoRead.CaptionAdjust : 0);
  if (sign.width != 0 && (window.width != sign.width || height != sign.height)) return false;
  return !sign.greenFelt || HasGreenFelt(window.windowHandle) == sign.greenFelt;
}

// The last layout of which the window has a sign, 0 for none.
int LayoutBySign(const WindowRecord& window,
                 bool (*hasSign)(const WindowRecord& window, const WindowSign& sign)) {
  for (int layout = kLayouts; layout > 0; --layout) {
    const auto& signs = LayoutOf(layout).signs;
    if (std::any_of(signs.begin(), signs.end(),
                    [&](const WindowSign& sign) { return hasSign(window, sign); })) {
      return layout;
    }
  }
  return 0;
}

std::vector<PixelPoint> GridPoints(const PixelArea& outer) {
  constexpr int kMargin = 100;
  constexpr int kStep = 50;
  std::vector<PixelPoint> points;
  for (int y = outer.top + kMargin; y <= outer.bottom - kMargin; y += kStep) {
    for (int x = outer.left + kMargin; x <= outer.right - kMargin; x += kStep) {
      points.push_back({x, y});
    }
  }
  return points;
}

std::vector<PixelPoint> SeatPoints(const PixelArea& outer) {
  const int layout = autoRead.TableLayout;
  std::vector<PixelPoint> points;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!LayoutHasSeat(layout, seat)) continue;
    const PixelPoint cards =
        seat == seats.MySeat ? CardPoints[layout][seat][1] : HoldingPoints[layout][seat];
    for (const PixelPoint& point : {cards, ButtonPoints[layout][seat]}) {
      points.push_back({outer.left + point.x, outer.top + point.y});
    }
  }
  return points;
}

// Nothing when it shows no table. Of most windows no more is asked than the class.
std::optional<WindowRecord> CollectWindow(WindowHandle handle) {
  WindowRecord window{.windowHandle = handle, .className = ports.desktop->ClassName(handle)};
  if (LayoutBySign(window, HasClass) == 0) return std::nullopt;
  const auto outer = ports.desktop->OuterRectangle(handle);
  if (!outer) return std::nullopt;
  window.width = outer->Width();
  window.height = outer->Height();
  window.caption = ports.desktop->Caption(handle);
  window.layout = ClassifyTable(window);
  if (window.layout == 0) return std::nullopt;
  window.processId = ports.desktop->ProcessId(handle);
  return window;
}

// A control counts as the window that holds it.
WindowHandle TopWindow(WindowHandle window) {
  if (window == 0) return 0;
  const WindowHandle parent = ports.desktop->Parent(window);
  return parent != 0 ? parent : window;
}

}  // namespace

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

int ClassifyTable(const WindowRecord& window) { return LayoutBySign(window, HasSign); }

bool HasItsLayout() {
  const bool showsCards = std::any_of(kSlotOrder.begin(), kSlotOrder.end(),
                                      [](int slot) { return slots.IsFilled(slot); });
  return showsCards || ClassifyTable(autoRead.CurrentTable) == autoRead.TableLayout ||
         IsTableObscured(autoRead.WatchedWindow, Points::WholeWindow);
}

void FindTableWindows() {
  autoRead.TableCandidates.clear();
  for (const WindowHandle window : ports.desktop->TopLevelWindows()) {
    if (auto table = CollectWindow(window)) autoRead.TableCandidates.push_back(std::move(*table));
  }
}

bool IsTableObscured(WindowHandle window, Points points) {
  const auto outer = ports.desktop->OuterRectangle(window);
  if (!outer) return true;
  const auto samples = points == Points::WholeWindow ? GridPoints(*outer) : SeatPoints(*outer);
  auto shown = ports.desktop->WindowsAt(samples);
  std::sort(shown.begin(), shown.end());
  shown.erase(std::unique(shown.begin(), shown.end()), shown.end());
  return std::any_of(shown.begin(), shown.end(),
                     [&](WindowHandle hit) { return TopWindow(hit) != window; });
}

}  // namespace holdem::modWindows
