// The slow, plain evaluator and simulation, rule after rule: counters, loops over ranks, a deck
// drawn from card by card. The fast ones have to agree with them to the bit and the last tally, and
// their speed is measured by them.
#pragma once

#include "cards/hand.h"
#include "cards/random.h"
#include "engine/simulation.h"

namespace holdem::literal {

// The value of a filled hand of 0..7 real cards; with includeDraws the draw bonus is added.
double EvaluateHand(const Hand& hand, bool includeDraws);

// Plays so many deals on the present slots, deck, seats and analysis, drawing from the given
// generator.
SimulationTallies RunSimulation(RandomGenerator& random, int deals);

}  // namespace holdem::literal
