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
  const Card queen = CardOf(Diamonds, Queen), ace = CardOf(Spades, Ace), seven = CardOf(Spades, 7);
  const CardPlace inDeck{.deckCard = queen}, hole{.slot = 0};
  const CardPlace turn{.slot = kTurnSlot}, river{.slot = kRiverSlot};
  const char* gap = "AS 9D -- 5H KH 7S";
  const std::tuple<std::function<void()>, const char*, const char*, Reaction> cases[] = {
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
  for (const auto& [gesture, before, after, reaction] : cases) {
    Put(before);
    EXPECT_EQ(ReactionTo(gesture), reaction) << before << " -> " << after;
    EXPECT_EQ(slots.picHand, SlotsOf(after)) << before << " -> " << after;
  }
}

TEST_F(CardGesturesTest, ACardCanBeDroppedWhereItWouldStay) {
  const Card ace = CardsOf("AS")[0];
  const std::pair<CardPlace, Card> sources[] = {{{.slot = 0}, ace}, {{.deckCard = 2}, 2}};
  for (const auto& [source, card] : sources) {
    for (const CardPlace& target : {CardPlace{.slot = 0}, {.slot = 1}, {.deckCard = 30}}) {
      Put("AS");
      const bool can = CanDropCard(source, target);
      DropCard(source, card, target);
      EXPECT_EQ(slots.picHand != SlotsOf("AS"), can) << card << ' ' << target.slot;
    }
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

TEST_F(CardGesturesTest, TheAdviceAndTheMarkerOnTheNextSlotBlink) {
  const std::pair<const char*, int> cases[] = {
      {"-- AS 9D 2C", 0}, {"AS 9D", 6}, {kTurnHand, 10}, {kRiverHand, kNoSlot}};
  results.lblAdvice = "Fold";
  for (const auto& [cards, next] : cases) {
    Put(cards);
    for (int tick = 1; tick <= 8; ++tick) {
      autoRead.WatchedWindow = tick > 4 ? 77 : 0;
      display.shown.clear();
      Blink(true);
      EXPECT_EQ(results.lblAdviceLit, tick % 2 == 0);
      EXPECT_EQ(display.shown["results"], 1);
      EXPECT_EQ(slots.MarkedSlot, tick == 1 || tick == 3 ? next : kNoSlot) << cards;
      const bool redrawn = tick < 5 && next != kNoSlot;  // to show it, and to take it away
      EXPECT_EQ(display.shown["slot " + std::to_string(next)], redrawn) << cards;
    }
  }
  slots = {.MarkedSlot = 0};
  ClickDeckCard(1);  // the card covers the marker
  EXPECT_EQ(slots.MarkedSlot, kNoSlot);
  for (const bool thinking : {true, false}) {
    results = {.lblAdvice = thinking ? kThinking : "", .lblAdviceLit = false};
    for (int tick = 1; tick <= 2; ++tick) Blink(true);
    EXPECT_EQ(results.lblAdviceLit, thinking);
  }
}

using SeatGesturesTest = ProgramTest;

TEST_F(SeatGesturesTest, ChangeSeatsUserAndButton) {
  const std::map<std::string, std::function<void()>> gestures = {
      {"press", [] { PressSeat(seats.MenuSeat); }},
      {"double", [] { DoubleClickSeat(seats.MenuSeat); }},
      {"in", ChooseIn},
      {"fold3", [] { ChooseFold(FoldedFlop); }},
      {"empty", ChooseEmpty},
      {"me", ChooseMe},
      {"dealer", ChooseDealer},
      {"nine:", [] { SetNineSeats(true); }},
      {"ten:", [] { SetNineSeats(false); }},
      {"new:", NewHand},
      {"follow:", [] { autoRead.WatchedWindow = 77; }}};
  // What it does to the table; without ">" it sets nothing off.
  std::istringstream cases(
      "press 2: iiiiiiiiii 2 1; press 4: iiiiiiiiii 2 1 > iii3iiiiii 2 1; "
      "press 4: iii5iiiiii 2 1 > iiiiiiiiii 2 1; double 2: iiiiiiiiii 2 1; "
      "double 4: iii3iiiiii 2 1 > iii.iiiiii 2 1; double 4: .i.3...... 2 4; "
      "double 4: iiii.3iiii 2 4 > iii..3iiii 2 6; double 10: .ii......i 3 10 > .ii....... 3 2; "
      "double 8: i..i...i.. 9 8 > i..i...... 9 9; double 4: i..i...... 2 1 > i......... 2 1; "
      "in 2: i3iiiiiiii 2 1; in 4: iii4iiiiii 2 1 > iiiiiiiiii 2 1; fold3 2: iiiiiiiiii 2 1; "
      "fold3 10: iiiiiiiii. 2 1 > iiiiiiiii3 2 1; empty 2: iiiiiiiiii 2 1; "
      "empty 4: .i.i...... 2 1; empty 1: i..ii..... 5 1 > ...ii..... 5 4; "
      "me 2: i3iiiiiiii 2 1; me 7: i3iiii.iii 2 1 > iiiiiiiiii 7 1; "
      "me 7: i.iiii3iii 2 1 > iiiiiiiiii 7 1; dealer 4: iiiiiiiiii 2 1 > iiiiiiiiii 2 4; "
      "dealer 1: iiiiiiiiii 2 1; nine: iiii.iiiii 6 6 > iiii..iiii 5 5; "
      "nine: i....i.... 1 6 > i......... 1 5; ten: iiiii.iiii 2 1 > iiiii.iiii 2 1; "
      "new: 33.45i..i2 2 2 > ii.iii..ii 2 4; follow: iiiiiiiiii 2 1; "
      "new: i3.45i..i2 2 2 > i3.45i..i2 2 2");
  for (std::string text; std::getline(cases >> std::ws, text, ';');) {
    SCOPED_TRACE(text);
    const std::string gesture = text.substr(0, text.find(' '));
    const std::string tables = text.substr(text.find(':') + 2);
    const auto arrow = tables.find(" > ");
    const bool acts = arrow != std::string::npos;
    seats = {.MenuSeat = std::atoi(&text[gesture.size()])};
    PutSeats(tables);
    Put(kFlopHand);
    analysis = {.PlayerCount = 10, .CurrentStreet = Flop};  // of a pass that has not seen it all
    display.shown.clear();
    EXPECT_EQ(ReactionTo(gestures.at(gesture)), acts ? Calculated : Nothing);
    EXPECT_EQ(Seating(), acts ? tables.substr(arrow + 3) : tables);
    EXPECT_EQ(slots.picHand, SlotsOf(gesture == "new:" ? "" : kFlopHand));
    EXPECT_EQ(display.shown["seats"], acts ? 1 : 0);
    EXPECT_EQ(seats.AutoReadSeat, seats.MySeat == 7 ? 7 : 0);  // only "Me" leads to seat 7
  }
}

TEST_F(SeatGesturesTest, MenuItems) {
  // In, the four folds, Empty, Me, Dealer: '.' hidden, '-' disabled, 'o' enabled, 'x' and checked.
  const std::tuple<int, const char*, bool, const char*> cases[] = {
      // fold depth watched
      {4, "iii.iiiiii 2 4", false, "oo...xo-"}, {4, "iiiiiiiiii 2 1", true, "xooooooo"},
      {4, "iii2iiiiii 2 1", true, "oxoooooo"},  {4, "iii5iiiiii 2 4", false, "ox...oox"},
      {4, "iii5iiiiii 2 4", true, "ooooxoox"},  {4, "iiiiiiiiii 2 1", false, "xo...ooo"},
      {2, "i3iiiiiiii 2 2", false, "--...--x"}, {2, "i3iiiiiiii 2 1", true, "-------o"}};
  for (const auto& [seat, seating, watch, expected] : cases) {
    PutSeats(seating);
    seats.WatchFoldDepth = watch;
    const SeatMenu menu = OpenSeatMenu(seat);
    const auto& folds = menu.mnuFold;
    std::string text;
    for (const auto& item : {menu.mnuIn, folds[2], folds[3], folds[4], folds[5], menu.mnuEmpty,
                             menu.mnuMe, menu.mnuDealer}) {
      text += !item.visible ? '.' : !item.enabled ? '-' : item.checked ? 'x' : 'o';
    }
    EXPECT_EQ(text, expected) << seating;
    EXPECT_EQ(folds[2].caption, watch ? "Folded Pre-Flop" : "Folded");
    EXPECT_EQ(seats.MenuSeat, seat);
  }
}

TEST_F(SeatGesturesTest, TheButtonAndItsMarks) {
  const std::tuple<const char*, ButtonMarks, int> cases[] = {
      // where the button goes from there
      {"iiiiiiiiii 2 9", {9, 10, 1}, 10}, {"i..2..i..i 1 10", {10, 1, 4}, 1},
      {"i..2...... 1 1", {1, 1, 4}, 4},   {"i..2...... 1 4", {4, 4, 1}, 1},
      {"i......... 1 1", {1, 0, 0}, 1},   {"i..2...... 6 4", {4, 4, 1}, 6},
      {"i..2...... 1 7", {7, 1, 4}, 1},   {".i........ 2 0", {7, 1, 4}, 2}};
  for (const auto& [seating, marks, next] : cases) {
    PutSeats(seating);
    RefreshTable(false);
    EXPECT_EQ(seats.Marks, marks) << seating;
    AdvanceDealer();
    EXPECT_EQ(seats.DealerSeat, next) << seating;
  }
}

using SettingsGesturesTest = ProgramTest;
using Texts = std::vector<std::string>;

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
  const std::tuple<const char*, const char*, int, int, int> cases[] = {
      // The texts of level and speed, and of the level after the flop; both levels, the speed.
      {"", "0", 1, 0, 0},
      {"0", "", 0, 1, 0},
      {"2", "7", 2, 7, 2},
      {"-1", "3", -1, 3, 0},
      {"3", "-1", 3, -1, 0}};
  for (const auto& [stored, other, before, after, speed] : cases) {
    store.texts = {{"LevelPre", stored}, {"LevelPost", other}, {"Speed", stored}};
    store.writes.clear();
    settings = {};
    LoadLevels();
    LoadSpeed();
    EXPECT_EQ(std::tuple(settings.LevelPre, settings.LevelPost, settings.Speed),
              std::tuple(before, after, speed));
    EXPECT_EQ(settings.DealsPerRun, 1500 * (1 + speed));
    EXPECT_EQ(store.writes, Texts{"Speed=" + std::to_string(speed)});  // always saved again
  }
  for (const std::string stored : {"", "No", "yes", "Yes"}) {
    store.texts = {{"FoldLevels", stored}};
    EXPECT_EQ(ReactionTo(LoadFoldDepth), stored == "Yes" ? Calculated : Nothing) << stored;
    EXPECT_EQ(seats.WatchFoldDepth, stored == "Yes");
  }
}

TEST_F(SettingsGesturesTest, ChoicesAreSavedOnceAndActAsTheyShould) {
  Put(kFlopHand);
  settings.Speed = 0;
  const std::tuple<std::function<void()>, Reaction, Reaction, const char*> cases[] = {
      // What it does, also when chosen once more.
      {[] { ChooseLevelPre(Loose); }, Redone, Nothing, "LevelPre=2"},
      {[] { ChooseLevelPost(Tight); }, Calculated, Nothing, "LevelPost=0"},
      {[] { ChooseSpeed(1); }, Nothing, Nothing, "Speed=1"},
      {[] { SetWatchFoldDepth(true); }, Calculated, Calculated, "FoldLevels=Yes"},
      {[] { SetWatchFoldDepth(false); }, Calculated, Calculated, "FoldLevels=No"}};
  for (const auto& [choose, first, again, written] : cases) {
    store.writes.clear();
    display.shown.clear();
    EXPECT_EQ(ReactionTo(choose), first) << written;
    EXPECT_EQ(store.writes, Texts{written});
    EXPECT_EQ(display.shown["settings"], 1);
    EXPECT_EQ(ReactionTo(choose), again) << written;
    EXPECT_EQ(store.writes.size(), again == Nothing ? 1U : 2U);
  }
  EXPECT_FALSE(seats.WatchFoldDepth);
}

TEST_F(SettingsGesturesTest, HelpFilesLieInTheProgramsOwnFolder) {
  const std::string path = Path("/opt/pellucor/readme.txt");
  for (const std::string folder : {"/opt/pellucor", "/opt/pellucor/"}) {
    shell = {};
    shell.folder = Path(folder);
    OpenHelpFile(kReadMe);
    EXPECT_EQ(display.messages.back(), "Error opening file \"" + path + "\"");
    shell.existing = {path};
    OpenHelpFile(kReadMe);
    EXPECT_EQ(shell.opened, Texts{path});
  }
}

}  // namespace
}  // namespace holdem
