// The advice before the flop, given by the analysis pass as soon as both hole cards are known.
#pragma once

namespace holdem {

// REQUIRES: both hole slots hold cards, one to nine opponents.
void PreFlopStep();

}  // namespace holdem
