// Where the keyboard goes, and what is said without the eyes.
#include <QAccessible>
#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>

#include "engine/analysis_pass.h"
#include "table/card_slots.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

class KeyboardTest : public LoadedWindowTest {
 protected:
  KeyboardTest() {
    form1.activateWindow();
    EXPECT_TRUE(BecomesActive("Form1"));
  }

  static bool BecomesActive(const QString& window) {
    return QTest::qWaitFor([&] { return Widget(window).isActiveWindow(); });
  }

  QWidget& form1 = Widget("Form1");
};

TEST_F(KeyboardTest, TabReachesEveryCommand) {
  EXPECT_EQ(form1.focusWidget(), &form1);  // nothing has the keyboard before it is asked for
  QStringList reached;
  do {
    const QImage without = form1.grab().toImage();
    QTest::keyClick(form1.focusWidget(), Qt::Key_Tab);
    reached += form1.focusWidget()->objectName();
    EXPECT_NE(form1.grab().toImage(), without) << reached.back().toStdString();  // it is marked
  } while (reached.back() != "lblAdvicePost1");
  EXPECT_EQ(reached.size(), 5 + 7 + 3 + 10 + 3 + 2);
  EXPECT_EQ(reached.mid(3, 4), QStringList({"cmdNewDeal", "lblSetup", "picHand0", "picHand1"}));
}

TEST_F(KeyboardTest, KeysThatMeanTheSameEverywhere) {
  const std::pair<const char*, const char*> session[] = {
      {"key picPlayer4 A S Ctrl+Z Ctrl+Z", ""},
      {"key picPlayer4 A S K D Ctrl+4 Ctrl+0", "AS KD iii2iiiii2 2 1"},
      {"key picPlayer4 Ctrl+Z Del", "AS KD iii.iiiiii 2 1"},
      {"key chk9Pl Space Ctrl+6", "AS KD iii.i.iiii 2 1"},
      {"key chk9Pl Ctrl+Z Ctrl+Z Ctrl+C", "AS KD iii2iiiiii 2 1"},
      {"key chk9Pl Ctrl+Shift+Z Ctrl+Y Return Ctrl+6", "AS KD iii.iiiiii 2 1"}};
  for (const auto& [keys, state] : session) {
    Do(keys);
    EXPECT_EQ(State(), state) << keys;
    ExpectWindowsShowTheState();
  }
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
      "Hand: As Kd\nBoard: \nPlayers: 10, folded: 1\n\n"
      "                Me        Another player\nPair  "));
  Do("key picPlayer4 Alt+N");
  EXPECT_EQ(State(), "iii.iiiiii 2 2");
  EXPECT_EQ(form1.focusWidget()->objectName(), Slot(0));
  Do("key lblAdvicePost1 Right");
  EXPECT_EQ(settings.LevelPost, Loose);
  Do("key lblMnuHelp Return");
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
}

// Screen readers are told of each figure once, and of nothing that only blinks.
TEST_F(KeyboardTest, SettledFiguresAreAnnouncedOnce) {
  QStringList said;
  const auto usual = std::exchange(tellScreenReaders, [&](QWidget& control) {
    said += QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Name);
  });
  for (const char* const keys : {"key picHand9 A S", "key picHand9 A D"}) Do(keys);
  for (int i = 0; i < 4; ++i) Blink(true);
  Recalculate();
  EXPECT_EQ(said.join("; ").toStdString(),
            "Turn: A_; Turn: Ace of Spades; Ace High; First hole card: A_; "
            "First hole card: Ace of Diamonds; Pair of Aces");
  tellScreenReaders = usual;
}

// After the mouse has been used, no key acts where it was.
TEST_F(KeyboardTest, SpaceAfterAClickDoesNothing) {
  for (const QString& name : {QString("cmdNewDeal"), QString("chk9Pl"), QString("lblAdvicePre0"),
                              Seat(3), Slot(6), QString("picHandMeter")}) {
    Widget(name).setFocus(Qt::TabFocusReason);
    Do("click " + name);
    const std::string before = State();
    QTest::keyClick(form1.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(State(), before) << name.toStdString();
  }
}

TEST_F(KeyboardTest, ArrowsGoThroughTheDeckThatF6LeadsTo) {
  Do("key picHand7 F6");
  ASSERT_TRUE(BecomesActive("frmDeck"));
  QWidget& deckWindow = Widget("frmDeck");
  EXPECT_EQ(deckWindow.focusWidget()->objectName(), Deck(2));
  for (int i = 0; i < 12; ++i) QTest::keyClick(deckWindow.focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(deckWindow.focusWidget()->objectName(), Deck(1));
  Do("click " + Deck(CardOf(Hearts, 3)));
  Widget(Deck(CardOf(Hearts, 2))).setFocus();
  const std::pair<Qt::Key, Card> steps[] = {{Qt::Key_Right, CardOf(Hearts, 4)},
                                            {Qt::Key_Up, CardOf(Spades, 4)},
                                            {Qt::Key_Left, CardOf(Spades, 3)},
                                            {Qt::Key_Down, CardOf(Clubs, 3)}};
  for (const auto& [key, card] : steps) {
    QTest::keyClick(deckWindow.focusWidget(), key);
    EXPECT_EQ(deckWindow.focusWidget()->objectName(), Deck(card));
  }
  QTest::keyClick(deckWindow.focusWidget(), Qt::Key_Space);
  EXPECT_EQ(State(), "3H 3C");
  EXPECT_EQ(deckWindow.focusWidget()->objectName(), Deck(CardOf(Clubs, 4)));  // stays near
  QTest::keyClick(deckWindow.focusWidget(), Qt::Key_F6);
  EXPECT_TRUE(BecomesActive("Form1"));
  EXPECT_EQ(form1.focusWidget()->objectName(), Slot(7));
}

TEST_F(KeyboardTest, ControlsAndTheirTipsAreInWords) {
  const auto said = [](const QString& name) {
    return QAccessible::queryAccessibleInterface(&Widget(name));
  };
  EXPECT_EQ(said("lblAdvicePre1")->role(), QAccessible::RadioButton);
  EXPECT_EQ(said("lblAdvice")->text(QAccessible::Name), "No advice");
  EXPECT_EQ(said(Seat(2))->text(QAccessible::Description), "Menu key: the dealer button.");
  auto* const seat = said(Seat(3));
  EXPECT_EQ(seat->role(), QAccessible::Button);
  seat->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(State(), "ii2iiiiiii 2 1");
  QHelpEvent rests(QEvent::ToolTip, {}, SpotOf(Slot(6)));
  QApplication::sendEvent(&Widget(Slot(6)), &rests);
  EXPECT_EQ(QToolTip::text(), "First flop card: empty\nDouble-click: a random card");
}

}  // namespace
}  // namespace holdem
