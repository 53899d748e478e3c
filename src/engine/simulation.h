// The simulation: deals the unknown cards at random many times over, folds the weakest opponents as
// often as players have folded at the table, plays each deal to the showdown and counts. Started by
// the analysis pass after the flop.
// Written by: engine/simulation
#pragma once

#include <array>

#include "cards/evaluator.h"
#include "engine/players.h"
#include "state/seats.h"

namespace holdem {

struct PlayerTally {
  int deals = 0;  // deals in which the player reached the showdown
  std::array<int, kCategoryCount> categories{};
  int wins = 0;    // won alone
  int splits = 0;  // won jointly

  bool operator==(const PlayerTally&) const = default;
};

// The counts of the last run.
struct SimulationTallies {
  std::array<PlayerTally, kSeats + 1> SimTally{};  // by player 1..10
  // By category: deals in which the best opponent hand at the showdown had it.
  std::array<int, kCategoryCount> OpponentCategoryTally{};

  bool operator==(const SimulationTallies&) const = default;
};

inline SimulationTallies simulation;

// One run of settings.DealsPerRun deals. Yields to the user interface at its start and before each
// deal, and stops early when run.AbortRequested is set, but never before ten deals are done. Leaves
// the deck as it found it, whatever a yield has taken from it. All inputs are copied at the start.
// At its end it sets advice.WinSplitChance, but not when the program ends in mid-run. REQUIRES:
// hole cards and at least the flop are known and in order, the deck is rebuilt, 2..10 players.
void RunSimulation();

}  // namespace holdem
