// The analysis pass with all that it shows, step after step as the rules tell it: seats, street and
// folds, advice before and after the flop, outs and results grid. It reads the same seats, cards
// and settings as the program, and has to come to the same figures.
#pragma once

#include "cards/random.h"
#include "engine/simulation.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/results.h"

namespace holdem::literal {

// All that a pass works out.
struct Figures {
  Analysis analysis;
  AdviceValues advice;
  Results results;
};

// One pass after those figures. With a change it blanks, and simulates where the cards allow it:
// returns what that run has counted, nothing when there was none.
SimulationTallies Pass(Figures& figures, bool changed, RandomGenerator& random);

// What a run of the simulation ends with: the results grid, the chance and the advice.
void EndRun(Figures& figures, const SimulationTallies& tallies);

// The zone of the advice: 0 below -0.5, 1 below 0, 2 below 0.5 .. 5 from 1.5.
int BandOf(double score);

void ShowAdvice(Figures& figures, double score);

}  // namespace holdem::literal
