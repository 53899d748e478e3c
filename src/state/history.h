// What the user's gestures have found on the table, so that they can be taken back.
// Written by: table/history
#pragma once

#include <vector>

#include "state/seats.h"
#include "state/slots.h"

namespace holdem {

// Cards, seats and button, as far as gestures change them.
struct TableMoment {
  decltype(Slots::picHand) picHand;
  decltype(Seats::SeatStates) SeatStates;
  int MySeat;
  int DealerSeat;
  int SeatCount;
  int AutoReadSeat;

  bool operator==(const TableMoment&) const = default;
};

struct History {
  std::vector<TableMoment> moments;  // before each gesture, the latest last
};

inline History history;

}  // namespace holdem
