// The slow, plain evaluator, simulation and analysis pass, rule after rule as they are told:
// counters, loops over ranks, a deck drawn from card by card. The program has to agree with them to
// the bit and the last tally, and the engine's speed is measured by them. They read the same seats,
// cards and settings as the program.
#pragma once

#include "cards/hand.h"
#include "cards/random.h"
#include "engine/simulation.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/results.h"

namespace holdem::literal {

// The value of a filled hand of 0..7 real cards; with includeDraws the draw bonus is added.
double EvaluateHand(const Hand& hand, bool includeDraws);

// Plays settings.DealsPerRun deals on the present slots and seats, of which a pass has found that,
// drawing from the given generator.
SimulationTallies RunSimulation(const Analysis& found, RandomGenerator& random);

// All that a pass works out.
struct Figures {
  Analysis analysis;
  AdviceValues advice;
  Results results;
};

// One pass after those figures. With a change it blanks, and simulates where the cards allow it:
// returns what that run has counted, nothing when there was none.
SimulationTallies Pass(Figures& figures, bool changed, RandomGenerator& random);

void ShowAdvice(Figures& figures, double score);

// The zone of the advice: 0 below -0.5, 1 below 0, 2 below 0.5 .. 5 from 1.5.
int BandOf(double score);

}  // namespace holdem::literal
