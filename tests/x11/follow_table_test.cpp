// Auto Read from end to end: the program's real windows follow the stand-in client, another
// process, on a real X display with a window manager.

#include <QProcess>
#include <QTemporaryFile>
#include <random>

#include "advice/hole_table.h"
#include "autoread/layouts.h"
#include "autoread/watcher.h"
#include "platform/x11/x11_desktop.h"
#include "reference/card_text.h"
#include "state/auto_read.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

// How often to do it; more for a longer run by hand, as the environment says.
int AsOften(const char* variable, int usually) {
  const char* const wanted = std::getenv(variable);
  return wanted != nullptr ? std::atoi(wanted) : usually;
}

// What the client says that it shows.
struct Shown {
  int heroSeat = 0;
  std::vector<Card> hole;  // two or none
  std::vector<Card> board;
  int button = 0;
  std::vector<int> holding;
};

class TableClient {
 public:
  explicit TableClient(const QStringList& arguments) {
    client_.start(TABLE_CLIENT, QStringList{"--wait-for-go"} + arguments);
    id_ = WaitForLine("window ").toULongLong();
    shown_ = Parse(WaitForLine("shows "));
  }
  ~TableClient() {
    client_.kill();
    client_.waitForFinished();
  }

  // False when there is nothing more to show.
  bool Next() {
    client_.write("\n");
    const QString line = WaitForLine("shows ");
    if (!line.isNull()) shown_ = Parse(line);
    return !line.isNull();
  }
  void Kill() { client_.kill(); }

  const Shown& Now() const { return shown_; }
  WindowHandle Id() const { return id_; }

 private:
  // The rest of the next line that begins so; null at the end.
  QString WaitForLine(const char* beginning) {
    for (;;) {
      EXPECT_TRUE(QTest::qWaitFor(
          [&] { return client_.canReadLine() || client_.state() == QProcess::NotRunning; }));
      if (!client_.canReadLine()) return {};
      const QString line = client_.readLine().trimmed();
      if (line.startsWith(beginning)) return line.mid(static_cast<int>(strlen(beginning)));
      if (line == "done") return {};
    }
  }

  // "layout=1 hero=3 hole=AS,KD board=2C,7D,TH button=7 holding=1,2,5", a dash for nothing
  static Shown Parse(const QString& line) {
    std::map<QString, QStringList> fields;
    for (const QString& field : line.split(' ')) {
      const QStringList parts = field.split('=');
      if (parts.size() == 2 && parts[1] != "-") fields[parts[0]] = parts[1].split(',');
    }
    const auto cards = [&](const char* name) {
      return fields.count(name) ? CardsOf(fields[name].join(' ').toStdString())
                                : std::vector<Card>();
    };
    Shown shown{.hole = cards("hole"), .board = cards("board")};
    shown.heroSeat = fields["hero"].value(0).toInt();
    shown.button = fields["button"].value(0).toInt();
    for (const QString& seat : fields["holding"]) shown.holding.push_back(seat.toInt());
    return shown;
  }

  QProcess client_;
  WindowHandle id_ = 0;
  Shown shown_;
};

class FollowTableTest : public WindowTest {
 protected:
  FollowTableTest() {
    MeasureScreen();
    program = std::make_unique<Program>();
    x11.SetMainWindow(program->MainWindowId());
    ports.desktop = &x11;
    LoadTableLayouts();
    modHole::LoadHoleTable();
    program->LoadMainWindow();
    EXPECT_TRUE(QTest::qWaitFor([] { return autoRead.CaptionHeight > 0; }));
    // The hand in the wizard.
    QObject::connect(&hand_, &QTimer::timeout, &hand_, [this] {
      const auto* const window = Widget("Form1").findChild<QWidget*>("frmGetStartupInfo");
      if (window == nullptr || !window->isVisible() || seatToChoose == 0) return;
      ++wizardsSeen;
      QTest::mouseClick(&Widget("cmdHere" + QString::number(seatToChoose)), Qt::LeftButton);
    });
    hand_.start(20);
    SetIntervals(30, 10);
  }

  void SetIntervals(int watcher, int refresh) {
    program->findChild<QTimer*>("tmrAutoWatcher")->setInterval(watcher);
    program->findChild<QTimer*>("tmrCheckRefresh")->setInterval(refresh);
  }

  static QStringList Table(int layout, int hero, int seed, int hands) {
    return {"--layout",   QString::number(layout),
            "--hero",     QString::number(hero),
            "--seed",     QString::number(seed),
            "--hands",    QString::number(hands),
            "--position", "60,330"};
  }

