// The program without the mouse, and what a screen reader says.
#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>
#include <tuple>

#include "ui/window_test.h"

namespace holdem {
namespace {

class KeyboardTest : public WindowTest {
 protected:
  static void Key(const QString& name, Qt::Key key) {
    Widget(name).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Widget(name), key);
  }

  static std::string Says(const QString& name) {
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&Widget(name));
    return spoken->text(QAccessible::Name).toStdString();
  }
};

TEST_F(KeyboardTest, TabReachesEveryCommand) {
  Load();
  QWidget& form1 = Widget("Form1");
  form1.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form1));
  QStringList expected = {"lblMnuFile", "lblMnuSpeed", "lblMnuHelp", "cmdNewDeal", "lblSetup"};
  for (const int slot : kSlotOrder) expected << Slot(slot);
  for (int seat = 1; seat <= kSeats; ++seat) expected << Seat(seat);
  expected << "chkFoldLevels"
           << "chk9Pl"
           << "cmdHelp";
  expected << "lblAdvicePre0"
           << "lblAdvicePre1"
           << "lblAdvicePre2";
  expected << "lblAdvicePost0"
           << "lblAdvicePost1"
           << "lblAdvicePost2";
  QStringList reached;
  EXPECT_EQ(form1.focusWidget(), &form1);  // nothing has the keyboard before it is asked for
  for (qsizetype i = 0; i < expected.size(); ++i) {
    const QImage without = form1.grab().toImage();
    QTest::keyClick(form1.focusWidget(), Qt::Key_Tab);
    reached << form1.focusWidget()->objectName();
    EXPECT_NE(form1.grab().toImage(), without) << reached.back().toStdString();  // it is marked
  }
  EXPECT_EQ(reached, expected);
}

TEST_F(KeyboardTest, SlotsAndSeats) {
  Load();
  Widget("picHand6").setFocus();
  QTest::keyClicks(&Widget("picHand6"), "xa9T0H");  // the last rank before a suit counts
  EXPECT_EQ(slots.picHand[6], CardOf(Hearts, 10));
  Key(Slot(6), Qt::Key_Space);  // filled: no random card
  EXPECT_EQ(slots.picHand[6], CardOf(Hearts, 10));
  QTest::keyClicks(&Widget("picHand6"), "as");  // likewise
  EXPECT_EQ(slots.picHand[6], CardOf(Hearts, 10));
  Key(Slot(6), Qt::Key_Delete);
  EXPECT_FALSE(slots.IsFilled(6));
  Key(Slot(10), Qt::Key_Return);
  EXPECT_TRUE(slots.IsFilled(10));

  Key(Slot(7), Qt::Key_A);  // half a card does not go over to the next slot
  Key(Slot(8), Qt::Key_D);
  EXPECT_FALSE(slots.IsFilled(8));

  Key(Seat(4), Qt::Key_Space);
  EXPECT_EQ(seats.SeatStates[4], FoldedPreFlop);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(&Widget(Seat(4)), &held);
  EXPECT_EQ(seats.SeatStates[4], FoldedPreFlop);
  Key(Seat(4), Qt::Key_Delete);
  EXPECT_EQ(seats.SeatStates[4], Empty);
  for (const int seat : {5, 7}) {
    if (QWidget* const open = QApplication::activePopupWidget()) open->close();
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    QKeyEvent shiftF10(QEvent::KeyPress, Qt::Key_F10, Qt::ShiftModifier);
    QApplication::sendEvent(&Widget(Seat(seat)),
                            seat == 5 ? static_cast<QEvent*>(&shiftF10) : &menuKey);
    EXPECT_EQ(seats.MenuSeat, seat);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->pos().x(),
              Widget(Seat(seat)).mapToGlobal(QPoint()).x());
  }
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_D);
  EXPECT_EQ(seats.DealerSeat, 7);
  ExpectWindowsShowTheState();
}

