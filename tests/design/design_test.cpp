#include "design/deck_layout.h"
#include "design/in_words.h"
#include "design/screen_fit.h"
#include "fakes/fake_ports.h"
#include "table/refresh.h"

namespace holdem {
namespace {

using InWordsTest = ProgramTest;

TEST_F(InWordsTest, WhatScreenReadersAndTooltipsSay) {
  PutSeats("iii.2345ii 2 1");
  seats.WatchFoldDepth = true;
  slots.picHand[0] = 1;
  results.OutRows[27] = 2;
  ShowDealerButton(1);
  EXPECT_EQ(SeatTip(2), "Seat 2: yours, small blind\nRight-click: menu, with the dealer button");
  EXPECT_EQ(SeatTip(7), "Seat 7: folded on the turn\nClick: is in\nRight-click: menu");
  EXPECT_EQ(DeckCardTip(27), "Ace of Clubs, in the deck, an out for 3 of a kind");
  Fingerprint words;  // a change must be meant
  for (const int chosenDealer : {0, 4, 6}) {
    wizard = {.chosenSeat = 4, .chosenDealer = chosenDealer};
    wizard.present[1] = false;
    seats.WatchFoldDepth = chosenDealer != 4;
    for (int seat = 1; seat <= kSeats; ++seat) words.Add(SeatTip(seat) + WizardSeatInWords(seat));
  }
  for (const double score : {kNoScore, -4.0, 0.5, 3.0}) {
    advice.MeterScore = score;
    words.Add(MeterInWords());
  }
  for (const int slot : kSlotOrder) words.Add(SlotTip(slot));
  for (int row = 0; row < kResultRows; ++row)
    words.Add(CellInWords("Me", row, row < 4 ? "" : " 12%"));
  for (const Card card : {27, 52}) words.Add(DeckCardInWords(card) + DeckCardTip(card));
  EXPECT_EQ(words.value, 17659624959590933132U);
}

using ScreenFitTest = ProgramTest;

TEST_F(ScreenFitTest, TheWindowsStandInTheFreePartOfTheScreen) {
  const std::tuple<int, PixelArea, double, PixelArea, PixelPoint> cases[] = {
      // The screen's height, what is free of it, the scale; then, scaled, both windows.
      {1024, {0, 40, 1220, 1024}, 1, {103, 40, 888, 330}, {888, 40}},
      {1024, {200, 0, 1280, 1024}, 1, {495, 0, 1280, 290}, {948, 290}},  // too narrow for both
      {768, {0, 0, 1025, 768}, 1, {103, 0, 693, 218}, {693, 0}},         // 550 stay free below
      {480, {0, 0, 640, 440}, 1, {0, 0, 640, 236}, {308, 228}},          // as far below as it fits
      {1024, {0, 41, 1280, 1024}, 2, {0, 21, 640, 257}, {308, 257}},
      {1080, {0, 0, 1859, 1080}, 1.5, {122, 0, 907, 290}, {907, 0}}};
  for (const auto& [height, own, scale, main, deck] : cases) {
    screenState.ScreenHeightPx = height;
    const PixelArea free = modResize::LogicalArea(own, scale);
    EXPECT_EQ(modResize::PlaceMain(785, 290, 332, free, scale), main) << own.right;
    EXPECT_EQ(modResize::PlaceDeck(main, 332, 212, free), deck) << own.right;
  }
}

TEST_F(ScreenFitTest, MessageFontsAndDeck) {
  screenState = {.ScreenWidthPx = 1025, .ScreenHeightPx = 768};
  EXPECT_EQ(modResize::SmallScreenMessage(),
            "Screen Resolution: 1025x768\r\nProgram will be resized");
  Fingerprint sizes;  // a change must be meant
  for (const int width : {640, 1024, 1025, 1280, 1920}) {
    for (const int height : {650, 768, 769, 799, 800, 840, 1080}) {
      screenState = {.ScreenWidthPx = width, .ScreenHeightPx = height};
      sizes.Add(modResize::IsSmallScreen());
      sizes.Add(LayoutDeck(height));
    }
  }
  for (const double points : {1.9, 2.0, 2.1, 7.0, 7.01, 72.0, 73.0}) {
    sizes.Add(modResize::ScaledFont(points).points);
    sizes.Add(modResize::ScaledFont(points).family);
  }
  EXPECT_EQ(sizes.value, 15336605777624986912U);
}

}  // namespace
}  // namespace holdem
