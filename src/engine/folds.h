// Which of the simulated opponents fold: the weakest, as many on each street as at the table.
#pragma once

#include <array>

#include "engine/players.h"
#include "engine/run_inputs.h"

namespace holdem {

struct SimHand {
  Card hole1 = kNoCard;
  Card hole2 = kNoCard;
};

using SimHands = std::array<SimHand, kSeats + 1>;  // by player

// The opponents left after the folds of all streets. Of equals, the lowest numbered folds first.
PlayerSet FoldOnEachStreet(const RunInputs& inputs, const SimHands& hands, PlayerSet opponents);

}  // namespace holdem