// After the mouse has been used, no key acts where it was.
TEST_F(KeyboardTest, SpaceAfterAClickDoesNothing) {
  Load();
  QWidget& form1 = Widget("Form1");
  form1.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form1));
  for (const QString& name : {QString("cmdNewDeal"), QString("chk9Pl"), QString("lblAdvicePre0"),
                              Seat(3), Slot(6), QString("picHandMeter")}) {
    SCOPED_TRACE(name.toStdString());
    for (const bool focused : {false, true}) {
      if (focused) Widget(name).setFocus(Qt::TabFocusReason);
      QTest::mouseClick(&Widget(name), Qt::LeftButton, {}, QPoint(6, 6));
      const auto before = std::tuple(seats.DealerSeat, seats.SeatStates, slots.picHand,
                                     seats.SeatCount, settings.LevelPre);
      QTest::keyClick(form1.focusWidget(), Qt::Key_Space);
      EXPECT_TRUE(before == std::tuple(seats.DealerSeat, seats.SeatStates, slots.picHand,
                                       seats.SeatCount, settings.LevelPre));
    }
  }
}

TEST_F(KeyboardTest, Tooltips) {
  Load();
  const auto tipOf = [](const QString& name) {
    QHelpEvent rests(QEvent::ToolTip, {3, 3}, Widget(name).mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&Widget(name), &rests);
    return QToolTip::text();
  };
  EXPECT_EQ(tipOf(Seat(5)), "Seat 5: in\nClick: folds; double-click: empty");
  EXPECT_EQ(tipOf("lblSetup"), "Table Setup Wizard");
}

TEST_F(KeyboardTest, DeckWindow) {
  Load();
  QWidget& deckWindow = Widget("frmDeck");
  const auto active = [](const QWidget& window) {
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
  };
  Widget("Form1").activateWindow();
  ASSERT_TRUE(active(Widget("Form1")));
  QTest::keyClick(&Widget("Form1"), Qt::Key_F6);
  ASSERT_TRUE(active(deckWindow));
  const auto focused = [&] { return deckWindow.focusWidget()->objectName(); };
  EXPECT_EQ(focused(), Deck(1));
  Click(Deck(CardOf(Hearts, 3)));
  Widget(Deck(CardOf(Hearts, 2))).setFocus();
  const struct {
    Qt::Key key;
    Card at;
  } kSteps[] = {{Qt::Key_Left, CardOf(Hearts, 2)},  {Qt::Key_Right, CardOf(Hearts, 4)},
                {Qt::Key_Up, CardOf(Spades, 4)},    {Qt::Key_Up, CardOf(Spades, 4)},
                {Qt::Key_Left, CardOf(Spades, 3)},  {Qt::Key_Down, CardOf(Clubs, 3)},
                {Qt::Key_Down, CardOf(Diamonds, 3)}};
  for (const auto& step : kSteps) {
    QTest::keyClick(deckWindow.focusWidget(), step.key);
    EXPECT_EQ(focused(), Deck(step.at));
  }
  QTest::keyClick(deckWindow.focusWidget(), Qt::Key_Space);
  EXPECT_EQ(CardsInSlots()[1], CardOf(Diamonds, 3));
  EXPECT_TRUE(deckWindow.focusWidget()->isVisible());  // on to another card
  QTest::keyClick(deckWindow.focusWidget(), Qt::Key_F6);
  EXPECT_TRUE(active(Widget("Form1")));
}

TEST_F(KeyboardTest, WhatAScreenReaderSays) {
  Load();
  const struct {
    QString control;
    const char* words;
  } kCases[] = {{Slot(9), "Turn: empty"},
                {Seat(3), "Seat 3: in, big blind"},
                {Deck(52), "King of Hearts, in the deck"},
                {"lblThem8", "Another player, Win/Split: no figure"},
                {"lblMnuFile", "File"},
                {"cmdNewDeal", "New Hand"},
                {"chkFoldLevels", "Watch Fold Depth (takes extra time)"},
                {"lblAdvicePost1", "Avg"},
                {"lblEyeBall", "Auto Read eye"},
                {"picHandMeter", "Hand meter: empty"}};
  for (const auto& said : kCases) EXPECT_EQ(Says(said.control), said.words);

  QAccessibleInterface* const seat = QAccessible::queryAccessibleInterface(&Widget(Seat(3)));
  EXPECT_EQ(seat->role(), QAccessible::Button);
  seat->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(seats.SeatStates[3], FoldedPreFlop);
}

}  // namespace
}  // namespace holdem
