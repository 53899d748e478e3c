// The main window as designed: where every control stands, in twips, from the left and top of the
// client area.
#pragma once

#include <array>

#include "figures/percent_text.h"
#include "platform/canvas.h"
#include "state/seats.h"
#include "state/slots.h"

namespace holdem::layout {

inline constexpr Size kClient{11625, 3900};

inline constexpr Rect kTable{1320, 480, 4455, 2895};
inline constexpr Rect kMenuFile{45, 45, 240, 195};
inline constexpr Rect kMenuSpeed{405, 45, 465, 195};
inline constexpr Rect kMenuHelp{1005, 45, 330, 195};
inline constexpr Rect kNewDeal{3000, 30, 1095, 375};
inline constexpr Rect kSetup{3180, 600, 705, 285};
inline constexpr Rect kCurrentScore{2040, 960, 3015, 315};
inline constexpr Rect kMessage{1620, 2280, 3855, 255};
inline constexpr Rect kFoldLevels{120, 3480, 1815, 495};
inline constexpr Rect kNinePlayers{5400, 3480, 1215, 375};
inline constexpr Rect kHelp{6075, 180, 915, 240};
inline constexpr Rect kAutoFrame{7245, 135, 1185, 870};
inline constexpr Rect kEyeBall{7155, -45, 1365, 840};
// The eye itself: within kAutoFrame, over kAutoOn.
inline constexpr Rect kEye{7320, 195, 1035, 480};
inline constexpr Rect kAutoOn{7290, 675, 1035, 255};
inline constexpr Rect kManual{7470, 315, 735, 615};
inline constexpr Rect kPreFlopFrame{7065, 1350, 1575, 615};
inline constexpr Rect kPostFlopFrame{7065, 2040, 1575, 615};
inline constexpr Rect kAdvice{6720, 2770, 4935, 375};
inline constexpr Rect kHandMeter{6720, 3165, 4935, 690};

// By level 0..2, inside the level frames.
inline constexpr std::array<Rect, 3> kLevels = {
    {{40, 240, 495, 255}, {520, 240, 495, 255}, {1000, 240, 495, 255}}};

// By seat 1..10.
inline constexpr std::array<Rect, kSeats + 1> kSeatBoxes = {{{},
                                                             {4620, 60, 1095, 615},
                                                             {5640, 840, 1095, 615},
                                                             {5670, 1920, 1095, 615},
                                                             {5280, 2760, 1095, 615},
                                                             {3960, 3240, 1095, 615},
                                                             {2160, 3240, 1095, 615},
                                                             {780, 2760, 1095, 615},
                                                             {150, 1920, 1095, 615},
                                                             {360, 840, 1095, 615},
                                                             {1500, 60, 1095, 615}}};
inline constexpr std::array<Rect, kSeats + 1> kButtonSpots = {{{},
                                                               {4320, 660, 255, 255},
                                                               {5280, 1260, 255, 255},
                                                               {5370, 1860, 255, 255},
                                                               {4980, 2580, 255, 255},
                                                               {3840, 3000, 255, 255},
                                                               {2820, 2940, 255, 255},
                                                               {1860, 2580, 255, 255},
                                                               {1380, 1860, 255, 255},
                                                               {1560, 1320, 255, 255},
                                                               {2460, 660, 375, 300}}};
inline constexpr Size kBlindMark{270, 195};
inline constexpr double kBlindMarkOffset = 10;  // right of and below the button spot's corner

// Of the seat that closes up a table of nine: its left edge as a share of the main window's width.
constexpr double LeftOfSeatClosingUp(bool ofNine) { return ofNine ? 0.25 : 0.337; }

// The card slots, by slot index. The hole cards' are moved over the user's seat.
inline constexpr std::array<Rect, kRiverSlot + 1> kSlots = {{{1680, 240, 412, 615},
                                                             {2040, 240, 412, 615},
                                                             {},
                                                             {},
                                                             {},
                                                             {},
                                                             {1920, 1320, 615, 855},
                                                             {2580, 1320, 615, 855},
                                                             {3240, 1320, 615, 855},
                                                             {3900, 1320, 615, 855},
                                                             {4560, 1320, 615, 855}}};

// The two hole-card slots over a seat picture; they overhang its right edge.
inline std::array<Rect, 2> PlaceHoleSlots(const Rect& seat) {
  const double width = RoundHalfEven(seat.width * 0.5);  // whole twips
  const double left = seat.left + seat.width * 0.22;
  const double top = seat.top - seat.height * 0.1;
  const double height = RoundHalfEven(seat.height * 1.2);
  return {{{left, top, width, height}, {left + width, top, width, height}}};
}

// The results grid: the user, the row titles, the best other player.
struct Column {
  const char* header;
  int headerIndex;  // of lblTop
  double left;
  double width;
};
inline constexpr std::array<Column, 3> kColumns = {
    {{"Me", 0, 8655, 840}, {"Probable Outcome", 2, 9480, 1320}, {"Another player", 1, 10785, 840}}};
constexpr Rect HeaderBox(const Column& column) { return {column.left, 40, column.width, 455}; }
constexpr Rect RowBox(const Column& column, int row) {
  return {column.left, 480.0 + 240 * row, column.width, row == 8 ? 355.0 : 255.0};
}

}  // namespace holdem::layout
