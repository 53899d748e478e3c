// The slow, plain evaluator and simulation, rule after rule: counters, loops over ranks, a deck
// drawn from card by card. The fast ones have to agree with them to the bit and the last tally, and
// their speed is measured by them.
#pragma once

#include "cards/hand.h"
#include "cards/random.h"
#include "engine/simulation.h"
#include "state/analysis.h"

namespace holdem::literal {

// The value of a filled hand of 0..7 real cards; with includeDraws the draw bonus is added.
double EvaluateHand(const Hand& hand, bool includeDraws);

// Plays settings.DealsPerRun deals on the present slots and seats, of which a pass has found that,
// drawing from the given generator.
SimulationTallies RunSimulation(const Analysis& found, RandomGenerator& random);

}  // namespace holdem::literal
