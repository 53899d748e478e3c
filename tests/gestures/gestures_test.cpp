#include "cards/deck.h"
#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/help_files.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "table/card_slots.h"
#include "table/refresh.h"

namespace holdem {
namespace {

using CardGesturesTest = ProgramTest;

TEST_F(CardGesturesTest, MoveCardsBetweenDeckAndSlots) {
  const Card queen = CardsOf("QD")[0];
  const Card ace = CardsOf("AS")[0];
  const Card seven = CardsOf("7S")[0];
  const CardPlace inDeck{.deckCard = queen}, hole{.slot = 0};
  const CardPlace turn{.slot = kTurnSlot}, river{.slot = kRiverSlot};
  const char* gap = "AS 9D -- 5H KH 7S";
  const struct {
    std::function<void()> gesture;
    const char *before, *after;
    Reaction reaction;
  } cases[] = {
      {[=] { ClickDeckCard(queen); }, "", "QD", Calculated},
      {[=] { ClickDeckCard(queen); }, gap, "AS 9D QD 5H KH 7S", Calculated},
      {[=] { ClickDeckCard(queen); }, kTurnHand, "AS 9D 2C 5H KH 7S QD", Calculated},
      {[=] { ClickDeckCard(queen); }, kRiverHand, kRiverHand, Nothing},
      {[=] { ClickDeckCard(ace); }, gap, gap, Nothing},  // no longer in the deck
      {[=] { DropCard(inDeck, queen, inDeck); }, "AS", "AS QD", Calculated},
      {[=] { DropCard(inDeck, queen, {.deckCard = 30}); }, "AS", "AS", Nothing},
      {[=] { DropCard(inDeck, queen, river); }, "AS", "AS -- -- -- -- -- QD", Calculated},
      {[=] { DropCard(inDeck, queen, hole); }, kTurnHand, kTurnHand, Redone},
      {[=] { DropCard({.deckCard = ace}, ace, hole); }, kTurnHand, kTurnHand, Nothing},
      {[=] { DropCard(turn, seven, river); }, kTurnHand, "AS 9D 2C 5H KH -- 7S", Calculated},
      {[=] { DropCard(turn, seven, hole); }, kTurnHand, kTurnHand, Redone},
      {[=] { DropCard(hole, queen, river); }, kTurnHand, kTurnHand, Nothing},  // refilled since
      {[=] { DropCard(hole, ace, inDeck); }, kFlopHand, "-- 9D 2C 5H KH", Calculated},
      {[=] { DropCard(hole, queen, inDeck); }, kFlopHand, kFlopHand, Nothing},
      {[] { RightPressSlot(8); }, kRiverHand, "AS 9D 2C 5H -- 7S JD", Calculated},
      {[] { RightPressSlot(6); }, gap, gap, Nothing},
      {[] { DoubleClickSlot(1); }, gap, gap, Nothing}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << &c - cases << ": " << c.before << " -> " << c.after);
    Put(c.before);
    EXPECT_EQ(ReactionTo(c.gesture), c.reaction);
    EXPECT_EQ(slots.picHand, SlotsOf(c.after));
  }
}

TEST_F(CardGesturesTest, ARandomCardIsNeverOneThatLiesInASlot) {
  Put("AS");
  for (const int slot : {10, 9, 8, 7, 6, 1}) {
    deck.free = 1;  // as left by a run that began before the first card was entered
    EXPECT_EQ(ReactionTo([&] { DoubleClickSlot(slot); }), Calculated);
    EXPECT_EQ(std::ranges::count(slots.picHand, slots.picHand[slot]), 1);
  }
}

TEST_F(CardGesturesTest, NewHandTakesAllCardsBack) {
  for (const WindowHandle watched : {0, 77}) {
    Put("-- -- 2C 5H KH 7S JD");
    PutSeats("i3.45i..i2 2 2");
    autoRead.WatchedWindow = watched;
    display.shown.clear();
    EXPECT_EQ(ReactionTo(NewHand), Calculated);
    EXPECT_EQ(slots.picHand, SlotsOf(""));
    EXPECT_EQ(Seating(), watched != 0 ? "i3.45i..i2 2 2" : "ii.iii..ii 2 4");
    EXPECT_EQ(display.shown["seats"], 1);
  }
}

TEST_F(CardGesturesTest, TheMarkerBlinksOnTheNextSlotToFill) {
  const std::pair<const char*, int> cases[] = {
      {"", 0}, {"-- AS 9D 2C", 0}, {"AS 9D", 6}, {kTurnHand, 10}, {kRiverHand, kNoSlot}};
  for (const auto& [cards, next] : cases) {
    Put(cards);
    for (int tick = 1; tick <= 8; ++tick) {
      autoRead.WatchedWindow = tick > 4 ? 77 : 0;
      display.shown.clear();
      Blink(true);
      EXPECT_EQ(slots.MarkedSlot, tick == 1 || tick == 3 ? next : kNoSlot) << cards;
      const bool redrawn = tick < 5 && next != kNoSlot;  // to show it, and to take it away
      EXPECT_EQ(display.shown["slot " + std::to_string(next)], redrawn) << cards;
    }
  }
  slots = {.MarkedSlot = 0};
  ClickDeckCard(1);  // the card covers the marker
  EXPECT_EQ(slots.MarkedSlot, kNoSlot);
}

TEST_F(CardGesturesTest, TheAdviceBlinksUnlessItIsStillThoughtAbout) {
  const std::tuple<const char*, bool, bool> cases[] = {
      {"Fold", true, false},    {"Fold", false, true}, {kThinking, true, true},
      {kThinking, false, true}, {"", true, true},      {"", false, false}};
  for (const auto& [text, before, after] : cases) {
    results.lblAdvice = text;
    results.lblAdviceLit = before;
    Blink(true);
    EXPECT_EQ(results.lblAdviceLit, after) << text;
  }
}

class SeatGesturesTest : public ProgramTest {
 protected:
  // Gestures by name: "press 4", "double 4", an item of a seat's menu as in "me 7" or "fold3 4"
  // (with the state that it gives), "nine".
  static void Do(const std::string& gesture) {
    std::istringstream words(gesture);
    std::string name;
    int seat = 0;
    words >> name >> seat;
    if (name == "press") return PressSeat(seat);
    if (name == "double") return DoubleClickSeat(seat);
    if (name == "nine") return SetNineSeats(true);
    OpenSeatMenu(seat);
    if (name == "in") return ChooseIn();
    if (name == "empty") return ChooseEmpty();
    if (name == "me") return ChooseMe();
    if (name == "dealer") return ChooseDealer();
    ChooseFold(static_cast<SeatState>(name.back() - '0'));
  }
};

TEST_F(SeatGesturesTest, ChangeSeatsUserAndButton) {
  // What it does to the table; without ">" it sets nothing off.
  std::istringstream cases(
      "press 2: iiiiiiiiii 2 1; press 4: iiiiiiiiii 2 1 > iii3iiiiii 2 1; "
      "press 4: iii5iiiiii 2 1 > iiiiiiiiii 2 1; double 2: iiiiiiiiii 2 1; "
      "double 4: iii3iiiiii 2 1 > iii.iiiiii 2 1; double 4: .i.3...... 2 4; "
      "double 4: iiii.3iiii 2 4 > iii..3iiii 2 6; double 10: .ii......i 3 10 > .ii....... 3 2; "
      "double 8: i..i...i.. 9 8 > i..i...... 9 9; double 4: i..i...... 2 1 > i......... 2 1; "
      "in 2: i3iiiiiiii 2 1; in 4: iii4iiiiii 2 1 > iiiiiiiiii 2 1; fold3 2: iiiiiiiiii 2 1; "
      "fold5 10: iiiiiiiii. 2 1 > iiiiiiiii5 2 1; empty 2: iiiiiiiiii 2 1; "
      "empty 4: .i.i...... 2 1; empty 1: i..ii..... 5 1 > ...ii..... 5 4; "
      "me 2: i3iiiiiiii 2 1; me 7: i3iiii.iii 2 1 > iiiiiiiiii 7 1; "
      "me 7: i.iiii3iii 2 1 > iiiiiiiiii 7 1; dealer 4: iiiiiiiiii 2 1 > iiiiiiiiii 2 4; "
      "dealer 1: iiiiiiiiii 2 1; nine: iiii.iiiii 6 6 > iiii..iiii 5 5; "
      "nine: i....i.... 1 6 > i......... 1 5");
  for (std::string text; std::getline(cases >> std::ws, text, ';');) {
    SCOPED_TRACE(text);
    const std::string gesture = text.substr(0, text.find(':'));
    const std::string tables = text.substr(text.find(':') + 2);
    const auto arrow = tables.find(" > ");
    const bool acts = arrow != std::string::npos;
    seats = {};
    PutSeats(tables);
    Put(kFlopHand);
    RunAnalysis();
    display.shown["seats"] = 0;
    analysis.CurrentStreet = Flop;
    EXPECT_EQ(ReactionTo([&] { Do(gesture); }), acts ? Calculated : Nothing);
    EXPECT_EQ(Seating(), acts ? tables.substr(arrow + 3) : tables);
    EXPECT_EQ(display.shown["seats"], acts ? 1 : 0);
    EXPECT_EQ(seats.AutoReadSeat, seats.MySeat == 7 ? 7 : 0);  // only "Me" leads to seat 7
  }
  EXPECT_EQ(ReactionTo([] { SetNineSeats(false); }), Calculated);
  EXPECT_EQ(Seating(), "i......... 1 5") << "seat 6 stays empty";
}

// Two gestures in the middle of a run, which has counted three players: only one seat may be
// emptied.
TEST_F(SeatGesturesTest, CountsTheSeatsAfreshWhileAPassRuns) {
  for (const std::string gesture : {"empty ", "double "}) {
    PutSeats("iii....... 2 1");
    Put(kFlopHand);
    display.yields = 0;
    display.atYield = [&](int yield) {
      for (const char* seat : {"1", "3"}) yield == 3 ? Do(gesture + seat) : void();
    };
    Recalculate();
    EXPECT_EQ(Seating(), ".ii....... 2 2");
    EXPECT_EQ(analysis.PlayerCount, 3);
  }
}

TEST_F(SeatGesturesTest, MenuItems) {
  // In, the four folds, Empty, Me, Dealer: '.' hidden, '-' disabled, 'o' enabled, 'x' and checked.
  const struct {
    int seat;
    const char *seating, *plain, *watched;  // with fold depth watched
  } cases[] = {
      {4, "iii.iiiiii 2 4", "oo...xo-", "oooooxo-"}, {4, "iiiiiiiiii 2 1", "xo...ooo", "xooooooo"},
      {4, "iii2iiiiii 2 1", "ox...ooo", "oxoooooo"}, {4, "iii5iiiiii 2 4", "ox...oox", "ooooxoox"},
      {2, "iiiiiiiiii 2 1", "--...--o", "-------o"}, {2, "i3iiiiiiii 2 2", "--...--x", "-------x"}};
  for (const auto& c : cases) {
    for (const bool watch : {false, true}) {
      PutSeats(c.seating);
      seats.WatchFoldDepth = watch;
      const SeatMenu menu = OpenSeatMenu(c.seat);
      const auto& folds = menu.mnuFold;
      std::string text;
      for (const auto& item : {menu.mnuIn, folds[2], folds[3], folds[4], folds[5], menu.mnuEmpty,
                               menu.mnuMe, menu.mnuDealer}) {
        text += !item.visible ? '.' : !item.enabled ? '-' : item.checked ? 'x' : 'o';
      }
      EXPECT_EQ(text, watch ? c.watched : c.plain) << c.seating;
      EXPECT_EQ(folds[2].caption, watch ? "Folded Pre-Flop" : "Folded");
      EXPECT_EQ(seats.MenuSeat, c.seat);
    }
  }
}

TEST_F(SeatGesturesTest, TheButtonAndItsMarks) {
  const struct {
    const char* seating;
    ButtonMarks marks;
    int next;  // where the button goes from there
  } cases[] = {{"iiiiiiiiii 2 9", {9, 10, 1}, 10}, {"i..2..i..i 1 10", {10, 1, 4}, 1},
               {"i..2...... 1 1", {1, 1, 4}, 4},   {"i..2...... 1 4", {4, 4, 1}, 1},
               {"i......... 1 1", {1, 0, 0}, 1},   {"i..2...... 6 4", {4, 4, 1}, 6},
               {"i..2...... 1 7", {7, 1, 4}, 1},   {".i........ 2 0", {7, 1, 4}, 2}};
  for (const auto& c : cases) {
    PutSeats(c.seating);
    RefreshTable(false);
    EXPECT_EQ(seats.Marks, c.marks) << c.seating;
    AdvanceDealer();
    EXPECT_EQ(seats.DealerSeat, c.next) << c.seating;
  }
}

class SettingsGesturesTest : public ProgramTest {
 protected:
  SettingsGesturesTest() { Put(kFlopHand); }

