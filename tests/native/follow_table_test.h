// The fixture of the tests of Auto Read from end to end: the program's real windows, beside the
// stand-in client, another process, on a real screen.
#pragma once

#include <QProcess>

#include "advice/hole_table.h"
#include "autoread/layouts.h"
#include "autoread/watcher.h"
#include "platform/native_desktop.h"
#include "reference/card_text.h"
#include "state/auto_read.h"
#include "ui/window_test.h"

namespace holdem {

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
    newest_ = this;
    id_ = WaitForLine("window ").toULongLong();
    shown_ = Parse(WaitForLine("shows "));
    newest_ = nullptr;
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

  // Asked while one is waited for: the wizard comes up as soon as its window is there.
  static bool AllArePainted() { return !newest_ || newest_->client_.peek(1000).contains("shows "); }

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

  static inline TableClient* newest_ = nullptr;  // that has not said what it shows

  QProcess client_;
  WindowHandle id_ = 0;
  Shown shown_;
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
    QObject::connect(&hand_, &QTimer::timeout, &hand_, [this] {
      const auto* const window = Widget("Form1").findChild<QWidget*>("frmGetStartupInfo");
      if (window == nullptr || !window->isVisible() || seatToChoose == 0) return;
      if (!TableClient::AllArePainted()) return;
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
      const bool read = QTest::qWaitFor([&] { return Shows(shown) && Settled(); });
      statesMisread += !read && autoRead.Following();
      ASSERT_TRUE(read) << StateText() << " after " << states << " states";
      ASSERT_EQ(analysis.CurrentStreet, StreetOf(shown)) << StateText();
      ExpectWindowsShowTheState();
      ++states, ++statesFollowed;
    } while (client.Next() && !HasFailure());
  }

  int seatToChoose = 0;
  int wizardsSeen = 0;
  int statesFollowed = 0;
  int statesMisread = 0;

 private:
  std::unique_ptr<Desktop> native_;
  QTimer hand_;
};

}  // namespace holdem
