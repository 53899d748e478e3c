// The watcher on a made-up desktop that shows the stand-in client's pictures.
#include "autoread/watcher.h"

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "cover_client/fake_covers.h"
#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "gestures/seat_gestures.h"
#include "table/history.h"
#include "table_client/play.h"
#include "words/auto_read_words.h"

namespace holdem {
namespace {

struct WatcherTest : ProgramTest {
  WatcherTest() {
    seats.MySeat = 3;
    display.atAskSeat = [] { ClickWizardSeat(3); };
    Play(table, kHand);
  }

  // A window of no table on top of whatever is there.
  void Cover(const PixelArea& area) {
    desktop.windows.insert(desktop.windows.begin(), {.handle = 5, .outer = area});
  }
  void Show() { desktop.windows = {TableWindow(table, 77)}; }
  // What is known after one tick more, in which somebody else acts before this look at the screen,
  // counted from 0.
  std::string Watch(int look = -1, const std::function<void()>& act = nullptr) {
    desktop.beforeCall = [&] {
      if (look-- == 0) act();
    };
    WatchTable();
    desktop.beforeCall = nullptr;
    return Seating() + ": " + Cards() + ": " + autoRead.lblMessage;
  }
  // The table as it is now, in place of whatever is there; what is known after so many ticks.
  std::string ShowAndWatch(int ticks = 1) {
    Show();
    while (--ticks > 0) Watch();
    return Watch();
  }
  // Whether ticks change the table; no gesture of before is taken back then.
  bool SeesAChange() {
    run.LastCalcTicks = run.LastChangeTicks;
    history.moments.resize(1);
    ShowAndWatch(4);
    EXPECT_EQ(history.moments.empty(), run.LastCalcTicks != run.LastChangeTicks);
    return history.moments.empty();
  }

