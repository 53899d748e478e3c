// The advice after the flop, given as the last action of every simulation.
#pragma once

namespace holdem {

// Sets the advice values from the simulated chance and shows the advice. REQUIRES: at least one
// player still in.
void PostFlopStep();

}  // namespace holdem
