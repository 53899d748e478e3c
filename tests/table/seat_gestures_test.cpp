#include "table/seat_gestures.h"

#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "state/analysis.h"
#include "table/refresh.h"

namespace holdem {
namespace {

class SeatGesturesTest : public ProgramTest {};

// Gestures by name: "press 4", "double 4", an item of a seat's menu as in "me 7" or "fold3 4"
// (with the state that it gives), "nine".
void Do(const std::string& gesture) {
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

TEST_F(SeatGesturesTest, AFoldIsOfTheStreetThatTheCardsStandOn) {
  const std::pair<const char*, SeatState> cases[] = {
      {"", FoldedPreFlop},     {"AS 9D", FoldedPreFlop}, {"AS 9D 2C", FoldedPreFlop},
      {kFlopHand, FoldedFlop}, {kTurnHand, FoldedTurn},  {kRiverHand, FoldedRiver}};
  for (const auto& [cards, state] : cases) {
    Put(cards);
    PutSeats("iiiiiiiiii 2 1");
    RunAnalysis();
    PressSeat(9);
    EXPECT_EQ(seats.SeatStates[9], state) << cards;
  }
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
    run.RecalcNeeded = true;
    RunAnalysis();
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
               {"i..2...... 1 7", {7, 1, 4}, 1},   {".i........ 2 0", {0, 0, 0}, 2}};
  for (const auto& c : cases) {
    PutSeats(c.seating);
    EXPECT_EQ(ShowDealerButton(seats.DealerSeat), c.marks) << c.seating;
    run.RecalcNeeded = false;
    AdvanceDealer();
    EXPECT_EQ(seats.DealerSeat, c.next) << c.seating;
    EXPECT_TRUE(run.RecalcNeeded);
  }
  EXPECT_EQ(ShowDealerButton(11), ButtonMarks());
}

}  // namespace
}  // namespace holdem
