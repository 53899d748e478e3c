#include <random>

#include "advice/hole_table.h"
#include "autoread/setup_wizard.h"
#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/card_typing.h"
#include "gestures/seat_gestures.h"
#include "table/history.h"
#include "table/refresh.h"

namespace holdem {
namespace {

using TakingBackTest = ProgramTest;

void AnswerWizard() {
  OpenWizard();
  for (const int seat : {7, 8, 3}) ClickWizardSeat(seat);
  FinishWizard();
  SeatsChanged();
}

// Users without a plan, and what they change with each gesture: the table, what stays from street
// to street, and before the flop the advice.
TEST_F(TakingBackTest, EachGestureThatChangedSomethingOnceAndThenAgain) {
  modHole::LoadHoleTable();
  std::minstd_rand random;
  const auto pick = [&](int count) { return static_cast<int>(random() % count); };
  const auto slot = [&] { return kSlotOrder[pick(7)]; };
  const auto seat = [&] { return 1 + pick(seats.SeatCount == 9 ? 5 : kSeats); };
  int from = 0, twice = 0;
  const std::function<void()> gestures[] = {
      [&] { ClickDeckCard(1 + pick(kCardCount)); },
      [&] { DropDeckCard(1 + pick(kCardCount), slot()); },
      [&] { from = slot(), DropSlotCard(from, slots.picHand[from], slot()); },
      [&] { DoubleClickSlot(slot()); },
      [&] { RightPressSlot(slot()); },
      [&] { PressSeat(seat()); },
      [&] { twice = seat(), PressSeat(twice), DoubleClickSeat(twice); },
      [&] { EmptySeat(seat()); },
      [&] { OpenSeatMenu(seat()), ChooseMe(); },
      [&] { OpenSeatMenu(seat()), ChooseDealer(); },
      [&] { ChooseNineSeats(pick(4) == 0); },
      TakeLastCardBack,
      NewHand,
      AnswerWizard};
  const auto table = [] {
    const std::string shown = analysis.CurrentStreet == PreFlop ? results.lblAdvice : "";
    return std::tuple(Cards() + Seating() + shown, seats.SeatCount, advice.StartOpponents,
                      advice.MeterThreshold);
  };
  for (int round = 0; round < 60; ++round) {
    history = {};
    std::vector tables = {table()};
    for (int i = round % 20 == 0 ? 500 : 20; i > 0; --i) {
      gestures[pick(std::size(gestures))]();
      if (table() != tables.back()) tables.push_back(table());
    }
    auto now = tables.end() - 1;
    while (now != tables.begin()) {
      EXPECT_EQ(ReactionTo(TakeBackGesture), Calculated);
      EXPECT_EQ(table(), *--now) << round;
    }
    EXPECT_EQ(ReactionTo(TakeBackGesture), Nothing);
    while (now != tables.end() - 1) {
      RepeatGesture();
      EXPECT_EQ(table(), *++now) << round;
    }
    TakeBackGesture();
    round % 2 == 0 ? NewHand() : ForgetHistory();
    EXPECT_EQ(ReactionTo(RepeatGesture), Nothing);
  }
}

TEST_F(TakingBackTest, CardsGoAsTheyWereEnteredWhereverTheyHaveBeenSince) {
  for (const Card card : {1, 15, 2}) ClickDeckCard(card);
  DropSlotCard(0, 1, 9);
  RightPressSlot(1);
  TakeBackGesture();
  TakeLastCardBack();
  EXPECT_EQ(Cards(), "-- 2D -- -- -- AS --");
}

TEST_F(TakingBackTest, WhatIsTypedIsAClickOnThatCardOrNothing) {
  const std::tuple<const char*, const char*, int, const char*, const char*> cases[] = {
      // Before, typed - "-" empties the second slot -, the focused slot; after, what is shown as
      // typed.
      {"", "aS10h1", kNoSlot, "AS TH", "1"},    {"AS", "askd", 0, "AS KD", ""},
      {"AS", "kd", 9, "AS -- -- -- -- KD", ""}, {"AS", "q jx", kNoSlot, "AS", ""},
      {"AS KS", "q-h", kNoSlot, "AS QH", ""},   {kRiverHand, "2s", kNoSlot, kRiverHand, ""}};
  for (const auto& [before, typed, focused, after, shown] : cases) {
    SCOPED_TRACE(typed);
    slots = {.DeckShown = true};
    Put(before);
    for (const char character : std::string_view(typed)) {
      character == '-' ? RightPressSlot(1) : TypeCharacter(character, focused);
    }
    EXPECT_EQ(slots.picHand, SlotsOf(after));
    EXPECT_EQ(slots.TypedSlot == kNoSlot ? "" : std::string(1, slots.TypedRank), shown);
  }
}

}  // namespace
}  // namespace holdem
