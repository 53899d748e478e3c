// Every control, what is done to it, and what state that leaves.
#include <QClipboard>

#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "table/card_slots.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

using GesturesTest = LoadedWindowTest;

// What each leaves of cards and seats, and what it paints anew.
TEST_F(GesturesTest, OneAfterTheOther) {
  std::istringstream session(
      "double picDeck1;right picDeck14;drag picDeck30 picHand9;drag picHand9 picDeck3;"
      "double-right picHand0;"
      // The last rank before a suit counts; half a card does not go over to the next slot.
      "key picHand6 X A 9 T 0 H;key picHand7 A;key picHand8 D Q Ctrl+D;key picHand6 Backspace;"
      // Typed anywhere; a slot that is full leaves it to the next one.
      "key picPlayer4 1 0 C 5 S;key picDeck40 5 S Backspace Backspace;key picHand6 Del;"
      "key picDeck52 Return;click picDeck16;key picHand6 Num+9 H 2 C;"
      "click picPlayer4;click cmdNewDeal;click picPlayer4;double picPlayer7;key picPlayer3 Del;"
      "right picPlayer4;choose mnuIn;choose mnuDealer;choose mnuEmpty;"
      "click chkFoldLevels;right picPlayer9;choose mnuFold3;choose mnuFold4;choose mnuMe;"
      "click chk9Pl;click lblSetup;click cmdHere7;click Command1;click chk9Pl;"
      "key lblAdvicePre0 Space;choose mnuSpeedChoice1;key picPlayer4 F1;"
      "click lblSetup;click cmdHere7;key cmdHere8;key cmdHere8 Space Tab;"
      "click cmdHere3;click cmdHere3;click cmdHere3;click cmdDone;click cmdHelp;"
      // Half a card waits wherever the keyboard goes.
      "key picPlayer4 Ctrl+Z A S K;key picPlayer5 D Ctrl+4 Ctrl+0;key picPlayer4 Ctrl+Z Del;"
      "key chk9Pl Space Ctrl+6;key chk9Pl Ctrl+Z Ctrl+Z Ctrl+C;"
      "key chk9Pl Ctrl+Shift+Z Ctrl+Y Return Ctrl+6;key picPlayer4 Alt+N");
  shell.existing = {Path("/opt/pellucor/instruct.html")};
  shell.folder = Path("/opt/pellucor/");
  store.writes.clear();
  std::string painted;
  for (std::string gesture; std::getline(session, gesture, ';');) {
    SCOPED_TRACE(gesture);
    const auto before = LookAtAll();
    Do(gesture.c_str());
    painted += gesture + ": " + State() + ": " + Changed(before) + "\n";
    ExpectWindowsShowTheState();
    QTest::qWait(0);  // deletes a window that was closed
  }
  ExpectApproved("painted", painted);
  EXPECT_EQ(store.writes, (std::vector<std::string>{"FoldLevels=Yes", "LevelPre=0", "Speed=1"}));
  EXPECT_EQ(shell.opened, std::vector(2, Path("/opt/pellucor/instruct.html")));
  EXPECT_EQ(Widget("Form1").focusWidget(), &Widget(Slot(0)));  // after Alt+N
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("Hand: "));
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
    EXPECT_EQ(LookAtAll().size(), lying.size()) << "the picture has stayed";
    EXPECT_EQ(State(), state);
    EXPECT_EQ(Changed(lying), State().empty() ? "" : "9S Hand0");
  }
}

}  // namespace
}  // namespace holdem
