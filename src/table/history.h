// Taking back what the user has done to cards, seats and button, and doing it again. What Auto Read
// writes is no gesture: it cannot be taken back, nor can what was done before it.
#pragma once

namespace holdem {

// What every gesture does before it changes anything. Nothing need come of it, but what was taken
// back does not come again.
void RememberTable();

// The table is no longer what the gestures have made of it.
void ForgetHistory();

// The table as it was before the last gesture that changed it; the figures follow.
void TakeBackGesture();

// The table as it was before the last gesture was taken back, as long as there was no other.
void RepeatGesture();

}  // namespace holdem
