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

// What the window is, of no layout perhaps; nothing when no table has its class.
std::optional<WindowRecord> CollectWindow(WindowHandle window);

// Lists every table window in autoRead.TableCandidates, the topmost first, and names the topmost
// that comes near one in autoRead.NearTable.
void FindTableWindows();

bool HasClassOfTable(std::string_view className);
bool SaysHoldem(std::string caption);  // in capitals or not

// The size of the tables of the window's class to which its own comes nearest, in its own pixels
// and with the caption bar measured last. REQUIRES a class of a table.
PixelArea NearestSize(const WindowRecord& window);

// Writes the height of the window's caption bar, on which sizes and points depend.
void MeasureCaptionBar(WindowHandle window);

// The layout 1..5 of the table that the window shows by its class, caption and size, 0 for none.
// May read one pixel of the window.
int ClassifyTable(const WindowRecord& window);

// Whether the window could be a table of this layout, or of any, but for pixels.
bool MayShow(const WindowRecord& window, int layout);
bool MayShowATable(const WindowRecord& window);

// What is looked at to tell a table from a window that may show one, from the outer top-left
// corner.
std::vector<PixelArea> AreasOfSign(const WindowRecord& window);

// Whether the table in autoRead.CurrentTable can be seen to be of another layout than it was found
// as: a window that was found before it was painted may have been taken for another. False once the
// user has confirmed the seat: chips may lie where layouts are told apart.
bool HasAnotherLayout();

// Whether any sample point of the window shows another window, or the window is gone. The points of
// the followed table are those of its seats, and all that is read of it must be in sight; the
// points of a window are a grid all over it.
enum class Points { WholeWindow, SeatsOfTable };
bool IsTableObscured(WindowHandle window, Points points);

// The first of these points of the screen, or of what is covered of these areas, that shows
// something else than the window, which has this rectangle.
std::optional<PixelPoint> HiddenPoint(WindowHandle window, const PixelArea& outer, Points points);
std::optional<PixelPoint> HiddenPoint(WindowHandle window, const PixelArea& outer,
                                      std::span<const PixelArea> areas);

// Whether what is hit is the table: its controls count as it, and so do the windows that it owns.
// Its own owner does not matter.
bool BelongsTo(WindowHandle table, WindowHandle hit);

// Whether no other window is seen over any of these areas, from the outer top-left corner.
bool IsInSight(WindowHandle window, std::span<const PixelArea> areas);

// Whether the text has the form of the pattern, in which * stands for any run of characters. Every
// other character stands for itself, the case included.
bool Matches(std::string_view text, std::string_view pattern);

}  // namespace holdem::modWindows
