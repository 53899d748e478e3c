#include "engine/run_inputs.h"

#include <algorithm>
#include <cassert>

#include "state/analysis.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem {

void KnownCards::Add(Card card) {
  set += SetOf(card);
  sum += SevenCards::SumOf(card);
}

RunInputs CopyInputs() {
  RunInputs inputs;
  inputs.playerCount = analysis.PlayerCount;
  inputs.deals = settings.DealsPerRun;
  auto& folds = inputs.foldsByStreet;
  if (seats.WatchFoldDepth) {
    folds = analysis.FoldsByStreet;
  } else {  // all folds are taken as folds before the flop
    folds[FoldedPreFlop] = analysis.FoldedCount;
  }
  inputs.anybodyFolds = std::ranges::any_of(folds, [](int count) { return count > 0; });

  for (const Slot slot : kHoleSlots) inputs.mine.Add(slots.picHand[slot]);
  for (const Slot slot : kBoardSlots) {
    if (!slots.IsFilled(slot)) continue;
    inputs.board.Add(slots.picHand[slot]);
    inputs.boardUpTo[++inputs.boardCount] = inputs.board.set;
  }
  const Dealer& dealer = inputs.dealer;
  // Auto Read may have read the same card into two slots; then seven cards may hold a rank five
  // times, which the look-up has no place for.
  const bool misread = dealer.CardsLeft() + kHoleCards + inputs.boardCount > kCardCount;
  if (misread) inputs.board.sum += SevenCards::kNoLookUp;
  for (int place = 1; place <= dealer.CardsLeft(); ++place) {
    inputs.setAt[place] = SetOf(dealer.CardAt(place));
    inputs.sumAt[place] = SevenCards::SumOf(dealer.CardAt(place));
  }
  assert(inputs.playerCount >= 2 && inputs.playerCount <= kSeats && inputs.boardCount >= 3);
  return inputs;
}

}  // namespace holdem
