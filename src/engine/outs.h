// The outs: which unseen cards would improve the user's hand. Marked by every analysis pass, before
// it simulates.
#pragma once

#include "cards/evaluator.h"

namespace holdem {

// The part of a value that counts as an improvement: the category, in two pair and full houses with
// both ranks, in straights and flushes with the top card. Never a kicker.
float HandClass(HandValue value);

// Marks every out in results.OutRows and the user's current category in the results grid. Exact:
// every card is tried once.
void MarkOuts();

}  // namespace holdem
