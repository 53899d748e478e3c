// The real windows on a real screen, driven by real pointer and key events.
#include <QProcess>

#include "autoread/layouts.h"
#include "platform/native_desktop.h"
#include "table_client/play.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

// Run on screens of several sizes.
struct ScreenTest : WindowTest {
  ScreenTest() {
    MeasureScreen();
    program = std::make_unique<Program>();
    program->LoadMainWindow();
  }

  // At the top, flush with the right edge, once the frames are known: side by side or, where they
  // are wider than the screen, one below the other.
  static bool AreArranged() {
    return QTest::qWaitFor([] {
      const QRect main = Widget("Form1").frameGeometry(), deck = Widget("frmDeck").frameGeometry();
      const bool narrow = main.width() + deck.width() > screenState.ScreenWidthPx;
      return main.height() > Widget("Form1").height() && main.top() == 0 && main.left() >= 0 &&
             (narrow ? deck.top() == main.bottom() + 1 : deck.left() == main.right() + 1) &&
             deck.right() == screenState.ScreenWidthPx - 1;
    });
  }

  const std::unique_ptr<Desktop> screen = MakeNativeDesktop();
};

TEST_F(ScreenTest, TheWindowsAreArranged) {
  EXPECT_TRUE(AreArranged());
  EXPECT_EQ(Widget("picHand0").internalWinId(), 0U);  // only whole windows are the display's
}

// Also run under a tiling window manager.
TEST_F(ScreenTest, WhatIsPaintedHasTheSizeOfTheWindow) {
  QTest::qWait(1800);  // whatever is asked of the manager has been refused by then
  for (const char* const name : {"Form1", "frmDeck"})
    EXPECT_EQ(Widget(name).size(), Widget(name).windowHandle()->size()) << name;
}

// The real pointer and keyboard. What has been done may reach the windows a moment later: wait for
// what comes of it.
struct RealMouseTest : ScreenTest {
  RealMouseTest() { EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget("Form1")) && AreArranged()); }

  // The test's own windows live on meanwhile.
  static void Xdotool(const QString& words) {
    QProcess xdotool;
    xdotool.start("xdotool", words.split(' '));
    EXPECT_TRUE(QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }));
    EXPECT_EQ(xdotool.exitCode(), 0);
  }
  static void MoveTo(const QString& name, const QString& andThere) {
    const QPoint spot = SpotOf(name);
    Xdotool(QString("mousemove %1 %2 %3").arg(spot.x()).arg(spot.y()).arg(andThere));
  }
  static void Click(const QString& name) { MoveTo(name, "click 1"); }
  // By way of a slot, at which the card stays for a while. Wherever it can come to lie is lit.
  static void Drag(const QString& from, int over, const QString& to) {
    const Sights lying = LookAtAll();
    const auto lit = [&](const QString& slot) {
      return QString::fromStdString(Changed(lying)).split(' ').contains(Plainly(slot));
    };
    MoveTo(from, "mousedown 1 mousemove_relative 5 5");
    MoveTo(Slot(over), "mousemove_relative 1 1");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return lit(from) && lit(Slot(over)) != slots.IsFilled(over); }));
    MoveTo(to, "mousemove_relative 1 1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return lit(to) && !lit(Slot(over)); }));
    MoveTo(to, "mouseup 1");
  }
  static WindowHandle Handle(const QString& window) { return Widget(window).winId(); }
  static void Command(const QString& command, const QString& window) {
    Xdotool(command + ' ' + QString::number(Handle(window)));
  }

  // Seen or not: a window that goes with its owner may be minimised or hidden.
  bool DeckBecomes(bool seen, int limit = 5000) {
    const auto become = [&] { return bool(screen->OuterRectangle(Handle("frmDeck"))) == seen; };
    return QTest::qWaitFor(become, limit);
  }
  static bool Comes(const std::string& state) {
    return QTest::qWaitFor([&] { return State() == state && !run.Calculating; });
  }
};

TEST_F(RealMouseTest, DragsCardsFromWindowToWindowAndEndsByTheMainOne) {
  Drag(Deck(14), 9, Slot(7));
  EXPECT_TRUE(Comes("-- -- -- AD"));
  Drag(Deck(1), 7, Slot(8));
  EXPECT_TRUE(Comes("-- -- -- AD AS"));
  Drag(Slot(7), 8, Slot(1));
  EXPECT_TRUE(Comes("-- AD -- -- AS"));
  Command("windowactivate --sync", "frmDeck");
  EXPECT_TRUE(QTest::qWaitFor([] { return Widget("frmDeck").isActiveWindow(); }));
  Xdotool("key alt+F4");
  Click(Deck(40));  // comes after it
  EXPECT_TRUE(Comes("AH AD -- -- AS"));
  EXPECT_TRUE(Widget("frmDeck").isVisible() && !run.Ending);
  // Owned by the main window: it stays above it and goes with it.
  Widget("frmDeck").move(Widget("Form1").pos() + QPoint(100, 40));
  Command("windowactivate --sync", "Form1");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget("Form1")));
  const PixelPoint card{SpotOf(Deck(10)).x(), SpotOf(Deck(10)).y()};
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return screen->WindowsAt({&card, 1}, 0).front() == Handle("frmDeck");
  }));
  Click(Deck(10));
  EXPECT_TRUE(Comes("AH AD TS -- AS"));
  MoveTo(Deck(20), "mousedown 1 mousemove_relative 9 9");
  EXPECT_TRUE(QTest::qWaitFor([] { return slots.CardInTheAir; }));
  Command("windowminimize", "Form1");
  EXPECT_TRUE(DeckBecomes(false));
  EXPECT_TRUE(QTest::qWaitFor([] { return !slots.CardInTheAir; }));
  Xdotool("mouseup 1");
  EXPECT_FALSE(DeckBecomes(true, 400));
  Command("windowactivate --sync", "Form1");
  EXPECT_TRUE(DeckBecomes(true));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget("Form1")));
  Xdotool("key alt+F4");
  EXPECT_TRUE(QTest::qWaitFor([] { return run.Ending; }));
}

