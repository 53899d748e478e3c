// Every control, what is done to it, and what state that leaves.
#include <QMenu>

#include "engine/simulation.h"
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
  Play({{"double picDeck1", "AS"},  // the card is gone after the first click
        {"again picDeck13", "AS"},  // nor is the one beneath taken
        {"click picDeck13", "AS KS"},
        {"right picDeck14", "AS KS AD"},
        {"drag picDeck30 picHand7", "AS KS AD 4C"},
        {"drag picDeck52 picPlayer4", "AS KS AD 4C"},
        {"click picDeck52", "AS KS AD 4C KH"}});
  EXPECT_EQ(Text("lblMe1"), "Current");  // Aces and Kings
  EXPECT_TRUE(Text("lblMe8").ends_with('%') && Text("lblThem8").ends_with('%'));
  Play({{"drag picHand8 picHand10", "AS KS AD 4C -- -- KH"},
        {"drag picHand8 picHand9", "AS KS AD 4C -- -- KH"},  // nothing to drag
        {"drag picHand10 nowhere", "AS KS AD 4C -- -- KH"},
        {"drag picHand10 picDeck3", "AS KS AD 4C"},
        {"double picHand7", "AS KS AD 4C"},  // filled: no random card
        {"doubleright picHand8", "AS KS AD 4C"},
        {"right picHand0", "-- KS AD 4C"},
        {"click picPlayer5", "-- KS AD 4C seat5=2"},
        {"click cmdNewDeal", "dealer=2"}});
  EXPECT_EQ(Text("lblMe8"), "");
  Do("double picHand9");
  EXPECT_TRUE(slots.IsFilled(9));
}

TEST_F(GesturesTest, CardsAndSeatsByTheKeys) {
  Play({{"key picHand6 X A 9 T 0 H", "-- -- TH"},  // the last rank before a suit counts
        {"key picHand6 A S Space", "-- -- TH"},    // filled already
        {"key picHand6 Del", ""},
        {"key picHand7 A", ""},  // half a card does not go over to the next slot
        {"key picHand8 D", ""},
        {"key picHand8 Q Ctrl+D", ""},
        {"key picDeck40 Space", "AH"},
        {"key picHand0 Backspace", ""},
        {"key picPlayer4 Space", "seat4=2"},
        {"key picPlayer4 Del", "seat4=0"},
        {"key cmdNewDeal Space", "seat4=0 dealer=2"},
        {"key lblAdvicePre2 Space", "seat4=0 dealer=2 pre=2"}});
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(&Widget(Seat(5)), &held);
  EXPECT_EQ(seats.SeatStates[5], In);
  Do("key picHand10 Return");
  EXPECT_TRUE(slots.IsFilled(10));
}

TEST_F(GesturesTest, SeatsAndSettings) {
  Play({{"click picPlayer4", "seat4=2"},
        {"double picPlayer7", "seat4=2 seat7=0"},
        {"right picPlayer4", "seat4=2 seat7=0"},
        {"choose mnuIn", "seat7=0"},
        {"choose mnuDealer", "seat7=0 dealer=4"},
        {"choose mnuFold2", "seat4=2 seat7=0 dealer=4"},
        {"choose mnuEmpty", "seat4=0 seat7=0 dealer=5"},
        {"click chkFoldLevels", "seat4=0 seat7=0 dealer=5 folds=1"},
        {"right picPlayer9", "seat4=0 seat7=0 dealer=5 folds=1"},
        {"choose mnuFold4", "seat4=0 seat7=0 seat9=4 dealer=5 folds=1"},
        {"choose mnuMe", "seat4=0 seat7=0 me=9 dealer=5 folds=1"},
        {"click chkFoldLevels", "seat4=0 seat7=0 me=9 dealer=5"},
        {"click chk9Pl", "seat4=0 seat6=0 seat7=0 me=9 dealer=5 seats=9"},
        {"click chk9Pl", "seat4=0 seat6=0 seat7=0 me=9 dealer=5"},
        {"click lblAdvicePost2", "seat4=0 seat6=0 seat7=0 me=9 dealer=5 post=2"},
        {"click lblAdvicePre0", "seat4=0 seat6=0 seat7=0 me=9 dealer=5 pre=0 post=2"},
        {"choose mnuSpeedChoice1", "seat4=0 seat6=0 seat7=0 me=9 dealer=5 pre=0 post=2 speed=1"}});
}

