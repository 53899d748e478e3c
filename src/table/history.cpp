#include "table/history.h"

#include "state/history.h"
#include "table/card_slots.h"
#include "table/refresh.h"

namespace holdem {
namespace {

constexpr std::size_t kLongest = 500;  // gestures: an evening at the table

TableMoment Now() {
  return {slots.picHand,    seats.SeatStates, seats.MySeat,
          seats.DealerSeat, seats.SeatCount,  seats.AutoReadSeat};
}

}  // namespace

void RememberTable() {
  auto& moments = history.moments;
  if (!moments.empty() && moments.back() == Now()) return;
  if (moments.size() == kLongest) moments.erase(moments.begin());
  moments.push_back(Now());
}

void ForgetHistory() { history.moments.clear(); }

void TakeBackGesture() {
  auto& moments = history.moments;
  if (!moments.empty() && moments.back() == Now()) moments.pop_back();  // it changed nothing
  if (moments.empty()) return;
  const TableMoment then = moments.back();
  moments.pop_back();
  for (const int slot : kSlotOrder) {
    if (slots.picHand[slot] != then.picHand[slot]) FillSlot(slot, then.picHand[slot]);
  }
  seats.SeatStates = then.SeatStates;
  seats.MySeat = then.MySeat;
  seats.DealerSeat = then.DealerSeat;
  seats.SeatCount = then.SeatCount;
  seats.AutoReadSeat = then.AutoReadSeat;
  SeatsChanged();
}

}  // namespace holdem
