#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/card_typing.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "reference/literal_table.h"
#include "table/blink.h"
#include "table/card_slots.h"
#include "table/history.h"
#include "table/refresh.h"

namespace holdem {
namespace {

using GesturesTest = ProgramTest;

// Gestures on tables by chance, each on its own.
struct AnyTable : GesturesTest {
  void Deal() {
    generator.Seed(random());
    seats = {.Marks = {7, 8, 9}, .SeatCount = 9 + Random(2)};
    PutRandomTable();
    autoRead.WatchedWindow = Random(5) == 0 ? 77 : 0;
    analysis = {.PlayerCount = 10, .CurrentStreet = Street{Random(5)}};  // of another pass
    slots = {.DeckShown = true};
    PutRandomCards();
    deck.free = 1;  // as left by a run that began before the cards were entered
    Aim();
  }
  // At what the next gesture is made.
  void Aim() {
    seat = seats.MenuSeat = 1 + Random(kSeats);
    slot = kSlotOrder[Random(7)];
    card = 1 + Random(kCardCount);
    source = CardSpot{.deckCard = card};
    if (Random(2) == 0) source = {.slot = kSlotOrder[Random(7)]};
    target =
        std::array<CardSpot, 3>{{{.slot = slot}, {.deckCard = card}, {.deckCard = 7}}}[Random(3)];
    // Once in ten times another card lies there when it is dropped.
    held = source.slot == kNoSlot ? card : slots.picHand[source.slot];
    if (held == kNoCard || Random(10) == 0) held = card;
  }
  literal::Table Now(const char* pass) const {
    return {seats, slots.picHand, autoRead.Following(), analysis.CurrentStreet, pass};
  }
  static std::string TextOf(const literal::Table& table) {
    const auto& [dealer, small, big] = table.seats.Marks;
    std::ostringstream text;
    text << Seating(table.seats) << " of " << table.seats.SeatCount << ", marks " << dealer << "/"
         << small << "/" << big << ", Auto Read's " << table.seats.AutoReadSeat << ", cards "
         << Cards(table.cards) << ": " << table.pass;
    return text.str();
  }

