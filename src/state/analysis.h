// What the last analysis pass found out about the table and the user's cards.
// Written by: engine/analysis_pass
#pragma once

#include <array>

#include "cards/evaluator.h"
#include "state/seats.h"

namespace holdem {

struct Analysis {
  int EmptyBoardSlots = 5;
  int FoldedCount = 0;      // seats in a folded state
  int PlayerCount = 0;      // occupied seats, folded ones and the user's own included
  int MyTablePosition = 0;  // among occupied seats; 1 is the first seat after the button
  int MyLivePosition = 0;   // likewise among players still in
  int PositionPercent = 0;  // 0 first to act .. 100 last, among players still in
  bool IsSmallBlind = false;
  bool IsBigBlind = false;
  Street CurrentStreet = NoStreet;
  std::array<int, FoldedRiver + 1> FoldsByStreet{};  // by folded state, as seen from CurrentStreet
  HandValue MyHandValue = 0;  // of the user's known cards, without draw bonus

  bool operator==(const Analysis&) const = default;
};

inline Analysis analysis;

}  // namespace holdem
