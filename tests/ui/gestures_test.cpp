// Every control, what is done to it, and what state that leaves.
#include <QMenu>

#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "table/card_slots.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

using GesturesTest = LoadedWindowTest;

TEST_F(GesturesTest, OneAfterTheOther) {
  const struct {
    const char *gesture, *state, *seen;
  } session[] = {
      {"double picDeck1", "AS", "AC AD AH AS CurrentScore Hand0"},
      {"right picDeck14", "AS AD", "AC AD AH Advice CurrentScore Hand1 HandMeter Me Them"},
      {"drag picDeck30 picHand9", "AS AD -- -- -- 4C",
       "4C 4D 4H 4S Advice Hand9 HandMeter Me Them"},
      {"drag picHand9 picDeck3", "AS AD", "4C 4D 4H 4S Advice Hand9 HandMeter Me Them"},
      {"right picHand0", "-- AD", "AC AH AS Advice CurrentScore Hand0 HandMeter Me Them"},
      {"key picHand6 X A 9 T 0 H", "-- AD TH", "Hand6 TH"},  // the last rank before a suit counts
      {"key picHand7 A", "-- AD TH", "Hand7"},  // half a card does not go over to the next slot
      {"key picHand8 D Q Ctrl+D", "-- AD TH", "Hand7 Hand8"},
      {"key picHand6 Backspace", "-- AD TH", "Hand8"},  // takes back what is half typed
      {"key picPlayer4 1 0 C 5 S", "TC AD TH 5S",
       "5C 5D 5H 5S AC AH AS CurrentScore Hand0 Hand7 Me TC TD TS"},  // typed anywhere
      {"key picDeck40 5 S Backspace Backspace", "-- AD TH",
       "5C 5D 5H 5S AC AH AS CurrentScore Hand0 Hand7 Me TC TD TS"},
      {"key picHand6 Del", "-- AD", "Hand6 TH"},
      {"key picDeck52 Space", "KH AD", "Advice Hand0 HandMeter KC KD KH KS Me Them"},
      {"click picDeck16", "KH AD 3D", "3D AH Advice Hand6 HandMeter Me Them"},
      {"drag picDeck48 picHand7", "KH AD 3D 9H", "9H Hand7"},
      {"click picDeck28", "KH AD 3D 9H 2C", "2C Advice Hand8 HandMeter Me Them"},
      {"click picPlayer4", "KH AD 3D 9H 2C iii3iiiiii 2 1", "Advice HandMeter Me Player4 Them"},
      {"click cmdNewDeal", "iiiiiiiiii 2 2",
       "2C 3D 9H AC AD AH AS Advice BB CurrentScore DlrButton1 DlrButton2 Hand0 Hand1 Hand6 Hand7 "
       "Hand8 HandMeter KC KD KH KS Me NewDeal Player4 SB Them"},
      {"click picPlayer4", "iii2iiiiii 2 2", "NewDeal Player4"},
      {"double picPlayer7", "iii2ii.iii 2 2", "Player7"},
      {"key picPlayer3 Del", "ii.2ii.iii 2 2", "BB Player3 SB"},
      {"right picPlayer4", "ii.2ii.iii 2 2", ""},
      {"choose mnuIn", "ii.iii.iii 2 2", "Player4"},
      {"choose mnuDealer", "ii.iii.iii 2 4", "BB DlrButton2 DlrButton4 SB"},
      {"choose mnuEmpty", "ii..ii.iii 2 5", "BB DlrButton4 DlrButton5 Player4 SB"},
      {"click chkFoldLevels", "ii..ii.iii 2 5", "FoldLevels"},
      {"right picPlayer9", "ii..ii.iii 2 5", ""},
      {"choose mnuFold3", "ii..ii.i3i 2 5", "Player9"},
      {"choose mnuFold4", "ii..ii.i4i 2 5", "Player9"},
      {"choose mnuMe", "ii..ii.iii 9 5", "Hand0 Hand1 MySeat Player2 Player9"},
      {"click chk9Pl", "ii..i..iii 9 5", "9Pl BB DlrButton5 Player5 Player6 SB"},
      {"click lblSetup", "ii..i..iii 9 5", "Setup"},
      {"click cmdHere7", "ii..i..iii 9 5",
       "Here1 Here10 Here2 Here3 Here4 Here5 Here7 Here8 Here9 Label1 Setup"},
      {"click Command1", "ii..i..iii 9 5", ""},
      {"click chk9Pl", "ii..i..iii 9 5", "9Pl DlrButton5 Player5 Player6"},
      {"key lblAdvicePre0 Space", "ii..i..iii 9 5", "AdvicePre0 AdvicePre1"},
      {"choose mnuSpeedChoice1", "ii..i..iii 9 5", "MnuSpeed"},
      {"click lblSetup", "ii..i..iii 9 5", "Setup"},
      {"click cmdHere7", "ii..i..iii 9 5",
       "Here1 Here10 Here2 Here3 Here4 Here5 Here6 Here7 Here8 Here9 Label1 Setup"},
      {"click cmdHere8", "ii..i..iii 9 5",
       "Done Here1 Here10 Here2 Here3 Here4 Here5 Here6 Here7 Here8 Here9 Label1"},
      {"click cmdHere3", "ii..i..iii 9 5", "Here3 Here8"},
      {"click cmdDone", "ii.iiiiiii 7 8",
       "BB DlrButton5 DlrButton8 Hand0 Hand1 MySeat Player4 Player6 Player7 Player9 SB"},
      {"click cmdHelp", "ii.iiiiiii 7 8", ""}};
  shell.existing = {Path("/opt/pellucor/instruct.html")};
  store.writes.clear();
  for (const auto& [gesture, state, seen] : session) {
    SCOPED_TRACE(gesture);
    const auto before = LookAtAll();
    Do(gesture);
    EXPECT_EQ(State(), state);
    EXPECT_EQ(Changed(before), seen);
    ExpectWindowsShowTheState();
    QTest::qWait(0);  // deletes a window that was closed
  }
  EXPECT_EQ(store.writes, (std::vector<std::string>{"FoldLevels=Yes", "LevelPre=0", "Speed=1"}));
  EXPECT_EQ(shell.opened.size(), 1U);
  Do("double picHand9");
  EXPECT_TRUE(slots.IsFilled(9));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(&Widget(Seat(5)), &held);
  EXPECT_EQ(seats.SeatStates[5], In);
}

