// Where the keyboard goes, and what is said without the eyes.
#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>

#include "engine/analysis_pass.h"
#include "table/blink.h"
#include "ui/spoken.h"
#include "ui/window_test.h"
#include "words/explained.h"

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

// Of sRGB colours, 1..21.
double Contrast(QColor a, QColor b) {
  const auto light = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  const auto luminance = [&](const QColor& color) {
    return 0.2126 * light(color.redF()) + 0.7152 * light(color.greenF()) +
           0.0722 * light(color.blueF()) + 0.05;
  };
  const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
  return lighter / darker;
}

// Everything is marked clearly as it is reached, and says what it is.
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
    const QWidget& reached = *form1.focusWidget();
    const QPoint corner = reached.mapTo(&form1, QPoint());
    const QImage was = before.at(&form1).pixels, is = LookAtAll().at(&form1).pixels;
    int clear = 0;  // pixels that have changed by 3:1
    for (int y = 0; y < reached.height(); ++y) {
      for (int x = 0; x < reached.width(); ++x) {
        const QPoint at = corner + QPoint(x, y);
        if (was.rect().contains(at)) clear += Contrast(was.pixelColor(at), is.pixelColor(at)) >= 3;
      }
    }
    EXPECT_GE(clear, reached.width() + reached.height()) << to.toStdString();
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

// What is said aloud, and in brackets which controls are called otherwise: once, when it is
// settled.
TEST_F(KeyboardTest, NewsAreSaidOnce) {
  QStringList said;
  const auto told = std::exchange(tellScreenReaders, [&](QWidget& control) {
    said += "[" + Said(control.objectName())->text(QAccessible::Name) + "]";
  });
  const auto aloud = std::exchange(
      sayAloud, [&](QWidget&, const std::string& sentence) { said += sentence.c_str(); });
  const std::pair<std::function<void()>, const char*> session[] = {
      {[] { Do("key picHand9 A S"); }, "[Turn: A_] [Turn: Ace of Spades] [Ace High] Ace High"},
      {[] { Do("key picHand9 A D"); },
       "[First hole card: A_] [First hole card: Ace of Diamonds] "
       "[Pair of Aces] Pair of Aces"},
      {[] { Do("key picPlayer3 Space"); }, "[Seat 3: folded, big blind]"},
      {[] { Blink(true), Blink(true), Recalculate(); }, ""},
      {[] { Do("drag picHand9 picHand1"); },
       "[Second hole card: Ace of Spades] [Turn: empty] [Me, Win/Split: 31%] [Raise or Re-Raise] "
       "Pair of Aces, win or split 31 percent, Raise or Re-Raise"},
      {[] { Do("click lblSetup"), Do("click cmdHere4"); }, "Where is the dealer button?"},
      {[] { The<QDialog>("frmGetStartupInfo").close(); }, ""},
      {[this] { FollowATable(), autoRead.lblMessage = "Not actively in hand"; }, ""},
      {[] { ports.display->ShowAutoRead(), ports.display->ShowAutoRead(); },
       "Auto Read: table found Not actively in hand"},
      {[] { autoRead = {}, ports.display->ShowAutoRead(); }, "Auto Read: table lost"}};
  for (const auto& [happens, words] : session) {
    said.clear();
    happens();
    EXPECT_EQ(said.join(' ').toStdString(), words);
  }
  Put(kFlopHand);
  Recalculate();
  EXPECT_FALSE(said.contains(kThinking));
  EXPECT_TRUE(said.back().startsWith("Ace High, win or split ")) << said.back().toStdString();
  tellScreenReaders = told;
  sayAloud = aloud;
}

TEST_F(KeyboardTest, ReadersKnowEveryWindowAndTabStop) {
  Do("click lblSetup");
  for (const QString window : {"Form1", "frmDeck"}) {
    EXPECT_EQ(Said(window)->role(), QAccessible::Window) << window.toStdString();
  }
  for (QWidget* const control : QApplication::allWidgets()) {
    if (!(control->focusPolicy() & Qt::TabFocus) || control->isWindow()) continue;
    EXPECT_NE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name), "")
        << control->objectName().toStdString();
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
       {Slot(6), Slot(0), Seat(3), QString("lblSB"), QString("lblBB"), QString("shpDlrButton5"),
        QString("lblAdvice"), QString("lblThem2"), QString("lbllbl4"), QString("chkFoldLevels"),
        QString("lblSetup"), QString("lblAdvicePre0"), QString("lblAdvicePost2"),
        QString("picHandMeter"), Deck(14)}) {
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
