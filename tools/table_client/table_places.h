// Where each of the five table layouts has its cards, backs and buttons, and what it looks like:
// the client's own tables. Used by the picture only.
#pragma once

#include <array>

#include "glyphs.h"
#include "table_picture.h"

namespace holdem::table_client {

// Pixels from the window's outer top-left corner, for a caption bar of kDrawnCaption pixels.
struct SeatPlaces {
  Point cards;   // top-left corner of the first hole card
  Point button;  // centre of the dealer button
  Point backs;   // a point on the face-down cards
};

struct LayoutPlaces {
  Size outer;
  bool corrected;  // the height grows with the caption bar
  Point board;     // top-left corner of the first card
  int boardStep;
  Point secondCard;  // from the first hole card
  std::array<SeatPlaces, kSeatCount> seats;
};

inline constexpr LayoutPlaces kPlaces[] = {
    {{800, 562},
     false,
     {266, 157},
     54,
     {16, 2},
     {{{{501, 29}, {504, 104}, {526, 93}},
       {{699, 97}, {642, 141}, {649, 155}},
       {{710, 209}, {684, 230}, {661, 248}},
       {{600, 346}, {626, 330}, {579, 321}},
       {{452, 361}, {444, 341}, {468, 326}},
       {{260, 359}, {282, 341}, {307, 326}},
       {{99, 349}, {150, 323}, {166, 318}},
       {{17, 206}, {114, 227}, {106, 245}},
       {{29, 94}, {146, 141}, {115, 155}},
       {{216, 29}, {284, 104}, {235, 92}}}}},
    {{795, 581},
     true,
     {252, 190},
     59,
     {17, 2},
     {{{{519, 39}, {556, 135}, {510, 109}},
       {{653, 69}, {650, 183}, {610, 150}},
       {{686, 214}, {676, 271}, {665, 230}},
       {{662, 329}, {619, 355}, {629, 329}},
       {{458, 366}, {449, 365}, {494, 350}},
       {{212, 368}, {244, 358}, {258, 347}},
       {{21, 315}, {146, 309}, {141, 321}},
       {{9, 209}, {131, 227}, {108, 242}},
       {{31, 78}, {214, 151}, {168, 148}},
       {{222, 64}, {329, 165}, {261, 109}}}}},
    {{800, 571},
     false,
     {271, 226},
     54,
     {14, 0},
     {{{{512, 79}, {492, 119}, {528, 107}},
       {{633, 108}, {617, 125}, {625, 157}},
       {{673, 269}, {699, 220}, {670, 268}},
       {{607, 363}, {676, 351}, {607, 365}},
       {{466, 370}, {550, 396}, {482, 366}},
       {{272, 370}, {355, 396}, {288, 366}},
       {{131, 363}, {219, 396}, {169, 364}},
       {{64, 269}, {100, 226}, {96, 270}},
       {{109, 109}, {189, 125}, {141, 142}},
       {{250, 79}, {237, 119}, {268, 107}}}}},
    {{800, 580},
     true,
     {269, 185},
     55,
     {15, 4},
     {{{{501, 42}, {522, 120}, {539, 116}},
       {{638, 99}, {662, 178}, {601, 144}},
       {{711, 227}, {682, 273}, {675, 234}},
       {{579, 343}, {560, 349}, {591, 307}},
       {{371, 367}, {391, 348}, {422, 342}},
       {},  // no such seat
       {{167, 343}, {243, 349}, {175, 306}},
       {{33, 227}, {117, 275}, {105, 233}},
       {{97, 99}, {137, 178}, {180, 142}},
       {{243, 42}, {281, 121}, {242, 116}}}}},
    {{800, 580},
     true,
     {269, 185},
     55,
     {15, 4},
     {{{{500, 38}, {518, 121}, {540, 117}},
       {{636, 95}, {657, 179}, {603, 142}},
       {{714, 202}, {686, 257}, {675, 217}},
       {{617, 313}, {588, 340}, {589, 298}},
       {{459, 363}, {528, 357}, {427, 360}},
       {{287, 363}, {270, 357}, {355, 360}},
       {{124, 313}, {204, 336}, {187, 293}},
       {{30, 202}, {114, 257}, {105, 216}},
       {{102, 95}, {139, 179}, {176, 141}},
       {{245, 38}, {278, 121}, {238, 117}}}}},
};

// In layout 1 green tells that no cards lie at a seat, so rail and room are green too. Layout 5 is
// told from layout 4 by its green felt.
struct LayoutLook {
  Rgb felt, rail, room, button;
  std::array<Rgb, 4> inks;  // spades, diamonds, clubs, hearts
  RankStyle ranks;
  Point rankPlace;  // in a card
  SuitStyle suits;
  Point suitPlace;
  Point onBack;  // where on a face-down card the point of SeatPlaces lies
};

inline constexpr Rgb kWhite = 0xFFFFFF;
inline constexpr Rgb kBlack = 0x000000;
inline constexpr Rgb kInk = 0x0A0A0C;
inline constexpr Rgb kRed = 0xC80014;
inline constexpr Rgb kButtonLight = 0xFAFAF5;
inline constexpr Rgb kButtonRed = 0xF01414;
inline constexpr std::array<Rgb, 4> kTwoColours = {kInk, kRed, kInk, kRed};

inline constexpr LayoutLook kLooks[] = {
    {0x187038,
     0x144C28,
     0x0A3E1C,
     kButtonLight,
     kTwoColours,
     RankStyle::Serif,
     {3, 3},
     SuitStyle::Small,
     {3, 21},
     {3, 3}},
    // Spades of a green so dark that they look black.
    {0x244E60,
     0x423C46,
     0x1E202C,
     kButtonRed,
     {0x00381C, 0x0046C8, 0x00962A, kRed},
     RankStyle::Tall,
     {3, 3},
     SuitStyle::Small,
     {5, 21},
     {0, 0}},
    {0x2C7648,
     0x5C4028,
     0x282C30,
     kButtonLight,
     kTwoColours,
     RankStyle::Narrow,
     {3, 8},
     SuitStyle::Large,
     {2, 23},
     {0, 0}},
    {0x284278,
     0x46465A,
     0x181C2C,
     kButtonRed,
     kTwoColours,
     RankStyle::Bold,
     {3, 5},
     SuitStyle::Small,
     {3, 20},
     {0, 0}},
    {0x108428,
     0x54341E,
     0x142C1E,
     kButtonRed,
     kTwoColours,
     RankStyle::Bold,
     {3, 5},
     SuitStyle::Small,
     {3, 20},
     {0, 0}},
};

}  // namespace holdem::table_client
