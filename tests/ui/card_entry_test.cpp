#include <random>

#include "engine/simulation.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

class CardEntryTest : public WindowTest {
 protected:
  CardEntryTest() { Load(); }

  void ExpectSlots(const std::vector<Card>& cards) {
    EXPECT_EQ(CardsInSlots(), cards);
    ExpectWindowsShowTheState();
  }
};

TEST_F(CardEntryTest, ClicksFillTheSlotsInOrderAndTheGridAtOnce) {
  for (const Card card : {1, 13, 14, 30, 52}) Click(Deck(card));
  ExpectSlots({1, 13, 14, 30, 52, 0, 0});
  EXPECT_EQ(Text("lblMe1"), "Current");  // Aces and Kings
  EXPECT_TRUE(Text("lblMe8").endsWith("%"));
  EXPECT_TRUE(Text("lblThem8").endsWith("%"));

  Click(Deck(2));
  Press(Deck(3), Qt::RightButton);  // acts at once
  ExpectSlots({1, 13, 14, 30, 52, 2, 3});
  Click(Deck(4));  // all slots are filled
  ExpectSlots({1, 13, 14, 30, 52, 2, 3});
}

TEST_F(CardEntryTest, ASecondQuickClickIsAClick) {
  DoubleClick(Deck(20));  // the card is gone after the first
  ExpectSlots({20, 0, 0, 0, 0, 0, 0});
  Send(Widget(Deck(21)), QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton);
  Send(Widget(Deck(21)), QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
  Send(Widget(Deck(22)), QEvent::MouseButtonDblClick, Qt::RightButton, Qt::RightButton);
  ExpectSlots({20, 21, 22, 0, 0, 0, 0});
}

TEST_F(CardEntryTest, Drags) {
  Drag(Deck(5), Slot(9));
  ExpectSlots({0, 0, 0, 0, 0, 5, 0});
  Drag(Deck(6), Slot(9));  // filled already
  ExpectSlots({0, 0, 0, 0, 0, 5, 0});
  Drag(Slot(9), Slot(10));
  ExpectSlots({0, 0, 0, 0, 0, 0, 5});
  Drag(Slot(10), Slot(10));
  Drag(Slot(6), Slot(7));  // nothing to drag
  Drag(Deck(7), Deck(8));
  Drag(Deck(7), Seat(4));
  ExpectSlots({0, 0, 0, 0, 0, 0, 5});
  Drag(Slot(10), Seat(4));
  const QWidget& deckWindow = Widget("frmDeck");
  Drag(Slot(10), deckWindow.mapToGlobal(QPoint(deckWindow.width() - 3, deckWindow.height() - 3)));
  Drag(Slot(10), QPoint(5000, 5000));
  ExpectSlots({0, 0, 0, 0, 0, 0, 5});
  Drag(Slot(10), Deck(30));
  ExpectSlots({0, 0, 0, 0, 0, 0, 0});
}

TEST_F(CardEntryTest, RightPressReturnsACardAndDoubleClickDrawsOne) {
  Click(Deck(9));
  Press(Slot(0), Qt::RightButton);
  ExpectSlots({0, 0, 0, 0, 0, 0, 0});
  Press(Slot(0), Qt::RightButton);

  DoubleClick(Slot(7), Qt::RightButton);
  ExpectSlots({0, 0, 0, 0, 0, 0, 0});
  DoubleClick(Slot(7));
  const Card drawn = slots.picHand[7];
  EXPECT_TRUE(IsRealCard(drawn));
  DoubleClick(Slot(7));
  ExpectSlots({0, 0, 0, drawn, 0, 0, 0});
}

TEST_F(CardEntryTest, ADragWhoseSourceLosesItsCardDoesNothing) {
  Click(Deck(9));
  QWidget& source = Widget(Slot(0));
  const QWidget& target = Widget(Slot(8));
  Press(Slot(0), Qt::LeftButton);
  NewHand();
  Click(Deck(10));  // nothing else begins while a card is in the air
  Send(source, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton,
       target.mapToGlobal(QPoint(5, 5)));
  ExpectSlots({0, 0, 0, 0, 0, 0, 0});
}

TEST_F(CardEntryTest, ADragEndsWhenTheReleaseWentElsewhere) {
  Press(Deck(9), Qt::LeftButton);
  Send(Widget(Deck(9)), QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  Click(Deck(10));
  ExpectSlots({10, 0, 0, 0, 0, 0, 0});
}

TEST_F(CardEntryTest, ADragEndsWhenADialogOpens) {
  Press(Deck(9), Qt::LeftButton);
  EXPECT_TRUE(slots.CardInTheAir);
  ports.display->ShowMessage("text");
  EXPECT_FALSE(slots.CardInTheAir);
  QApplication::activeModalWidget()->close();
  ExpectSlots({0, 0, 0, 0, 0, 0, 0});
}

TEST_F(CardEntryTest, NewHand) {
  for (const Card card : {1, 13, 14, 30, 52}) Click(Deck(card));
  Press(Seat(5), Qt::LeftButton);
  EXPECT_EQ(seats.SeatStates[5], FoldedFlop);
  QTest::mouseClick(&Widget("cmdNewDeal"), Qt::LeftButton);
  ExpectSlots({0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(seats.SeatStates[5], In);
  EXPECT_EQ(seats.DealerSeat, 2);
  EXPECT_EQ(Text("lblMe8"), "");
}

TEST_F(CardEntryTest, AChangeInTheMiddleOfARunIsNotLost) {
  for (const Card card : {1, 13, 14, 30}) Click(Deck(card));
  settings.DealsPerRun = 100'000'000;  // would take minutes
  QTimer everyMillisecond;
  int ticks = 0;
  everyMillisecond.callOnTimeout([&] { ++ticks == 20 ? Click(Deck(2)) : void(); });
  everyMillisecond.start(1);
  Click(Deck(52));
  EXPECT_EQ(analysis.CurrentStreet, Flop);
  EXPECT_LT(simulation.SimTally[1].deals, 1'000'000);
  settings.DealsPerRun = 20;
  EXPECT_TRUE(QTest::qWaitFor([] { return analysis.CurrentStreet == Turn && !run.Calculating; }));
  EXPECT_EQ(simulation.SimTally[1].deals, 20);
  ExpectSlots({1, 13, 14, 30, 52, 2, 0});
}

// The hand on the mouse does whatever it likes; some of it in the middle of a run.
TEST_F(CardEntryTest, RandomGestures) {
  std::mt19937 random(7);
  const auto roll = [&](int sides) { return static_cast<int>(random() % sides); };
  const auto anyButton = [&] { return roll(4) == 0 ? Qt::RightButton : Qt::LeftButton; };
  const auto anyPlace = [&] {
    return roll(2) == 0 ? Slot(kSlotOrder[roll(7)]) : Deck(roll(52) + 1);
  };
  for (int gesture = 0; gesture < 3000; ++gesture) {
    const bool nineBefore = seats.SeatCount == 9;
    switch (roll(9)) {
      case 0: DoubleClick(Slot(kSlotOrder[roll(7)])); break;
      case 1: Click(Seat(roll(10) + 1)); break;
      case 2: DoubleClick(Seat(roll(10) + 1)); break;
      case 3:
        if (roll(20) == 0) QTest::mouseClick(&Widget("cmdNewDeal"), Qt::LeftButton);
        break;
      case 4:
        if (roll(20) == 0) static_cast<QCheckBox&>(Widget("chk9Pl")).toggle();
        break;
      case 5:
        if (roll(10) == 0) static_cast<QCheckBox&>(Widget("chkFoldLevels")).toggle();
        break;
      case 6: Drag(anyPlace(), anyPlace()); break;
      case 7:
        QTimer::singleShot(0, [place = anyPlace(), button = anyButton()] { Click(place, button); });
        break;
      default: {
        const QString place = anyPlace();
        if (Widget(place).isVisible()) Click(place, anyButton());
      }
    }
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();

    int held = 0;
    int inDeck = 0;
    for (const Card card : CardsInSlots()) held += card != kNoCard;
    for (Card card = 1; card <= kCardCount; ++card) inDeck += Widget(Deck(card)).isVisible();
    ASSERT_EQ(held + inDeck, kCardCount);
    int occupied = 0;
    for (int seat = 1; seat <= kSeats; ++seat) occupied += seats.IsOccupied(seat);
    ASSERT_GE(occupied, !nineBefore && seats.SeatCount == 9 ? 1 : 2);
    ASSERT_TRUE(seats.SeatCount == 10 || seats.SeatStates[6] == Empty);
    ExpectWindowsShowTheState();
    ASSERT_FALSE(HasFailure()) << "after gesture " << gesture;
  }
}

}  // namespace
}  // namespace holdem
