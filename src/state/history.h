// The table as it was before each gesture, so that gestures can be taken back, and as it was after
// those that have been taken back, so that they can be done again.
// Written by: table/history
#pragma once

#include <tuple>
#include <vector>

#include "state/seats.h"
#include "state/slots.h"

namespace holdem {

// Cards, seats and button, as far as gestures change them: picHand and Entry, then SeatStates,
// MySeat, DealerSeat, SeatCount and AutoReadSeat.
using Table = std::tuple<decltype(Slots::picHand), decltype(Slots::Entry),
                         decltype(Seats::SeatStates), Seat, Seat, int, Seat>;

struct TableMoment {
  Table table;
  int startOpponents = 0;     // set before the flop, used on later streets
  double meterThreshold = 0;  // set by a pass, kept by one whose cards stand on no street
};

struct History {
  std::vector<TableMoment> moments;  // before each gesture, the latest last
  std::vector<TableMoment> undone;   // what has been taken back, the earliest last
};

inline History history;

}  // namespace holdem
