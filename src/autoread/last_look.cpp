#include "autoread/last_look.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "autoread/mod_windows.h"
#include "platform/desktop.h"
#include "platform/ports.h"
#include "state/auto_read.h"

namespace holdem {
namespace {

using modWindows::Points;

WindowHandle WindowAt(WindowHandle table, PixelPoint point) {
  return ports.desktop->WindowsAt(std::array{point}, table).front();
}

// The window that is seen at this point instead of the table. If the mouse goes through it, the
// system names the table there, and the windows above are looked through.
WindowHandle CoverAt(WindowHandle table, PixelPoint point) {
  const WindowHandle hit = WindowAt(table, point);
  if (!modWindows::BelongsTo(table, hit)) return hit;
  for (const WindowHandle above : ports.desktop->TopLevelWindows()) {
    if (above == table) break;
    const auto outer = ports.desktop->OuterRectangle(above);
    if (outer && outer->Contains(point)) return above;
  }
  return 0;
}

// The window's caption; where it has none, that of the window that it lies in or that owns it.
std::string CaptionOf(WindowHandle window) {
  std::string caption;
  for (int depth = 0; depth < 32 && window != 0 && caption.empty(); ++depth) {
    caption = ports.desktop->GetWindowCaption(window);
    window = ports.desktop->Parent(window);
  }
  return caption;
}

// Why something else is seen at this point. Whether the window is minimised is asked first: some
// window managers leave it where it was, beneath a window of their own.
LastLook Hidden(const WindowRecord& window, PixelPoint point) {
  const auto minimised = ports.desktop->MinimisedWindows();
  if (std::ranges::count(minimised, window.windowHandle) > 0) return {Finding::Minimised, window};
  if (WindowAt(window.windowHandle, point) == 0) return {Finding::OffTheScreen, window};
  LastLook look{Finding::Covered, window};
  look.coverCaption = CaptionOf(CoverAt(window.windowHandle, point));
  return look;
}

LastLook OfOtherSize(const WindowRecord& window) {
  const PixelArea size = modWindows::NearestSize(window);
  return {Finding::OtherSize, window, size.Width(), size.Height()};
}

// Why a window that is shown and could be a table cannot be read. One on the move cannot be read
// for a moment, and counts as not painted yet.
Finding WhyUnread(WindowHandle window, const PixelArea& outer,
                  const std::vector<PixelArea>& areas) {
  const auto read = ports.desktop->Read(window, areas);
  const bool stays = ports.desktop->OuterRectangle(window) == outer;
  if (!read) return stays ? Finding::UnreadableScreen : Finding::NotPainted;
  const bool whole = std::ranges::all_of(*read, &Capture::IsWhole);
  return whole ? Finding::NotPainted : Finding::OffTheScreen;
}

bool SaysWhatItIs(const WindowRecord& window) {
  const bool hasMarker = window.layout != 0 && LayoutOf(window.layout).hasMarker;
  return hasMarker || modWindows::SaysHoldem(window.caption);
}

// Why a window that comes near a table, or has just been one, is not followed. It must be in sight
// at `points` and in `areas`, which are what is read of it.
LastLook Explained(const WindowRecord& window, Points points, const std::vector<PixelArea>& areas) {
  const auto outer = ports.desktop->OuterRectangle(window.windowHandle);
  if (!outer) return {};
  const PixelArea whole{0, 0, window.width, window.height};
  const bool tooSmall = std::ranges::any_of(areas, [&](const PixelArea& area) {
    return !area.IsEmpty() && area.Intersected(whole) != area;
  });
  if (tooSmall || !modWindows::MayShowATable(window)) return OfOtherSize(window);
  if (!SaysWhatItIs(window)) return {Finding::OtherCaption, window};
  auto hidden = modWindows::HiddenPoint(window.windowHandle, *outer, points);
  if (!hidden) hidden = modWindows::HiddenPoint(window.windowHandle, *outer, areas);
  if (hidden) return Hidden(window, *hidden);
  return {WhyUnread(window.windowHandle, *outer, areas), window};
}

// A minimised window that is a table, as far as its class and caption tell: its size is not known.
// NoTable when there is none.
LastLook MinimisedTable() {
  for (const WindowHandle handle : ports.desktop->MinimisedWindows()) {
    WindowRecord window{.windowHandle = handle,
                        .className = ports.desktop->ClassName(handle),
                        .caption = ports.desktop->GetWindowCaption(handle)};
    const bool confirmed =
        std::ranges::count(autoRead.ConfirmedTables, handle, &ConfirmedTable::window) > 0;
    if (!modWindows::HasClassOfTable(window.className)) continue;
    if (confirmed || modWindows::SaysHoldem(window.caption)) return {Finding::Minimised, window};
  }
  return {};
}

}  // namespace

void ExplainDiscovery() {
  const WindowRecord& window = autoRead.NearTable;
  modWindows::MeasureCaptionBar(window.windowHandle);
  autoRead.Look = window.windowHandle == 0
                      ? MinimisedTable()
                      : Explained(window, Points::WholeWindow, modWindows::AreasOfSign(window));
}

void ExplainLoss() {
  const auto window = modWindows::CollectWindow(autoRead.WatchedWindow);
  autoRead.Look = window ? Explained(*window, Points::SeatsOfTable, modCardRead::AreasOfTable().all)
                         : MinimisedTable();
}

}  // namespace holdem
