#include <cstring>
#include <random>

#include "cards/deck.h"
#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/help_files.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "reference/literal_table.h"
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
      {[] { SetNineSeats(true); }, "iiii.iiiii 6 6", "iiii..iiii 5 5", Calculated}};
  for (const auto& [gesture, before, after, reaction] : cases) {
    const bool ofSeats = std::strchr(before, 'i') != nullptr;
    ofSeats ? PutSeats(before) : Put(before);
    analysis = {.PlayerCount = 10, .CurrentStreet = Flop};
    EXPECT_EQ(ReactionTo(gesture), reaction) << before << " -> " << after;
    EXPECT_EQ(ofSeats ? Seating() : Cards(), after);
  }
}

std::string MarksOf(const Seats& at) {
  return std::to_string(at.Marks.dealer) + "/" + std::to_string(at.Marks.smallBlind) + "/" +
         std::to_string(at.Marks.bigBlind);
}

// The seats of the button, the small and the big blind; 0 for nobody.
TEST_F(GesturesTest, BlindsFollowFromTheButton) {
  const std::pair<const char*, ButtonMarks> cases[] = {
      {"iiiiiiiiii 2 1", {1, 2, 3}},
      {"iiiiiiiiii 2 9", {9, 10, 1}},
      {"i.2..i.... 6 1", {1, 3, 6}},  // folded ones post as well
      {".i..i..... 2 5", {5, 5, 2}},  // two: the button posts the small blind
      {".i......i. 2 5", {5, 9, 2}},
      {".i........ 2 5", {5, 5, 2}},
      {".i........ 2 2", {2, 0, 0}},
      {"i......... 3 1", {1, 0, 0}},   // an empty seat posts nothing, be it the user's
      {"iiiiiiiiii 2 0", {7, 8, 9}}};  // no button is seen: as they were
  for (const auto& [seating, wanted] : cases) {
    PutSeats(seating);
    seats.Marks = {7, 8, 9};
    RefreshTable(false);
    EXPECT_EQ(MarksOf(seats), MarksOf({.Marks = wanted})) << seating;
  }
}

// Gestures on tables by chance, each on its own.
class AnyTable : public GesturesTest {
 protected:
  // Half of the cards are dragged from the deck, all to a slot or a deck card.
  void Deal() {
    generator.Seed(random());
    seats = {.MySeat = Pick(1, 10), .DealerSeat = Pick(0, 10), .Marks = {7, 8, 9}};
    seats.SeatCount = Pick(9, 10);
    seats.WatchFoldDepth = Pick(0, 1) == 1;
    const int empty = Pick(0, 9);  // of ten
    for (int each = 1; each <= kSeats; ++each)
      seats.SeatStates[each] = Pick(0, 9) < empty ? Empty : SeatState{Pick(In, FoldedRiver)};
    autoRead.WatchedWindow = Pick(1, 5) == 1 ? 77 : 0;
    analysis = {.PlayerCount = 10, .CurrentStreet = Street{Pick(0, 4)}};  // of another pass
    slots = {.DeckShown = true};
    deck = {};
    const int filled = Pick(0, 10);  // of ten
    for (const int place : kSlotOrder)
      if (Pick(0, 9) < filled) slots.picHand[place] = DealRandomCard();
    deck.free = 1;  // as left by a run that began before the cards were entered
    seat = Pick(1, 10);
    slot = kSlotOrder[Pick(0, 6)];
    card = Pick(1, kCardCount);
    source =
        Pick(0, 1) == 0 ? CardPlace{.deckCard = card} : CardPlace{.slot = kSlotOrder[Pick(0, 6)]};
    const CardPlace targets[] = {
        {.slot = slot}, {.slot = slot}, {.deckCard = card}, {.deckCard = 7}};
    target = targets[Pick(0, 3)];
    // Once in ten times another card lies there when it is dropped.
    held = source.slot == kNoSlot ? card : slots.picHand[source.slot];
    if (held == kNoCard || Pick(1, 10) == 1) held = card;
  }
  int Pick(int least, int most) { return least + static_cast<int>(random() % (most - least + 1)); }

