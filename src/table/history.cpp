#include "table/history.h"

#include "state/advice_values.h"
#include "state/history.h"
#include "table/card_slots.h"
#include "table/refresh.h"

namespace holdem {
namespace {

constexpr std::size_t kLongest = 500;  // gestures: an evening at the table

// Cards, seats and button as they are now.
auto TableNow() {
  return std::tie(slots.picHand, slots.Entry, seats.SeatStates, seats.MySeat, seats.DealerSeat,
                  seats.SeatCount, seats.AutoReadSeat);
}

TableMoment Now() { return {TableNow(), advice.StartOpponents, advice.MeterThreshold}; }

bool IsAsBeforeTheLastGesture() {
  return !history.moments.empty() && history.moments.back().table == Table(TableNow());
}

// The moment that `from` holds last comes back, and the present one goes to `to`.
void Return(std::vector<TableMoment>& from, std::vector<TableMoment>& to) {
  if (from.empty()) return;
  to.push_back(Now());
  const TableMoment then = from.back();
  from.pop_back();
  const auto& cards = std::get<0>(then.table);
  for (const Slot slot : kSlotOrder) {
    if (slots.picHand[slot] != cards[slot]) FillSlot(slot, cards[slot]);
  }
  TableNow() = then.table;
  advice.StartOpponents = then.startOpponents;
  advice.MeterThreshold = then.meterThreshold;
  SeatsChanged();
}

}  // namespace

void RememberTable() {
  auto& moments = history.moments;
  history.undone.clear();
  if (IsAsBeforeTheLastGesture()) return;
  if (moments.size() == kLongest) moments.erase(moments.begin());
  moments.push_back(Now());
}

void ForgetHistory() { history = {}; }

void TakeBackGesture() {
  if (IsAsBeforeTheLastGesture()) history.moments.pop_back();  // it changed nothing
  Return(history.moments, history.undone);
}

void RepeatGesture() { Return(history.undone, history.moments); }

}  // namespace holdem
