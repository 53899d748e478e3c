#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/card_typing.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "table/blink.h"
#include "table/card_slots.h"
#include "table/history.h"
#include "table/refresh.h"
#include "table/seat_rules.h"

namespace holdem {
namespace {

using GesturesTest = ProgramTest;

class AnyTable : public GesturesTest {
 protected:
  Card AnyCard() { return 1 + Random(kCardCount); }
  int AnySlot() { return kSlotOrder[Random(7)]; }
  void DropAnyCard() {
    const CardSpot in{.slot = AnySlot()}, deck{.deckCard = AnyCard()};
    const bool filled = slots.IsFilled(in.slot);
    filled
        ? DropCard(in, slots.picHand[in.slot], Random(2) == 0 ? CardSpot{.slot = AnySlot()} : deck)
        : DropCard(deck, deck.deckCard, in);
  }

  const std::map<std::string, std::function<void()>> gestures = {
      {"press", [] { PressSeat(seats.MenuSeat); }},
      {"double", [] { PressSeat(seats.MenuSeat), DoubleClickSeat(seats.MenuSeat); }},
      {"in", ChooseIn},
      {"fold", [] { ChooseFold(FoldedTurn); }},
      {"empty", ChooseEmpty},
      {"me", ChooseMe},
      {"dealer", ChooseDealer},
      {"nine", [] { ChooseNineSeats(true); }},
      {"ten", [] { ChooseNineSeats(false); }},
      {"hand", NewHand},
      {"click", [&] { ClickDeckCard(AnyCard()); }},
      {"drop", [&] { DropAnyCard(); }},
      {"right", [&] { RightPressSlot(AnySlot()); }},
      {"random", [&] { DoubleClickSlot(AnySlot()); }}};
};

// Seats, of nine with a "-" for the sixth, the user's and the button; what is done, at which seat;
// the same then, and the blinds. Nothing is done without them.
TEST_F(AnyTable, WhatIsDoneToSeats) {
  const std::string byHand =
      "iiiiiiiiii 2 1 press 4 > iii2iiiiii 2 1 2/3;iii2iiiiii 2 1 press 4 > iiiiiiiiii 2 1 2/3;"
      "iii.iiiiii 2 1 press 3 > ii2.iiiiii 2 1 2/3;iii.iiiiii 2 1 press 4 > iiiiiiiiii 2 1 2/3;"
      "i2iiiiiiii 2 1 press 2;iiiii-iiii 2 1 press 6;iiiiiiiiii 2 1 double 2;"
      "iiiiiiiiii 2 1 double 3 > ii.iiiiiii 2 1 2/4;iiiii-iiii 2 1 press 7 > iiiii-2iii 2 1 2/3;"
      "iiiiiiiiii 2 1 empty 1 > .iiiiiiiii 2 2 3/4;ii..iiiiii 1 2 empty 2 > i...iiiiii 1 5 6/7;"
      ".......ii2 8 9 empty 10 > .......ii. 8 9 9/8;ii........ 2 1 empty 1;i.......4i 1 9 empty 1;"
      "i5i3iiiiii 2 1 in 4 > i5iiiiiiii 2 1 2/3;i5i.iiiiii 2 1 in 4 > i5iiiiiiii 2 1 2/3;"
      "i5iiiiiiii 2 1 in 2;iiiiiiiiii 2 1 fold 2;iiiiiiiiii 2 1 fold 4 > iii4iiiiii 2 1 2/3;"
      "i5iiiiiiii 2 1 me 4 > iiiiiiiiii 4 1 2/3;i5i.iiiiii 2 1 me 4 > iiiiiiiiii 4 1 2/3;"
      "i5iiiiiiii 2 1 me 2;iiiiiiiiii 2 1 dealer 1;iiiiiiiiii 2 1 dealer 4 > iiiiiiiiii 2 4 5/6;"
      "iiiiiiiiii 2 1 nine 1 > iiiii-iiii 2 1 2/3;iiii3iiiii 6 6 nine 1 > iiiii-iiii 5 5 7/8;"
      "iiiii-iiii 2 5 ten 1 > iiiii.iiii 2 5 7/8;ii2.345iii 2 1 hand 1 > iii.iiiiii 2 2 3/5;"
      "i4.......i 2 10 hand 1 > ii.......i 2 1 2/10;.i.......i 2 9 hand 1 > .i.......i 2 10 10/2;"
      "i......... 1 1 dealer 3 > i......... 1 3 3/1";
  const std::string followed =
      "iii.iiiiii 2 1 press 4;iii.iiiiii 2 1 in 4;iii.iiiiii 2 1 fold 4;"
      "iii3iiiiii 2 1 press 4 > iiiiiiiiii 2 1 2/3;ii23iiiiii 2 1 hand 1 > ii23iiiiii 2 1 2/3";
  const auto now = [] {
    std::string text = Seating() + " " + std::to_string(seats.Marks.smallBlind) + "/" +
                       std::to_string(seats.Marks.bigBlind);
    EXPECT_EQ(seats.Marks.dealer, seats.DealerSeat);
    if (seats.IsOfNine()) text[5] = text[5] == '.' ? '-' : '?';
    return text;
  };
  for (autoRead.WatchedWindow = 0; autoRead.WatchedWindow < 2; ++autoRead.WatchedWindow) {
    std::istringstream examples(autoRead.Following() ? followed : byHand);
    for (std::string example; std::getline(examples, example, ';');) {
      SCOPED_TRACE(example + (autoRead.Following() ? ", followed" : ""));
      const std::size_t end = example.find(" > ");
      std::string table = example.substr(0, end), skipped, gesture;
      seats.SeatCount = table[5] == '-' ? 9 : 10;
      std::ranges::replace(table, '-', '.');
      PutSeats(table);
      int menu = 0;
      std::istringstream(table) >> skipped >> skipped >> skipped >> gesture >> menu;
      seats.MenuSeat = menu;
      RefreshTable(true);
      const std::string before = now();
      EXPECT_EQ(ReactionTo(gestures.at(gesture)), end == example.npos ? Nothing : Calculated);
      EXPECT_EQ(now(), end == example.npos ? before : example.substr(end + 3));
    }
  }
  MarkButtonAndBlinds(0);  // not seen: the blinds' marks stay
  EXPECT_TRUE(seats.Marks.dealer == 0 && seats.Marks.smallBlind == 2);
}

TEST_F(AnyTable, WhatIsDoneToCards) {
  const auto move = [](int from, Card moved, int to) {
    return [=] { DropCard({.slot = from}, moved, {.slot = to}); };
  };
  const auto lay = [](Card moved, int to) {
    return [=] { DropCard({.deckCard = moved}, moved, {.slot = to}); };
  };
  const auto back = [](int from, Card moved) {
    return [=] { DropCard({.slot = from}, moved, {.deckCard = 7}); };
  };
  const std::tuple<const char*, std::function<void()>, const char*, Reaction> cases[] = {
      // The cards, what is done, the cards then, and what it sets off.
      {"AS -- 9D", [] { ClickDeckCard(2); }, "AS 2S 9D", Calculated},
      {"AS -- 9D", [] { ClickDeckCard(1); }, "AS -- 9D", Nothing},
      {kRiverHand, [] { ClickDeckCard(2); }, kRiverHand, Nothing},
      {"AS", [] { DropCard({.deckCard = 2}, 2, {.deckCard = 2}); }, "AS 2S", Calculated},
      {"AS", [] { DropCard({.deckCard = 2}, 2, {.deckCard = 3}); }, "AS", Nothing},
      {"AS", lay(2, 9), "AS -- -- -- -- 2S", Calculated},
      {"AS", lay(1, 9), "AS", Nothing},  // it has gone meanwhile
      {"AS 2S 9D", lay(3, 6), "AS 2S 9D", Redone},
      {"AS 2S", lay(3, 1), "AS 2S", Calculated},  // before the flop always anew
      {"AS", move(0, 1, 9), "-- -- -- -- -- AS", Calculated},
      {"AS", move(0, 2, 9), "AS", Nothing},
      {"AS 2S 9D", move(0, 1, 6), "AS 2S 9D", Redone},
      {"AS 2S", back(0, 1), "-- 2S", Calculated},
      {"AS 2S", back(0, 2), "AS 2S", Nothing},
      {"AS 2S", [] { RightPressSlot(1); }, "AS", Calculated},
      {"AS", [] { RightPressSlot(1); }, "AS", Nothing},
      {"AS", [] { DoubleClickSlot(0); }, "AS", Nothing}};
  for (const auto& [before, make, after, reaction] : cases) {
    SCOPED_TRACE(testing::Message() << before << ", case " << &make - &std::get<1>(cases[0]));
    Put(before);
    SeatsChanged();
    EXPECT_EQ(ReactionTo(make), reaction);
    EXPECT_EQ(slots.picHand, SlotsOf(after));
  }
  for (int round = 0; round < 500; ++round) {
    Put(kTurnHand);
    deck.free = 1;  // as left by a run that began before the cards were entered
    EXPECT_EQ(ReactionTo([] { DoubleClickSlot(10); }), Calculated);
    EXPECT_EQ(std::ranges::count(slots.picHand, slots.picHand[10]), 1);
  }
  Put("AS");
  for (const Slot from : {kNoSlot, Slot{0}})  // a hole card that is there
    for (const Slot to : {kNoSlot, Slot{0}, Slot{9}})
      EXPECT_EQ(CanDropCard({.slot = from}, {.slot = to}), to == 9 || (from == 0 && to == kNoSlot));
}

// Users without a plan, and what they change with each gesture: the table, what stays from street
// to street, and before the flop the advice.
TEST_F(AnyTable, IsTakenBackGestureByGestureAndThenComesAgain) {
  const auto table = [] {
    const std::string shown = analysis.CurrentStreet == PreFlop ? results.lblAdvice : "";
    return std::pair(std::tuple(Cards(), Seating(), seats.SeatCount, seats.AutoReadSeat),
                     std::tuple(shown, advice.StartOpponents, advice.MeterThreshold));
  };
  for (int round = 0; round < 60; ++round) {
    generator.Seed(random());
    seats.SeatCount = 9 + Random(2);
    PutRandomTable();
    PutRandomCards();
    SeatsChanged();
    history = {};
    std::vector tables = {table()};
    const std::size_t longest = round % 20 == 0 ? 500 : 0;  // that is taken back
    for (int i = 0; i < 20 || tables.size() <= longest; ++i) {
      seats.MenuSeat = 1 + Random(kSeats);
      std::next(gestures.begin(), Random(static_cast<int>(gestures.size())))->second();
      if (table().first != tables.back().first) tables.push_back(table());
    }
    auto now = tables.end() - 1;
    while (now != tables.begin()) {
      EXPECT_EQ(ReactionTo(TakeBackGesture), Calculated);
      EXPECT_EQ(table(), *--now) << round;
    }
    EXPECT_EQ(ReactionTo(TakeBackGesture), Nothing);
    while (now != tables.end() - 1) {
      RepeatGesture();
      EXPECT_EQ(table(), *++now) << round;
    }
    TakeBackGesture();
    round % 2 == 0 ? NewHand() : ForgetHistory();
    EXPECT_EQ(ReactionTo(RepeatGesture), Nothing);
  }
}

TEST_F(GesturesTest, CardsGoAsTheyWereEnteredWhereverTheyHaveBeenSince) {
  for (const Card card : {1, 15, 2}) ClickDeckCard(card);
  DropSlotCard(0, 1, 9);
  RightPressSlot(1);
  TakeBackGesture();
  TakeLastCardBack();
  EXPECT_EQ(Cards(), "-- 2D -- -- -- AS --");
}

TEST_F(GesturesTest, WhatIsTypedIsAClickOnThatCardOrNothing) {
  const std::tuple<const char*, const char*, int, const char*, const char*> cases[] = {
      // Before, typed - "-" empties the second slot -, the focused slot; after, what is shown as
      // typed.
      {"", "aS10h1", kNoSlot, "AS TH", "1"},    {"AS", "askd", 0, "AS KD", ""},
      {"AS", "kd", 9, "AS -- -- -- -- KD", ""}, {"AS", "q jx", kNoSlot, "AS", ""},
      {"AS KS", "q-h", kNoSlot, "AS QH", ""},   {kRiverHand, "2s", kNoSlot, kRiverHand, ""}};
  for (const auto& [before, typed, focused, after, shown] : cases) {
    SCOPED_TRACE(typed);
    slots = {.DeckShown = true};
    Put(before);
    for (const char character : std::string_view(typed)) {
      character == '-' ? RightPressSlot(1) : TypeCharacter(character, focused);
    }
    EXPECT_EQ(slots.picHand, SlotsOf(after));
    EXPECT_EQ(slots.TypedSlot == kNoSlot ? "" : std::string(1, slots.TypedRank), shown);
  }
}

TEST_F(GesturesTest, TheAdviceAndTheMarkerOnTheNextSlotBlink) {
  const std::pair<const char*, Slot> cases[] = {
      {"-- AS 9D 2C", 0}, {"AS 9D", 6}, {kTurnHand, 10}, {kRiverHand, kNoSlot}};
  for (const auto& [cards, next] : cases) {
    Put(cards);
    display.shown.clear();
    for (int tick = 1; tick <= 6; ++tick) {
      autoRead.WatchedWindow = tick > 4 ? 77 : 0;
      Blink(true);
      EXPECT_EQ(slots.MarkedSlot, tick == 1 || tick == 3 ? next : kNoSlot) << cards;
    }
    EXPECT_EQ(display.shown["slot " + std::to_string(next)], next == kNoSlot ? 0 : 4) << cards;
  }
  slots = {.MarkedSlot = 0};
  ClickDeckCard(1);  // the card covers the marker
  EXPECT_EQ(slots.MarkedSlot, kNoSlot);
  const std::tuple<const char*, bool, const char*> advices[] = {
      // The advice, whether the user wants things to flash; lit or not, tick by tick.
      {"Fold", true, "1010"},
      {kThinking, true, "1111"},
      {"", true, "0000"},
      {"Fold", false, "1111"}};
  for (const auto& [text, flashing, lit] : advices) {
    results = {.lblAdvice = text, .lblAdviceLit = false};
    for (int tick = 0; tick < 4; ++tick) {
      Blink(flashing);
      EXPECT_EQ(results.lblAdviceLit, lit[tick] == '1') << text << tick;
    }
  }
}

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
    EXPECT_EQ(ReactionTo(choose), first) << written;
    EXPECT_EQ(store.writes, std::vector<std::string>{written});
    EXPECT_EQ(ReactionTo(choose), again) << written;
    EXPECT_EQ(store.writes.size(), again == Nothing ? 1U : 2U);
  }
  EXPECT_FALSE(seats.WatchFoldDepth);
}

}  // namespace
}  // namespace holdem
