// The watcher on a made-up desktop that shows the stand-in client's pictures.
#include "autoread/watcher.h"

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "fakes/table_window.h"

namespace holdem {
namespace {

using table_client::SeatLook;

class WatcherTest : public ProgramTest {
 protected:
  WatcherTest() {
    LoadTableLayouts();
    seats.MySeat = 3;
    display.atAskSeat = [] { ClickWizardSeat(3); };
    Deal("AS KD", {1, 2, 5, 8});
  }

  void Deal(const std::string& hole, const std::vector<int>& opponents) {
    table.looks.fill(SeatLook::Empty);
    for (const int seat : opponents) table.looks[seat] = SeatLook::In;
    std::ranges::copy(CardsOf(hole), table.hole.begin());
    table.board = {};
  }
  // A window of no table on top of whatever is there.
  void Cover(const PixelArea& area) {
    desktop.windows.insert(desktop.windows.begin(), {.handle = 5, .outer = area});
  }
  // The table as it is now, in place of whatever is there; what is known after so many ticks.
  std::string ShowAndWatch(int ticks = 1) {
    desktop.windows = {TableWindow(table, handle)};
    while (ticks-- > 0) WatchTable();
    return Known();
  }
  static std::string Known() { return Seating() + ": " + Cards() + ": " + autoRead.lblMessage; }
  bool SeesAChange() {
    run.LastCalcTicks = run.LastChangeTicks;
    ShowAndWatch(4);
    return run.LastCalcTicks != run.LastChangeTicks;
  }

  table_client::Table table{.layout = 1, .heroSeat = 3, .buttonSeat = 7};
  WindowHandle handle = 77;
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
  EXPECT_EQ(ShowAndWatch(), "iii.i..i.. 3 7: AS KD -- -- -- -- --: You are active in this hand");
  EXPECT_EQ(autoRead.TableLayout, table.layout);
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
  table.looks[8] = SeatLook::Folded;
  EXPECT_TRUE(SeesAChange());
  table.board = {28, 20, 49, 12, 48};
  EXPECT_TRUE(SeesAChange());
  CheckRefresh();
  EXPECT_EQ(Known(), "iii.2..3.. 3 7: AS KD 2C 7D TH QS 9H: You are active in this hand");

