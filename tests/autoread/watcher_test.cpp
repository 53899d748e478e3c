// The watcher on a made-up desktop that shows the stand-in client's pictures.
#include "autoread/watcher.h"

#include "autoread/layouts.h"
#include "engine/run_protocol.h"
#include "fakes/table_fixture.h"
#include "table_client/table_picture.h"

namespace holdem {
namespace {

using table_client::SeatLook;
using table_client::Table;

constexpr WindowHandle kTable = 77;

class WatcherTest : public TableTest {
 protected:
  WatcherTest() {
    LoadTableLayouts();
    seats.MySeat = 3;
    display.atAskSeat = [] {
      seats.MySeat = seats.AutoReadSeat = 3;
      autoRead.SeatConfirmedWindow = autoRead.WatchedWindow;
      autoRead.SeatConfirmedProcess = autoRead.CurrentTable.processId;
    };
    table.heroSeat = 3;
    table.buttonSeat = 7;
    Deal("AS KD", {1, 2, 5, 8});
  }

  void Deal(const std::string& hole, const std::vector<int>& opponents) {
    table.looks.fill(SeatLook::Empty);
    for (const int seat : opponents) table.looks[seat] = SeatLook::In;
    table.looks[3] = SeatLook::In;
    table.hole = {CardsOf(hole).at(0), CardsOf(hole).at(1)};
    table.board = {};
  }
  void Board(const std::string& cards) {
    table.board = {};
    std::ranges::copy(CardsOf(cards), table.board.begin());
  }

  // Puts the table on the screen as it is now, on top of whatever is there.
  void Show() {
    const auto picture = table_client::DrawTable(table);
    const table_client::Size size = table_client::OuterSize(table.layout, 26);
    FakeWindow window{.handle = kTable,
                      .className = table_client::WindowClass(table.layout),
                      .caption = table_client::DefaultCaption(table.layout),
                      .outer = {100, 50, 100 + size.width, 50 + size.height}};
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const table_client::Rgb color = picture.At(x, y);
        window.At(x, y) = (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
      }
    }
    desktop.windows = {std::move(window)};
  }
  void ShowAndWatch() {
    Show();
    WatchTable();
  }
  void WatchTimes(int ticks) {
    while (ticks-- > 0) WatchTable();
  }
  static std::string Hand() {
    std::string hand;
    for (const int slot : kSlotOrder) {
      hand += (hand.empty() ? "" : " ") + std::to_string(slots.picHand[slot]);
    }
    return hand;
  }