  using Writes = std::vector<std::string>;
};

TEST_F(SettingsGesturesTest, NumbersOfAwkwardTexts) {
  std::istringstream cases(
      "=777;0=0; 2=2;2 0=20;+2=2;-1=-1;1.5=2;2.5=2;.6=1;1,5=1;1e3=1000;1e=1;0x2=0;abc=0;2abc=2;"
      "inf=0;nan=0; =0;.=0;-=0;+=0;1.2.3=1;-- 1=0;+-2=0;32767=32767;32768=777;-32768=-32768;"
      "-32769=777;1e400=777");
  for (std::string text; std::getline(cases, text, ';');) {
    const auto equals = text.find('=');
    EXPECT_EQ(SettingNumber(text.substr(0, equals), 777), std::stoi(text.substr(equals + 1)))
        << text;
  }
}

TEST_F(SettingsGesturesTest, LoadingTakesWhateverIsStored) {
  const std::tuple<const char*, int, int> cases[] = {{"", 1, 0},  {"0", 0, 0},   {"2", 2, 2},
                                                     {"7", 7, 0}, {"-1", -1, 0}, {"3", 3, 0}};
  for (const auto& [stored, level, speed] : cases) {
    SCOPED_TRACE(stored);
    for (const bool before : {true, false}) {
      store.texts = {{before ? "LevelPre" : "LevelPost", stored}, {"Speed", stored}};
      LoadLevels();
      EXPECT_EQ(settings.LevelPre, before ? level : Avg);
      EXPECT_EQ(settings.LevelPost, before ? Avg : level);
    }
    settings = {};
    store.writes.clear();
    LoadSpeed();
    EXPECT_EQ(settings.Speed, speed);
    EXPECT_EQ(settings.DealsPerRun, 1500 * (1 + speed));
    EXPECT_EQ(store.writes, Writes{"Speed=" + std::to_string(speed)});  // always saved again
  }
  for (const std::string stored : {"", "No", "yes", "Yes"}) {
    store.texts = {{"FoldLevels", stored}};
    EXPECT_EQ(ReactionTo(LoadFoldDepth), stored == "Yes" ? Calculated : Nothing) << stored;
    EXPECT_EQ(seats.WatchFoldDepth, stored == "Yes");
  }
}

TEST_F(SettingsGesturesTest, ChoicesAreSavedOnceAndActAsTheyShould) {
  settings.Speed = 0;
  const std::tuple<std::function<void()>, Reaction, const char*> cases[] = {
      {[] { ChooseLevelPre(Loose); }, Redone, "LevelPre=2"},
      {[] { ChooseLevelPost(Tight); }, Calculated, "LevelPost=0"},
      {[] { ChooseSpeed(1); }, Nothing, "Speed=1"},
      {[] { SetWatchFoldDepth(true); }, Calculated, "FoldLevels=Yes"},
      {[] { SetWatchFoldDepth(false); }, Calculated, "FoldLevels=No"}};
  for (const auto& [choose, reaction, written] : cases) {
    SCOPED_TRACE(written);
    store.writes.clear();
    display.shown.clear();
    EXPECT_EQ(ReactionTo(choose), reaction);
    EXPECT_EQ(store.writes, Writes{written});
    EXPECT_EQ(display.shown["settings"], 1);
    if (std::string_view(written).starts_with("Fold")) continue;
    EXPECT_EQ(ReactionTo(choose), Nothing) << "chosen once more";
    EXPECT_EQ(store.writes, Writes{written});
  }
  EXPECT_TRUE(settings.LevelPre == Loose && settings.LevelPost == Tight && settings.Speed == 1);
  EXPECT_TRUE(settings.DealsPerRun == 3000 && !seats.WatchFoldDepth);
}

TEST_F(SettingsGesturesTest, HelpFilesLieInTheProgramsOwnFolder) {
  for (const std::string folder : {"/opt/pellucor", "/opt/pellucor/", "/"}) {
    const std::string path = Path(folder + (folder.ends_with('/') ? "" : "/") + "readme.txt");
    shell = {};
    shell.folder = Path(folder);
    display.messages.clear();
    OpenHelpFile(kReadMe);
    EXPECT_EQ(display.messages, Writes{"Error opening file \"" + path + "\""});
    shell.existing = {path};
    OpenHelpFile(kReadMe);
    EXPECT_EQ(shell.opened, Writes{path});
  }
}

}  // namespace
}  // namespace holdem
