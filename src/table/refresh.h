// Redrawing the table after a change of seats, and the figures about the button that the drawing
// needs.
#pragma once

#include "state/seats.h"

namespace holdem {

// Applies the rule of the nine-seat table, redraws the seats and, when asked, runs the analysis
// pass. Nothing need have changed.
void RefreshTable(bool runAnalysis);

// What whoever changed the seats calls last: redraws them and recalculates.
void SeatsChanged();

// Whether the table has nine seats or ten; the figures follow.
void SetNineSeats(bool nineSeats);

// Moves the button to the next occupied seat. Does not redraw.
void AdvanceDealer();

// What a fold means now, by the street of the last analysis pass.
SeatState FoldStateForStreet();

// Works out where the marks of the button and the blinds are drawn when the button is at this seat.
// Outside 1..10, where no button is seen, none is drawn, and the marks of the blinds stay as they
// are. Seats that are not marked empty count; the advice has a rule of its own for the user's own
// seat (engine/analysis_pass).
void ShowDealerButton(int seat);

}  // namespace holdem
