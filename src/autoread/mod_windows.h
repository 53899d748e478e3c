// Finds the poker client's table windows among all windows of the screen, and tells whether one of
// them can be seen. Called by the watcher.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "platform/desktop.h"
#include "state/auto_read.h"

namespace holdem::modWindows {

// What the window is; nothing when it shows no table.
std::optional<WindowRecord> CollectWindow(WindowHandle window);

// Lists every table window in autoRead.TableCandidates, the topmost first.
void FindTableWindows();

// Writes the height of the window's caption bar, on which sizes and places depend.
void MeasureCaption(WindowHandle window);

// The layout 1..5 of the table that the window shows by its class, caption and size, 0 for none.
// May read one pixel of the window.
int ClassifyTable(const WindowRecord& window);

// Whether the window could be a table of this layout but for pixels.
bool MayShow(const WindowRecord& window, int layout);

// Whether the table in autoRead.CurrentTable can be seen to be of another layout than it was found
// as: a window that was found before it was painted may have been taken for another. False once the
// user has confirmed the seat: chips may lie where layouts are told apart.
bool HasAnotherLayout();

// Whether any sample point of the window shows another window, or the window is gone. The points of
// the followed table are those of its seats, and all that is read of it must be in sight; the
// points of a window are a grid all over it.
enum class Points { WholeWindow, SeatsOfTable };
bool IsTableObscured(WindowHandle window, Points points);

// Whether no other window is seen over any of these areas, from the outer top-left corner.
bool IsInSight(WindowHandle window, std::span<const PixelArea> areas);

// Whether the text has the form of the pattern, in which * stands for any run of characters. Every
// other character stands for itself, the case included.
bool Matches(std::string_view text, std::string_view pattern);

}  // namespace holdem::modWindows