  static constexpr const char* kHand = "hand hero=3 cards=AS,KD button=7 seats=1,2,5,8";
  table_client::Table table;
};

class EveryLayout : public WatcherTest, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(Watcher, EveryLayout, testing::Range(1, kLayouts + 1));

TEST_P(EveryLayout, FollowsAHandStreetByStreet) {
  const std::pair<const char*, std::string> hand[] = {
      {kHand, "iii.i..i.. 3 7: AS KD -- -- -- -- --"},
      {"fold 5", "iii.2..i.. 3 7: AS KD -- -- -- -- --"},
      {"flop 2C 7D TH", "iii.2..i.. 3 7: AS KD 2C 7D TH -- --"},
      {"fold 8", "iii.2..3.. 3 7: AS KD 2C 7D TH -- --"},
      {"turn QS", "iii.2..3.. 3 7: AS KD 2C 7D TH QS --"},
      {"river 9H", "iii.2..3.. 3 7: AS KD 2C 7D TH QS 9H"},
      {"fold 3", "ii5.2..3.. 3 7: -- -- 2C 7D TH QS 9H"},
      {"hand cards=4C,4D button=9 seats=9,10", "..i.....ii 3 9: 4C 4D -- -- -- -- --"}};
  table.layout = GetParam();
  const int seatCount = table.layout == 4 ? 9 : 10;
  display.atAskSeat = [&] {
    EXPECT_EQ(std::exchange(seats.SeatCount, 19 - seatCount), seatCount);
    ClickWizardSeat(3);
  };
  for (const auto& [line, known] : hand) {
    SCOPED_TRACE(line);
    Play(table, line);
    EXPECT_TRUE(SeesAChange());
    CheckRefresh();
    display.shown["seats"] = 0;
    EXPECT_FALSE(SeesAChange());
    EXPECT_EQ(display.shown["seats"], 0);
    const char* const message =
        table.hole[0] == kNoCard ? ": Not actively in hand" : ": You are active in this hand";
    EXPECT_EQ(Watch(), known + message);
  }
  table.hole[GetParam() % 2] = kNoCard;  // the user folds
  EXPECT_EQ(ShowAndWatch().substr(0, 14), "..2.....ii 3 9");
  EXPECT_EQ(autoRead.TableLayout, table.layout);
  Cover({100, 50, 101, 51});      // the corner, where no seat is
  desktop.captionBarHeight = 19;  // measured at every tick
  Watch();
  EXPECT_EQ(autoRead.Following(), table.layout != 3);  // whose marker is elsewhere now
  EXPECT_EQ(autoRead.CaptionAdjust, 7);
  EXPECT_EQ(seats.SeatCount, seatCount);
  EXPECT_EQ(display.shown["wizard"], 1);
}

// Whatever is put over the table. tools/covers does it for longer, and on real desktops.
TEST_P(EveryLayout, CoversChangeNoCardAndNoSeat) {
  table.layout = GetParam();
  for (const char* const line : {"flop 2C 7D TH", "fold 5", "river 9H"}) Play(table, line);
  ShowAndWatch();
  const auto tally = cover_client::CoverTable(500, random, cover_client::Over(desktop));
  EXPECT_EQ(tally.wrong + tally.emptied + tally.seats, 0);
  EXPECT_GT(tally.manual, 50);
  EXPECT_EQ(tally.kept, tally.harmless) << "touching nothing that is read or asked for";
}

// Lost before one of a tick's looks at the screen.
TEST_F(WatcherTest, ALostTableIsManualModeWithCardsAndSeatsAsTheyWere) {
  const auto expectLost = [&](const char* how, int look, const std::function<void()>& lose) {
    SCOPED_TRACE(testing::Message() << how << ' ' << table.layout << ' ' << look);
    autoRead = {};
    ShowAndWatch();
    ASSERT_TRUE(autoRead.Following());
    display.shown.clear();
    EXPECT_EQ(Watch(look, lose), "iii.i..i.. 3 7: AS KD -- -- -- -- --: ");
    EXPECT_FALSE(autoRead.Following());
    EXPECT_TRUE(display.shown["auto read"] > 0 && display.shown["seats"] > 0);
  };
  for (int look = 0; look < 8; ++look) {
    expectLost("covered", look, [&] { Cover({0, 0, 2000, 2000}); });
    expectLost("dead", look, [&] { desktop.windows.clear(); });
  }
  // One pixel over a point of a seat, which is asked for also where that harms nothing.
  desktop.ownPictures = true;
  for (table.layout = 1; table.layout <= kLayouts; ++table.layout) {
    for (int seat = 1; seat <= kSeats; ++seat) {
      if (!table.HasSeat(seat)) continue;
      const PixelPoint cards =
          seat == 3 ? CardPoints[table.layout][seat][1] : HoldingPoints[table.layout][seat];
      for (const PixelPoint at : {ButtonPoints[table.layout][seat], cards})
        expectLost("under", 0, [&] { Cover(PixelArea{100, 50, 101, 51}.Moved(at)); });
    }
  }
}

// Two tables in front by turns, and what is done while either is followed, or was last.
TEST_F(WatcherTest, EachTableIsAskedAboutOnceAndKeepsItsSeat) {
  display.atAskSeat = [] { ClickWizardSeat(autoRead.WatchedWindow == 77 ? 3 : 4); };
  const auto sit = [](int seat) { return [seat] { seats.MenuSeat = seat, ChooseMe(); }; };
  const auto hide = [&] { desktop.windows.clear(), Watch(); };
  const auto lookAway = [&] { desktop.windows[0].caption = "Lobby", WatchWizard(); };
  const auto otherProcess = [] { autoRead.ConfirmedTables[0].process = 5; };
  const std::tuple<const char*, std::function<void()>, WindowHandle, const char*> steps[] = {
      // What is done, the table in front then, the seat there and how often the user was asked.
      {"first", nullptr, 77, "3, 1"},
      {"second", nullptr, 78, "4, 2"},
      {"Me", sit(1), 77, "3, 2"},
      {"Me and undo", [&] { sit(5)(), TakeBackGesture(); }, 78, "1, 2"},
      {"undo of nothing here", &TakeBackGesture, 77, "3, 2"},
      {"Me in Manual Mode", [&] { hide(), sit(7)(); }, 78, "1, 2"},
      {"back", nullptr, 77, "7, 2"},
      {"withdrawn", lookAway, 78, "1, 2"},
      {"asked anew", nullptr, 77, "3, 3"},
      {"handle reused", otherProcess, 78, "4, 4"},
      {"closed", [&] { hide(), hide(), hide(), hide(); }, 77, "3, 5"}};
  for (const auto& [what, act, front, expected] : steps) {
    if (act) act();
    desktop.windows = {TableWindow(table, front), TableWindow(table, 155 - front)};
    for (int tick = 0; tick < 4; ++tick) Watch();
    EXPECT_EQ(autoRead.WatchedWindow, front) << what;
    EXPECT_EQ(std::to_string(seats.MySeat) + ", " + std::to_string(display.shown["wizard"]),
              expected)
        << what << " " << front;
  }
}

// Before the client has painted it, and where chips hide the felt, nothing tells layout 5 from 4.
TEST_F(WatcherTest, AWindowTakenForAnotherLayoutIsFoundAgain) {
  table.layout = 5;
  display.atAskSeat = [&] {
    EXPECT_FALSE(WatchWizard());
    desktop.windows[0].changed.clear();
    EXPECT_EQ(WatchWizard(), autoRead.TableLayout == 4);
    EXPECT_TRUE(ClickWizardSeat(3));  // at the last moment
  };
  for (int tick = 1; tick < 12; ++tick) {
    Show();
    if (tick < 2 || tick > 5) desktop.windows[0].changed[{398, 366}] = 0;
    if (tick == 8) desktop.windows.clear(), seats.SeatStates[9] = FoldedFlop;
    Watch();
    EXPECT_EQ(autoRead.Following(), (tick > 3 && tick < 8) || tick > 9) << tick;
  }
  EXPECT_TRUE(autoRead.TableLayout == 5 && display.shown["wizard"] == 2 && !seats.IsOccupied(9));
  LookAgainAtTable();  // whatever it was taken for
  EXPECT_TRUE(autoRead.TableLayout == 4 && seats.SeatCount == 9 && !autoRead.InHand);
}

// What the indicator says of a table that is found so, and that becomes so when it is followed,
// then after three ticks and when Setup looks again.
TEST_F(WatcherTest, SaysWhyNoTableIsFollowed) {
  const auto window = [&]() -> FakeWindow& { return desktop.windows.back(); };
  const auto resize = [&](int width, int height) {
    return [=] { window().outer = {100, 50, 100 + width, 50 + height}; };
  };
  const auto cover = [&](PixelArea area, const char* caption, bool takesMouse = true) {
    const FakeWindow whole{9, "", caption, area, 0, takesMouse},
        part{8, "", "", area, 9, takesMouse};
    return [=, this] { desktop.windows.insert(desktop.windows.begin(), {part, whole}); };
  };
  const std::tuple<const char*, int, std::function<void()>> cases[] = {
      {"as it should be", 3, [] {}},
      {"closed", 3, [&] { desktop.windows.clear(); }},
      {"far too narrow", 3, resize(734, 580)},
      {"of a size like this layout's", 3, resize(812, 571)},
      {"of a size like another layout's", 3, resize(740, 631)},
      {"small, with a caption that tells", 2, resize(300, 250)},
      {"of another game", 4, [&] { window().caption = "Omaha"; }},
      {"beneath a window", 1, cover({0, 0, 900, 900}, "Mail")},
      {"beneath what clicks go through", 5, cover({370, 236, 499, 417}, "A", false)},
      {"its marker covered", 3, cover({473, 467, 474, 468}, "", false)},
      {"half off the screen", 3, [&] { desktop.screenArea.right = 700; }},
      {"a card off the screen", 1, [&] { desktop.screenArea.right = 835; }},
      {"minimised", 1, [&] { window().minimised = true; }},
      {"without its marker", 3, [&] { window().changed.emplace(std::pair(373, 417), 1); }},
      {"unreadable", 5, [&] { desktop.readable = false; }}};
  std::ostringstream said;
  for (const auto& [what, layout, change] : cases) {
    for (const std::string seen : {"found ", "followed, then ", "looked at again "}) {
      autoRead = {};
      desktop.screenArea = FakeDesktop().screenArea;
      desktop.readable = true;
      table.layout = layout;
      Show();
      window().caption = layout == 2 ? "T -  Hold'em -" : layout == 3 ? "T" : "HOLD'EM";
      if (seen != "found ") Watch();
      change();
      display.shown.clear();
      if (seen == "looked at again ") LookAgainAtTable();
      for (int tick = 0; tick < 3 && seen != "looked at again "; ++tick) Watch();
      said << seen << what << ": " << AutoReadInWords() << "\n";
      const bool shown = autoRead.Following() || display.shown["auto read"] > 0;
      EXPECT_TRUE(shown && !autoRead.Ticking) << seen << what;
    }
  }
  for (const std::string end : {"x", "\u00D7\u00D7", "\nb\x7F\xFF\xE2\x82"})
    said << "a long or odd caption: " << ShortCaption(std::string(35, 'x') + end + "1234") << "\n";
  ExpectApproved("manual_mode", said.str());
}

// In the run that a tick begins where another number of seats comes up.
TEST_F(WatcherTest, NothingIsReadOnceACardHasBeenTaken) {
  Put(kFlopHand);
  seats.SeatCount = 9;
  history.moments.resize(1);
  display.atYield = [](int) { slots.CardInTheAir = true; };
  EXPECT_EQ(ShowAndWatch(), "iiiiiiiiii 3 1: AS 9D 2C 5H KH -- --: ");
  EXPECT_TRUE(autoRead.Following() && history.moments.empty());
}

// Cards move in layout 1, and in the last case, layout 2, they do not.
TEST_F(WatcherTest, ANewButtonAndAMovingCardAreLookedAtTwice) {
  // Look by look, the button's seat and King, Queen or no card on the board; what is taken.
  const std::pair<std::string, const char*> cases[] = {
      {"7K 7K 2Q", "7 KC"}, {"7K 7Q 7Q 2K", "7 QC"}, {"7K 7Q 7K 7Q 7K 7K 2Q", "7 KC"},
      {"7- 7K 7K", "7 --"}, {"7K 7Q 7- 7K", "7 --"}, {"7K 7Q 7K 7Q 7K 7Q 7Q", "7 --"},
      {"7- 2- 2-", "7 --"}, {"2- 7- 2- 2-", "7 --"}, {"2- 2- 7- 7-", "2 --"},
      {"2K 2- 2K", "2 --"}, {"7K 2K 2K 7-", "2 KC"}, {"7K 7Q 7Q", "7 KC"}};
  table.hole = {};
  for (const auto& [shown, taken] : cases) {
    autoRead = {};
    table.layout = shown == "7K 7Q 7Q" ? 2 : 1;
    table.board = {};
    table.buttonSeat = 7;
    ShowAndWatch();
    std::string left = "7- 7- 7- " + shown;  // the first three looks are at the windows
    desktop.beforeCall = [&] {
      table.buttonSeat = left[0] - '0';
      table.board[0] = left[1] == 'K' ? 39 : left[1] == 'Q' ? 38 : kNoCard;
      Show();
      if (left.size() > 2) left.erase(0, 3);
    };
    WatchTable();
    EXPECT_EQ(std::to_string(seats.DealerSeat) + ' ' + TextOf(slots.picHand[6]), taken) << shown;
  }
}

}  // namespace
}  // namespace holdem
