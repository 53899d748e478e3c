#include "gestures/seat_gestures.h"

#include "state/auto_read.h"
#include "table/history.h"
#include "table/refresh.h"
#include "table/seat_rules.h"

namespace holdem {
namespace {

void SetState(Seat seat, SeatState state) {
  if (!MayPlayOrFold(seat)) return;
  RememberTable();
  seats.SeatStates[seat] = state;
  SeatsChanged();
}

int OccupiedSeats() {
  int occupied = 0;
  for (int seat = 1; seat <= kSeats; ++seat) occupied += seats.IsOccupied(seat);
  return occupied;
}

void Vacate(Seat seat) {
  if (!MayBeVacated(seat)) return;
  seats.SeatStates[seat] = Empty;
  if (seat == seats.DealerSeat) AdvanceDealer();
  SeatsChanged();
}

}  // namespace

bool MayPlayOrFold(Seat seat) {
  if (seat == seats.MySeat) return false;
  return seats.SeatStates[seat] != Empty || !autoRead.Following();
}

// Counted afresh: a pass in progress may not have seen the last change.
bool MayBeVacated(Seat seat) { return seat != seats.MySeat && OccupiedSeats() > 2; }

void PressSeat(Seat seat) {
  if (!seats.Exists(seat)) return;
  SetState(seat, seats.SeatStates[seat] == In ? FoldStateForStreet() : In);
}

void DoubleClickSeat(Seat seat) { Vacate(seat); }

void EmptySeat(Seat seat) {
  RememberTable();
  Vacate(seat);
}

void ChooseNineSeats(bool nineSeats) {
  RememberTable();
  SetNineSeats(nineSeats);
}

SeatMenu OpenSeatMenu(Seat seat) {
  seats.MenuSeat = seat;
  const SeatState state = seats.SeatStates[seat];
  const bool opponent = seat != seats.MySeat;
  const bool playsOrFolds = MayPlayOrFold(seat);

  SeatMenu menu;
  menu.mnuIn = {.enabled = playsOrFolds, .checked = opponent && state == In};
  for (int folded = FoldedPreFlop; folded <= FoldedRiver; ++folded) {
    const bool first = folded == FoldedPreFlop;
    const bool matches = seats.WatchFoldDepth ? state == folded : first && IsFolded(state);
    menu.mnuFold[folded] = {.visible = first || seats.WatchFoldDepth,
                            .enabled = playsOrFolds,
                            .checked = opponent && matches};
  }
  menu.mnuFold[FoldedPreFlop].text = seats.WatchFoldDepth ? "Folded Pre-Flop" : "Folded";
  menu.mnuEmpty = {.enabled = opponent, .checked = opponent && state == Empty};
  menu.mnuMe = {.enabled = opponent};
  menu.mnuDealer = {.enabled = state != Empty,
                    .checked = state != Empty && seat == seats.DealerSeat};
  return menu;
}

void ChooseIn() { SetState(seats.MenuSeat, In); }

void ChooseFold(SeatState folded) { SetState(seats.MenuSeat, folded); }

void ChooseEmpty() { EmptySeat(seats.MenuSeat); }

void ChooseMe() {
  if (seats.MenuSeat == seats.MySeat) return;
  RememberTable();
  seats.SeatStates[seats.MySeat] = In;
  seats.SeatStates[seats.MenuSeat] = In;
  seats.MySeat = seats.AutoReadSeat = seats.MenuSeat;
  SeatsChanged();
}

void ChooseDealer() {
  if (seats.MenuSeat == seats.DealerSeat) return;
  RememberTable();
  seats.DealerSeat = seats.MenuSeat;
  SeatsChanged();
}

}  // namespace holdem
