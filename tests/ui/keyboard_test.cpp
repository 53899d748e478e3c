// Where the keyboard goes, and what is said without the eyes.
#include <QHelpEvent>
#include <QToolTip>

#include "engine/analysis_pass.h"
#include "table/blink.h"
#include "ui/spoken.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

struct KeyboardTest : LoadedWindowTest {
  KeyboardTest() {
    form1.activateWindow();
    EXPECT_TRUE(BecomesActive("Form1"));
  }

  static bool BecomesActive(const QString& window) {
    return QTest::qWaitFor([&] { return Widget(window).isActiveWindow(); });
  }

  QWidget& form1 = Widget("Form1");
};

// Everything is marked clearly as it is reached, and says what it is.
TEST_F(KeyboardTest, TabReachesEveryCommand) {
  EXPECT_EQ(form1.focusWidget(), &form1);  // nothing has the keyboard before it is asked for
  Do("right picDeck1"), Do("right picDeck14");
  QString said, from = "MnuFile";
  for (int i = 0; i < 31; ++i) {
    const Sights before = LookAtAll();
    QTest::keyClick(form1.focusWidget(), Qt::Key_Tab);
    const QString to = Plainly(form1.focusWidget()->objectName());
    const QStringList marked = QString::fromStdString(Changed(before)).split(' ');
    EXPECT_TRUE(marked.contains(to) && marked.contains(from)) << (from + ", " + to).toStdString();
    const QWidget& reached = *form1.focusWidget();
    const QRect place(reached.mapTo(&form1, QPoint()), reached.size());
    said += to + ": " + Said(reached.objectName())->text(QAccessible::Name) + "\n";
    const QImage was = before.at(&form1).pixels.copy(place);
    const QImage is = LookAtAll().at(&form1).pixels.copy(place);
    int clear = 0;  // pixels that are much lighter or darker now
    for (int y = 0; y < is.height(); ++y)
      for (int x = 0; x < is.width(); ++x)
        clear += std::abs(qGray(was.pixel(x, y)) - qGray(is.pixel(x, y))) > 80;
    EXPECT_GE(clear, reached.width() + reached.height()) << to.toStdString();
    from = to;
  }
  ExpectApproved("by_tab", said.toStdString());
  QTest::keyClick(form1.focusWidget(), Qt::Key_Return);  // the menu that it has come back to
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
}

// What is said aloud, and in brackets which controls are called otherwise: once, when it is
// settled.
TEST_F(KeyboardTest, NewsAreSaidOnce) {
  std::string said;
  const auto told = std::exchange(tellScreenReaders, [&](QWidget& control) {
    said += " [" + Said(control.objectName())->text(QAccessible::Name).toStdString() + "]";
  });
  const auto aloud = std::exchange(
      sayAloud, [&](QWidget&, const std::string& sentence) { said += " " + sentence; });
  for (const char* const gesture :
       {"key picHand9 A S", "key picHand9 A D", "key picPlayer3 Space", "drag picHand9 picHand1",
        "click lblSetup", "click cmdHere4", "click Command1"}) {
    said += std::string("\n") + gesture + ":";
    Do(gesture);
  }
  said += "\nonce more:";
  Blink(true), Blink(true), Recalculate(), ports.display->ShowAutoRead();
  said += "\nfollowed:";
  FollowATable();
  autoRead.lblMessage = "Not actively in hand";
  ports.display->ShowAutoRead(), ports.display->ShowAutoRead();
  said += "\nlost:";
  autoRead = {};
  ports.display->ShowAutoRead();
  ExpectApproved("spoken", said + "\n");
  Put(kFlopHand);
  Recalculate();
  EXPECT_EQ(said.find(kThinking), said.npos);
  EXPECT_NE(said.find(" Ace High, win or split "), said.npos);
  tellScreenReaders = told;
  sayAloud = aloud;
}