  table.hole[GetParam() % 2] = kNoCard;  // the user folds
  EXPECT_EQ(ShowAndWatch().substr(0, 14), "ii5.2..3.. 3 7");
  EXPECT_EQ(autoRead.lblMessage, "Not actively in hand");
  Deal("4C 4D", {9, 10});
  table.buttonSeat = 9;
  EXPECT_EQ(ShowAndWatch(), "..i.....ii 3 9: 4C 4D -- -- -- -- --: You are active in this hand");
  EXPECT_EQ(display.shown["wizard"], 1);
}

TEST_F(WatcherTest, LooksForATableOnEveryThirdTick) {
  std::string found;
  for (int tick = 1; tick <= 7; ++tick) {
    tick < 5 ? WatchTable() : void(ShowAndWatch());
    found += std::to_string(autoRead.WatchCycle) + (autoRead.Following() ? "!" : "");
  }
  EXPECT_EQ(found, "1231231!");
}

TEST_F(WatcherTest, ALostTableIsManualModeWithCardsAndSeatsAsTheyWere) {
  const auto expectLost = [&](const std::string& how, auto lose) {
    SCOPED_TRACE(how);
    autoRead = {};
    ShowAndWatch();
    ASSERT_TRUE(autoRead.Following());
    display.shown.clear();
    lose();
    WatchTable();
    desktop.beforeCall = nullptr;
    EXPECT_TRUE(display.shown["auto read"] > 0 && display.shown["seats"] > 0);
    EXPECT_EQ(autoRead.WatchedWindow, 0U);
    EXPECT_EQ(Known(), "iii.i..i.. 3 7: AS KD -- -- -- -- --: ");
  };
  // Before each of a tick's looks at the screen in turn.
  for (int look = 0; look < 8; ++look) {
    expectLost("covered before look " + std::to_string(look), [&] {
      desktop.beforeCall = [&, left = look]() mutable {
        if (left-- == 0) Cover({0, 0, 2000, 2000});
      };
    });
    expectLost("dead before look " + std::to_string(look), [&] {
      desktop.beforeCall = [&, left = look]() mutable {
        if (left-- == 0) desktop.windows.clear();
      };
    });
  }
  expectLost("not to be read",
             [&] { desktop.windows[0].painted = [](int, int) { return kUnreadable; }; });
  // A small window over a card of the user's or of the board, whose corner is left free.
  for (table.layout = 1; table.layout <= kLayouts; ++table.layout) {
    for (const int place : {31, 32, 1, 2, 3, 4, 5}) {
      expectLost("layout " + std::to_string(table.layout) + ", " + std::to_string(place), [&] {
        const auto [x, y] = CardPoints[table.layout][place / 10][place % 10];
        Cover(PixelArea{5, 12, 67, 102}.Moved({100 + x, 50 + y}));
      });
    }
  }
  table.layout = 3;
  expectLost("without its marker", [&] { desktop.windows[0].changed[{373, 417}] = 1; });
}

TEST_F(WatcherTest, AKnownTableIsNotAskedForAgain) {
  const auto expectAsked = [&](int times) {
    desktop.windows.clear();
    WatchTable();
    EXPECT_FALSE(autoRead.Following());
    EXPECT_EQ(ShowAndWatch(3).substr(0, 14), "iii.i..i.. 3 7");
    EXPECT_EQ(display.shown["wizard"], times);
  };
  ShowAndWatch();
  seats.MySeat = 9;
  seats.SeatStates[9] = FoldedFlop;
  expectAsked(1);
  handle = 78;
  expectAsked(2);
  autoRead.SeatConfirmedProcess = 5;  // the window of another program, under the same handle
  expectAsked(3);
}

TEST_F(WatcherTest, OnlyAHoldemCaptionInSightIsFollowed) {
  const auto follows = [&](const std::string& caption, const PixelArea& covered = {}) {
    autoRead = {};
    desktop.windows = {TableWindow(table, handle)};
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
  Put("3S 4S 5S 6S");  // left by an earlier table
  table.layout = 5;
  desktop.windows = {TableWindow(table, handle)};
  const auto painted = std::exchange(desktop.windows[0].painted, nullptr);
  const auto answer = std::exchange(display.atAskSeat, [&] {
    EXPECT_EQ(autoRead.TableLayout, 4);
    EXPECT_FALSE(WatchWizard());
    desktop.windows[0].painted = painted;
    EXPECT_TRUE(WatchWizard());
    EXPECT_TRUE(ClickWizardSeat(3));  // at the last moment
  });
  WatchTable();
  EXPECT_FALSE(autoRead.Following());
  display.atAskSeat = answer;
  ShowAndWatch(3);
  // Chips may hide the felt that tells the layouts apart, also when the table is found again.
  table.hole = {};
  for (int tick = 0; tick < 8; ++tick) {
    desktop.windows = {TableWindow(table, handle)};
    desktop.windows[0].changed[{398, 366}] = 0;
    if (tick == 4) desktop.windows.clear();
    WatchTable();
  }
  EXPECT_EQ(autoRead.TableLayout * autoRead.Following(), 5);
  EXPECT_EQ(display.shown["wizard"], 2);
}

// The wizard comes up over the table: nothing of it is read, but the user's seat counts.
TEST_F(WatcherTest, ATableCoveredWhileTheUserAnswersIsNotRead) {
  Put("3S 4S 5S 6S");
  display.atAskSeat = [&] {
    seats.SeatStates[5] = FoldedFlop;
    seats.MySeat = seats.AutoReadSeat = 4;
    Cover({0, 0, 2000, 2000});
  };
  run.RecalcNeeded = false;
  EXPECT_EQ(ShowAndWatch(), "iiii3iiiii 4 1: 3S 4S 5S 6S -- -- --: ");
  EXPECT_FALSE(autoRead.Following());
  EXPECT_TRUE(run.RecalcNeeded && display.shown["seats"] > 0);
}

TEST_F(WatcherTest, NothingIsReadWhileMinimisedOrAskingOrACardIsInTheAir) {
  for (bool* const keeps : {&display.minimised, &wizard.Open, &slots.CardInTheAir}) {
    autoRead = {};
    *keeps = true;
    ShowAndWatch();
    EXPECT_EQ(autoRead.WatchCycle, 0);
    *keeps = false;
    ShowAndWatch();
    EXPECT_TRUE(autoRead.Following());
  }
  // Nor when it is taken in the run that the tick begins where another number of seats comes up.
  Put(kFlopHand);
  seats.SeatCount = 9;
  display.atYield = [](int) { slots.CardInTheAir = true; };
  WatchTable();
  EXPECT_EQ(slots.picHand, SlotsOf(kFlopHand));
}

TEST_F(WatcherTest, ANewButtonMustBeReadTwice) {
  ShowAndWatch();
  const auto steady = desktop.windows;
  table.buttonSeat = 2;
  const auto moved = std::vector{TableWindow(table, handle)};
  const auto change = [&](const auto& first, int looks, const auto& then) {  // 3: one at the button
    desktop.windows = first;
    desktop.beforeCall = [&, looks]() mutable {
      if (looks-- == 0) desktop.windows = then;
    };
    WatchTable();
    EXPECT_EQ(seats.DealerSeat, 7);
    desktop.beforeCall = nullptr;
  };
  change(moved, 2, steady);
  change(moved, 3, steady);
  change(steady, 3, moved);
  EXPECT_TRUE(SeesAChange());
  EXPECT_EQ(seats.DealerSeat, 2);
}

}  // namespace
}  // namespace holdem
