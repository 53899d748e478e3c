// Auto Read from end to end: the program's real windows, beside the stand-in client, another
// process, on a real screen.
#include <QProcess>

#include "autoread/watcher.h"
#include "platform/native_desktop.h"
#include "table_client/play.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

class FollowTableTest : public WindowTest {
 protected:
  FollowTableTest() {
    MeasureScreen();
    program = std::make_unique<Program>();
    native_ = MakeNativeDesktop();
    ports.desktop = native_.get();
    program->LoadMainWindow();
    // The hand in the wizard, no quicker than the client.
    hand_.callOnTimeout([this] {
      if (!wizard.Open || (shown.empty() && !client.peek(1000).contains("shows "))) return;
      ++wizardsSeen;
      Do("click cmdHere" + QString::number(seatToChoose));
    });
    hand_.start(20);
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
  // False when there is nothing more to show.
  bool Look() {
    const QString line = NextLine("shows ");
    shown = line.toStdString();
    return !line.isNull();
  }

  // What the program knows, in the client's words.
  static std::string Known() {
    table_client::Table table{
        .layout = autoRead.TableLayout, .heroSeat = seats.MySeat, .buttonSeat = seats.DealerSeat};
    for (int i = 0; i < 2; ++i) table.hole[i] = slots.picHand[kHoleSlots[i]];
    for (int i = 0; i < 5; ++i) table.board[i] = slots.picHand[kBoardSlots[i]];
    for (int seat = 1; seat <= kSeats; ++seat) {
      if (seats.SeatStates[seat] == In) table.looks[seat] = table_client::SeatLook::In;
    }
    return Describe(table);
  }

  QProcess client;
  std::string shown;  // what the client said last
  int seatToChoose = 4;
  int wizardsSeen = 0;

 private:
  std::unique_ptr<Desktop> native_;
  QTimer hand_;
};

// Every state that the client shows is to be followed, and its figures to be there. More hands for
// a longer run.
TEST_F(FollowTableTest, HandsInEveryLayout) {
  const int hands = qEnvironmentVariable("HANDS_A_LAYOUT", "6").toInt();
  int followed = 0, misread = 0;
  for (int layout = 1; layout <= kLayouts; ++layout) {
    SCOPED_TRACE(layout);
    seatToChoose = layout == 4 ? 7 : 2 + layout;
    const auto options = QString::asprintf(
        "--wait-for-go --position 60,330 --layout %d --hero %d --seed %d --hands %d", layout,
        seatToChoose, 10 + layout, hands);
    client.start(TABLE_CLIENT, options.split(' '));
    const WindowHandle window = NextLine("window ").toULongLong();
    for (; Look() && !HasFailure(); client.write("\n")) {
      patience.start();
      const bool read = QTest::qWaitFor([&] {
        return autoRead.WatchedWindow == window && Known() == shown && !run.Calculating &&
               run.LastCalcTicks == run.LastChangeTicks;
      });
      EXPECT_TRUE(read) << Known() << "\ninstead of\n" << shown;
      followed += read;
      misread += !read && autoRead.Following();
      ExpectWindowsShowTheState();
    }
    EXPECT_GE(wizardsSeen, layout);  // one more where a table was found before it was painted
    client.kill();
    client.waitForFinished();
    if (HasFailure()) break;
    EXPECT_TRUE(QTest::qWaitFor([] { return !autoRead.Following(); }));
  }
  std::printf("%d states followed, %d misread\n", followed, misread);
}

}  // namespace
}  // namespace holdem
