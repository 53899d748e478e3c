#include "autoread/layouts.h"

#include <algorithm>
#include <cassert>

namespace holdem {
namespace {

using modCardRead::MinComponent;
using modCardRead::RedExcess;

constexpr const char* kDialog = "#32770";  // the system's standard dialog box

// A window of a class library, of which there are two layouts: only the felt tells them apart.
constexpr WindowSign FrameworkSign(bool greenFelt) {
  return {.className = "Afx*",
          .width = 800,
          .height = 580,
          .captionBarCounts = true,
          .greenFelt = greenFelt};
}

// Red, in which no felt is drawn.
bool IsRedButton(PixelColor colour) { return RedExcess(colour) >= 130; }

constexpr Layout kTableLayouts[kLayouts] = {
    {.signs = {{{.className = kDialog, .width = 800, .height = 562}}},
     .board = {{{266, 157}, {320, 157}, {374, 157}, {428, 157}, {482, 157}}},
     .seats = {{{{501, 29}, {504, 104}, {526, 93}},
                {{699, 97}, {642, 141}, {649, 155}},
                {{710, 209}, {684, 230}, {661, 248}},
                {{600, 346}, {626, 330}, {579, 321}},
                {{452, 361}, {444, 341}, {468, 326}},
                {{260, 359}, {282, 341}, {307, 326}},
                {{99, 349}, {150, 323}, {166, 318}},
                {{17, 206}, {114, 227}, {106, 245}},
                {{29, 94}, {146, 141}, {115, 155}},
                {{216, 29}, {284, 104}, {235, 92}}}},
     .secondCard = {16, 2},
     .cardsMove = true,
     .isButton = [](PixelColor c) { return MinComponent(c) >= 200; },  // white, in any light
     .cardArea = {0, 0, 14, 32},
     .recogniseCard = modCardRead::RecogniseCardLayout1,
     .holdingAreas = {{{0, 0, 1, 1}, {0, 26, 1, 27}}},
     .holdsCards = modCardRead::HoldsCardsLayout1},
    {.signs = {{{.className = kDialog, .caption = "*-  Hold'em -*"},
                {.className = kDialog, .caption = "*- NL  Hold'em*"},
                {.className = kDialog, .caption = "*- PL  Hold'em*"},
                {.className = kDialog, .width = 795, .height = 581, .captionBarCounts = true},
                {.className = kDialog, .width = 908, .height = 708, .captionBarCounts = true}}},
     .board = {{{252, 190}, {311, 190}, {370, 190}, {429, 190}, {488, 190}}},
     .seats = {{{{519, 39}, {556, 135}, {510, 109}},
                {{653, 69}, {650, 183}, {610, 150}},
                {{686, 214}, {676, 271}, {665, 230}},
                {{662, 329}, {619, 355}, {629, 329}},
                {{458, 366}, {449, 365}, {494, 350}},
                {{212, 368}, {244, 358}, {258, 347}},
                {{21, 315}, {146, 309}, {141, 321}},
                {{9, 209}, {131, 227}, {108, 242}},
                {{31, 78}, {214, 151}, {168, 148}},
                {{222, 64}, {329, 165}, {261, 109}}}},
     .secondCard = {17, 2},
     .isButton = [](PixelColor c) { return RedExcess(c) >= 200; },  // a full red
     .cardArea = {0, 0, 16, 26},
     .recogniseCard = modCardRead::RecogniseCardLayout2,
     .holdingAreas = {{{10, 0, 16, 1}, {0, 13, 1, 14}}},
     .holdsCards = modCardRead::HoldsCardsLayout2},
    {.signs = {{{.className = kDialog, .width = 800, .height = 571}}},
     .board = {{{271, 226}, {325, 226}, {379, 226}, {433, 226}, {487, 226}}},
     .seats = {{{{512, 79}, {492, 119}, {528, 107}},
                {{633, 108}, {617, 125}, {625, 157}},
                {{673, 269}, {699, 220}, {670, 268}},
                {{607, 363}, {676, 351}, {607, 365}},
                {{466, 370}, {550, 396}, {482, 366}},
                {{272, 370}, {355, 396}, {288, 366}},
                {{131, 363}, {219, 396}, {169, 364}},
                {{64, 269}, {100, 226}, {96, 270}},
                {{109, 109}, {189, 125}, {141, 142}},
                {{250, 79}, {237, 119}, {268, 107}}}},
     .secondCard = {14, 0},
     .hasMarker = true,
     .isButton = [](PixelColor c) { return MinComponent(c) >= 150; },  // light grey or white
     .cardArea = {0, 0, 14, 39},
     .recogniseCard = modCardRead::RecogniseCardLayout3,
     .holdingAreas = {{{12, 0, 25, 1}}},
     .holdsCards = modCardRead::HoldsCardsLayout3},
    {.signs = {FrameworkSign(false)},
     .board = {{{269, 185}, {324, 185}, {379, 185}, {434, 185}, {489, 185}}},
     .seats = {{{{501, 42}, {522, 120}, {539, 116}},
                {{638, 99}, {662, 178}, {601, 144}},
                {{711, 227}, {682, 273}, {675, 234}},
                {{579, 343}, {560, 349}, {591, 307}},
                {{371, 367}, {391, 348}, {422, 342}},
                {{0, 0}, {0, 0}, {0, 0}},
                {{167, 343}, {243, 349}, {175, 306}},
                {{33, 227}, {117, 275}, {105, 233}},
                {{97, 99}, {137, 178}, {180, 142}},
                {{243, 42}, {281, 121}, {242, 116}}}},
     .secondCard = {15, 4},
     .ofNine = true,
     .isButton = IsRedButton,
     .cardArea = {0, 0, 16, 30},
     .recogniseCard = modCardRead::RecogniseCardLayout45,
     .holdingAreas = {{{0, 0, 5, 5}}},
     .holdsCards = modCardRead::HoldsCardsLayout45},
    {.signs = {FrameworkSign(true)},
     .board = {{{269, 185}, {324, 185}, {379, 185}, {434, 185}, {489, 185}}},
     .seats = {{{{500, 38}, {518, 121}, {540, 117}},
                {{636, 95}, {657, 179}, {603, 142}},
                {{714, 202}, {686, 257}, {675, 217}},
                {{617, 313}, {588, 340}, {589, 298}},
                {{459, 363}, {528, 357}, {427, 360}},
                {{287, 363}, {270, 357}, {355, 360}},
                {{124, 313}, {204, 336}, {187, 293}},
                {{30, 202}, {114, 257}, {105, 216}},
                {{102, 95}, {139, 179}, {176, 141}},
                {{245, 38}, {278, 121}, {238, 117}}}},
     .secondCard = {15, 4},
     .isButton = IsRedButton,
     .cardArea = {0, 0, 16, 30},
     .recogniseCard = modCardRead::RecogniseCardLayout45,
     .holdingAreas = {{{0, 0, 5, 5}}},
     .holdsCards = modCardRead::HoldsCardsLayout45},
};

constexpr ByLayoutAndSeat<PixelPoint> PointsOfSeats(PixelPoint SeatPoints::*point) {
  ByLayoutAndSeat<PixelPoint> points{};
  for (int layout = 1; layout <= kLayouts; ++layout) {
    for (int seat = 1; seat <= kSeats; ++seat) {
      points[layout][seat] = kTableLayouts[layout - 1].seats[seat - 1].*point;
    }
  }
  return points;
}

}  // namespace

constexpr ByLayoutAndSeat<PointsOfCards> CardPoints = [] {
  ByLayoutAndSeat<PointsOfCards> points{};
  for (int number = 1; number <= kLayouts; ++number) {
    const Layout& layout = kTableLayouts[number - 1];
    std::copy(layout.board.begin(), layout.board.end(), points[number][kBoardSeat].begin() + 1);
    for (int seat = 1; seat <= kSeats; ++seat) {
      const PixelPoint first = layout.seats[seat - 1].card;
      points[number][seat][1] = first;
      points[number][seat][2] = {first.x + layout.secondCard.x, first.y + layout.secondCard.y};
    }
  }
  return points;
}();

constexpr ByLayoutAndSeat<PixelPoint> ButtonPoints = PointsOfSeats(&SeatPoints::button);
constexpr ByLayoutAndSeat<PixelPoint> HoldingPoints = PointsOfSeats(&SeatPoints::holding);

const Layout& LayoutOf(int layout) {
  assert(layout >= 1 && layout <= kLayouts);
  return kTableLayouts[layout - 1];
}

bool LayoutHasSeat(int layout, Seat seat) {
  return seat != kSeatLeftOut || !LayoutOf(layout).ofNine;
}

}  // namespace holdem