  literal::Table Now(std::string pass) const {
    return {seats, slots.picHand, autoRead.Following(), analysis.CurrentStreet, pass};
  }
  static std::string TextOf(const literal::Table& table) {
    return Seating(table.seats) + (table.seats.SeatCount == 9 ? " of nine" : "") +
           (table.seats.WatchFoldDepth ? ", fold depth" : "") + ", marks " + MarksOf(table.seats) +
           ", Auto Read's " + std::to_string(table.seats.AutoReadSeat) + ": " + Cards(table.cards) +
           ": " + table.pass;
  }
  static std::string TextOf(const CardPlace& place) {
    return place.deckCard == kNoCard ? std::to_string(place.slot) : holdem::TextOf(place.deckCard);
  }
  static std::string MenuOf(const SeatMenu& menu) {
    std::string text;
    const auto add = [&](const MenuItem& item, const std::string& caption) {
      if (!item.visible) return;
      text += caption + (item.enabled ? "" : " off") + (item.checked ? " ticked" : "") + ", ";
    };
    add(menu.mnuIn, "In");
    add(menu.mnuFold[FoldedPreFlop], menu.mnuFold[FoldedPreFlop].caption);
    add(menu.mnuFold[FoldedFlop], "Folded Flop");
    add(menu.mnuFold[FoldedTurn], "Folded Turn");
    add(menu.mnuFold[FoldedRiver], "Folded River");
    add(menu.mnuEmpty, "Empty Seat");
    add(menu.mnuMe, "Me");
    add(menu.mnuDealer, "Dealer");
    return text;
  }
  void TellDrop() {
    if (source.slot != kNoSlot || target.slot != kNoSlot) {
      told.Drop(source.slot, held, target.slot);
    } else if (target.deckCard == card) {
      told.Click(card);
    }
  }

  void Count(const literal::Table& before, const std::string& doing, bool changes) {
    const auto& [states, me, button, marks, count, depth, own, menu] = before.seats;
    int players = 0;
    for (int each = 1; each <= kSeats; ++each) players += before.IsTaken(each);
    const bool press = doing == "press" && seat != me, nine = doing == "9 Plr Table";
    kinds[doing + " that changes something"] += changes;
    for (int state = Empty; state <= FoldedRiver; ++state)
      kinds["press on state " + std::to_string(state)] += press && states[seat] == state;
    for (int street = NoStreet; street <= River; ++street)
      kinds["fold on street " + std::to_string(street)] +=
          press && states[seat] == In && before.street == street;
    kinds["button on a player of two"] += players == 2 && before.IsTaken(button);
    kinds["button on no player of two"] += players == 2 && button > 0 && !before.IsTaken(button);
    kinds["alone"] += players == 1;
    kinds["one of two goes"] += doing == "double-click" && players == 2 && seat != me;
    kinds["the button goes"] += doing == "double-click" && changes && seat == button;
    kinds["no button"] += button == 0;
    kinds["user on 6 of nine"] += nine && me == 6;
    kinds["button on 6 of nine"] += nine && button == 6;
    kinds["player on 6 of nine"] += nine && states[6] != Empty;
    kinds["user takes the button"] += doing == "Dealer" && seat == me && changes;
    kinds["New Hand while following"] += doing == "New Hand" && before.followed;
    kinds["New Hand with the user folded"] += doing == "New Hand" && states[me] > In;
    kinds["New Hand with the user's seat empty"] += doing == "New Hand" && states[me] == Empty;
    kinds["all slots full"] += doing == "click card" && !changes && !before.Lies(card);
    kinds["fold depth watched"] += depth;
  }

  std::map<std::string, int> kinds;
  std::minstd_rand random;
  int seat = 0, slot = 0;
  Card card = kNoCard, held = kNoCard;
  CardPlace source, target;
  literal::Table told;
};

