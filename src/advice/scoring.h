// From a chance to win to an advice score: how many fair shares the user's seat and level ask for,
// and where the chance lies against them. Shared by the steps before and after the flop.
#pragma once

#include <initializer_list>

namespace holdem {

// What the level adds to the factor; a level outside Tight..Loose advises as Avg.
double LevelStep(int level);

// What the acting position adds: early asks for more, late for less, the last player for
// lastToAct less.
double PositionStep(int positionPercent, double lastToAct);

// What a hand dealt to two players adds.
double HeadsUpStep(int startOpponents);

// The start value after all steps, rounded to single precision at each.
float LevelFactorOf(double start, std::initializer_list<double> steps);

// -1 for the weakest chance there is, 0 at the threshold, 2 for the strongest. A chance within
// single precision of the threshold is not above it.
double ScoreOf(float chance, double threshold, double weakest, double strongest);

}  // namespace holdem
