#include "table/refresh.h"

#include "engine/analysis_pass.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "state/analysis.h"

namespace holdem {
namespace {

// At a table of nine, seat 6 does not exist: whoever is there moves to seat 5.
void CloseSeatSix() {
  seats.SeatStates[6] = Empty;
  if (seats.MySeat == 6) seats.MySeat = 5;
  if (seats.DealerSeat == 6) seats.DealerSeat = 5;
}

}  // namespace

void RefreshTable(bool runAnalysis) {
  if (seats.SeatCount == 9) CloseSeatSix();
  ShowDealerButton(seats.DealerSeat);
  ports.display->ShowSeats();
  if (runAnalysis) RunAnalysis();
}

void SeatsChanged() {
  RefreshTable(false);
  Recalculate();
}

void SetNineSeats(bool nineSeats) {
  seats.SeatCount = nineSeats ? 9 : 10;
  SeatsChanged();
}

void AdvanceDealer() {
  do {
    seats.DealerSeat = NextSeat(seats.DealerSeat);
  } while (!seats.IsOccupied(seats.DealerSeat));
}

SeatState FoldStateForStreet() {
  const Street street = analysis.CurrentStreet;
  return street >= Flop ? static_cast<SeatState>(street + 1) : FoldedPreFlop;
}

void ShowDealerButton(int seat) {
  if (seat < 1 || seat > kSeats) {
    seats.Marks.dealer = 0;
    return;
  }
  ButtonMarks marks{.dealer = seat};
  int occupied = 0;
  for (int next = NextSeat(seat); next != seat; next = NextSeat(next)) {
    if (seats.SeatStates[next] == Empty) continue;
    ++occupied;
    if (occupied == 1) marks.smallBlind = next;
    if (occupied == 2) marks.bigBlind = next;
  }
  if (occupied == 1) {  // heads-up, the button posts the small blind
    marks.bigBlind = marks.smallBlind;
    marks.smallBlind = seat;
  }
  seats.Marks = marks;
}

}  // namespace holdem