TEST_F(KeyboardTest, NothingFlashesForWhoeverHasTurnedThatOff) {
  QApplication::setCursorFlashTime(0);
  for (const QString gesture : {"click picDeck1", "click picDeck14", "key picHand6 Q"}) Do(gesture);
  const Sights typed = LookAtAll();  // nor is half a card hidden by the question mark
  QTimer& Timer1 = *program->findChild<QTimer*>("Timer1");
  Timer1.setSingleShot(true);
  for (int tick = 0; tick < 3; ++tick) {
    Timer1.start(0), QTest::qWait(1);
    EXPECT_EQ(Changed(typed), "");
  }
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

TEST_F(KeyboardTest, ArrowsGoThroughTheLevelsAndTheDeckThatF6LeadsTo) {
  Do("key lblAdvicePost1 Right");
  EXPECT_EQ(settings.LevelPost, Loose);
  Do("key picHand7 F6");
  ASSERT_TRUE(BecomesActive("frmDeck"));
  QWidget& deckWindow = Widget("frmDeck");
  EXPECT_EQ(deckWindow.focusWidget()->objectName(), Deck(2));
  for (int i = 0; i < 12; ++i) QTest::keyClick(deckWindow.focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(deckWindow.focusWidget()->objectName(), Deck(1));
  Do("click " + Deck(CardOf(Hearts, 3)));
  Widget(Deck(CardOf(Hearts, 2))).setFocus();
  const std::pair<Qt::Key, const char*> steps[] = {{Qt::Key_Right, "4H"},
                                                   {Qt::Key_Up, "4S"},
                                                   {Qt::Key_Left, "3S"},
                                                   {Qt::Key_Down, "3C"},
                                                   {Qt::Key_Space, "4C"}};  // stays near
  for (const auto& [key, card] : steps) {
    QTest::keyClick(deckWindow.focusWidget(), key);
    EXPECT_EQ(Plainly(deckWindow.focusWidget()->objectName()), card);
  }
  EXPECT_EQ(State(), "3H 3C");
  QTest::keyClick(deckWindow.focusWidget(), Qt::Key_F6);
  EXPECT_TRUE(BecomesActive("Form1"));
  EXPECT_EQ(form1.focusWidget()->objectName(), Slot(7));
}

TEST_F(KeyboardTest, TipsAndActions) {
  EXPECT_EQ(Said("lblAdvicePre1")->role(), QAccessible::RadioButton);
  EXPECT_EQ(Said("frmDeck")->role(), QAccessible::Window);
  EXPECT_EQ(Said("mnuSpeed")->child(0)->text(QAccessible::Name), "Fast (less accurate)");
  for (const int speed : {0, 1})
    EXPECT_EQ(Said("mnuSpeed")->child(speed)->state().checked, speed == 0) << speed;
  EXPECT_EQ(Said(Seat(2))->text(QAccessible::Description), "Menu key: the dealer button.");
  Said(Seat(3))->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(State(), "ii2iiiiiii 2 1");
  Do("right picPlayer5"), Do("choose mnuDealer"), Do("click picDeck1");
  results.lblThem[2] = " 7%";
  std::string tips;
  const QString controls =
      "picHand6 picHand0 picPlayer3 lblSB lblBB shpDlrButton5 lblAdvice lblThem2 lbllbl4 "
      "chkFoldLevels lblSetup lblAdvicePre0 lblAdvicePost2 picHandMeter picDeck14";
  for (const QString& name : controls.split(' ')) {
    const QPoint spot = SpotOf(name);
    QHelpEvent rests(QEvent::ToolTip, {}, spot);
    QWidget& window = *Widget(name).window();
    QApplication::sendEvent(window.childAt(window.mapFromGlobal(spot)), &rests);
    const QString said = Said(name)->text(QAccessible::Name);
    tips += (Plainly(name) + ", \"" + said + "\": " + QToolTip::text() + "\n").toStdString();
  }
  ExpectApproved("tips", tips);
}

}  // namespace
}  // namespace holdem