  int seat = 0, slot = 0;
  Card card = kNoCard, held = kNoCard;
  CardSpot source, target;
  literal::Table told;
  struct Gesture {
    std::string name;
    std::function<void()> make, tell;
  };
  const std::vector<Gesture> gestures = {
      {"press", [&] { PressSeat(seat); }, [&] { told.Press(seat); }},
      {"double-click", [&] { PressSeat(seat), DoubleClickSeat(seat); },
       [&] { told.Press(seat), told.Vacate(seat); }},
      {"In", ChooseIn, [&] { told.SetState(seat, In); }},
      {"Turn", [] { ChooseFold(FoldedTurn); }, [&] { told.SetState(seat, FoldedTurn); }},
      {"Empty Seat", ChooseEmpty, [&] { told.Vacate(seat); }},
      {"Me", ChooseMe, [&] { told.SitDown(seat); }},
      {"Dealer", ChooseDealer, [&] { told.GiveButton(seat); }},
      {"nine", [] { ChooseNineSeats(true); },
       [&] { told.seats.SeatCount = 9, told.SeatsChange(); }},
      {"ten", [] { ChooseNineSeats(false); },
       [&] { told.seats.SeatCount = 10, told.SeatsChange(); }},
      {"redraw", [] { RefreshTable(false); }, [&] { told.Redraw(); }},
      {"New Hand", NewHand, [&] { told.NewHand(); }},
      {"click", [&] { ClickDeckCard(card); }, [&] { told.Click(card); }},
      {"drop", [&] { DropCard(source, held, target); }, [&] { told.Drop(source, held, target); }},
      {"right-click", [&] { RightPressSlot(slot); }, [&] { told.TakeOut(slot); }},
      {"random card", [&] { DoubleClickSlot(slot); },  // any that lies nowhere
       [&] { told.PutIn(slot, slots.picHand[slot]); }}};
};

TEST_F(AnyTable, BecomesWhatTheRulesSay) {
  Kinds kinds;
  for (int round = 0; round < 1000; ++round) {
    for (const auto& [name, make, tell] : gestures) {
      Deal();
      const literal::Table before = told = Now("no pass");
      SCOPED_TRACE(testing::Message()
                   << TextOf(before) << (before.followed ? ", followed" : "") << ", street "
                   << before.street << ": " << name << " (seat " << seat << ", slot " << slot
                   << ", " << holdem::TextOf(card) << ", drop of " << holdem::TextOf(held)
                   << " from " << source.slot << " on " << target.slot << ", where "
                   << holdem::TextOf(target.deckCard) << " lies)");
      const bool canDrop = CanDropCard(source, target);
      display.shown.clear();
      const Reaction reaction = ReactionTo(make);
      tell();
      ASSERT_EQ(TextOf(Now(std::array{"no pass", "redone", "calculated"}[reaction])), TextOf(told));

      const bool moved = told.cards != before.cards;
      const bool seatsChange = told.seats != before.seats;
      for (const int place : kSlotOrder) {
        const bool shown = display.shown["slot " + std::to_string(place)] > 0;
        ASSERT_TRUE(shown || told.cards[place] == before.cards[place]) << "not drawn: " << place;
      }
      ASSERT_TRUE(display.shown["deck"] > 0 || !moved) << "the deck is not drawn";
      ASSERT_TRUE(display.shown["seats"] > 0 || !seatsChange) << "the seats are not drawn";
      const bool drop = name == "drop", click = source.slot == kNoSlot && target.slot == kNoSlot;
      ASSERT_TRUE(!(drop && moved) || canDrop != click) << "the drag shows otherwise";
      ASSERT_FALSE(canDrop && told.pass == "redone");

      const int mine = before.seats.MySeat, button = before.seats.DealerSeat;
      const auto& states = before.seats.SeatStates;
      const bool nine = before.seats.IsOfNine();
      const bool gone =
          source.slot == kNoSlot ? before.Lies(held) : before.cards[source.slot] != held;
      Meet(kinds,
           {{name + " that changes the table", 1, moved || seatsChange ? 0 : -1},
            {"players besides the user", 10, before.Players() - 1},
            {"user on the seat after", 10, mine - 1},
            {"user's state", 6, states[mine]},
            {"button on seat (0: lost)", 11, button},
            {"button on an empty seat", 2, states[button] == Empty},
            {"user on the seat that nine leave out", 2, nine ? mine == 6 : -1},
            {"button on the seat that nine leave out", 2, nine ? button == 6 : -1},
            {"gesture at an empty seat, followed", 2, states[seat] != Empty ? -1 : before.followed},
            {"street", 5, before.street},
            {"cards", 8,
             std::ranges::count_if(kSlotOrder, [&](int at) { return before.cards[at]; })},
            {"drop of a card that has gone", 2, drop ? gone : -1},
            {"drop on a filled slot", 2, drop && !gone ? told.pass == "redone" : -1}});
    }
  }
  for (const auto& [kind, times] : kinds) EXPECT_GE(times, 50) << "of " << kind;
}

// Users without a plan, and what they change with each gesture: the table, what stays from street
// to street, and before the flop the advice.
TEST_F(AnyTable, IsTakenBackGestureByGestureAndThenComesAgain) {
  const auto table = [] {
    const std::string shown = analysis.CurrentStreet == PreFlop ? results.lblAdvice : "";
    return std::tuple(Cards() + Seating() + shown, seats.SeatCount, seats.AutoReadSeat,
                      advice.StartOpponents, advice.MeterThreshold);
  };
  for (int round = 0; round < 60; ++round) {
    Deal();
    autoRead = {};
    SeatsChanged();
    history = {};
    std::vector tables = {table()};
    const std::size_t longest = round % 20 == 0 ? 500 : 0;  // that is taken back
    for (int i = 0; i < 20 || tables.size() <= longest; ++i) {
      Aim();
      gestures[random() % gestures.size()].make();
      if (table() != tables.back()) tables.push_back(table());
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
    for (const char character : std::string_view(typed))
      character == '-' ? RightPressSlot(1) : TypeCharacter(character, focused);
    EXPECT_EQ(slots.picHand, SlotsOf(after));
    EXPECT_EQ(slots.TypedSlot == kNoSlot ? "" : std::string(1, slots.TypedRank), shown);
  }
}

TEST_F(GesturesTest, TheAdviceAndTheMarkerOnTheNextSlotBlink) {
  const std::tuple<const char*, const char*, bool, Slot, const char*, const char*> cases[] = {
      // Cards and advice, whether the user wants things to flash; the slot that is next, and tick
      // by tick whether it is marked and whether the advice is lit. From the fifth on, a table is
      // followed.
      {"-- AS 9D 2C", "Fold", true, 0, "101000", "101010"},
      {"AS 9D", kThinking, true, 6, "101000", "111111"},
      {kTurnHand, "", true, 10, "101000", "000000"},
      {kRiverHand, "Fold", true, kNoSlot, "000000", "101010"},
      {"AS", "Fold", false, 1, "111100", "111111"}};
  for (const auto& [cards, text, flashing, next, marked, lit] : cases) {
    slots = {.picHand = SlotsOf(cards)};
    results = {.lblAdvice = text, .lblAdviceLit = false};
    for (int tick = 0; tick < 6; ++tick) {
      SCOPED_TRACE(testing::Message() << cards << " " << tick);
      const Slot before = slots.MarkedSlot;
      autoRead.WatchedWindow = tick < 4 ? 0 : 77;
      display.shown.clear();
      Blink(flashing);
      EXPECT_EQ(slots.MarkedSlot, marked[tick] == '1' ? next : kNoSlot);
      EXPECT_EQ(display.shown["slot " + std::to_string(next)], slots.MarkedSlot != before);
      EXPECT_EQ(results.lblAdviceLit, lit[tick] == '1');
      EXPECT_EQ(display.shown["results"], results.lblAdvice.empty() ? 0 : 1);
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
    display.shown.clear();
    EXPECT_EQ(ReactionTo(choose), first) << written;
    EXPECT_EQ(store.writes, std::vector<std::string>{written});
    EXPECT_EQ(display.shown["settings"], 1);
    EXPECT_EQ(ReactionTo(choose), again) << written;
    EXPECT_EQ(store.writes.size(), again == Nothing ? 1U : 2U);
  }
}

}  // namespace
}  // namespace holdem
