#include "table/history.h"

#include "state/history.h"
#include "table/card_slots.h"
#include "table/refresh.h"

namespace holdem {
namespace {

constexpr std::size_t kLongest = 500;  // gestures: an evening at the table

// What a moment holds, as it is now.
auto Present() {
  return std::tie(slots.picHand, slots.Entry, seats.SeatStates, seats.MySeat, seats.DealerSeat,
                  seats.SeatCount, seats.AutoReadSeat);
}

bool IsAsBeforeTheLastGesture() {
  return !history.moments.empty() && history.moments.back() == TableMoment(Present());
}

}  // namespace

void RememberTable() {
  auto& moments = history.moments;
  if (IsAsBeforeTheLastGesture()) return;
  if (moments.size() == kLongest) moments.erase(moments.begin());
  moments.emplace_back(Present());
}

void ForgetHistory() { history.moments.clear(); }

void TakeBackGesture() {
  auto& moments = history.moments;
  if (IsAsBeforeTheLastGesture()) moments.pop_back();  // it changed nothing
  if (moments.empty()) return;
  const TableMoment then = moments.back();
  moments.pop_back();
  const auto& cards = std::get<0>(then);
  for (const int slot : kSlotOrder) {
    if (slots.picHand[slot] != cards[slot]) FillSlot(slot, cards[slot]);
  }
  Present() = then;
  SeatsChanged();
}

}  // namespace holdem
