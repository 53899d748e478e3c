// The slow, plain evaluator: counters, loops over ranks and look-ups of single cards, rule after
// rule. The fast one has to agree with it to the bit, and its speed is measured by it.
#pragma once

#include "cards/hand.h"

namespace holdem::literal {

// The value of a filled hand of 0..7 real cards; with includeDraws the draw bonus is added.
double EvaluateHand(const Hand& hand, bool includeDraws);

}  // namespace holdem::literal
