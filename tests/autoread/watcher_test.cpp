// The watcher on a made-up desktop that shows the stand-in client's pictures.
#include "autoread/watcher.h"

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "engine/run_protocol.h"
#include "fakes/fake_ports.h"
#include "fakes/table_window.h"

namespace holdem {
namespace {

using table_client::SeatLook;
using table_client::Table;

constexpr WindowHandle kTable = 77;

class WatcherTest : public ProgramTest {
 protected:
  WatcherTest() {
    LoadTableLayouts();
    seats.MySeat = 3;
    display.atAskSeat = [] { ClickWizardSeat(3); };
    table.heroSeat = 3;
    table.buttonSeat = 7;
    Deal(1, 26, {1, 2, 5, 8});
  }

  void Deal(Card hole1, Card hole2, const std::vector<int>& opponents) {
    table.looks.fill(SeatLook::Empty);
    for (const int seat : opponents) table.looks[seat] = SeatLook::In;
    table.hole = {hole1, hole2};
    table.board = {};
  }

  // Puts the table on the screen as it is now, in place of whatever is there.
  void Show(WindowHandle handle = kTable) { desktop.windows = {TableWindow(table, handle)}; }
  // A window of no table on top of whatever is there.
  void Cover(const PixelArea& area) {
    desktop.windows.insert(desktop.windows.begin(), {.handle = 5, .outer = area});
  }
  void ShowAndWatch(int ticks = 1) {
    Show();
    while (ticks-- > 0) WatchTable();
  }
  bool SeesAChange() {
    run.LastCalcTicks = run.LastChangeTicks;
    ShowAndWatch(4);
    return run.LastCalcTicks != run.LastChangeTicks;
  }
  // A tick while there is no table, then the three until one is looked for.
  void LoseAndFindAgain(WindowHandle handle) {
    desktop.windows.clear();
    WatchTable();
    EXPECT_FALSE(autoRead.Following());
    Show(handle);
    for (int tick = 0; tick < 3; ++tick) WatchTable();
    EXPECT_TRUE(autoRead.Following());
  }
  static std::string Hand() {
    std::string hand;
    for (const int slot : kSlotOrder) hand += std::to_string(slots.picHand[slot]) + " ";
    return hand;
  }

