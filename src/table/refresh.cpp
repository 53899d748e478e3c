#include "table/refresh.h"

#include "engine/analysis_pass.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "table/seat_rules.h"

namespace holdem {

void RefreshTable(bool runAnalysis) {
  if (seats.IsOfNine()) LeaveSixthSeat();
  MarkButtonAndBlinds(seats.DealerSeat);
  ports.display->ShowSeats();
  if (runAnalysis) RunAnalysis();
}

void SeatsChanged() {
  RefreshTable(false);
  Recalculate();
}

void SetNineSeats(bool nineSeats) {
  seats.SeatCount = nineSeats ? kSeats - 1 : kSeats;
  SeatsChanged();
}

}  // namespace holdem