TEST_F(AnyTable, BecomesWhatTheRulesSay) {
  const std::tuple<const char*, std::function<void()>, std::function<void()>> gestures[] = {
      {"press", [&] { PressSeat(seat); }, [&] { told.Press(seat); }},
      {"double-click", [&] { DoubleClickSeat(seat); }, [&] { told.Vacate(seat); }},
      {"In", ChooseIn, [&] { told.Fold(In); }},
      {"Folded Turn", [] { ChooseFold(FoldedTurn); }, [&] { told.Fold(FoldedTurn); }},
      {"Empty Seat", ChooseEmpty, [&] { told.Vacate(seat); }},
      {"Me", ChooseMe, [&] { told.SitDown(); }},
      {"Dealer", ChooseDealer, [&] { told.GiveButton(); }},
      {"9 Plr Table", [] { ChooseNineSeats(true); }, [&] { told.ChooseSeatCount(9); }},
      {"ten again", [] { ChooseNineSeats(false); }, [&] { told.ChooseSeatCount(10); }},
      {"redraw", [] { RefreshTable(false); }, [&] { told.Redraw(); }},
      {"New Hand", NewHand, [&] { told.NewHand(); }},
      {"click card", [&] { ClickDeckCard(card); }, [&] { told.Click(card); }},
      {"drop", [&] { DropCard(source, held, target); }, [&] { TellDrop(); }},
      {"right-click slot", [&] { RightPressSlot(slot); }, [&] { told.TakeOut(slot); }},
      // Any card that lies nowhere will do.
      {"double-click slot", [&] { DoubleClickSlot(slot); },
       [&] { told.PutIn(slot, slots.picHand[slot]); }}};
  std::set<Card> dealt;
  for (int round = 0; round < 1000; ++round) {
    for (const auto& [name, gesture, tell] : gestures) {
      Deal();
      told = Now("no pass");
      SCOPED_TRACE(testing::Message()
                   << TextOf(told) << (told.followed ? ", followed" : "") << ", street "
                   << told.street << "\n"
                   << name << " (seat " << seat << ", slot " << slot << ", " << holdem::TextOf(card)
                   << "; drop of " << holdem::TextOf(held) << " from " << TextOf(source) << " on "
                   << TextOf(target) << ")");
      ASSERT_EQ(MenuOf(OpenSeatMenu(seat)), told.Menu(seat));
      const literal::Table before = told;
      const bool canDrop = CanDropCard(source, target);
      display.shown.clear();
      const Reaction reaction = ReactionTo(gesture);
      tell();
      ASSERT_EQ(TextOf(Now(std::array{"no pass", "redone", "calculated"}[reaction])), TextOf(told));

      const bool moved = told.cards != before.cards;
      for (const int place : kSlotOrder) {
        if (told.cards[place] == before.cards[place]) continue;
        ASSERT_GT(display.shown["slot " + std::to_string(place)], 0) << "not drawn anew: " << place;
      }
      ASSERT_TRUE(!moved || display.shown["deck"] > 0) << "the deck is not drawn anew";
      ASSERT_TRUE(told.seats == before.seats || display.shown["seats"] > 0) << "nor the seats";

      const std::string doing = name;
      const bool there =
          source.slot == kNoSlot ? !before.Lies(card) : before.cards[source.slot] == held;
      if (doing == "drop" && there) {
        ASSERT_EQ(canDrop,
                  moved && source.slot + target.slot != 2 * kNoSlot);  // a click is no drop
      }
      if (doing == "double-click slot" && moved) dealt.insert(told.cards[slot]);
      Count(before, doing, moved || told.seats != before.seats);
      kinds["dropped on a card"] += told.pass == "redone";
      kinds["gone when dropped"] += doing == "drop" && !there;
    }
  }
  EXPECT_EQ(dealt.size(), kCardCount);
  for (const auto& [kind, times] : kinds) EXPECT_GE(times, 5) << kind;
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