  Table table{.layout = 1};
};

class EveryLayout : public WatcherTest, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(Watcher, EveryLayout, testing::Range(1, kLayouts + 1));

TEST_P(EveryLayout, FollowsAHandStreetByStreet) {
  table.layout = GetParam();
  const int seatCount = table.layout == 4 ? 9 : 10;
  display.atAskSeat = [&] {
    EXPECT_EQ(std::exchange(seats.SeatCount, 19 - seatCount), seatCount);
    ClickWizardSeat(3);
  };
  ShowAndWatch();
  EXPECT_EQ(autoRead.TableLayout, table.layout);
  EXPECT_EQ(Seating(), "iii.i..i.. 3 7");
  EXPECT_EQ(Hand(), "1 26 0 0 0 0 0 ");
  EXPECT_EQ(autoRead.lblMessage, "You are active in this hand");
  EXPECT_EQ(seats.SeatCount, seatCount);
  CheckRefresh();
  EXPECT_EQ(analysis.PlayerCount, 5);
  const int seatsShown = display.shown["seats"];
  EXPECT_FALSE(SeesAChange());
  EXPECT_EQ(display.shown["seats"], seatsShown);

  table.looks[5] = SeatLook::Folded;
  table.board = {28, 20, 49};
  ShowAndWatch();
  CheckRefresh();
  EXPECT_EQ(analysis.CurrentStreet, Flop);
  table.looks[8] = SeatLook::Folded;
  EXPECT_TRUE(SeesAChange());
  EXPECT_EQ(Seating(), "iii.2..3.. 3 7");
  table.board = {28, 20, 49, 12, 48};
  EXPECT_TRUE(SeesAChange());
  CheckRefresh();
  EXPECT_EQ(Hand(), "1 26 28 20 49 12 48 ");

  table.hole[GetParam() % 2] = kNoCard;  // the user folds
  ShowAndWatch();
  EXPECT_EQ(autoRead.lblMessage, "Not actively in hand");
  EXPECT_EQ(Seating(), "ii5.2..3.. 3 7");
  Deal(30, 17, {9, 10});
  table.buttonSeat = 9;
  ShowAndWatch();
  EXPECT_EQ(Seating(), "..i.....ii 3 9");
  EXPECT_EQ(Hand(), "30 17 0 0 0 0 0 ");
  EXPECT_EQ(display.shown["wizard"], 1);
}

TEST_F(WatcherTest, LooksForATableOnEveryThirdTick) {
  std::string found;
  for (int tick = 1; tick <= 7; ++tick) {
    Show();
    if (tick < 5) desktop.windows.clear();
    WatchTable();
    found += std::to_string(autoRead.WatchCycle) + (autoRead.Following() ? "!" : "");
  }
  EXPECT_EQ(found, "1231231!");
}

TEST_F(WatcherTest, ALostTableIsManualModeWithCardsAndSeatsAsTheyWere) {
  const auto expectLost = [&](const char* how, auto lose) {
    SCOPED_TRACE(how);
    autoRead = {};
    ShowAndWatch();
    ASSERT_TRUE(autoRead.Following());
    const std::string seating = Seating();
    display.shown["auto read"] = display.shown["seats"] = 0;
    lose();
    WatchTable();
    EXPECT_TRUE(display.shown["auto read"] > 0 && display.shown["seats"] > 0);
    EXPECT_FALSE(autoRead.Following());
    EXPECT_EQ(autoRead.lblMessage, "");
    EXPECT_EQ(Seating() + ": " + Hand(), seating + ": 1 26 0 0 0 0 0 ");
    EXPECT_TRUE(autoRead.InHand);
  };
  expectLost("closed", [&] { desktop.windows.clear(); });
  expectLost("covered", [&] { Cover({0, 0, 2000, 2000}); });
  table.layout = 3;
  expectLost("without its marker", [&] { desktop.windows[0].changed[{373, 417}] = 1; });
  // In the middle of a tick, before each of its looks at the screen in turn.
  for (int calls = 0; calls < 10; ++calls) {
    for (const bool covered : {false, true}) {
      expectLost(covered ? "covered in a tick" : "dying in a tick", [&] {
        int turns = 0;
        desktop.beforeCall = [&] {
          if (turns++ != calls) return;
          if (covered) Cover({0, 0, 2000, 2000});
          if (!covered) desktop.windows.clear();
        };
        WatchTable();
        desktop.beforeCall = nullptr;
        EXPECT_GT(turns, calls) << "not reached";
      });
    }
  }
}

TEST_F(WatcherTest, AKnownTableIsNotAskedForAgain) {
  ShowAndWatch();
  seats.MySeat = 9;
  seats.SeatStates[9] = FoldedFlop;
  LoseAndFindAgain(kTable);
  EXPECT_EQ(display.shown["wizard"], 1);
  EXPECT_EQ(Seating(), "iii.i..i.. 3 7");
  LoseAndFindAgain(78);
  EXPECT_EQ(display.shown["wizard"], 2);
  autoRead.SeatConfirmedProcess = 5;  // the window of another program, under the same handle
  LoseAndFindAgain(78);
  EXPECT_EQ(display.shown["wizard"], 3);
}

TEST_F(WatcherTest, OnlyAHoldemCaptionInSightIsFollowed) {
  const auto follows = [&](const std::string& caption, const PixelArea& covered = {}) {
    autoRead = {};
    Show();
    desktop.windows[0].caption = caption;
    Cover(covered);
    WatchTable();
    return autoRead.Following();
  };
  EXPECT_TRUE(follows("Table 4 - NL HOLD'EM - $1/$2"));
  EXPECT_FALSE(follows("Table 4 - NL HOLD'EM - $1/$2", {300, 300, 301, 301}));
  EXPECT_FALSE(follows("Table 4 - Omaha - $1/$2"));
  table.layout = 3;
  EXPECT_TRUE(follows("Table 4 - whatever"));
}

TEST_F(WatcherTest, AWindowFoundBeforeItWasPaintedIsFoundAgain) {
  table.layout = 5;
  Show();
  desktop.windows[0].painted = nullptr;
  WatchTable();
  EXPECT_EQ(autoRead.TableLayout, 4);
  ShowAndWatch(3);
  EXPECT_EQ(autoRead.TableLayout, 5);
  EXPECT_EQ(display.shown["wizard"], 2);  // the first answer was about another table
  // Cards may hide the felt that tells the layouts apart, and so may another window.
  desktop.windows[0].changed[{398, 366}] = 0;
  WatchTable();
  EXPECT_TRUE(autoRead.Following());
  table.hole = {};
  ShowAndWatch();
  Cover({490, 400, 510, 420});
  WatchTable();
  EXPECT_TRUE(autoRead.Following());
}

// The wizard comes up over the table: nothing of it is read, but the user's seat counts.
TEST_F(WatcherTest, ATableCoveredWhileTheUserAnswersIsNotRead) {
  Put("3S 4S 5S 6S");
  display.atAskSeat = [&] {
    seats.MySeat = seats.AutoReadSeat = 3;
    seats.SeatStates[5] = FoldedFlop;
    Cover({0, 0, 2000, 2000});
  };
  seats.MySeat = 8;
  run.RecalcNeeded = false;
  ShowAndWatch();
  EXPECT_FALSE(autoRead.Following());
  EXPECT_EQ(slots.picHand, SlotsOf("3S 4S 5S 6S"));
  EXPECT_EQ(seats.SeatStates[5], FoldedFlop);
  EXPECT_TRUE(run.RecalcNeeded);
  EXPECT_GT(display.shown["seats"], 0);
}

TEST_F(WatcherTest, NothingIsReadWhileACardIsInTheAir) {
  slots.CardInTheAir = true;
  ShowAndWatch();
  EXPECT_FALSE(autoRead.Following());
  slots.CardInTheAir = false;
  ShowAndWatch();
  EXPECT_TRUE(autoRead.Following());
  // Nor when it is taken in the run that the tick begins where another number of seats comes up.
  Put(kFlopHand);
  seats.SeatCount = 9;
  display.atYield = [](int) { slots.CardInTheAir = true; };
  WatchTable();
  EXPECT_EQ(slots.picHand, SlotsOf(kFlopHand));
}

TEST_F(WatcherTest, NothingIsReadWhileMinimisedOrAsking) {
  ShowAndWatch();
  desktop.windows.clear();
  display.minimised = true;
  WatchTable();
  display.minimised = false;
  wizard.Open = true;
  WatchTable();
  EXPECT_TRUE(autoRead.Following());
  EXPECT_EQ(autoRead.WatchCycle, 1);
  wizard.Open = false;
  WatchTable();
  EXPECT_FALSE(autoRead.Following());
}

TEST_F(WatcherTest, ANewButtonMustBeReadTwice) {
  ShowAndWatch();
  const auto steady = desktop.windows;
  table.buttonSeat = 2;
  Show();
  const auto moved = desktop.windows;
  const auto change = [&](const auto& first, int looks, const auto& then) {  // 4: one at the button
    desktop.windows = first;
    desktop.beforeCall = [&, looks]() mutable {
      if (looks-- == 0) desktop.windows = then;
    };
    WatchTable();
    EXPECT_EQ(seats.DealerSeat, 7);
    desktop.beforeCall = nullptr;
  };
  change(moved, 3, steady);
  change(moved, 4, steady);
  change(steady, 4, moved);
  EXPECT_TRUE(SeesAChange());
  EXPECT_EQ(seats.DealerSeat, 2);
}

TEST_F(WatcherTest, NoTickInsideATickAndNoneAfterTheEnd) {
  // The wizard's answer comes with timers running.
  display.atAskSeat = [] {
    WatchTable();
    seats.SeatCount = 9;
    run.Ending = true;
  };
  ShowAndWatch();
  EXPECT_EQ(Hand() + std::to_string(seats.SeatCount), "0 0 0 0 0 0 0 9");
  // So does a new number of seats, at a new table and a known one: a run yields.
  autoRead = {};
  display.atYield = [](int) { run.Ending = true; };
  Put(kFlopHand);
  for (int tick = 0; tick < 2; ++tick) {
    run = {};
    seats.SeatCount = 9;
    ShowAndWatch();
    EXPECT_EQ(slots.picHand, SlotsOf(kFlopHand));
  }
  EXPECT_EQ(display.shown["wizard"], 1);
}

TEST_F(WatcherTest, AChangeDuringARunStopsItAndIsNotLost) {
  table.board = {28, 20, 49};
  ShowAndWatch();
  table.board[3] = 12;
  Show();
  settings.DealsPerRun = 1000;
  display.atYield = [&](int) {
    display.atYield = nullptr;
    WatchTable();
  };
  CheckRefresh();
  EXPECT_EQ(Hand(), "1 26 28 20 49 12 0 ");
  EXPECT_EQ(analysis.CurrentStreet, Flop);
  CheckRefresh();
  EXPECT_EQ(analysis.CurrentStreet, Turn);
}

}  // namespace
}  // namespace holdem