TEST_F(RealMouseTest, NothingIsDoneTwice) {
  const auto menuOpens = [] { return QTest::qWaitFor(&QApplication::activePopupWidget); };
  Xdotool("key --delay 0 a s k d q d j d BackSpace BackSpace");
  Xdotool("keydown BackSpace sleep 1 keyup BackSpace");
  EXPECT_TRUE(Comes("AS"));
  Click(Seat(4));
  MoveTo(Seat(4), "click 3 mousemove_relative 3 3 click 3");
  EXPECT_TRUE(menuOpens() && Comes("AS iii2iiiiii 2 1"));
  Xdotool("key Escape");
  Widget(Seat(4)).setFocus(Qt::TabFocusReason);
  Xdotool("key Menu");
  EXPECT_TRUE(menuOpens());
  Xdotool("key Escape");
  MoveTo("lblMnuFile", "click 1 mousemove_relative 3 3 click 1");
  EXPECT_TRUE(menuOpens() && !run.Ending);
  Xdotool("key ctrl+q");
  EXPECT_TRUE(QTest::qWaitFor([] { return run.Ending; }));
}

// Auto Read from end to end, beside the stand-in client, another process.
struct FollowTableTest : ScreenTest {
  FollowTableTest() {
    ports.desktop = screen.get();
    // The hand in the wizard, no quicker than the client.
    hand.callOnTimeout([this] {
      if (!wizard.Open || (shown.empty() && !client.peek(1000).contains("shows "))) return;
      Do("click cmdHere" + QString::number(seatToChoose));
    });
    hand.start(20);
    program->findChild<QTimer*>("tmrAutoWatcher")->setInterval(30);
    program->findChild<QTimer*>("tmrCheckRefresh")->setInterval(10);
  }

  // The rest of the client's next line that begins so; null at the end.
  QString NextLine(const QString& beginning) {
    QString line;
    while (!line.startsWith(beginning)) {
      if (line == "done" || !QTest::qWaitFor([&] { return client.canReadLine(); })) return {};
      line = client.readLine().trimmed();
    }
    return line.mid(beginning.size());
  }

  // What the program knows, in the client's words.
  static std::string Known() {
    table_client::Table table{
        .layout = autoRead.TableLayout, .heroSeat = seats.MySeat, .buttonSeat = seats.DealerSeat};
    for (int i = 0; i < 2; ++i) table.hole[i] = slots.picHand[kHoleSlots[i]];
    for (int i = 0; i < 5; ++i) table.board[i] = slots.picHand[kBoardSlots[i]];
    for (int seat = 1; seat <= kSeats; ++seat)
      if (seats.SeatStates[seat] == In) table.looks[seat] = table_client::SeatLook::In;
    return Describe(table);
  }

  QProcess client;
  std::string shown;  // what the client said last
  int seatToChoose = 4;
  QTimer hand;
};

// Every state that the client shows is to be followed, and its figures to be there. No two layouts
// one after the other have the user on the same seat, so each is asked about. More hands for a
// longer run.
TEST_F(FollowTableTest, HandsInEveryLayout) {
  const int hands = qEnvironmentVariable("HANDS_A_LAYOUT", "6").toInt();
  int followed = 0, misread = 0;
  for (int layout = 1; layout <= kLayouts; ++layout) {
    SCOPED_TRACE(layout);
    seatToChoose = layout == 4 ? 2 : 2 + layout;
    const auto options = QString::asprintf(
        "--wait-for-go --position 60,330 --layout %d --hero %d --seed %d --hands %d", layout,
        seatToChoose, 10 + layout, hands);
    client.start(TABLE_CLIENT, options.split(' '));
    const WindowHandle window = NextLine("window ").toULongLong();
    while (!(shown = NextLine("shows ").toStdString()).empty() && !HasFailure()) {
      patience.start();
      const bool read = QTest::qWaitFor([&] {
        return autoRead.WatchedWindow == window && Known() == shown && !run.Calculating &&
               run.LastCalcTicks == run.LastChangeTicks;
      });
      EXPECT_TRUE(read) << Known() << "\ninstead of\n" << shown;
      followed += read;
      misread += !read && autoRead.Following();
      ExpectWindowsShowTheState();
      client.write("\n");
    }
    client.kill();
    client.waitForFinished();
    if (HasFailure()) break;
    EXPECT_TRUE(QTest::qWaitFor([] { return !autoRead.Following(); }));
  }
  std::printf("%d states followed, %d misread\n", followed, misread);
}

}  // namespace
}  // namespace holdem
