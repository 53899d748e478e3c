#include <cstring>
#include <random>

#include "cards/deck.h"
#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/help_files.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "table/card_slots.h"
#include "table/refresh.h"

namespace holdem {
namespace {

using GesturesTest = ProgramTest;

TEST_F(GesturesTest, KnownOnesOfCardsAndSeats) {
  const Card queen = CardOf(Diamonds, Queen), seven = CardOf(Spades, 7);
  const char *turned = "AS 9D 2C 5H KH 7S --", *moved = "AS 9D 2C 5H KH -- 7S";
  const std::tuple<std::function<void()>, const char*, const char*, Reaction> cases[] = {
      {[=] { ClickDeckCard(queen); }, turned, "AS 9D 2C 5H KH 7S QD", Calculated},
      {[=] { DropSlotCard(kTurnSlot, seven, kRiverSlot); }, turned, moved, Calculated},
      {[=] { DropSlotCard(kTurnSlot, queen, kRiverSlot); }, turned, turned, Nothing},
      {[=] { DropSlotCard(kTurnSlot, seven, 0); }, turned, turned, Redone},
      {[] { PressSeat(4); }, "iiiiiiiiii 2 1", "iii3iiiiii 2 1", Calculated},
      {[] { DoubleClickSeat(4); }, "iiii.3iiii 2 4", "iii..3iiii 2 6", Calculated},
      {[] { DoubleClickSeat(10); }, ".ii......i 3 10", ".ii....... 3 2", Calculated},
      {NewHand, "33.45i..i2 2 2", "ii.iii..ii 2 4", Calculated},
      {[] { SetNineSeats(true); }, "iiii.iiiii 6 6", "iiiii.iiii 5 5", Calculated},
      {[] { SetNineSeats(true); }, "iiii.iiiii 2 6", "iiii..iiii 2 5", Calculated},
      {[this] { FollowATable(), PressSeat(4); }, "iii.iiiiii 2 1", "iii.iiiiii 2 1", Nothing},
      {[] { OpenSeatMenu(4), ChooseIn(), ChooseFold(FoldedFlop); }, "iii.iiiiii 2 1",
       "iii.iiiiii 2 1", Nothing},
      {[] { OpenSeatMenu(4), ChooseMe(); }, "iii.i.iiii 2 1", "iiiii.iiii 4 1", Calculated}};
  for (const auto& [gesture, before, after, reaction] : cases) {
    const bool ofSeats = std::strchr(before, 'i') != nullptr;
    ofSeats ? PutSeats(before) : Put(before);
    analysis = {.PlayerCount = 10, .CurrentStreet = Flop};
    EXPECT_EQ(ReactionTo(gesture), reaction) << before << " -> " << after;
    EXPECT_EQ(ofSeats ? Seating() : Cards(), after);
  }
  ShowDealerButton(0);  // none is seen
  EXPECT_EQ(seats.Marks, (ButtonMarks{.dealer = 0, .smallBlind = 2, .bigBlind = 3}));
}

// On tables by chance, kept as a fingerprint: a change must be meant.
TEST_F(GesturesTest, EachDoesWhatItDid) {
  int seat = 0, slot = 0, other = 0;
  Card card = kNoCard;
  const std::function<void()> gestures[] = {
      [&] { ClickDeckCard(card); },
      [&] { DropDeckCard(card, slot); },
      [&] { DropCard({.deckCard = card}, card, {.deckCard = seat < 6 ? card : Card{30}}); },
      [&] { DropSlotCard(other, seat < 9 ? slots.picHand[other] : card, slot); },
      [&] { ReturnSlotCard(other, seat < 9 ? slots.picHand[other] : card); },
      [&] { RightPressSlot(slot); },
      [&] { DoubleClickSlot(slot); },
      [&] { PressSeat(seat); },
      [&] { DoubleClickSeat(seat); },
      ChooseIn,
      [] { ChooseFold(FoldedFlop); },
      ChooseEmpty,
      ChooseMe,
      ChooseDealer,
      [&] { SetNineSeats(seat < 9); },
      AdvanceDealer,
      NewHand};
  std::minstd_rand random;
  const auto pick = [&](int count) { return static_cast<int>(random() % count); };
  Fingerprint done;
  for (int round = 0; round < 1000; ++round) {
    for (const auto& gesture : gestures) {
      generator.Seed(random());
      seats = {.MySeat = 1 + pick(kSeats),
               .DealerSeat = pick(kSeats + 1),
               .WatchFoldDepth = pick(2) == 0};
      const int empty = pick(10);  // of ten
      for (int each = 1; each <= kSeats; ++each)
        seats.SeatStates[each] = pick(10) < empty ? Empty : SeatState{1 + pick(5)};
      autoRead.WatchedWindow = pick(5) == 0 ? 77 : 0;
      analysis = {.PlayerCount = 10, .CurrentStreet = Street{pick(5)}};  // of another pass
      deck = {};
      slots.picHand = {};
      const int filled = pick(11);
      for (const int place : kSlotOrder)
        if (pick(10) < filled) slots.picHand[place] = DealRandomCard();
      deck.free = 1;  // as left by a run that began before the cards were entered
      seat = 1 + pick(kSeats);
      slot = kSlotOrder[pick(7)];
      other = kSlotOrder[pick(7)];
      card = 1 + pick(kCardCount);
      const SeatMenu menu = OpenSeatMenu(seat);
      const auto& folds = menu.mnuFold;
      for (const auto& [visible, enabled, checked, caption] :
           {menu.mnuIn, folds[2], folds[3], folds[4], folds[5], menu.mnuEmpty, menu.mnuMe,
            menu.mnuDealer}) {
        done.Add(caption + std::to_string(visible * 4 + enabled * 2 + checked));
      }
      done.Add(CanDropCard({.slot = other}, {.slot = slot}));
      done.Add(CanDropCard({.slot = seat < 6 ? other : kNoSlot, .deckCard = card}, {}));
      display.shown.clear();
      done.Add(ReactionTo(gesture));
      done.Add(Cards() + Seating());
      done.Add(display.shown["seats"]);
      RefreshTable(false);
      done.Add(seats.AutoReadSeat);
      done.Add(seats.Marks);
    }
  }
  EXPECT_EQ(done.value, 1433045447813242617U);
}

TEST_F(GesturesTest, TheAdviceAndTheMarkerOnTheNextSlotBlink) {
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
  for (const auto& [text, flashing, lit] :
       {std::tuple{kThinking, true, true}, {"", true, false}, {"Fold", false, true}}) {
    results = {.lblAdvice = text, .lblAdviceLit = false};
    for (int tick = 1; tick <= 2; ++tick) Blink(flashing);
    EXPECT_EQ(results.lblAdviceLit, lit) << text;
  }
}

using Texts = std::vector<std::string>;

TEST_F(GesturesTest, NumbersOfAwkwardTexts) {
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

TEST_F(GesturesTest, LoadingTakesWhateverIsStored) {
  const std::tuple<std::string, const char*, int, int, int> cases[] = {
      // The texts of all but the level after the flop, and of that; both levels, the speed.
      {"", "0", 1, 0, 0},    {"0", "", 0, 1, 0},   {"2", "7", 2, 7, 2}, {"-1", "3", -1, 3, 0},
      {"3", "-1", 3, -1, 0}, {"yes", "", 0, 1, 0}, {"Yes", "", 0, 1, 0}};
  for (const auto& [stored, other, before, after, speed] : cases) {
    store.texts = {
        {"LevelPre", stored}, {"LevelPost", other}, {"Speed", stored}, {"FoldLevels", stored}};
    store.writes.clear();
    settings = {};
    LoadLevels();
    LoadSpeed();
    EXPECT_EQ(ReactionTo(LoadFoldDepth), stored == "Yes" ? Calculated : Nothing) << stored;
    EXPECT_EQ(settings, (Settings{before, after, speed, 1500 * (1 + speed)})) << stored;
    EXPECT_EQ(seats.WatchFoldDepth, stored == "Yes");
    EXPECT_EQ(store.writes[0], "Speed=" + std::to_string(speed));  // always saved again
  }
}

TEST_F(GesturesTest, ChoicesAreSavedOnceAndActAsTheyShould) {
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

TEST_F(GesturesTest, HelpFilesLieInTheProgramsOwnFolder) {
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
