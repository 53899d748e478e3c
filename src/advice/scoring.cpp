#include "advice/scoring.h"

#include "state/settings.h"

namespace holdem {

// All steps are parts of a fair share. A tight player asks for 15 % of a fair share more than an
// average one does, and a loose player for 15 % less.
double LevelStep(int level) {
  switch (level) {
    case Tight: return 0.15;
    case Loose: return -0.15;
    default: return 0;
  }
}

// The first third of the players acts early, with most of the others still to come.
double PositionStep(int positionPercent, double lastToAct) {
  if (positionPercent <= 33) return 0.1;
  if (positionPercent == 100) return -lastToAct;
  return positionPercent >= 66 ? -0.1 : 0;
}

// A single opponent often holds nothing, the best of many hardly ever; so heads-up a smaller share
// is enough.
double HeadsUpStep(int startOpponents) { return startOpponents == 1 ? -0.2 : 0; }

float LevelFactorOf(double start, std::initializer_list<double> steps) {
  auto factor = static_cast<float>(start);
  for (const double step : steps) factor = static_cast<float>(factor + step);
  return factor;
}

double ScoreOf(float chance, double threshold, double weakest, double strongest) {
  constexpr double kCertain = 2;  // the score of the strongest chance there is
  if (static_cast<float>(threshold) < chance) {
    return (chance - threshold) * kCertain / (strongest - threshold);
  }
  return (chance - weakest) / (threshold - weakest) - 1;
}

}  // namespace holdem