  static bool Shows(const Shown& shown) {
    std::vector<Card> cards = shown.hole;
    cards.resize(2);
    cards.insert(cards.end(), shown.board.begin(), shown.board.end());
    cards.resize(7);
    if (CardsInSlots() != cards || seats.DealerSeat != shown.button) return false;
    for (int seat = 1; seat <= kSeats; ++seat) {
      const bool holding = std::ranges::count(shown.holding, seat) > 0;
      if (seat != seats.MySeat && (seats.SeatStates[seat] == In) != holding) return false;
    }
    return autoRead.InHand == !shown.hole.empty() && seats.MySeat == shown.heroSeat;
  }

  static bool Settled() { return !run.Calculating && run.LastCalcTicks == run.LastChangeTicks; }

  static std::string StateText() {
    std::string text = "slots";
    for (const Card card : CardsInSlots()) text += " " + std::to_string(card);
    text += " seats";
    for (int seat = 1; seat <= kSeats; ++seat) text += " " + std::to_string(seats.SeatStates[seat]);
    return text + " me " + std::to_string(seats.MySeat) + " button " +
           std::to_string(seats.DealerSeat) + " following " +
           std::to_string(autoRead.WatchedWindow);
  }

  // The street that the cards stand on, when somebody is left to play against.
  static Street StreetOf(const Shown& shown) {
    if (shown.hole.empty()) return NoStreet;
    if (shown.board.empty()) return PreFlop;
    return analysis.PlayerCount - analysis.FoldedCount > 1
               ? static_cast<Street>(shown.board.size() - 1)
               : NoStreet;
  }

  // Plays all that the client has; every state is to be followed, and its figures to be there.
  void Follow(TableClient& client) {
    int states = 0;
    do {
      const Shown shown = client.Now();
      ASSERT_TRUE(QTest::qWaitFor([&] { return Shows(shown) && Settled(); }))
          << StateText() << " after " << states << " states";
      ASSERT_EQ(analysis.CurrentStreet, StreetOf(shown)) << StateText();
      ExpectWindowsShowTheState();
      ++states;
    } while (client.Next() && !HasFailure());
    statesFollowed += states;
  }

  X11Desktop x11;
  int seatToChoose = 0;
  int wizardsSeen = 0;
  int statesFollowed = 0;

 private:
  QTimer hand_;
};

TEST_F(FollowTableTest, HandsInEveryLayout) {
  const int hands = AsOften("HANDS_A_LAYOUT", 40);
  for (int layout = 1; layout <= kLayouts; ++layout) {
    SCOPED_TRACE(layout);
    seatToChoose = layout == 4 ? 8 : 2 + layout;
    Follow(*std::make_unique<TableClient>(Table(layout, seatToChoose, 10 + layout, hands)));
    EXPECT_GE(wizardsSeen, layout);  // one more where a table was found before it was painted
    ASSERT_FALSE(HasFailure());
    ASSERT_TRUE(QTest::qWaitFor([] { return !autoRead.Following(); }));
  }
  std::printf("%d states followed\n", statesFollowed);
}

TEST_F(FollowTableTest, HandsAtTheRealIntervals) {
  SetIntervals(500, 100);
  seatToChoose = 4;
  TableClient client(Table(5, 4, 99, 3));
  Follow(client);
}

