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
  const std::pair<const char*, const char*> session[] = {
      // What is done; cards and seats then.
      {"double picDeck1", "AS"},
      {"right picDeck14", "AS AD"},
      {"drag picDeck30 picHand9", "AS AD -- -- -- 4C"},
      {"drag picHand9 picDeck3", "AS AD"},
      {"right picHand0", "-- AD"},
      {"key picHand6 X A 9 T 0 H", "-- AD TH"},  // the last rank before a suit counts
      {"key picHand7 A", "-- AD TH"},            // half a card does not go over to the next slot
      {"key picHand8 D Q Ctrl+D", "-- AD TH"},
      {"key picHand6 Backspace", "-- AD TH"},       // takes back what is half typed
      {"key picPlayer4 1 0 C 5 S", "TC AD TH 5S"},  // typed anywhere
      {"key picDeck40 5 S Backspace Backspace", "-- AD TH"},
      {"key picHand6 Del", "-- AD"},
      {"key picDeck52 Space", "KH AD"},
      {"click picDeck16", "KH AD 3D"},
      {"key picHand6 9 H 2 C", "KH AD 3D 9H 2C"},  // which is full: on to the next ones
      {"click picPlayer4", "KH AD 3D 9H 2C iii3iiiiii 2 1"},
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
      {"choose mnuFold3", "ii..ii.i3i 2 5"},
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
  shell.folder = Path("/opt/pellucor/");
  store.writes.clear();
  std::string painted;
  for (const auto& [gesture, state] : session) {
    SCOPED_TRACE(gesture);
    const auto before = LookAtAll();
    Do(gesture);
    EXPECT_EQ(State(), state);
    painted += gesture + (": " + Changed(before) + "\n");
    ExpectWindowsShowTheState();
    QTest::qWait(0);  // deletes a window that was closed
  }
  ExpectApproved("painted", painted);
  EXPECT_EQ(store.writes, (std::vector<std::string>{"FoldLevels=Yes", "LevelPre=0", "Speed=1"}));
  EXPECT_EQ(shell.opened, std::vector{Path("/opt/pellucor/instruct.html")});
  Do("double picHand9");
  EXPECT_TRUE(slots.IsFilled(9));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(&Widget(Seat(5)), &held);
  EXPECT_EQ(seats.SeatStates[5], In);
}

// Refused where "-" stands, ticked where "*".
TEST_F(GesturesTest, Menus) {
  const auto shown = [](const QString& gesture) {
    Do(gesture);
    QString items = ":";
    for (const QAction* const item : QApplication::activePopupWidget()->actions()) {
      if (!item->isVisible()) continue;
      items +=
          " " + item->text() + (item->isEnabled() ? "" : "-") + (item->isChecked() ? "*;" : ";");
    }
    return items.toStdString();
  };
  std::string text = "Speed" + shown("click lblMnuSpeed");
  for (const std::string table :
       {".i23454... 7 2, followed", ".i2345i... 7 2", ".i2345.... 7 7, fold depth"}) {
    PutSeats(table);
    seats.WatchFoldDepth = table.ends_with("fold depth");
    autoRead.WatchedWindow = table.ends_with("followed") ? 77 : 0;
    for (const int seat : {1, 3, 4, 5, 6, 7, 2})
      text += "\n" + table + ", seat " + std::to_string(seat) +
              shown("key " + Seat(seat) + " Shift+F10");
  }
  ExpectApproved("menus", text + "\n");
  QWidget* const menu = QApplication::activePopupWidget();
  const QWidget& two = Widget(Seat(2));
  EXPECT_EQ(menu->pos(), two.mapToGlobal(two.rect().bottomLeft()));  // covers nothing of it
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
