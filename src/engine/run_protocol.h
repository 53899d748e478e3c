// How a change reaches the analysis: it is stamped, a running pass is asked to stop, and the
// refresh timer starts a fresh one.
#pragma once

namespace holdem {

// Stamps a change of seats or cards. Every stamp is later than the one before, even within a
// millisecond, so that none is lost.
void MarkTableChanged();

// What the refresh timer does every 100 ms: starts a pass when a change came after the last one
// started.
void CheckRefresh();

}  // namespace holdem
