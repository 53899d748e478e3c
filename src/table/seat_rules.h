// The rules of seats and button that gestures and Auto Read share. None of them redraws.
#pragma once

#include "state/seats.h"

namespace holdem {

// A table of nine has no seat 6: it becomes empty, and a user or button there moves to seat 5.
void LeaveSixthSeat();

// Moves the button to the next occupied seat.
void AdvanceDealer();

// What a fold means now, by the street of the last analysis pass.
SeatState FoldStateForStreet();

// Works out where the marks of the button and the blinds are drawn when the button is at this seat.
// Outside 1..10, where no button is seen, none is drawn, and the marks of the blinds stay as they
// are. Seats that are not marked empty count; the advice has a rule of its own for the user's own
// seat (engine/analysis_pass).
void MarkButtonAndBlinds(Seat seat);

}  // namespace holdem
