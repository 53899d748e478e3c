// The five table layouts: how a poker client's table window is told, where it shows the cards, the
// dealer button and the opponents' cards, and how they are read there. All that is known of a
// layout is its row in layouts.cpp. Read by window discovery, card recognition, the watcher and the
// wizard.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "autoread/card_recognisers.h"
#include "platform/desktop.h"
#include "state/seats.h"

namespace holdem {

inline constexpr int kLayouts = 5;
// The height in pixels of the caption bars under which all points were taken.
inline constexpr int kCaptionBarHeight = 26;
inline constexpr int kBoardSeat = 0;  // stands for the board where a seat is asked for

// A way of telling that a window is a table, by everything that is named here.
struct WindowSign {
  std::string_view className;      // a pattern, in which * stands for any run of characters
  std::string_view caption = "*";  // likewise
  int width = 0;                   // of the outer rectangle, in pixels; 0 for any size
  int height = 0;
  bool captionBarCounts = false;  // the height is one with a caption bar of 26 pixels
  // Whether the felt is green, which tells layouts 4 and 5 apart: they have one class and size. Not
  // looked at without a value.
  std::optional<bool> greenFelt{};
};

// Pixels from the table window's outer top-left corner, for a caption bar 26 pixels high; (0, 0)
// where there is no such point.
struct SeatPoints {
  PixelPoint card;     // top-left corner of the first card
  PixelPoint button;   // on the dealer button beside the seat
  PixelPoint holding;  // on an opponent's face-down cards
};

// What is known of one layout. Each area is all that the test or recogniser beside it looks at.
struct Layout {
  // A window with any of these signs shows the layout; those without a class name do not count. A
  // window that has signs of two layouts is of the later.
  std::array<WindowSign, 5> signs;
  std::array<PixelPoint, 5> board;         // a card's top-left corner, by card - 1
  std::array<SeatPoints, kSeats> seats;    // by seat - 1
  PixelPoint secondCard;                   // from a seat's first card
  bool ofNine = false;                     // without kSeatLeftOut
  bool hasMarker = false;                  // shows the marker, so its caption need say nothing
  bool cardsMove = false;                  // one may be caught while it is drawn: read twice
  bool (*isButton)(PixelColor) = nullptr;  // at the button's point
  PixelArea cardArea;                      // from a card's corner
  std::string (*recogniseCard)(const Capture&) = nullptr;
  std::array<PixelArea, 2> holdingAreas;  // from a holding point
  bool (*holdsCards)(const modCardRead::PixelsFrom&) = nullptr;
};

// REQUIRES layout 1..5.
const Layout& LayoutOf(int layout);

bool LayoutHasSeat(int layout, Seat seat);  // the board counts as one

// The points by layout 1..5 and seat 0..10, which index these themselves; index 0 of the layouts is
// unused.
template <typename T>
using ByLayoutAndSeat = std::array<std::array<T, kSeats + 1>, kLayouts + 1>;

// By card 1..5, index 0 unused; a seat has cards 1 and 2.
using PointsOfCards = std::array<PixelPoint, 6>;

extern const ByLayoutAndSeat<PointsOfCards> CardPoints;
extern const ByLayoutAndSeat<PixelPoint> ButtonPoints;
extern const ByLayoutAndSeat<PixelPoint> HoldingPoints;

}  // namespace holdem
