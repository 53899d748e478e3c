// A user without a plan: whatever is clicked, in whatever order, in the middle of a run too, the
// table stays in order and the figures follow.
#include "cards/deck.h"
#include "engine/run_protocol.h"
#include "engine/simulation.h"
#include "fakes/table_fixture.h"
#include "reference/literal_evaluator.h"
#include "state/analysis.h"
#include "table/card_gestures.h"
#include "table/card_slots.h"
#include "table/seat_gestures.h"
#include "table/settings_gestures.h"

namespace holdem {
namespace {

class RandomGesturesTest : public TableTest {
 protected:
  // Chances of its own, so that the gestures do not depend on what the simulation draws. 0..n-1.
  int Any(int n) { return static_cast<int>(hand_.Next() % static_cast<unsigned>(n)); }
  int AnySeat() { return 1 + Any(kSeats); }
  int AnySlot() { return kSlotOrder[Any(7)]; }
  Card AnyCard() { return static_cast<Card>(1 + Any(kCardCount)); }

  void UseMenu() {
    const SeatMenu menu = OpenSeatMenu(AnySeat());
    switch (Any(5)) {
      case 0: return ChooseIn();
      case 1: return ChooseFold(static_cast<SeatState>(FoldedPreFlop + Any(4)));
      case 2: return ChooseEmpty();
      case 3: return ChooseMe();
      default: return menu.mnuDealer.enabled ? ChooseDealer() : void();
    }
  }

  // Mostly the card that lies there, now and then one that has gone in mid-drag; on a slot or the
  // deck.
  void Drag(const CardPlace& source, Card held) {
    const Card card = held != kNoCard && Any(8) > 0 ? held : AnyCard();
    DropCard(source, card, Any(3) > 0 ? CardPlace{.slot = AnySlot()} : CardPlace{.deckCard = card});
  }

  void Gesture() {
    const int occupied = Occupied();
    const int kind = Any(24);
    const int slot = AnySlot();
    const Card card = AnyCard();
    const bool yes = Any(2) == 0;
    clock.now += Any(3);
    switch (kind) {
      case 0: NewHand(); break;
      case 1:
        nineSeats_ |= yes;
        SetNineSeats(yes);
        break;
      case 2: SetWatchFoldDepth(yes); break;
      case 3: yes ? ChooseLevelPost(Any(3)) : ChooseLevelPre(Any(3)); break;
      case 4: yes ? CheckRefresh() : MarkTableChanged(); break;
      case 5: autoRead.WatchedWindow = Any(4) == 0 ? 77 : 0; break;
      case 6: RightPressSlot(slot); break;
      case 7: UseMenu(); break;
      case 8: DoubleClickSeat(AnySeat()); break;
      case 9: Blink(); break;
      case 10: Drag({.slot = slot}, slots.picHand[slot]); break;
      default:
        kind < 14   ? PressSeat(AnySeat())
        : kind < 17 ? DoubleClickSlot(slot)
                    : Drag({.deckCard = card}, card);
    }
    ++gestures_;
    ExpectOrder(occupied);
    if (HasFailure()) ADD_FAILURE() << "gesture " << gestures_ << " of kind " << kind;
  }

  static int Occupied() {
    int occupied = 0;
    for (int seat = 1; seat <= kSeats; ++seat) {
      occupied += seats.SeatStates[seat] != Empty || seat == seats.MySeat;
    }
    return occupied;
  }

  void ExpectOrder(int occupiedBefore) {
    for (const Card card : slots.picHand) {
      if (card == kNoCard) continue;
      ASSERT_TRUE(IsRealCard(card));
      ASSERT_EQ(std::count(slots.picHand.begin(), slots.picHand.end(), card), 1);
    }
    ASSERT_GE(Occupied(), nineSeats_ ? 1 : std::min(2, occupiedBefore));
    if (seats.SeatCount == 9) {
      ASSERT_TRUE(seats.SeatStates[6] == Empty && seats.MySeat != 6 && seats.DealerSeat != 6);
    }
  }

  // With all changes worked off, the figures are those of a fresh look at the seats and slots.
  void ExpectFiguresOfTheTable() {
    ASSERT_FALSE(run.Calculating || run.AbortRequested);
    Hand hand;
    int board = 0;
    for (const int slot : kSlotOrder) {
      if (!slots.IsFilled(slot)) continue;
      hand.entries[++hand.count].card = slots.picHand[slot];
      board += slot >= 6;
    }
    FillHand(hand, hand.count);
    int folded = 0;
    for (const SeatState state : seats.SeatStates) folded += state >= FoldedPreFlop;
    Street street = NoStreet;
    if (slots.IsFilled(0) && slots.IsFilled(1)) {
      const bool flop = slots.IsFilled(6) && slots.IsFilled(7) && slots.IsFilled(8);
      const bool early = slots.IsFilled(10) && !slots.IsFilled(9);
      if (board == 0) street = PreFlop;
      if (flop && !early && Occupied() - folded > 1) street = static_cast<Street>(board - 1);
    }
    ASSERT_EQ(analysis.CurrentStreet, street);
    ASSERT_EQ(analysis.PlayerCount, Occupied());
    ASSERT_EQ(analysis.FoldedCount, folded);
    ASSERT_EQ(analysis.MyHandValue, literal::EvaluateHand(hand, false));
    ASSERT_EQ(deck.CardsLeft(), 52 - hand.count);
    for (int i = 1; i <= hand.count; ++i) ASSERT_TRUE(deck.DeckUsed(hand.entries[i].card));
    ASSERT_NE(results.lblAdvice, kThinking);
    if (street != PreFlop) {
      ASSERT_EQ(results.lblMe[8].empty(), street == NoStreet);
    }
    if (street < Flop) return;
    ++calculated_;
    const int row = static_cast<int>(analysis.MyHandValue) - 1;
    const char* mark = street == River ? "Final" : "Current";
    for (int i = 0; i < 8; ++i) ASSERT_EQ(results.lblMe[i] == mark, i == row);
    ASSERT_EQ(simulation.SimTally[1].deals, 12);
  }

  RandomGenerator hand_;
  bool nineSeats_ = false;  // the box has just been ticked
  int gestures_ = 0;
  int calculated_ = 0;
};

TEST_F(RandomGesturesTest, LeaveEverythingInOrder) {
  bool inYield = false;
  display.atYield = [&](int) {
    ASSERT_FALSE(inYield) << "a pass within a pass";
    inYield = true;
    if (Any(16) == 0) Gesture();
    inYield = false;
  };
  while (gestures_ < 200000 && !HasFailure()) {
    nineSeats_ = false;
    Gesture();
    while (IsLater(run.LastChangeTicks, run.LastCalcTicks)) CheckRefresh();
    ExpectFiguresOfTheTable();
  }
  EXPECT_GT(calculated_, gestures_ / 10);
}

}  // namespace
}  // namespace holdem
