#include "design/deck_layout.h"
#include "design/in_words.h"
#include "design/screen_fit.h"
#include "fakes/fake_ports.h"
#include "table/refresh.h"

namespace holdem {
namespace {

using InWordsTest = ProgramTest;

TEST_F(InWordsTest, WhatScreenReadersAndTooltipsSay) {
  PutSeats("iiiiiii.4i 2 1");
  seats.WatchFoldDepth = true;
  slots.picHand[0] = 1;
  results.OutRows[27] = 2;
  ShowDealerButton(1);
  EXPECT_EQ(WizardSeatInWords(4), "Seat 4");
  wizard = {.chosenSeat = 4, .chosenDealer = 6};
  wizard.present[1] = false;
  const std::pair<std::string, const char*> cases[] = {
      {SlotInWords(9), "Turn: empty"},
      {SeatInWords(1), "Seat 1: in, dealer button"},
      {SeatInWords(3), "Seat 3: in, big blind"},
      {SeatInWords(8), "Seat 8: empty"},
      {DeckCardInWords(52), "King of Hearts, in the deck"},
      {DeckCardInWords(27), "Ace of Clubs, in the deck, an out for 3 of a kind"},
      {CellInWords("Me", 1, "12%"), "Me, Two Pair: 12%"},
      {CellInWords("Another player", 8, ""), "Another player, Win/Split: no figure"},
      {MeterInWords(), "Hand meter: empty"},
      {SlotTip(0), "First hole card: Ace of Spades\nRight-click: back to the deck"},
      {SlotTip(6), "First flop card: empty\nDouble-click: a random card"},
      {SeatTip(2), "Seat 2: yours, small blind\nRight-click: menu, with the dealer button"},
      {SeatTip(5), "Seat 5: in\nClick: folds; double-click: empty\nRight-click: menu"},
      {SeatTip(9), "Seat 9: folded on the turn\nClick: is in\nRight-click: menu"},
      {DeckCardTip(52), ""},
      {WizardSeatInWords(4), "Seat 4: yours"},
      {WizardSeatInWords(6), "Seat 6: dealer button"},
      {WizardSeatInWords(1), "Seat 1: empty"},
      {WizardSeatInWords(2), "Seat 2: occupied"}};
  for (const auto& [said, words] : cases) EXPECT_EQ(said, words);
  seats.WatchFoldDepth = false;
  EXPECT_EQ(SeatInWords(9), "Seat 9: folded");
  for (const auto& [score, percent] : {std::pair{0.5, "50"}, {-4.0, "0"}, {3.0, "100"}}) {
    advice.MeterScore = score;
    EXPECT_EQ(MeterInWords(),
              "Hand meter: " + std::string(percent) + " on a scale from 0, fold, to 100, raise");
  }
}

using ScreenFitTest = ProgramTest;

TEST_F(ScreenFitTest, MessageAndPlaces) {
  // Of a main window of 785 x 290 and a deck 332 wide.
  const std::tuple<int, int, double, bool, modResize::Arrangement> cases[] = {
      {1920, 1080, 1, false, {803, 785, 290, 1588, 0}},
      {1920, 1080, 1.25, false, {419, 785, 290, 1204, 0}},
      {1920, 1080, 1.5, false, {163, 785, 290, 948, 0}},
      {1280, 1024, 1.5, false, {68, 785, 290, 521, 290}},  // no room for them side by side
      {1025, 769, 1, false, {100, 593, 219, 693, 0}},
      {1025, 768, 1, true, {103, 590, 218, 693, 0}},
      {1024, 769, 1, true, {99, 593, 219, 692, 0}},
      {640, 650, 1, true, {-477, 785, 290, 308, 0}},  // no use in shrinking
      {1920, 840, 1, false, {803, 785, 290, 1588, 0}},
      {1920, 840, 1.5, false, {426, 522, 193, 948, 0}}};
  for (const auto& [width, height, scale, small, places] : cases) {
    screenState = {.ScreenWidthPx = width, .ScreenHeightPx = height};
    EXPECT_EQ(modResize::IsSmallScreen(), small) << width << "x" << height;
    EXPECT_EQ(modResize::Arrange(785, 290, 332, scale), places) << width << "x" << height;
  }
  EXPECT_EQ(modResize::SmallScreenMessage(),
            "Screen Resolution: 1920x840\r\nProgram will be resized");
}

TEST_F(ScreenFitTest, FontsScaleWithinTheirClamps) {
  using enum FontFamily;
  EXPECT_EQ(modResize::ScaledFont(7), (Font{SmallFonts, 7}));
  EXPECT_EQ(modResize::ScaledFont(7.01), (Font{MsSansSerif, 7.01}));
  EXPECT_EQ(modResize::ScaledFont(1.9), (Font{SmallFonts, 2}));
  EXPECT_EQ(modResize::ScaledFont(73), (Font{MsSansSerif, 72}));
}

TEST_F(ScreenFitTest, DeckLayout) {
  const DeckLayout normal = LayoutDeck(800);
  EXPECT_EQ(normal.picDeck[2], (Rect{50, 50, 435, 615}));
  // From the top: spades, hearts, clubs, diamonds; the Ace last.
  EXPECT_EQ(normal.picDeck[1], (Rect{50 + 0.8 * 435 * 12, 50, 435, 615}));
  EXPECT_EQ(normal.picDeck[52], (Rect{50 + 0.8 * 435 * 11, 50 + 1.05 * 615, 435, 615}));
  EXPECT_EQ(normal.picDeck[28].top, 50 + 1.05 * 615 * 2);
  EXPECT_EQ(normal.picDeck[26], (Rect{50 + 0.8 * 435 * 11, 50 + 1.05 * 615 * 3, 435, 615}));
  EXPECT_EQ(normal.window.width, 50 + 0.8 * 435 * 12 + 1.4 * 435);
  EXPECT_EQ(normal.window.height, 50 + 1.05 * 615 * 3 + 1.4 * 615 + 200);
  EXPECT_EQ(LayoutDeck(799).picDeck[2], (Rect{50, 50, 400, 500}));
}

}  // namespace
}  // namespace holdem
