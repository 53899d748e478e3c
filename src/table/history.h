// Taking back what the user has done to cards, seats and button, and doing it again. What Auto Read
// writes is no gesture: it cannot be taken back, nor can what was done before it.
#pragma once

namespace holdem {

// Every gesture calls this before it changes anything. It may turn out to change nothing; but from
// now on what was taken back can no longer be done again.
void RememberTable();

// Called when somebody else has changed the table, so that earlier moments no longer fit it.
void ForgetHistory();

// Brings back the table as it was before the last gesture that changed it; the figures follow.
void TakeBackGesture();

// Brings back what the last call of TakeBackGesture undid, unless there has been another gesture
// since.
void RepeatGesture();

}  // namespace holdem
