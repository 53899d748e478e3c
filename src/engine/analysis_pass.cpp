#include "engine/analysis_pass.h"

#include <algorithm>

#include "advice/post_flop.h"
#include "advice/pre_flop.h"
#include "advice/show_advice.h"
#include "cards/deck.h"
#include "cards/description.h"
#include "engine/outs.h"
#include "engine/results_grid.h"
#include "engine/run_protocol.h"
#include "engine/simulation.h"
#include "figures/percent_text.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/results.h"
#include "state/run.h"
#include "state/slots.h"

namespace holdem {
namespace {

void CountSeats() {
  analysis.FoldedCount = static_cast<int>(std::ranges::count_if(seats.SeatStates, IsFolded));

  int occupied = 0;
  int live = 0;
  Seat seat = seats.DealerSeat;
  for (int visited = 0; visited < kSeats; ++visited) {
    seat = NextSeat(seat);
    if (seats.IsOccupied(seat)) ++occupied;
    if (seats.IsLive(seat)) ++live;
    if (seat == seats.MySeat) {
      analysis.MyTablePosition = occupied;
      analysis.MyLivePosition = live;
    }
  }
  analysis.PlayerCount = occupied;
  analysis.PositionPercent =
      live > 1 ? RoundHalfEven(100.0 / (live - 1) * (analysis.MyLivePosition - 1)) : 100;
}

// The blinds that the advice goes by: counted over the occupied seats, folded players included. The
// user's own seat is occupied even while it is marked empty, which MarkButtonAndBlinds, for the
// marks on the table, does not say of it.
void AssignBlinds() {
  const bool headsUp = analysis.PlayerCount == 2;  // then the button posts the small blind
  const bool isButton = seats.DealerSeat == seats.MySeat;
  analysis.IsSmallBlind = headsUp ? isButton : analysis.MyTablePosition == 1;
  analysis.IsBigBlind = headsUp ? !isButton : analysis.MyTablePosition == 2;
}

Street StreetOfCards() {
  if (MissingForAStreet() != Missing::Nothing) return NoStreet;
  return analysis.EmptyBoardSlots == 5 ? PreFlop
                                       : static_cast<Street>(River - analysis.EmptyBoardSlots);
}

// A fold on a street that the cards have not reached counts as one on the current street.
void CountFoldsByStreet() {
  const int latest = std::max(analysis.CurrentStreet + 1, static_cast<int>(FoldedPreFlop));
  analysis.FoldsByStreet.fill(0);
  for (const SeatState state : seats.SeatStates) {
    if (IsFolded(state)) ++analysis.FoldsByStreet[std::min<int>(state, latest)];
  }
}

void BlankResults() {
  results.lblAdvice.clear();
  results.lblMe.fill("");
  results.lblThem.fill("");
  Think(kNoScore);
}

void ValueMyHand() {
  Hand known;
  int count = 0;
  for (const Slot slot : kSlotOrder) {
    if (slots.IsFilled(slot)) known.entries[++count].card = slots.picHand[slot];
  }
  FillHand(known, count);
  analysis.MyHandValue = EvaluateHand(known);
  results.lblCurrentScore =
      analysis.MyHandValue > 0 ? DescribeHand(analysis.MyHandValue) : std::string();
}

void SimulationStep() {
  results.lblAdvice = kThinking;
  results.lblAdviceLit = true;
  ports.display->ShowResults();
  RunSimulation();
  if (run.Ending) return;
  FillResultsGrid();
  PostFlopStep();
}

}  // namespace

Missing MissingForAStreet() {
  const auto filled = [](Slot slot) { return slots.IsFilled(slot); };
  if (!std::ranges::all_of(kHoleSlots, filled)) return Missing::HoleCards;
  if (std::ranges::none_of(kBoardSlots, filled)) return Missing::Nothing;
  if (!std::all_of(kBoardSlots.begin(), kBoardSlots.begin() + 3, filled)) return Missing::FlopCards;
  if (filled(kRiverSlot) && !filled(kTurnSlot)) return Missing::Turn;
  const bool contested = analysis.PlayerCount - analysis.FoldedCount > 1;
  return contested ? Missing::Nothing : Missing::Opponents;
}

void RebuildDeck() {
  deck = {};
  for (const Slot slot : kSlotOrder) {
    if (slots.IsFilled(slot)) deck.Use(slots.picHand[slot]);
  }
}

void RunAnalysis() {
  if (run.Ending) return;
  if (run.Calculating) {
    MarkTableChanged();
    return;
  }
  // A change during the last pass set RecalcNeeded, but that pass cleared it when it ended; the
  // stamp remains.
  if (IsLater(run.LastChangeTicks, run.LastCalcTicks)) run.RecalcNeeded = true;
  run.LastCalcTicks = run.LastChangeTicks;
  if (!slots.DeckShown) return;
  run.Calculating = true;

  analysis.EmptyBoardSlots = static_cast<int>(
      std::ranges::count_if(kBoardSlots, [](Slot slot) { return !slots.IsFilled(slot); }));
  CountSeats();
  AssignBlinds();
  analysis.CurrentStreet = StreetOfCards();
  const bool simulationDue = analysis.CurrentStreet >= Flop && run.RecalcNeeded;
  CountFoldsByStreet();
  if (run.RecalcNeeded) BlankResults();
  ValueMyHand();
  if (analysis.CurrentStreet == PreFlop && analysis.PlayerCount > 1) PreFlopStep();
  RebuildDeck();
  MarkOuts();
  ports.display->ShowDeck();
  if (simulationDue) SimulationStep();

  run.RecalcNeeded = false;
  run.Calculating = false;
  if (!run.Ending) ports.display->ShowResults();
}

void Recalculate() {
  run.RecalcNeeded = true;
  RunAnalysis();
}

void CheckRefresh() {
  if (!run.Calculating && IsLater(run.LastChangeTicks, run.LastCalcTicks)) RunAnalysis();
}

}  // namespace holdem
