#include "table/seat_rules.h"

#include "state/analysis.h"

namespace holdem {

void LeaveSixthSeat() {
  seats.SeatStates[kSeatLeftOut] = Empty;
  if (seats.DealerSeat == kSeatLeftOut) seats.DealerSeat = kSeatClosingUp;
  if (seats.MySeat != kSeatLeftOut) return;
  seats.MySeat = kSeatClosingUp;
  seats.SeatStates[kSeatClosingUp] = In;
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

void MarkButtonAndBlinds(Seat seat) {
  if (seat < 1 || seat > kSeats) {
    seats.Marks.dealer = 0;
    return;
  }
  ButtonMarks marks{.dealer = seat};
  int occupied = 0;
  for (Seat next = NextSeat(seat); next != seat; next = NextSeat(next)) {
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
