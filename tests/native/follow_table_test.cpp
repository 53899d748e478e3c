// Auto Read from end to end: the program's real windows, beside the stand-in client, another
// process, on a real screen.
#include <QProcess>

#include "advice/hole_table.h"
#include "autoread/layouts.h"
#include "autoread/watcher.h"
#include "platform/native_desktop.h"
#include "table_client/play.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

class TableClient {
 public:
  TableClient(int layout, int hero, int hands) {
    const auto options = QString::asprintf(
        "--wait-for-go --position 60,330 --layout %d --hero %d --seed %d --hands %d", layout, hero,
        10 + layout, hands);
    client_.start(TABLE_CLIENT, options.split(' '));
    newest_ = this;
    id_ = NextLine("window ").toULongLong();
    Look();
    newest_ = nullptr;
  }
  ~TableClient() {
    client_.kill();
    client_.waitForFinished();
  }

  bool Next() {
    client_.write("\n");
    return Look();
  }
  void Kill() { client_.kill(); }

  // Whether the program knows what the client said last.
  bool IsFollowed() const { return autoRead.WatchedWindow == id_ && Known() == shown_; }
  std::string Shown() const { return shown_; }

  // Asked while one is waited for: the wizard comes up as soon as its window is there.
  static bool AllArePainted() { return !newest_ || newest_->client_.peek(1000).contains("shows "); }

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

 private:
  // False when there is nothing more to show.
  bool Look() {
    const QString line = NextLine("shows ");
    if (!line.isNull()) shown_ = line.toStdString();
    return !line.isNull();
  }
  // The rest of the next line that begins so; null at the end.
  QString NextLine(const QString& beginning) {
    QString line;
    while (!line.startsWith(beginning)) {
      if (line == "done" || !QTest::qWaitFor([&] { return client_.canReadLine(); })) return {};
      line = client_.readLine().trimmed();
    }
    return line.mid(beginning.size());
  }

  static inline TableClient* newest_ = nullptr;  // that has not said what it shows

  QProcess client_;
  WindowHandle id_ = 0;
  std::string shown_;
};

class FollowTableTest : public WindowTest {
 protected:
  FollowTableTest() {
    MeasureScreen();
    program = std::make_unique<Program>();
    native_ = MakeNativeDesktop();
    ports.desktop = native_.get();
    LoadTableLayouts();
    modHole::LoadHoleTable();
    program->LoadMainWindow();
    // The hand in the wizard, no quicker than the client.
    hand_.callOnTimeout([this] {
      if (!wizard.Open || !TableClient::AllArePainted()) return;
      ++wizardsSeen;
      Do("click cmdHere" + QString::number(seatToChoose));
    });
    hand_.start(20);
    program->findChild<QTimer*>("tmrAutoWatcher")->setInterval(30);
    program->findChild<QTimer*>("tmrCheckRefresh")->setInterval(10);
  }

  // Plays all that the client has; every state is to be followed, and its figures to be there.
  void Follow(TableClient& client) {
    do {
      const bool read = QTest::qWaitFor([&] {
        return client.IsFollowed() && !run.Calculating && run.LastCalcTicks == run.LastChangeTicks;
      });
      statesMisread += !read && autoRead.Following();
      ASSERT_TRUE(read) << TableClient::Known() << "\ninstead of\n" << client.Shown();
      ++statesFollowed;
      ExpectWindowsShowTheState();
    } while (client.Next() && !HasFailure());
  }

  int seatToChoose = 4;
  int wizardsSeen = 0;
  int statesFollowed = 0;
  int statesMisread = 0;

 private:
  std::unique_ptr<Desktop> native_;
  QTimer hand_;
};

// More of them for a longer run by hand.
TEST_F(FollowTableTest, HandsInEveryLayout) {
  const int hands = qEnvironmentVariable("HANDS_A_LAYOUT", "6").toInt();
  for (int layout = 1; layout <= kLayouts; ++layout) {
    SCOPED_TRACE(layout);
    seatToChoose = layout == 4 ? 7 : 2 + layout;
    TableClient client(layout, seatToChoose, hands);
    Follow(client);
    EXPECT_GE(wizardsSeen, layout);  // one more where a table was found before it was painted
    if (HasFailure()) break;
    client.Kill();
    EXPECT_TRUE(QTest::qWaitFor([] { return !autoRead.Following(); }));
  }
  std::printf("%d states followed, %d misread\n", statesFollowed, statesMisread);
}

}  // namespace
}  // namespace holdem
