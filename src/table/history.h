// Taking back what the user has done to cards, seats and button. What Auto Read writes is no
// gesture: it cannot be taken back, nor can what was done before it.
#pragma once

namespace holdem {

// What every gesture does before it changes anything. Nothing need come of it.
void RememberTable();

// The table is no longer what the gestures have made of it.
void ForgetHistory();

// The table as it was before the last gesture that changed it; the figures follow.
void TakeBackGesture();

}  // namespace holdem
