#include "table/seat_gestures.h"

#include "engine/analysis_pass.h"
#include "fakes/table_fixture.h"
#include "state/analysis.h"
#include "table/refresh.h"

namespace holdem {
namespace {

class SeatGesturesTest : public TableTest {};

// The menu of a seat, and an item of it.
template <typename Item>
auto On(int seat, Item item) {
  return [=] {
    OpenSeatMenu(seat);
    item();
  };
}
auto Fold(int seat, SeatState state) {
  return On(seat, [=] { ChooseFold(state); });
}

TEST_F(SeatGesturesTest, ChangeSeatsUserAndButton) {
  const std::string full = "iiiiiiiiii 2 1";
  const struct {
    std::function<void()> gesture;
    std::string before, after;  // when the same, nothing is set off
  } cases[] = {{[] { PressSeat(2); }, full, full},
               {[] { PressSeat(2); }, "i3iiiiiiii 2 1", "i3iiiiiiii 2 1"},
               {[] { PressSeat(4); }, full, "iii3iiiiii 2 1"},
               {[] { PressSeat(4); }, "iii2iiiiii 2 1", full},
               {[] { PressSeat(4); }, "iii5iiiiii 2 1", full},
               {[] { PressSeat(4); }, "iii.iiiiii 2 1", full},
               {[] { DoubleClickSeat(2); }, full, full},
               {[] { DoubleClickSeat(4); }, "iii3iiiiii 2 1", "iii.iiiiii 2 1"},
               {[] { DoubleClickSeat(4); }, ".i.3...... 2 4", ".i.3...... 2 4"},
               {[] { DoubleClickSeat(4); }, "2i.3...... 2 1", "2i........ 2 1"},
               {[] { DoubleClickSeat(4); }, "iiii.3iiii 2 4", "iii..3iiii 2 6"},
               {[] { DoubleClickSeat(10); }, ".ii......i 3 10", ".ii....... 3 2"},
               {[] { DoubleClickSeat(8); }, "i..i...i.. 9 8", "i..i...... 9 9"},
               {[] { DoubleClickSeat(4); }, "i..i...... 2 1", "i......... 2 1"},
               {On(2, ChooseIn), "i3iiiiiiii 2 1", "i3iiiiiiii 2 1"},
               {On(4, ChooseIn), "iii4iiiiii 2 1", full},
               {On(4, ChooseIn), "iii.iiiiii 2 1", full},
               {Fold(2, FoldedFlop), full, full},
               {Fold(4, FoldedPreFlop), full, "iii2iiiiii 2 1"},
               {Fold(1, FoldedFlop), full, "3iiiiiiiii 2 1"},
               {Fold(4, FoldedTurn), "iii.iiiiii 2 1", "iii4iiiiii 2 1"},
               {Fold(10, FoldedRiver), full, "iiiiiiiii5 2 1"},
               {On(2, ChooseEmpty), full, full},
               {On(4, ChooseEmpty), full, "iii.iiiiii 2 1"},
               {On(4, ChooseEmpty), ".i.i...... 2 1", ".i.i...... 2 1"},
               {On(4, ChooseEmpty), ".i.ii..... 2 1", ".i..i..... 2 1"},
               {On(1, ChooseEmpty), "i..ii..... 5 1", "...ii..... 5 4"},
               {On(2, ChooseMe), "i3iiiiiiii 2 1", "i3iiiiiiii 2 1"},
               {On(7, ChooseMe), "i3iiii.iii 2 1", "iiiiiiiiii 7 1"},
               {On(7, ChooseMe), "i.iiii3iii 2 1", "iiiiiiiiii 7 1"},
               {On(4, ChooseDealer), full, "iiiiiiiiii 2 4"},
               {On(2, ChooseDealer), full, "iiiiiiiiii 2 2"},
               {On(1, ChooseDealer), full, full},
               {[] { SetNineSeats(true); }, full, "iiiii.iiii 2 1"},
               {[] { SetNineSeats(true); }, "iiii.iiiii 6 6", "iiii..iiii 5 5"},
               {[] { SetNineSeats(true); }, "i....i.... 1 6", "i......... 1 5"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.before + " -> " + c.after);
    seats = {};
    Seat(c.before);
    Put(kFlopHand);
    RunAnalysis();
    display.seatsShown = 0;
    analysis.CurrentStreet = Flop;
    EXPECT_EQ(ReactionTo(c.gesture), c.before == c.after ? Nothing : Calculated);
    EXPECT_EQ(Seating(), c.after);
    EXPECT_EQ(display.seatsShown, c.before == c.after ? 0 : 1);
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
    Seat("iiiiiiiiii 2 1");
    RunAnalysis();
    PressSeat(9);
    EXPECT_EQ(seats.SeatStates[9], state) << cards;
  }
}

// Two gestures in the middle of a run, which has counted three players: only one seat may be
// emptied.
TEST_F(SeatGesturesTest, CountsTheSeatsAfreshWhileAPassRuns) {
  for (void (*empty)(int) : {+[](int seat) { On(seat, ChooseEmpty)(); }, +DoubleClickSeat}) {
    Seat("iii....... 2 1");
    Put(kFlopHand);
    display.yields = 0;
    display.atYield = [&](int yield) {
      for (const int seat : {1, 3}) yield == 3 ? empty(seat) : void();
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
      {4, "iii.iiiiii 2 1", "oo...xo-", "oooooxo-"}, {4, "iiiiiiiiii 2 1", "xo...ooo", "xooooooo"},
      {4, "iii2iiiiii 2 1", "ox...ooo", "oxoooooo"}, {4, "iii3iiiiii 2 1", "ox...ooo", "ooxooooo"},
      {4, "iii4iiiiii 2 1", "ox...ooo", "oooxoooo"}, {4, "iii5iiiiii 2 4", "ox...oox", "ooooxoox"},
      {4, "iii.iiiiii 2 4", "oo...xo-", "oooooxo-"}, {2, "iiiiiiiiii 2 1", "--...--o", "-------o"},
      {2, "i3iiiiiiii 2 2", "--...--x", "-------x"}};
  for (const auto& c : cases) {
    for (const bool watch : {false, true}) {
      Seat(c.seating);
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
  } cases[] = {{"iiiiiiiiii 2 1", {1, 2, 3}, 2},   {"iiiiiiiiii 2 9", {9, 10, 1}, 10},
               {"i..2..i..i 1 10", {10, 1, 4}, 1}, {"i..2...... 1 1", {1, 1, 4}, 4},
               {"i..2...... 1 4", {4, 4, 1}, 1},   {"i......... 1 1", {1, 0, 0}, 1},
               {"i..2...... 6 1", {1, 1, 4}, 4},   {"i..2...... 6 4", {4, 4, 1}, 6},
               {"i..2...... 1 7", {7, 1, 4}, 1},   {".i........ 2 0", {0, 0, 0}, 2}};
  for (const auto& c : cases) {
    Seat(c.seating);
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