TEST_F(GesturesTest, Menus) {
  const std::pair<const char*, const char*> cases[] = {
      {"click lblMnuFile", "E&xit"},
      {"click lblMnuSpeed", "&Fast (less accurate)*, &Medium, &Accurate (for fast CPUs)"},
      {"click lblMnuHelp", "&Instructions, &readme.txt, &About"},
      {"right picPlayer4", "&In, &Folded*, &Empty Seat, &Me, &Dealer"},
      {"right picPlayer1", "&In*, &Folded, &Empty Seat, &Me, &Dealer*"},
      {"key chkFoldLevels Space", ""},
      {"key picPlayer2 Shift+F10",
       "&In-, Folded &Pre-Flop-, Folded &Flop-, Folded &Turn-, Folded &River-, &Empty Seat-, &Me-, "
       "&Dealer"}};
  Do("click picPlayer4");
  for (const auto& [gesture, items] : cases) {
    Do(gesture);
    std::string text;
    const QWidget* const menu = QApplication::activePopupWidget();
    for (const QAction* const item : menu ? menu->actions() : QList<QAction*>()) {
      if (!item->isVisible()) continue;
      text += (text.empty() ? "" : ", ") + item->text().toStdString();
      text += !item->isEnabled() ? "-" : item->isChecked() ? "*" : "";
    }
    EXPECT_EQ(text, items) << gesture;
  }
  // Opened by the keyboard, below its control.
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
  QApplication::activePopupWidget()->close();
  QApplication::sendEvent(&Widget(Seat(7)), &menuKey);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(QApplication::activePopupWidget()->x(), Widget(Seat(7)).mapToGlobal(QPoint()).x());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_D);
  EXPECT_EQ(seats.DealerSeat, 7);
}

// A drag has a picture once it has gone some way, and lets nothing else begin.
TEST_F(GesturesTest, ADragEndsWhateverComesBetween) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { Release(Deck(9), Slot(8)); }, "-- -- -- -- 9S"},
      {[] { Release(Deck(9), "nowhere"); }, ""},
      {[] { FillSlot(0, 9), Release(Deck(9), Slot(8)); }, "9S"},  // the card is no longer there
      {[] { Send(Deck(9), QEvent::MouseMove, Qt::NoButton, Qt::NoButton, {}); }, ""},
      {[] { ports.display->ShowMessage("text"), QApplication::activeModalWidget()->close(); }, ""}};
  const auto pictures = [] {
    const auto all = QApplication::topLevelWidgets();
    return std::ranges::count(all, QString("dragPicture"), [](auto* w) { return w->objectName(); });
  };
  for (const auto& [ending, state] : cases) {
    SCOPED_TRACE(&ending - &cases[0].first);
    NewHand();
    seats.DealerSeat = 1;
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

TEST_F(GesturesTest, AChangeInTheMiddleOfARunIsNotLost) {
  for (const Card card : {1, 13, 14, 30}) Do("click " + Deck(card));
  settings.DealsPerRun = 100'000'000;  // would take minutes
  QTimer::singleShot(20, [] { Do("click " + Deck(2)); });
  Do("click " + Deck(52));
  EXPECT_EQ(analysis.CurrentStreet, Flop);
  EXPECT_LT(simulation.SimTally[1].deals, 1'000'000);
  settings.DealsPerRun = 20;
  EXPECT_TRUE(QTest::qWaitFor([] { return analysis.CurrentStreet == Turn && !run.Calculating; }));
  EXPECT_EQ(simulation.SimTally[1].deals, 20);
  EXPECT_EQ(State(), "AS KS AD 4C KH 2S");
  ExpectWindowsShowTheState();
}

}  // namespace
}  // namespace holdem
