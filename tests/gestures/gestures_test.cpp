#include <random>

#include "cards/deck.h"
#include "fakes/approved.h"
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

std::string MarksOf(const ButtonMarks& marks) {
  return std::to_string(marks.dealer) + "/" + std::to_string(marks.smallBlind) + "/" +
         std::to_string(marks.bigBlind);
}

// The seats of the button, the small and the big blind; 0 for nobody. Folded ones post as well; of
// two, the button posts the small blind. An empty seat posts nothing, be it the user's.
TEST_F(GesturesTest, BlindsFollowFromTheButton) {
  const std::pair<const char*, const char*> cases[] = {
      {"iiiiiiiiii 2 9", "9/10/1"}, {"i.2..i.... 6 1", "1/3/6"}, {".i..i..... 2 5", "5/5/2"},
      {".i......i. 2 5", "5/9/2"},  {".i........ 2 2", "2/0/0"}, {"i......... 3 1", "1/0/0"},
      {"iiiiiiiiii 2 0", "0/8/9"}};  // of a button that is not seen, only the blinds' marks stay
  for (const auto& [seating, wanted] : cases) {
    PutSeats(seating);
    seats.Marks = {7, 8, 9};
    RefreshTable(false);
    EXPECT_EQ(MarksOf(seats.Marks), wanted) << seating;
  }
}

TEST_F(GesturesTest, TheSeatMenuStandsAsTheSeatDoes) {
  std::string text;
  for (const bool watchFoldDepth : {false, true}) {
    if (watchFoldDepth) FollowATable();
    for (const char* seating : {".i2345i... 7 2", ".i2345.... 7 7"}) {
      PutSeats(seating);
      seats.WatchFoldDepth = watchFoldDepth;
      for (int seat = 1; seat <= 7; ++seat) {
        const auto [in, folds, empty, me, dealer] = OpenSeatMenu(seat);
        text += Seating() + (watchFoldDepth ? " fold depth, followed, " : ", ") +
                std::to_string(seat) + ":";
        for (const auto& [caption, item] : {std::pair("In", in),
                                            {folds[2].caption.c_str(), folds[2]},
                                            {"Flop", folds[3]},
                                            {"Turn", folds[4]},
                                            {"River", folds[5]},
                                            {"Empty", empty},
                                            {"Me", me},
                                            {"Dealer", dealer}}) {
          if (!item.visible) continue;
          text +=
              std::string(" ") + caption + (item.enabled ? "" : "-") + (item.checked ? "*," : ",");
        }
        text += "\n";
      }
    }
  }
  ExpectApproved("seat_menu", text);
}

// Gestures on tables by chance, each on its own.
class AnyTable : public GesturesTest {
 protected:
  void Deal() {
    generator.Seed(random());
    seats = {.MySeat = Pick(1, 10), .DealerSeat = Pick(0, 10), .Marks = {7, 8, 9}};
    seats.SeatCount = Pick(9, 10);
    const int empty = Pick(0, 9), filled = Pick(0, 10);  // of ten
    for (int each = 1; each <= kSeats; ++each)
      seats.SeatStates[each] = Pick(0, 9) < empty ? Empty : SeatState{Pick(In, FoldedRiver)};
    autoRead.WatchedWindow = Pick(1, 5) == 1 ? 77 : 0;
    analysis = {.PlayerCount = 10, .CurrentStreet = Street{Pick(0, 4)}};  // of another pass
    slots = {.DeckShown = true};
    deck = {};
    for (const int place : kSlotOrder)
      if (Pick(0, 9) < filled) slots.picHand[place] = DealRandomCard();
    deck.free = 1;  // as left by a run that began before the cards were entered
    seat = seats.MenuSeat = Pick(1, 10);
    slot = kSlotOrder[Pick(0, 6)];
    card = Pick(1, kCardCount);
    source = CardPlace{.deckCard = card};
    if (Pick(0, 1) == 1) source = {.slot = kSlotOrder[Pick(0, 6)]};
    target =
        std::array<CardPlace, 3>{{{.slot = slot}, {.deckCard = card}, {.deckCard = 7}}}[Pick(0, 2)];
    // Once in ten times another card lies there when it is dropped.
    held = source.slot == kNoSlot ? card : slots.picHand[source.slot];
    if (held == kNoCard || Pick(1, 10) == 1) held = card;
  }
  int Pick(int least, int most) { return least + static_cast<int>(random() % (most - least + 1)); }
  literal::Table Now(const char* pass) const {
    return {seats, slots.picHand, autoRead.Following(), analysis.CurrentStreet, pass};
  }
  static std::string TextOf(const literal::Table& table) {
    return Seating(table.seats) + " of " + std::to_string(table.seats.SeatCount) + ", marks " +
           MarksOf(table.seats.Marks) + ", Auto Read's " +
           std::to_string(table.seats.AutoReadSeat) + ", cards " + Cards(table.cards) + ": " +
           table.pass;
  }
  static std::string TextOf(const CardPlace& place) {
    return place.deckCard == kNoCard ? std::to_string(place.slot) : holdem::TextOf(place.deckCard);
  }
  void Count(const literal::Table& before, const std::string& doing, bool changes) {
    const auto& [states, me, button, marks, count, depth, own, menu] = before.seats;
    const bool press = doing == "press" && seat != me,
               emptied = doing == "double-click" && seat != me;
    const bool newHand = doing == "New Hand", two = before.Players() == 2;
    const std::pair<std::string, bool> holding[] = {
        {doing, changes},
        {"press on state " + std::to_string(states[seat]), press},
        {"press on an empty seat, followed", press && before.followed && states[seat] == Empty},
        {"no button", button == 0},
        {"fold on street " + std::to_string(before.street), press && states[seat] == In},
        {"button on one of two", two && before.IsTaken(button)},
        {"two, button on an empty seat", two && button > 0 && !before.IsTaken(button)},
        {"alone", before.Players() == 1},
        {"one of two to go", emptied && two},
        {"the button goes", emptied && changes && seat == button},
        {"nine, user on 6", doing == "nine" && me == 6},
        {"nine, button on 6", doing == "nine" && button == 6},
        {"nine, player on 6", doing == "nine" && states[6] != Empty},
        {"user takes the button", doing == "Dealer" && seat == me && changes},
        {"New Hand while following", newHand && before.followed},
        {"New Hand, user folded", newHand && states[me] > In},
        {"New Hand, user's seat empty", newHand && states[me] == Empty},
        {"click, all slots full", doing == "click" && !changes && !before.Lies(card)},
        {"dropped on a card", told.pass == "redone"}};
    for (const auto& [kind, is] : holding) kinds[kind] += is;
  }

