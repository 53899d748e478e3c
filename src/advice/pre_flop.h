// The advice before the flop, given by the analysis pass as soon as both hole cards are known.
#pragma once

namespace holdem {

// Sets the advice values from the starting-hand table and shows the chances and the advice.
// REQUIRES: both hole slots hold cards, one to nine opponents, the pass's positions and blinds.
void PreFlopStep();

}  // namespace holdem
