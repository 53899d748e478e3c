// What the user's gestures have found on the table, so that they can be taken back, and what they
// had made of it.
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
                         decltype(Seats::SeatStates), int, int, int, int>;

struct TableMoment {
  Table table;
  int StartOpponents = 0;     // which stay for the streets to come
  double MeterThreshold = 0;  // which stays where the cards stand on no street
};

struct History {
  std::vector<TableMoment> moments;  // before each gesture, the latest last
  std::vector<TableMoment> undone;   // what has been taken back, the earliest last
};

inline History history;

}  // namespace holdem
