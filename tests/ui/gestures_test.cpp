// Every control, what is done to it, and what state that leaves.
#include <QMenu>

#include "table/card_slots.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

using GesturesTest = LoadedWindowTest;

TEST_F(GesturesTest, OneAfterTheOther) {
  const std::pair<const char*, const char*> session[] = {
      {"double picDeck1", "AS"},
      {"right picDeck14", "AS AD"},
      {"drag picDeck30 picHand9", "AS AD -- -- -- 4C"},
      {"drag picHand9 picDeck3", "AS AD"},
      {"right picHand0", "-- AD"},
      {"key picHand6 X A 9 T 0 H", "-- AD TH"},  // the last rank before a suit counts
      {"key picHand7 A", "-- AD TH"},            // half a card does not go over to the next slot
      {"key picHand8 D", "-- AD TH"},
      {"key picHand8 Q Ctrl+D", "-- AD TH"},
      {"key picHand6 Backspace", "-- AD TH"},       // takes back what is half typed
      {"key picPlayer4 1 0 C 5 S", "TC AD TH 5S"},  // typed anywhere
      {"key picDeck40 5 S Backspace Backspace", "-- AD TH"},
      {"key picHand6 Del", "-- AD"},
      {"key picDeck52 Space", "KH AD"},
      {"click cmdNewDeal", "iiiiiiiiii 2 2"},
      {"click picPlayer4", "iii2iiiiii 2 2"},
      {"double picPlayer7", "iii2ii.iii 2 2"},
      {"key picPlayer3 Del", "ii.2ii.iii 2 2"},
      {"right picPlayer4", "ii.2ii.iii 2 2"},
      {"choose mnuIn", "ii.iii.iii 2 2"},
      {"choose mnuDealer", "ii.iii.iii 2 4"},
      {"choose mnuEmpty", "ii..ii.iii 2 5"},
      {"click chkFoldLevels", "ii..ii.iii 2 5"},
      {"right picPlayer9", "ii..ii.iii 2 5"},
      {"choose mnuFold4", "ii..ii.i4i 2 5"},
      {"choose mnuMe", "ii..ii.iii 9 5"},
      {"click chk9Pl", "ii..i..iii 9 5"},
      {"click lblSetup", "ii..i..iii 9 5"},
      {"click cmdHere7", "ii..i..iii 9 5"},
      {"click Command1", "ii..i..iii 9 5"},
      {"click chk9Pl", "ii..i..iii 9 5"},
      {"key lblAdvicePre0 Space", "ii..i..iii 9 5"},
      {"choose mnuSpeedChoice1", "ii..i..iii 9 5"},
      {"click lblSetup", "ii..i..iii 9 5"},
      {"click cmdHere7", "ii..i..iii 9 5"},
      {"click cmdHere8", "ii..i..iii 9 5"},
      {"click cmdHere3", "ii..i..iii 9 5"},
      {"click cmdDone", "ii.iiiiiii 7 8"},
      {"click cmdHelp", "ii.iiiiiii 7 8"}};
  shell.existing = {Path("/opt/pellucor/instruct.html")};
  store.writes.clear();
  for (const auto& [gesture, state] : session) {
    SCOPED_TRACE(gesture);
    Do(gesture);
    EXPECT_EQ(State(), state);
    ExpectWindowsShowTheState();
    QTest::qWait(0);  // deletes a window that was closed
  }
  EXPECT_EQ(store.writes, (std::vector<std::string>{"FoldLevels=Yes", "LevelPre=0", "Speed=1"}));
  EXPECT_EQ(shell.opened.size(), 1U);
  Do("double picHand9");
  EXPECT_TRUE(slots.IsFilled(9));
  // The second press of a double-click, when the first has taken the card above this one.
  Press(Deck(13), Qt::LeftButton, QEvent::MouseButtonDblClick);
  EXPECT_FALSE(slots.CardInTheAir);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(&Widget(Seat(5)), &held);
  EXPECT_EQ(seats.SeatStates[5], In);
}

TEST_F(GesturesTest, Menus) {
  const std::pair<const char*, const char*> cases[] = {
      {"click lblMnuSpeed", "&Fast (less accurate)*, &Medium, &Accurate (for fast CPUs)"},
      {"right picPlayer4", "&In*, &Folded, &Empty Seat, &Me, &Dealer"},
      {"key picPlayer2 Shift+F10", "&In-, &Folded-, &Empty Seat-, &Me-, &Dealer"}};
  for (const auto& [gesture, items] : cases) {
    Do(gesture);
    QStringList shown;
    for (const QAction* const item : QApplication::activePopupWidget()->actions()) {
      const char* const look = !item->isEnabled() ? "-" : item->isChecked() ? "*" : "";
      if (item->isVisible()) shown += item->text() + look;
    }
    EXPECT_EQ(shown.join(", "), items);
  }
  QWidget* const menu = QApplication::activePopupWidget();
  EXPECT_EQ(menu->x(), Widget(Seat(2)).mapToGlobal(QPoint()).x());  // below its control
  QTest::keyClick(menu, Qt::Key_D);
  EXPECT_EQ(seats.DealerSeat, 2);
}

// A drag has a picture, makes its source faint, and lets nothing else begin.
TEST_F(GesturesTest, ADragEndsWhateverComesBetween) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { Release(Deck(9), "nowhere"); }, ""},
      {[] { QTest::keyClick(&Widget("Form1"), Qt::Key_Escape); }, ""},
      {[] { Send(Deck(9), QEvent::MouseMove, Qt::NoButton, Qt::NoButton, {}); }, ""},
      {[] { ports.display->ShowMessage("text"), The<QDialog>("message").close(); }, ""},
      {[] { FillSlot(0, 9), Release(Deck(9), Slot(8)); }, "9S"}};  // the card is no longer there
  const auto pictures = [](QPoint at) {
    return std::ranges::count_if(QApplication::topLevelWidgets(), [&](const QWidget* window) {
      return window->objectName() == "dragPicture" && window->pos() == at;
    });
  };
  const auto look = [] { return Widget(Deck(9)).grab().toImage(); };
  const QImage lying = look();
  for (const auto& [ending, state] : cases) {
    Press(Deck(9));
    const QPoint away = SpotOf(Deck(9)) + QPoint(30, 0);
    Send(Deck(9), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, away);
    const QPoint beside = Widget(Deck(9)).mapToGlobal(QPoint(30, 0));
    EXPECT_EQ(pictures(beside), 1);
    EXPECT_NE(look(), lying);
    Press(Seat(4));
    EXPECT_TRUE(slots.CardInTheAir);
    ending();
    EXPECT_FALSE(slots.CardInTheAir);
    EXPECT_EQ(pictures(beside), 0);
    EXPECT_EQ(look(), lying);
    EXPECT_EQ(State(), state);
  }
}

}  // namespace
}  // namespace holdem
