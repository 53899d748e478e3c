#include "table/card_slots.h"

#include <utility>

#include "platform/display.h"
#include "platform/ports.h"
#include "state/auto_read.h"
#include "state/results.h"

namespace holdem {
namespace {

void SetSlot(int slot, Card card) {
  slots.picHand[slot] = card;
  if (slot == slots.MarkedSlot) slots.MarkedSlot = kNoSlot;
  ports.display->ShowSlot(slot);
  ports.display->ShowDeck();
}

void BlinkAdvice() {
  if (results.lblAdvice.empty()) return;
  const bool steady = results.lblAdvice == kThinking;
  results.lblAdviceLit = steady || !results.lblAdviceLit;
  ports.display->ShowResults();
}

void MarkSlot(int marked) {
  for (const int slot : {std::exchange(slots.MarkedSlot, marked), marked}) {
    if (slot != kNoSlot) ports.display->ShowSlot(slot);
  }
}

void BlinkMarker() {
  slots.BlinkPhase = !slots.BlinkPhase;
  MarkSlot(slots.BlinkPhase && !autoRead.Following() ? NextEmptySlot() : kNoSlot);
}

}  // namespace

void FillSlot(int slot, Card card) { SetSlot(slot, card); }

void EmptySlot(int slot) { SetSlot(slot, kNoCard); }

void LiftCard() { slots.CardInTheAir = true; }

void LowerCard() { slots.CardInTheAir = false; }

int NextEmptySlot() {
  for (const int slot : kSlotOrder) {
    if (!slots.IsFilled(slot)) return slot;
  }
  return kNoSlot;
}

void HideMarker() { MarkSlot(kNoSlot); }

void Blink() {
  BlinkAdvice();
  BlinkMarker();
}

}  // namespace holdem
