// The card slots: the only record of the cards that are known. A card lies either in a slot - in
// one alone, unless Auto Read has misread another - or in the deck window, so what the deck window
// shows follows from the slots.
// Written by: table/card_slots table/history ui/program
#pragma once

#include <algorithm>
#include <array>

#include "cards/card.h"
#include "state/numbered.h"

namespace holdem {

using Slot = Numbered<struct SlotKind>;  // an index of picHand, in the order of the screen

// The slots in the order in which clicked cards fill them: two hole cards, three flop cards, turn,
// river.
inline constexpr std::array<Slot, 7> kSlotOrder = {0, 1, 6, 7, 8, 9, 10};
inline constexpr std::array<Slot, 2> kHoleSlots = {0, 1};
inline constexpr std::array<Slot, 5> kBoardSlots = {6, 7, 8, 9, 10};
inline constexpr Slot kTurnSlot = 9;
inline constexpr Slot kRiverSlot = 10;
inline constexpr Slot kNoSlot = -1;

struct Slots {
  std::array<Card, kRiverSlot + 1>
      picHand{};              // by slot index; kNoCard in an empty slot; 2..5 unused
  Slot MarkedSlot = kNoSlot;  // the empty slot that shows "?"
  bool BlinkPhase = false;
  Slot TypedSlot = kNoSlot;                 // the empty slot that shows a typed rank
  bool TypedIntoNext = false;               // it is the next to fill, whichever that becomes
  char TypedRank = 0;                       // that rank, as its letter, or a 1 that waits for its 0
  std::array<int, kRiverSlot + 1> Entry{};  // by slot index: the higher, the later its card came
  bool CardInTheAir = false;                // the user is dragging one
  bool DeckShown = false;  // the deck window has been shown; until then nothing is analysed

  bool IsFilled(Slot slot) const { return picHand[slot] != kNoCard; }
  bool InDeck(Card card) const {
    return std::ranges::none_of(kSlotOrder, [&](Slot slot) { return picHand[slot] == card; });
  }

  bool operator==(const Slots&) const = default;
};

inline Slots slots;

}  // namespace holdem