  std::minstd_rand random;
  std::map<std::string, int> kinds;
  int seat = 0, slot = 0;
  Card card = kNoCard, held = kNoCard;
  CardPlace source, target;
  literal::Table told;
};

TEST_F(AnyTable, BecomesWhatTheRulesSay) {
  const auto tellDrop = [&] {
    if (source.slot != kNoSlot || target.slot != kNoSlot)
      told.Drop(source.slot, held, target.slot);
    else if (target.deckCard == card)
      told.Click(card);
  };
  const std::tuple<const char*, std::function<void()>, std::function<void()>> gestures[] = {
      {"press", [&] { PressSeat(seat); }, [&] { told.Press(seat); }},
      {"double-click", [&] { DoubleClickSeat(seat); }, [&] { told.Vacate(seat); }},
      {"In", ChooseIn, [&] { told.SetState(seat, In); }},
      {"Turn", [] { ChooseFold(FoldedTurn); }, [&] { told.SetState(seat, FoldedTurn); }},
      {"Empty Seat", ChooseEmpty, [&] { told.Vacate(seat); }},
      {"Me", ChooseMe, [&] { told.SitDown(seat); }},
      {"Dealer", ChooseDealer, [&] { told.GiveButton(seat); }},
      {"nine", [] { ChooseNineSeats(true); }, [&] { told.ChooseSeatCount(9); }},
      {"ten", [] { ChooseNineSeats(false); }, [&] { told.ChooseSeatCount(10); }},
      {"redraw", [] { RefreshTable(false); }, [&] { told.Redraw(); }},
      {"New Hand", NewHand, [&] { told.NewHand(); }},
      {"click", [&] { ClickDeckCard(card); }, [&] { told.Click(card); }},
      {"drop", [&] { DropCard(source, held, target); }, tellDrop},
      {"right-click", [&] { RightPressSlot(slot); }, [&] { told.TakeOut(slot); }},
      {"random card", [&] { DoubleClickSlot(slot); },  // any that lies nowhere
       [&] { told.PutIn(slot, slots.picHand[slot]); }}};
  for (int round = 0; round < 1000; ++round) {
    for (const auto& [name, gesture, tell] : gestures) {
      Deal();
      const literal::Table before = told = Now("no pass");
      SCOPED_TRACE(testing::Message()
                   << TextOf(before) << (before.followed ? ", followed" : "") << ", street "
                   << before.street << ": " << name << " (seat " << seat << ", slot " << slot
                   << ", " << holdem::TextOf(card) << ", drop of " << holdem::TextOf(held)
                   << " from " << TextOf(source) << " on " << TextOf(target) << ")");
      const bool canDrop = CanDropCard(source, target);
      display.shown.clear();
      const Reaction reaction = ReactionTo(gesture);
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
      if (name == std::string("drop") && moved) {
        ASSERT_EQ(canDrop, source.slot != kNoSlot || target.slot != kNoSlot);  // else it is a click
      }
      ASSERT_FALSE(canDrop && told.pass == "redone");
      Count(before, name, moved || seatsChange);
    }
  }
  for (const auto& [kind, times] : kinds) EXPECT_GE(times, 5) << kind;
  EXPECT_EQ(kinds.size(), 15 + 6 + 5 + 16);
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
