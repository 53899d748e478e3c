// Sets of the players of a simulated deal.
#pragma once

#include <bit>

namespace holdem {

inline constexpr int kMe = 1;  // players 2 and up are the other occupied seats

// Bit = player number.
using PlayerSet = unsigned;

constexpr PlayerSet PlayerBit(int player) { return 1U << player; }

template <typename Action>
void ForEach(PlayerSet players, Action action) {
  for (; players != 0; players &= players - 1) action(std::countr_zero(players));
}

// The set of all opponents as a type, so that the compiler knows its members and unrolls loops over
// them.
template <int kPlayers>
struct AllOpponents {};

template <int kPlayers, typename Action>
[[gnu::always_inline]] inline void ForEach(AllOpponents<kPlayers>, Action action) {
#pragma GCC unroll 9
  for (int player = kMe + 1; player <= kPlayers; ++player) action(player);
}

}  // namespace holdem
