// The advice after the flop, given as the last action of every simulation.
#pragma once

namespace holdem {

void PostFlopStep();

}  // namespace holdem
