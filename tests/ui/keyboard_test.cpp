// Where the keyboard goes, and what is said without the eyes.
#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>

#include "engine/analysis_pass.h"
#include "table/blink.h"
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

// Everything is marked as it is reached, and says what it is.
TEST_F(KeyboardTest, TabReachesEveryCommand) {
  EXPECT_EQ(form1.focusWidget(), &form1);  // nothing has the keyboard before it is asked for
  Do("right picDeck1"), Do("right picDeck14");
  QString said, from = "MnuFile";
  for (int i = 0; i < 31; ++i) {
    const Sights before = LookAtAll();
    QTest::keyClick(form1.focusWidget(), Qt::Key_Tab);
    const QString to = Plainly(form1.focusWidget()->objectName());
    said += to + ": " + Said(form1.focusWidget()->objectName())->text(QAccessible::Name) + "\n";
    const QStringList marked = QString::fromStdString(Changed(before)).split(' ');
    EXPECT_TRUE(marked.contains(to) && marked.contains(from)) << (from + ", " + to).toStdString();
    from = to;
  }
  ExpectApproved("by_tab", said.toStdString());
}

TEST_F(KeyboardTest, KeysThatMeanTheSameEverywhere) {
  const std::pair<const char*, const char*> session[] = {
      {"key picPlayer4 A S Ctrl+Z Ctrl+Z", ""},
      {"key picPlayer4 A S K", "AS"},  // waits wherever the keyboard goes
      {"key picPlayer5 D Ctrl+4 Ctrl+0", "AS KD iii2iiiii2 2 1"},
      {"key picPlayer4 Ctrl+Z Del", "AS KD iii.iiiiii 2 1"},
      {"key chk9Pl Space Ctrl+6", "AS KD iii.i.iiii 2 1"},
      {"key chk9Pl Ctrl+Z Ctrl+Z Ctrl+C", "AS KD iii2iiiiii 2 1"},
      {"key chk9Pl Ctrl+Shift+Z Ctrl+Y Return Ctrl+6", "AS KD iii.iiiiii 2 1"}};
  for (const auto& [keys, state] : session) {
    Do(keys);
    EXPECT_EQ(State(), state) << keys;
    EXPECT_EQ(The<QAbstractButton>("chk9Pl").isChecked(), seats.IsOfNine()) << keys;
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
    said += Said(control.objectName())->text(QAccessible::Name);
  });
  Do("key picHand9 A S"), Do("key picHand9 A D"), Do("key picPlayer3 Space");
  const Sights before = LookAtAll();
  Blink(true);
  EXPECT_NE(Changed(before).find("Hand1"), std::string::npos);  // the next to fill
  for (int i = 0; i < 3; ++i) Blink(true);
  Recalculate();
  EXPECT_EQ(said.join("; ").toStdString(),
            "Turn: A_; Turn: Ace of Spades; Ace High; First hole card: A_; "
            "First hole card: Ace of Diamonds; Pair of Aces; Seat 3: folded, big blind");
  Put(kFlopHand);
  Recalculate();
  EXPECT_FALSE(said.contains(kThinking));
  EXPECT_TRUE(said.back().startsWith("Check")) << said.back().toStdString();
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
                                            {Qt::Key_Down, CardOf(Clubs, 3)},
                                            {Qt::Key_Space, CardOf(Clubs, 4)}};  // stays near
  for (const auto& [key, card] : steps) {
    QTest::keyClick(deckWindow.focusWidget(), key);
    EXPECT_EQ(deckWindow.focusWidget()->objectName(), Deck(card));
  }
  EXPECT_EQ(State(), "3H 3C");
  QTest::keyClick(deckWindow.focusWidget(), Qt::Key_F6);
  EXPECT_TRUE(BecomesActive("Form1"));
  EXPECT_EQ(form1.focusWidget()->objectName(), Slot(7));
}

TEST_F(KeyboardTest, TipsAndActions) {
  EXPECT_EQ(Said("lblAdvicePre1")->role(), QAccessible::RadioButton);
  for (const int speed : {0, 1})
    EXPECT_EQ(Said("mnuSpeed")->child(speed)->state().checked, speed == 0) << speed;
  EXPECT_EQ(Said(Seat(2))->text(QAccessible::Description), "Menu key: the dealer button.");
  Said(Seat(3))->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(State(), "ii2iiiiiii 2 1");
  Do("right picPlayer5"), Do("choose mnuDealer"), Do("click picDeck1");
  std::string tips;
  for (const QString& name :
       {Slot(6), Slot(0), Seat(3), QString("lblSB"), QString("lblBB"), QString("lblSetup"),
        QString("lblAdvicePre0"), QString("lblAdvicePost2"), QString("picHandMeter"), Deck(14)}) {
    const QPoint spot = SpotOf(name);
    QHelpEvent rests(QEvent::ToolTip, {}, spot);
    QWidget& window = *Widget(name).window();
    QApplication::sendEvent(window.childAt(window.mapFromGlobal(spot)), &rests);
    tips += (Plainly(name) + ": " + QToolTip::text() + "\n").toStdString();
  }
  ExpectApproved("tips", tips);
}

}  // namespace
}  // namespace holdem
