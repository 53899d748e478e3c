// What follows a change of seats, whoever made it: the table is drawn anew, the figures worked out.
#pragma once

namespace holdem {

// Applies the rule of the nine-seat table, works out the marks of button and blinds, redraws the
// seats and, when asked, runs the analysis pass. Nothing need have changed.
void RefreshTable(bool runAnalysis);

// What whoever changed the seats calls last: redraws them and recalculates.
void SeatsChanged();

// Whether the table has nine seats or ten; the figures follow.
void SetNineSeats(bool nineSeats);

}  // namespace holdem
