// What the pixels of the followed table say: cards, dealer button, opponents still holding cards.
// Read by the watcher on every tick. All operations read autoRead.CurrentTable by
// autoRead.TableLayout.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "cards/card.h"
#include "platform/desktop.h"

namespace holdem::modCardRead {

// Rank then suit, such as "TD"; kNoCard for anything else.
Card CardTextToCode(std::string_view text);

// A point of a layout, as it lies in the window with the caption bar that it has.
PixelPoint InWindow(PixelPoint point);

struct CardPosition {
  int seat;  // kBoardSeat or 1..10
  int card;  // 1..5 on the board, 1..2 at a seat
};

// The cards shown at these positions, kNoCard where none can be read. Nothing when the window is
// gone.
std::optional<std::vector<Card>> ReadCards(std::span<const CardPosition> positions);

// The lowest seat with the dealer button, 0 for none. Nothing when the window is gone.
std::optional<int> FindDealerSeat();

// By seat 1..10: whether the seat shows face-down cards. Nothing when the window is gone.
std::optional<std::array<bool, 11>> SeatsHoldingCards();

// Whether the fixed marker of a layout-3 table stands in this window, which need not be the
// followed one.
bool HasLayout3Marker(WindowHandle window);

}  // namespace holdem::modCardRead
