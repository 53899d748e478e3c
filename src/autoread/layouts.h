// The five table layouts: where a poker client's table window shows the cards, the dealer button
// and the opponents' cards. Loaded once at start-up, then only read, by window discovery and card
// recognition.
#pragma once

#include <array>
#include <string_view>

#include "platform/desktop.h"
#include "state/seats.h"

namespace holdem {

inline constexpr int kLayouts = 5;
inline constexpr int kBoardSeat = 0;  // stands for the board where a seat is asked for

// Pixels from the table window's outer top-left corner, for a caption bar 26 pixels high; (0, 0)
// where there is no such place.
template <typename T>
using ByLayoutAndSeat = std::array<std::array<T, kSeats + 1>, kLayouts + 1>;  // by 1..5, 0..10

using CardPlaces = std::array<PixelPoint, 6>;  // by card 1..5; a seat has 1 and 2

inline ByLayoutAndSeat<CardPlaces> CardPoints;     // a card's top-left corner
inline ByLayoutAndSeat<PixelPoint> ButtonPoints;   // on the dealer button beside a seat
inline ByLayoutAndSeat<PixelPoint> HoldingPoints;  // on an opponent's face-down cards

// The table of layout 4 has nine seats.
constexpr bool LayoutHasSeat(int layout, int seat) { return layout != 4 || seat != 6; }

// Stores one row, such as "01 00 01 0266 0157": layout, seat, card, x, y; and for a seat's first
// card the second one beside it. REQUIRES a row of that form, in range.
void ParseLayoutRow(std::string_view row);

void LoadTableLayouts();

}  // namespace holdem
