// The slow, plain simulation: hand records, a deck of flags walked card by card, every hand valued
// by the literal evaluator. From one and the same generator state it gives the very tallies of the
// real one.
#pragma once

#include "cards/random.h"
#include "engine/simulation.h"
#include "state/results.h"

namespace holdem::literal {

// Uniform in [0, 1): 24 bits, so the result is exact in single precision and below 1.
float NextFloat(RandomGenerator& random);

// Plays so many deals on the present slots, deck, seats and analysis, drawing from the given
// generator.
SimulationTallies RunSimulation(RandomGenerator& random, int deals);

// The grid that the tallies make for the present street and hand.
Results ResultsOf(const SimulationTallies& tallies);

}  // namespace holdem::literal
