#include "table/card_slots.h"

#include <algorithm>
#include <utility>

#include "platform/display.h"
#include "platform/ports.h"
#include "state/auto_read.h"

namespace holdem {
namespace {

// Moves the sign, the marker or the typed rank, to that slot, or takes it off for kNoSlot.
void ShowOn(Slot& sign, Slot slot) {
  for (const Slot changed : {std::exchange(sign, slot), slot}) {
    if (changed != kNoSlot) ports.display->ShowSlot(changed);
  }
}

}  // namespace

void FillSlot(Slot slot, Card card) {
  slots.picHand[slot] = card;
  slots.Entry[slot] = card == kNoCard ? 0 : 1 + std::ranges::max(slots.Entry);
  if (slot == slots.MarkedSlot) slots.MarkedSlot = kNoSlot;
  if (slot == slots.TypedSlot) slots.TypedSlot = kNoSlot;
  if (slots.TypedSlot != kNoSlot && slots.TypedIntoNext) ShowOn(slots.TypedSlot, NextEmptySlot());
  ports.display->ShowSlot(slot);
  ports.display->ShowDeck();
}

void EmptySlot(Slot slot) { FillSlot(slot, kNoCard); }

void MoveCard(Slot source, Slot target) {
  FillSlot(target, slots.picHand[source]);
  slots.Entry[target] = slots.Entry[source];
  EmptySlot(source);
}

void LiftCard() { slots.CardInTheAir = true; }

void LowerCard() { slots.CardInTheAir = false; }

Slot NextEmptySlot() {
  for (const Slot slot : kSlotOrder) {
    if (!slots.IsFilled(slot)) return slot;
  }
  return kNoSlot;
}

void ShowTyped(char rank, Slot slot, bool intoNext) {
  slots.TypedRank = rank;
  slots.TypedIntoNext = intoNext;
  ShowOn(slots.TypedSlot, slot);
}

void ForgetTyped() { ShowOn(slots.TypedSlot, kNoSlot); }

void HideMarker() { ShowOn(slots.MarkedSlot, kNoSlot); }

void BlinkMarker(bool flashing) {
  slots.BlinkPhase = !flashing || !slots.BlinkPhase;
  const bool marked = slots.BlinkPhase && !autoRead.Following();
  const Slot next = marked ? NextEmptySlot() : kNoSlot;
  if (next != slots.MarkedSlot) ShowOn(slots.MarkedSlot, next);
}

}  // namespace holdem