TEST_F(GesturesTest, Menus) {
  const std::pair<const char*, const char*> cases[] = {
      {"click lblMnuSpeed", "&Fast (less accurate)*, &Medium, &Accurate (for fast CPUs)"},
      {"right picPlayer4", "&In*, &Folded, &Empty Seat, &Me, &Dealer"},
      {"click chkFoldLevels", ""},
      {"key picPlayer2 Shift+F10",
       "&In-, Folded &Pre-Flop-, Folded &Flop-, Folded &Turn-, Folded &River-, &Empty Seat-, &Me-, "
       "&Dealer"}};
  for (const auto& [gesture, items] : cases) {
    Do(gesture);
    QStringList shown;
    QWidget* const menu = QApplication::activePopupWidget();
    for (const QAction* const item : menu != nullptr ? menu->actions() : QList<QAction*>()) {
      const char* const look = !item->isEnabled() ? "-" : item->isChecked() ? "*" : "";
      if (item->isVisible()) shown += item->text() + look;
    }
    EXPECT_EQ(shown.join(", "), items);
  }
  QWidget* const menu = QApplication::activePopupWidget();
  EXPECT_EQ(menu->x(), Widget(Seat(2)).mapToGlobal(QPoint()).x());  // below its control
  QTest::keyClick(menu, Qt::Key_D);
  EXPECT_EQ(seats.DealerSeat, 2);
  QCursor::setPos(SpotOf(Seat(4)));
  Do("right picPlayer4");
  EXPECT_EQ(QApplication::activePopupWidget()->pos(), SpotOf(Seat(4)));  // at the mouse
}

// Every card shows its own face, and in the deck the sign of the row it would make.
TEST_F(GesturesTest, EveryCardIsWhatItStandsFor) {
  for (const Card card : {52, 14, 16, 48, 28}) Do("click " + Deck(card));
  const auto expectFace = [](const QString& name, Card card) {
    QWidget& box = Widget(name);
    PictureBox wanted(box.parentWidget(), "", [card](Canvas& canvas) {
      DrawCardFace(canvas, card, kWhite);
      if (results.OutRows[card] != kNoOut) DrawOutMarker(canvas, results.OutRows[card]);
    });
    wanted.resize(box.size());
    EXPECT_TRUE(Anew(box) == Anew(wanted)) << name.toStdString() << " is not " << TextOf(card);
  };
  for (Card card = 1; card <= kCardCount; ++card) expectFace(Deck(card), card);
  for (int i = 0; i < 5; ++i) expectFace(Slot(kSlotOrder[i]), slots.picHand[kSlotOrder[i]]);
}

// A card in the air has a picture, its place is faint, and nothing else begins.
TEST_F(GesturesTest, ADragEndsWhateverComesBetween) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { Release(SpotOf("nowhere")); }, ""},
      {[] { QTest::keyClick(&Widget("Form1"), Qt::Key_Escape); }, ""},
      {[] { Mouse(QEvent::MouseMove, SpotOf(Deck(8))); }, ""},
      {[] { ports.display->ShowMessage("text"), The<QDialog>("message").close(); }, ""},
      {[] { FillSlot(0, 9), Mouse(QEvent::MouseMove, SpotOf(Deck(20))); }, "9S"}};
  const auto lying = LookAtAll();
  const QImage nine = Anew(Widget(Deck(9)));
  for (const auto& [ending, state] : cases) {
    Press(Deck(9));
    MoveCard(SpotOf(Deck(9)) + QPoint(30, 0));
    EXPECT_EQ(Changed(lying), "9S");
    EXPECT_EQ(Widget("dragPicture").pos(), Widget(Deck(9)).mapToGlobal(QPoint(30, 0)));
    EXPECT_TRUE(Anew(Widget("dragPicture")) == nine);
    const QPoint table = SpotOf(Slot(8));
    Mouse(QEvent::MouseButtonPress, table, Qt::LeftButton | Qt::RightButton, Qt::RightButton);
    Mouse(QEvent::MouseButtonRelease, table, Qt::LeftButton, Qt::RightButton);
    EXPECT_TRUE(slots.CardInTheAir);
    ending();
    EXPECT_FALSE(slots.CardInTheAir);
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
      EXPECT_NE(window->objectName(), "dragPicture");
    }
    EXPECT_EQ(State(), state);
    EXPECT_EQ(Changed(lying), State().empty() ? "" : "9S Hand0");
  }
}

}  // namespace
}  // namespace holdem
