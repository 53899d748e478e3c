// How a change reaches the analysis: it is stamped, and a running pass is asked to stop.
#pragma once

namespace holdem {

// Stamps a change of seats or cards, which the next pass takes up: the refresh timer's, if no other
// comes before. Every stamp is later than the one before, even within a millisecond, so that none
// is lost.
void MarkTableChanged();

}  // namespace holdem
