#include "gestures/card_gestures.h"

#include <algorithm>

#include "cards/deck.h"
#include "engine/analysis_pass.h"
#include "state/auto_read.h"
#include "state/seats.h"
#include "table/card_slots.h"
#include "table/history.h"
#include "table/refresh.h"
#include "table/seat_rules.h"

namespace holdem {

void DropCard(const CardSpot& source, Card card, const CardSpot& target) {
  if (source.slot != kNoSlot) {
    if (target.slot != kNoSlot) return DropSlotCard(source.slot, card, target.slot);
    return ReturnSlotCard(source.slot, card);
  }
  if (target.slot != kNoSlot) return DropDeckCard(card, target.slot);
  if (target.deckCard == card) ClickDeckCard(card);
}

bool CanDropCard(const CardSpot& source, const CardSpot& target) {
  return target.slot != kNoSlot ? !slots.IsFilled(target.slot) : source.slot != kNoSlot;
}

void ClickDeckCard(Card card) {
  const Slot slot = NextEmptySlot();
  if (slot != kNoSlot) DropDeckCard(card, slot);
}

void DropDeckCard(Card card, Slot slot) {
  if (!slots.InDeck(card)) return;
  if (slots.IsFilled(slot)) return RunAnalysis();
  RememberTable();
  FillSlot(slot, card);
  Recalculate();
}

void DropSlotCard(Slot source, Card card, Slot target) {
  if (slots.picHand[source] != card) return;
  if (slots.IsFilled(target)) return RunAnalysis();
  RememberTable();
  MoveCard(source, target);
  Recalculate();
}

void ReturnSlotCard(Slot source, Card card) {
  if (!slots.IsFilled(source) || slots.picHand[source] != card) return;
  RememberTable();
  EmptySlot(source);
  Recalculate();
}

void RightPressSlot(Slot slot) { ReturnSlotCard(slot, slots.picHand[slot]); }

void TakeLastCardBack() {
  if (slots.TypedSlot != kNoSlot) return ForgetTyped();
  const auto last = std::ranges::max(kSlotOrder, {}, [](Slot slot) { return slots.Entry[slot]; });
  RightPressSlot(last);
}

void DoubleClickSlot(Slot slot) {
  if (slots.IsFilled(slot)) return;
  RememberTable();
  RebuildDeck();  // it may lack cards entered since the last pass
  FillSlot(slot, DealRandomCard());
  Recalculate();
}

void NewHand() {
  RememberTable();
  for (const Slot slot : kSlotOrder) EmptySlot(slot);
  if (!autoRead.Following()) {
    for (int seat = 1; seat <= kSeats; ++seat) {
      if (seats.SeatStates[seat] != Empty) seats.SeatStates[seat] = In;
    }
    AdvanceDealer();
  }
  SeatsChanged();
}

}  // namespace holdem