TEST_F(FollowTableTest, TheCostOfATick) {
  program->findChild<QTimer*>("tmrAutoWatcher")->stop();
  for (int layout = 1; layout <= kLayouts; ++layout) {
    seatToChoose = 2;
    TableClient client(Table(layout, 2, 3, 1));
    for (int state = 0; state < 4; ++state) client.Next();  // with cards on the board
    // The windows of one client after another have the same handle.
    autoRead = {.CaptionHeight = autoRead.CaptionHeight, .CaptionAdjust = autoRead.CaptionAdjust};
    WatchTable();
    ASSERT_TRUE(autoRead.Following());
    const auto trips = x11.roundTrips;
    const auto bytes = x11.bytesCaptured;
    WatchTable();
    std::printf("layout %d: %d round trips, %d bytes captured a tick\n", layout,
                static_cast<int>(x11.roundTrips - trips),
                static_cast<int>(x11.bytesCaptured - bytes));
    EXPECT_LE(x11.roundTrips - trips, 60);
    EXPECT_LE(x11.bytesCaptured - bytes, 200'000);
  }
}

TEST_F(FollowTableTest, CoveredMinimisedAndShownAgain) {
  seatToChoose = 5;
  TableClient client(Table(2, 5, 7, 2));
  ASSERT_TRUE(QTest::qWaitFor([&] { return autoRead.Following() && Shows(client.Now()); }));
  const auto lost = [] { return !autoRead.Following(); };
  const auto found = [&] { return autoRead.Following() && Shows(client.Now()); };
  const std::string state = StateText().substr(0, StateText().find("following"));

  QWidget cover(nullptr, Qt::ToolTip);
  cover.setGeometry(0, 320, 1000, 700);
  cover.show();
  EXPECT_TRUE(QTest::qWaitFor(lost));
  EXPECT_EQ(StateText().substr(0, StateText().find("following")), state);
  EXPECT_TRUE(Widget("lblManual").isVisible());
  cover.hide();
  EXPECT_TRUE(QTest::qWaitFor(found));

  const QString id = QString::number(client.Id());
  QProcess::execute("xdotool", {"windowminimize", id});
  EXPECT_TRUE(QTest::qWaitFor(lost));
  QProcess::execute("xdotool", {"windowactivate", id});
  EXPECT_TRUE(QTest::qWaitFor(found));
  QProcess::execute("xdotool", {"windowmove", id, "900", "800"});  // half off the screen
  EXPECT_TRUE(QTest::qWaitFor(lost));
  QProcess::execute("xdotool", {"windowmove", id, "100", "340"});
  EXPECT_TRUE(QTest::qWaitFor(found));
  EXPECT_EQ(wizardsSeen, 1);  // the same table is not asked for again
}

TEST_F(FollowTableTest, ACaptionThatChangesUnderTheWizardClosesIt) {
  QTemporaryFile script;
  ASSERT_TRUE(script.open());
  script.write("caption Lobby\n");
  script.flush();
  program->findChild<QTimer*>("tmrAutoWatcher")->stop();  // until the client is there
  TableClient client({"--layout", "1", "--position", "60,330", "--script", script.fileName()});
  bool asked = false;  // the watcher waits for the wizard, so the change comes out of a timer
  QTimer renaming;
  QObject::connect(&renaming, &QTimer::timeout, &renaming, [&] {
    if (!wizard.Open || asked) return;
    asked = true;
    QProcess::execute("xdotool", {"set_window", "--name", "Lobby", QString::number(client.Id())});
  });
  renaming.start(50);
  program->findChild<QTimer*>("tmrAutoWatcher")->start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked && !wizard.Open; }));
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 0U);
  EXPECT_EQ(seats.MySeat, 2);
}

TEST_F(FollowTableTest, TheUppermostOfTwoTablesIsFollowed) {
  seatToChoose = 4;
  program->findChild<QTimer*>("tmrAutoWatcher")->stop();
  TableClient below(Table(1, 4, 5, 1));
  TableClient above(Table(5, 4, 6, 1) + QStringList{"--position", "70,345"});
  program->findChild<QTimer*>("tmrAutoWatcher")->start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return autoRead.WatchedWindow == above.Id(); }));
  QProcess::execute("xdotool", {"windowactivate", QString::number(below.Id())});
  EXPECT_TRUE(QTest::qWaitFor([&] { return autoRead.WatchedWindow == below.Id(); }));
}

// Killed at any moment, the client leaves what was last read, and the program alive.
TEST_F(FollowTableTest, ATableMayDieAtAnyMoment) {
  seatToChoose = 4;
  SetIntervals(3, 5);
  std::mt19937 random(5);
  const int deaths = AsOften("DEATHS", 40);
  for (int death = 0; death < deaths; ++death) {
    TableClient client(Table(1 + death % kLayouts, 4, death, 3));
    for (int steps = static_cast<int>(random() % 4); steps > 0; --steps) client.Next();
    const Shown last = client.Now();
    const bool settled = death % 4 == 0 && QTest::qWaitFor([&] { return Shows(last); });
    QTest::qWait(static_cast<int>(random() % 12));
    const bool hadCards = settled && CardsInSlots() != std::vector<Card>(7);
    client.Kill();
    ASSERT_TRUE(QTest::qWaitFor([] { return !autoRead.Following() && !wizard.Open; }));
    ASSERT_TRUE(!hadCards || Shows(last)) << StateText();
  }
}

}  // namespace
}  // namespace holdem