  Table table{.layout = 1};
};

class EveryLayout : public WatcherTest, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(Watcher, EveryLayout, testing::Range(1, kLayouts + 1));

TEST_P(EveryLayout, FollowsAHandStreetByStreet) {
  table.layout = GetParam();
  ShowAndWatch();
  EXPECT_EQ(display.seatAsked, 1);
  EXPECT_EQ(autoRead.WatchedWindow, kTable);
  EXPECT_EQ(autoRead.TableLayout, table.layout);
  EXPECT_EQ(Seating(), "iii.i..i.. 3 7");
  EXPECT_EQ(Hand(), "1 26 0 0 0 0 0");
  EXPECT_EQ(autoRead.lblMessage, "You are active in this hand");
  EXPECT_EQ(seats.SeatCount, table.layout == 4 ? 9 : 10);
  CheckRefresh();
  EXPECT_EQ(analysis.CurrentStreet, PreFlop);
  EXPECT_EQ(analysis.PlayerCount, 5);

  table.looks[5] = SeatLook::Folded;
  ShowAndWatch();
  EXPECT_EQ(Seating(), "iii.2..i.. 3 7");
  Board("2C 7D TH");
  ShowAndWatch();
  CheckRefresh();
  EXPECT_EQ(Hand(), "1 26 28 20 49 0 0");
  EXPECT_EQ(analysis.CurrentStreet, Flop);
  table.looks[8] = SeatLook::Folded;
  ShowAndWatch();
  EXPECT_EQ(Seating(), "iii.2..3.. 3 7");
  Board("2C 7D TH QS 9H");
  ShowAndWatch();
  CheckRefresh();
  EXPECT_EQ(analysis.CurrentStreet, River);
  EXPECT_EQ(Hand(), "1 26 28 20 49 12 48");

  table.hole = {};  // the user folds
  table.looks[3] = SeatLook::Folded;
  ShowAndWatch();
  EXPECT_EQ(autoRead.lblMessage, "Not actively in hand");
  EXPECT_EQ(Seating(), "ii5.2..3.. 3 7");
  Deal("4C 4D", {9, 10});
  table.buttonSeat = 9;
  ShowAndWatch();
  EXPECT_EQ(Seating(), "..i.....ii 3 9");
  EXPECT_EQ(display.seatAsked, 1);
}

TEST_F(WatcherTest, ATickWithoutAChangeAsksForNothing) {
  ShowAndWatch();
  CheckRefresh();
  const int seatsShown = display.seatsShown;
  run.LastCalcTicks = run.LastChangeTicks;
  WatchTimes(4);
  EXPECT_EQ(run.LastCalcTicks, run.LastChangeTicks);
  EXPECT_FALSE(run.RecalcNeeded);
  EXPECT_EQ(display.seatsShown, seatsShown);
}

TEST_F(WatcherTest, LooksForATableOnEveryThirdTick) {
  std::string found;
  for (int tick = 1; tick <= 7; ++tick) {
    desktop.windows.clear();
    WatchTable();
    found += std::to_string(autoRead.WatchCycle);
  }
  EXPECT_EQ(found, "1231231");
  Show();
  WatchTable();
  WatchTable();
  EXPECT_FALSE(autoRead.Following());
  WatchTable();
  EXPECT_TRUE(autoRead.Following());
}

TEST_F(WatcherTest, ALostTableIsManualModeWithCardsAndSeatsAsTheyWere) {
  const auto expectLost = [&](const char* how, auto lose) {
    SCOPED_TRACE(how);
    autoRead = {};
    autoRead.SeatConfirmedWindow = kTable;
    autoRead.SeatConfirmedProcess = desktop.ProcessId(kTable);
    seats.AutoReadSeat = 3;
    ShowAndWatch();
    ASSERT_TRUE(autoRead.Following());
    const std::string seating = Seating();
    lose();
    WatchTable();
    EXPECT_FALSE(autoRead.Following());
    EXPECT_EQ(autoRead.lblMessage, "");
    EXPECT_EQ(Seating(), seating);
    EXPECT_EQ(Hand(), "1 26 0 0 0 0 0");
    EXPECT_TRUE(autoRead.InHand);
  };
  expectLost("closed", [&] { desktop.windows.clear(); });
  expectLost("covered", [&] {
    desktop.windows.insert(desktop.windows.begin(), {.handle = 5, .outer = {0, 0, 2000, 2000}});
  });
  table.layout = 3;
  expectLost("without its marker", [&] { desktop.windows[0].At(373, 417) ^= 1; });
  // In the middle of a tick, before each of its looks at the screen in turn.
  for (int calls = 0; calls < 8; ++calls) {
    expectLost("dying", [&] {
      int turns = 0;
      desktop.beforeCall = [&, turns, calls]() mutable {
        if (turns++ == calls) desktop.windows.clear();
      };
      WatchTable();
      desktop.beforeCall = nullptr;
      EXPECT_TRUE(desktop.windows.empty()) << "not reached: look " << calls;
    });
  }
}

TEST_F(WatcherTest, AKnownTableIsNotAskedForAgain) {
  ShowAndWatch();
  desktop.windows.clear();
  WatchTable();
  seats.MySeat = 9;
  Show();
  WatchTimes(3);
  EXPECT_TRUE(autoRead.Following());
  EXPECT_EQ(display.seatAsked, 1);
  EXPECT_EQ(seats.MySeat, 3);

  desktop.windows.clear();
  WatchTable();
  Show();
  desktop.windows[0].handle = 78;  // another table
  WatchTimes(3);
  EXPECT_EQ(display.seatAsked, 2);

  desktop.windows.clear();
  WatchTable();
  autoRead.SeatConfirmedProcess = 5;  // the window of another program, under the same handle
  Show();
  desktop.windows[0].handle = 78;
  WatchTimes(3);
  EXPECT_EQ(display.seatAsked, 3);
}

TEST_F(WatcherTest, OnlyAHoldemCaptionInSightIsFollowed) {
  const auto follows = [&](const std::string& caption) {
    autoRead = {};
    Show();
    desktop.windows[0].caption = caption;
    WatchTable();
    return autoRead.Following();
  };
  EXPECT_TRUE(follows("Table 4 - NL HOLD'EM - $1/$2"));
  EXPECT_FALSE(follows("Table 4 - Omaha - $1/$2"));
  EXPECT_FALSE(follows(std::string("\0\xff\xfe", 3)));
  table.layout = 3;
  EXPECT_TRUE(follows("Table 4 - whatever"));
  table.layout = 1;
  autoRead = {};
  Show();
  desktop.windows.insert(desktop.windows.begin(), {.handle = 5, .outer = {300, 300, 301, 301}});
  WatchTable();  // a grid point is covered
  EXPECT_FALSE(autoRead.Following());
}

TEST_F(WatcherTest, AWindowFoundBeforeItWasPaintedIsFoundAgain) {
  table.layout = 5;
  Show();
  std::ranges::fill(desktop.windows[0].pixels, 0);
  WatchTable();
  EXPECT_EQ(autoRead.TableLayout, 4);
  Show();
  WatchTimes(3);
  EXPECT_EQ(autoRead.TableLayout, 5);
  EXPECT_EQ(Hand(), "1 26 0 0 0 0 0");
  EXPECT_EQ(display.seatAsked, 1);
}

TEST_F(WatcherTest, NothingIsReadWhileMinimisedOrAsking) {
  ShowAndWatch();
  desktop.windows.clear();
  display.minimised = true;
  WatchTable();
  EXPECT_TRUE(autoRead.Following());
  display.minimised = false;
  wizard.Open = true;
  const int cycle = autoRead.WatchCycle;
  WatchTable();
  EXPECT_TRUE(autoRead.Following());
  EXPECT_EQ(autoRead.WatchCycle, cycle);
  wizard.Open = false;
  WatchTable();
  EXPECT_FALSE(autoRead.Following());
}

TEST_F(WatcherTest, ANewButtonMustBeReadTwice) {
  ShowAndWatch();
  int reads = 0;
  table.buttonSeat = 2;
  Show();
  const FakeWindow moved = desktop.windows[0];
  table.buttonSeat = 7;
  Show();
  const FakeWindow steady = desktop.windows[0];
  // Seen once, between two looks at the screen.
  desktop.windows = {moved};
  desktop.beforeCall = [&] {
    if (++reads == 4) desktop.windows = {steady};
  };
  WatchTable();
  desktop.beforeCall = nullptr;
  EXPECT_EQ(seats.DealerSeat, 7);
  desktop.windows = {moved};
  WatchTable();
  EXPECT_EQ(seats.DealerSeat, 2);
  table.buttonSeat = 0;
  ShowAndWatch();
  EXPECT_EQ(seats.DealerSeat, 0);
  CheckRefresh();
  EXPECT_EQ(analysis.MyTablePosition, 3);
}

TEST_F(WatcherTest, TheTableOfNineRunsItsHandlingOnceAndOnlyOnAChange) {
  seats.MySeat = 6;
  display.atAskSeat = nullptr;
  table.layout = 4;
  const std::int32_t before = run.LastCalcTicks = run.LastChangeTicks;
  ShowAndWatch();
  EXPECT_EQ(seats.SeatCount, 9);
  EXPECT_EQ(seats.MySeat, 5);
  EXPECT_EQ(seats.SeatStates[6], Empty);
  const int shown = display.seatsShown;
  WatchTable();
  EXPECT_EQ(display.seatsShown, shown);
  EXPECT_GE(run.LastChangeTicks, before);
}

TEST_F(WatcherTest, NoTickInsideATickAndNoneAfterTheEnd) {
  // The wizard's answer comes with timers running.
  display.atAskSeat = [] {
    WatchTable();
    run.Ending = true;
  };
  const std::string seating = Seating();
  ShowAndWatch();
  EXPECT_EQ(display.seatAsked, 1);
  EXPECT_EQ(Seating(), seating);
  EXPECT_EQ(Hand(), "0 0 0 0 0 0 0");
}

TEST_F(WatcherTest, AChangeDuringARunStopsItAndIsNotLost) {
  ShowAndWatch();
  Board("2C 7D TH");
  ShowAndWatch();
  Board("2C 7D TH QS");
  Show();
  settings.DealsPerRun = 1000;
  display.atYield = [&](int) {
    display.atYield = nullptr;
    WatchTable();
  };
  CheckRefresh();
  EXPECT_EQ(Hand(), "1 26 28 20 49 12 0");
  EXPECT_EQ(analysis.CurrentStreet, Flop);
  CheckRefresh();
  EXPECT_EQ(analysis.CurrentStreet, Turn);
}

}  // namespace
}  // namespace holdem
