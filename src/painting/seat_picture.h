// The picture of a seat, with the street of its fold printed on it.
#pragma once

#include "platform/canvas.h"
#include "state/seats.h"

namespace holdem {

// Seat 1..10 as the state has it. An empty seat stays blank while Auto Read follows a table.
void DrawSeat(Canvas& surface, Seat seat);

}  // namespace holdem
