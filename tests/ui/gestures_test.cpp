// Every control, what is done to it, and what state that leaves.
#include <QMenu>

#include "table/card_slots.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

class GesturesTest : public WindowTest {
 protected:
  GesturesTest() { Load(); }

  // One gesture after the other, each with the state that it leaves.
  static void Play(std::initializer_list<std::pair<const char*, const char*>> session) {
    for (const auto& [gesture, state] : session) {
      SCOPED_TRACE(gesture);
      Do(gesture);
      EXPECT_EQ(State(), state);
      ExpectWindowsShowTheState();
    }
  }
};

TEST_F(GesturesTest, CardsByTheMouse) {
  Play({{"double picDeck1", "AS"},
        {"right picDeck14", "AS AD"},
        {"drag picDeck30 picHand9", "AS AD -- -- -- 4C"},
        {"drag picHand9 picHand8", "AS AD -- -- 4C"},
        {"drag picHand9 picHand10", "AS AD -- -- 4C"},  // nothing to drag
        {"drag picHand8 picPlayer4", "AS AD -- -- 4C"},
        {"drag picHand8 nowhere", "AS AD -- -- 4C"},
        {"double picHand8", "AS AD -- -- 4C"},
        {"drag picHand8 picDeck3", "AS AD"},
        {"right picHand0", "-- AD"},
        {"click picDeck52", "KH AD"},
        {"click cmdNewDeal", "iiiiiiiiii 2 2"}});
  Do("double picHand9");
  EXPECT_TRUE(slots.IsFilled(9));
  // The second press of a double-click, when the first has taken the card above this one.
  Press(Deck(13), Qt::LeftButton, QEvent::MouseButtonDblClick);
  EXPECT_FALSE(slots.CardInTheAir);
}

TEST_F(GesturesTest, CardsAndSeatsByTheKeys) {
  Play({{"key picHand6 X A 9 T 0 H", "-- -- TH"},  // the last rank before a suit counts
        {"key picHand7 A", "-- -- TH"},            // half a card does not go over to the next slot
        {"key picHand8 D", "-- -- TH"},
        {"key picHand8 Q Ctrl+D", "-- -- TH"},
        {"key picHand6 Del", ""},
        {"key picDeck40 Space", "AH"},
        {"key picHand0 Backspace", ""},
        {"key picPlayer4 Space", "iii2iiiiii 2 1"},
        {"key picPlayer4 Del", "iii.iiiiii 2 1"},
        {"key cmdNewDeal Space", "iii.iiiiii 2 2"}});
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(&Widget(Seat(5)), &held);
  EXPECT_EQ(seats.SeatStates[5], In);
  Do("key picHand10 Return");
  EXPECT_TRUE(slots.IsFilled(10));
}

TEST_F(GesturesTest, SeatsAndSettings) {
  store.writes.clear();
  Play({{"click picPlayer4", "iii2iiiiii 2 1"},
        {"double picPlayer7", "iii2ii.iii 2 1"},
        {"right picPlayer4", "iii2ii.iii 2 1"},
        {"choose mnuIn", "iiiiii.iii 2 1"},
        {"choose mnuFold2", "iii2ii.iii 2 1"},
        {"choose mnuDealer", "iii2ii.iii 2 4"},
        {"choose mnuEmpty", "iii.ii.iii 2 5"},
        {"click chkFoldLevels", "iii.ii.iii 2 5"},
        {"right picPlayer9", "iii.ii.iii 2 5"},
        {"choose mnuFold4", "iii.ii.i4i 2 5"},
        {"choose mnuMe", "iii.ii.iii 9 5"},
        {"click chk9Pl", "iii.i..iii 9 5"},
        {"click chk9Pl", "iii.i..iii 9 5"},
        {"click lblAdvicePost2", "iii.i..iii 9 5"},
        {"key lblAdvicePre0 Space", "iii.i..iii 9 5"},
        {"choose mnuSpeedChoice1", "iii.i..iii 9 5"}});
  EXPECT_EQ(store.writes,
            (std::vector<std::string>{"FoldLevels=Yes", "LevelPost=2", "LevelPre=0", "Speed=1"}));
}

TEST_F(GesturesTest, Menus) {
  const std::pair<const char*, const char*> cases[] = {
      {"click lblMnuFile", "E&xit"},
      {"click lblMnuSpeed", "&Fast (less accurate)*, &Medium, &Accurate (for fast CPUs)"},
      {"click lblMnuHelp", "&Instructions, &readme.txt, &About"},
      {"right picPlayer4", "&In, &Folded*, &Empty Seat, &Me, &Dealer"},
      {"key picPlayer2 Shift+F10", "&In-, &Folded-, &Empty Seat-, &Me-, &Dealer"}};
  Do("click picPlayer4");
  for (const auto& [gesture, items] : cases) {
    Do(gesture);
    std::string text;
    for (const QAction* const item : QApplication::activePopupWidget()->actions()) {
      if (!item->isVisible()) continue;
      text += (text.empty() ? "" : ", ") + item->text().toStdString();
      text += !item->isEnabled() ? "-" : item->isChecked() ? "*" : "";
    }
    EXPECT_EQ(text, items) << gesture;
  }
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
  QApplication::activePopupWidget()->close();
  QApplication::sendEvent(&Widget(Seat(7)), &menuKey);
  QWidget* const menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->x(), Widget(Seat(7)).mapToGlobal(QPoint()).x());  // below its control
  QTest::keyClick(menu, Qt::Key_D);
  EXPECT_EQ(seats.DealerSeat, 7);
}

// A drag has a picture once it has gone some way, and lets nothing else begin.
TEST_F(GesturesTest, ADragEndsWhateverComesBetween) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { Release(Deck(9), Slot(8)); }, "-- -- -- -- 9S"},
      {[] { FillSlot(0, 9), Release(Deck(9), Slot(8)); }, "9S"},  // the card is no longer there
      {[] { Send(Deck(9), QEvent::MouseMove, Qt::NoButton, Qt::NoButton, {}); }, ""},
      {[] { ports.display->ShowMessage("text"), QApplication::activeModalWidget()->close(); }, ""}};
  const auto pictures = [] {
    const auto all = QApplication::topLevelWidgets();
    return std::ranges::count(all, QString("dragPicture"), [](auto* w) { return w->objectName(); });
  };
  for (const auto& [ending, state] : cases) {
    Put("");
    Press(Deck(9));
    for (const int way : {QApplication::startDragDistance() - 1, 30}) {
      Send(Deck(9), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton,
           SpotOf(Deck(9)) + QPoint(way, 0));
      EXPECT_EQ(pictures(), way == 30);
    }
    Press(Seat(4));
    EXPECT_TRUE(slots.CardInTheAir);
    ending();
    EXPECT_FALSE(slots.CardInTheAir);
    EXPECT_EQ(pictures(), 0);
    EXPECT_EQ(State(), state);
  }
}

}  // namespace
}  // namespace holdem
