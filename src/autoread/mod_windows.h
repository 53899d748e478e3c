// Finds the poker client's table windows among all windows of the screen, and tells whether one of
// them can be seen. Called by the watcher.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktop.h"
#include "state/auto_read.h"

namespace holdem::modWindows {

// What is known of the window, which may take a look at one pixel of it, with layout 0 where it
// shows no table; nothing when no table has its class. Measures its caption bar.
std::optional<WindowRecord> CollectWindow(WindowHandle handle);

// Lists every table window in autoRead.TableCandidates, the topmost first, and names the topmost
// that comes near one in autoRead.NearTable.
void FindTableWindows();

bool HasClassOfTable(std::string_view className);
bool SaysHoldem(std::string caption);  // in capitals or not

// Of the sizes that tables of the window's class have, the one nearest to its own, in its own
// pixels and for the caption bar measured last. REQUIRES a class of a table.
PixelArea NearestSize(const WindowRecord& window);

// Sets autoRead.CaptionAdjust by the height of the window's caption bar, on which sizes and points
// depend.
void MeasureCaptionBar(WindowHandle window);

// Whether the window could be a table of this layout, or of any: by class, caption and size,
// without a look at its pixels.
bool MayShow(const WindowRecord& window, int layout);
bool MayShowATable(const WindowRecord& window);

// The areas whose pixels tell whether a window that may show a table shows one, from its outer
// top-left corner.
std::vector<PixelArea> AreasOfSign(const WindowRecord& window);

// Whether the table in autoRead.CurrentTable turns out to have another layout than it was taken
// for, as one that was found before it was painted may. Always false once the user has confirmed
// the seat: from then on chips may lie where layouts are told apart.
bool HasAnotherLayout();

// Whether another window is seen at any of these points, or the window is gone. WholeWindow stands
// for a grid all over it. SeatsOfTable stands for the points of the followed table's seats, and
// then all that is read of it must be in sight too.
enum class Points { WholeWindow, SeatsOfTable };
bool IsTableObscured(WindowHandle window, Points points);

// The first point of the screen, among these points or in these areas, at which something else than
// the window is seen. `outer` is the window's rectangle.
std::optional<PixelPoint> HiddenPoint(WindowHandle window, const PixelArea& outer, Points points);
std::optional<PixelPoint> HiddenPoint(WindowHandle window, const PixelArea& outer,
                                      std::span<const PixelArea> areas);

// Whether the window that was hit counts as the table: its controls do, and so do the windows that
// it owns; the one that owns the table does not.
bool BelongsTo(WindowHandle table, WindowHandle hit);

// Whether no other window is seen over any of these areas, from the outer top-left corner.
bool IsInSight(WindowHandle window, std::span<const PixelArea> areas);

}  // namespace holdem::modWindows
