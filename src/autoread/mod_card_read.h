// What the pixels of the followed table say: cards, dealer button, opponents still holding cards.
// Read by the watcher on every tick. All operations read autoRead.CurrentTable by
// autoRead.TableLayout.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "cards/card.h"
#include "platform/desktop.h"
#include "state/seats.h"

namespace holdem::modCardRead {

// Where a point of a layout lies in the window, whose caption bar need not be 26 pixels high.
PixelPoint InWindow(PixelPoint point);

inline constexpr int kTableCards = 7;  // the user's two, the board's five

// The parts of the followed table that are looked at, or what stands for each.
template <typename T>
struct PartsOfTable {
  std::vector<T> all = std::vector<T>(kSeats + kTableCards + 2 * kSeats + 1);

  std::span<T> Buttons() { return std::span(all).first(kSeats); }  // by seat, from 1 on
  std::span<T> Cards() { return std::span(all).subspan(kSeats, kTableCards); }
  std::span<T> Backs() {
    return std::span(all).last(2 * kSeats + 1).first(2 * kSeats);
  }  // two by seat
  T& Marker() { return all.back(); }
};

// The areas that are read of the table, from its outer top-left corner; all of them must be in
// sight. The area of a part that this table lacks, or that nobody asks for, as the user's own
// backs, is empty.
PartsOfTable<PixelArea> AreasOfTable();

struct TableReading {
  Seat dealerSeat;
  std::array<Card, kTableCards> cards{};
  std::array<bool, kSeats + 1> holding{};

  bool operator==(const TableReading&) const = default;
};

// One look at all of it. The whole table comes in one reading, so that it shows one moment; asked
// for pixel by pixel it would take hundreds of round trips to the window system. Nothing when it
// cannot be read, or lacks the marker of its layout.
std::optional<TableReading> LookAtTable();

// The fixed marker of a layout-3 table: where it is, and whether it stands in this window, which
// need not be the followed one.
PixelArea Layout3MarkerArea();
bool HasLayout3Marker(WindowHandle window);

}  // namespace holdem::modCardRead
