// The texts of the results grid from the flop on. advice/pre_flop writes those before the flop.
#pragma once

#include "cards/evaluator.h"

namespace holdem {

// Marks the row of the user's hand, "Current" or, with all cards known, "Final"; none for a high
// card.
void MarkCurrentCategory(HandValue known);

// The shares of the last run's deals, and the mark. REQUIRES: a run has dealt.
void FillResultsGrid();

}  // namespace holdem
