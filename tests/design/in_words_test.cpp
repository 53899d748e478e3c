#include "design/in_words.h"

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
      {SeatTip(2), "Seat 2: yours, small blind\nRight-click: dealer button"},
      {SeatTip(5), "Seat 5: in\nClick: folds; double-click: empty"},
      {SeatTip(9), "Seat 9: folded on the turn\nClick: is in"},
      {DeckCardTip(52), ""}};
  for (const auto& [said, words] : cases) EXPECT_EQ(said, words);
  seats.WatchFoldDepth = false;
  EXPECT_EQ(SeatInWords(9), "Seat 9: folded");
  for (const auto& [score, percent] : {std::pair{0.5, "50"}, {-4.0, "0"}, {3.0, "100"}}) {
    advice.MeterScore = score;
    EXPECT_EQ(MeterInWords(),
              "Hand meter: " + std::string(percent) + " on a scale from 0, fold, to 100, raise");
  }
}

TEST_F(InWordsTest, TheWizardsSeats) {
  EXPECT_EQ(WizardSeatInWords(4), "Seat 4");
  wizard = {.chosenSeat = 4, .chosenDealer = 6};
  wizard.present[1] = false;
  EXPECT_EQ(WizardSeatInWords(4), "Seat 4: yours");
  EXPECT_EQ(WizardSeatInWords(6), "Seat 6: dealer button");
  EXPECT_EQ(WizardSeatInWords(1), "Seat 1: empty");
  EXPECT_EQ(WizardSeatInWords(2), "Seat 2: occupied");
}

}  // namespace
}  // namespace holdem
