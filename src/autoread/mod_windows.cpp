#include "autoread/mod_windows.h"

#include <algorithm>
#include <array>

#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "platform/ports.h"
#include "state/slots.h"

namespace holdem::modWindows {
namespace {

constexpr const char* kDialogClass = "#32770";  // the system's standard dialog box

bool IsDialogTable(std::string_view caption) {
  return Matches(caption, "*-  Hold'em -*") || Matches(caption, "*- NL  Hold'em*") ||
         Matches(caption, "*- PL  Hold'em*");
}

// The two tables of this size differ in the colour of one pixel.
int ClassifyAfxTable(WindowHandle window) {
  constexpr int kGreenFelt = 75;
  const int y = 366 - autoRead.CaptionAdjust;
  const std::array<PixelArea, 1> area = {{{398, y, 399, y + 1}}};
  const auto read = ports.desktop->Read(window, area);
  if (!read) return 0;
  return modCardRead::GreenExcess(read->front().At(398, y)) >= kGreenFelt ? 5 : 4;
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

int ClassifyTable(const WindowRecord& window) {
  const auto sized = [&](int width, int height) {
    return window.width == width && window.height == height;
  };
  // Sizes that were taken with a caption bar of 26 pixels; the others are as they measure.
  const auto sizedByCaption = [&](int width, int height) {
    return sized(width, height - autoRead.CaptionAdjust);
  };
  if (window.className == kDialogClass) {
    if (sized(800, 571)) return 3;
    if (IsDialogTable(window.caption)) return 2;
    if (sizedByCaption(795, 581) || sizedByCaption(908, 708)) return 2;
    if (sized(800, 562)) return 1;
  } else if (Matches(window.className, "Afx*") && sizedByCaption(800, 580)) {
    return ClassifyAfxTable(window.windowHandle);
  }
  return 0;
}

bool HasItsLayout() {
  const bool showsCards = std::any_of(kSlotOrder.begin(), kSlotOrder.end(),
                                      [](int slot) { return slots.IsFilled(slot); });
  return showsCards || ClassifyTable(autoRead.CurrentTable) == autoRead.TableLayout ||
         IsTableObscured(autoRead.WatchedWindow, Points::WholeWindow);
}

void FindTableWindows() {
  autoRead.TableCandidates.clear();
  for (const WindowHandle handle : ports.desktop->TopLevelWindows()) {
    WindowRecord window{.windowHandle = handle, .className = ports.desktop->ClassName(handle)};
    if (window.className != kDialogClass && !Matches(window.className, "Afx*")) continue;
    const auto outer = ports.desktop->OuterRectangle(handle);
    if (!outer) continue;
    window.width = outer->Width();
    window.height = outer->Height();
    window.caption = ports.desktop->Caption(handle);
    window.layout = ClassifyTable(window);
    if (window.layout == 0) continue;
    window.processId = ports.desktop->ProcessId(handle);
    autoRead.TableCandidates.push_back(std::move(window));
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
