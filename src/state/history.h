// What the user's gestures have found on the table, so that they can be taken back.
// Written by: table/history
#pragma once

#include <tuple>
#include <vector>

#include "state/seats.h"
#include "state/slots.h"

namespace holdem {

// Cards, seats and button, as far as gestures change them: picHand and Entry, then SeatStates,
// MySeat, DealerSeat, SeatCount and AutoReadSeat.
using TableMoment = std::tuple<decltype(Slots::picHand), decltype(Slots::Entry),
                               decltype(Seats::SeatStates), int, int, int, int>;

struct History {
  std::vector<TableMoment> moments;  // before each gesture, the latest last
};

inline History history;

}  // namespace holdem
