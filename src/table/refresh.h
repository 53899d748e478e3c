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

// The seats whose button spots carry the marks; 0 where there is none.
struct ButtonMarks {
  int dealer = 0;
  int smallBlind = 0;
  int bigBlind = 0;

  bool operator==(const ButtonMarks&) const = default;
};

// The marks to show for a button at this seat; none for a seat outside 1..10.
ButtonMarks ShowDealerButton(int seat);

}  // namespace holdem
