// The starting-hand table: the chance to win before the flop, for all 169 kinds of starting hand
// against one to nine opponents. Filled once at start-up, then only read.
#pragma once

namespace holdem::modHole {

void LoadHoleTable();

}  // namespace holdem::modHole
