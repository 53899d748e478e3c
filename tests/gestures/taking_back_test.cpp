#include "autoread/setup_wizard.h"
#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/card_typing.h"
#include "gestures/seat_gestures.h"
#include "table/history.h"

namespace holdem {
namespace {

using TakingBackTest = ProgramTest;

void AnswerWizard() {
  OpenWizard();
  for (const int seat : {7, 8, 3}) ClickWizardSeat(seat);
  FinishWizard();
}

TEST_F(TakingBackTest, EachGestureThatChangedSomethingOnce) {
  const std::function<void()> gestures[] = {[] { ClickDeckCard(1); },
                                            [] { DropDeckCard(15, 7); },
                                            [] { DropSlotCard(0, 1, 10); },
                                            [] { DoubleClickSlot(1); },
                                            [] { ReturnSlotCard(7, 15); },
                                            [] { PressSeat(4); },
                                            [] { PressSeat(7), DoubleClickSeat(7); },
                                            [] { EmptySeat(4); },
                                            [] { OpenSeatMenu(6), ChooseMe(); },
                                            ChooseDealer,
                                            [] { ChooseNineSeats(true); },
                                            TakeLastCardBack,
                                            NewHand,
                                            AnswerWizard};
  const auto table = [] { return Cards() + Seating() + std::to_string(seats.SeatCount); };
  std::vector<std::string> before;
  for (const auto& gesture : gestures) {
    before.push_back(table());
    gesture();
    EXPECT_NE(table(), before.back());
    PressSeat(seats.MySeat);  // is refused
    RightPressSlot(8);
  }
  while (!before.empty()) {
    EXPECT_EQ(ReactionTo(TakeBackGesture), Calculated);
    EXPECT_EQ(table(), before.back()) << before.size();
    before.pop_back();
  }
  EXPECT_EQ(ReactionTo(TakeBackGesture), Nothing);
  for (const Card card : {1, 15, 2}) ClickDeckCard(card);
  DropSlotCard(0, 1, 9);
  RightPressSlot(1);
  TakeBackGesture();
  TakeLastCardBack();  // as they were entered, wherever they have been since
  EXPECT_EQ(Cards(), "-- 2D -- -- -- AS --");
}

TEST_F(TakingBackTest, WhatIsTypedIsAClickOnThatCardOrNothing) {
  const std::tuple<const char*, const char*, int, const char*, const char*> cases[] = {
      // Before, typed, the focused slot; after, what is shown as typed.
      {"", "aS10h1", kNoSlot, "AS TH", "1"},
      {"AS", "askd", 0, "AS KD", ""},
      {"AS", "kd", 9, "AS -- -- -- -- KD", ""},
      {"AS", "q jx", kNoSlot, "AS", ""},
      {kRiverHand, "2s", kNoSlot, kRiverHand, ""}};
  for (const auto& [before, typed, focused, after, shown] : cases) {
    SCOPED_TRACE(typed);
    slots = {.DeckShown = true};
    Put(before);
    for (const char character : std::string_view(typed)) TypeCharacter(character, focused);
    EXPECT_EQ(slots.picHand, SlotsOf(after));
    EXPECT_EQ(slots.TypedSlot == kNoSlot ? "" : std::string(1, slots.TypedRank), shown);
  }
}

}  // namespace
}  // namespace holdem
