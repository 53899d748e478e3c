#include "engine/folds.h"

#include <algorithm>

#include "engine/pre_flop_score.h"

namespace holdem {
namespace {

constexpr auto kPreFlopScores = [] {
  std::array<std::array<std::uint8_t, kCardCount + 1>, kCardCount + 1> scores{};
  for (Card card1 = 1; card1 <= kCardCount; ++card1) {
    for (Card card2 = 1; card2 <= kCardCount; ++card2) {
      scores[card1][card2] = static_cast<std::uint8_t>(PreFlopScore(card1, card2));
    }
  }
  return scores;
}();

// By what a hand stays or folds, where the fold says on which street.
std::uint32_t FoldScore(const RunInputs& inputs, SeatState fold, const SimHand& hand) {
  if (fold == FoldedPreFlop) return kPreFlopScores[hand.hole1][hand.hole2];
  // The code of a fold from the flop on is also the number of cards on the board by then.
  static_assert(FoldedFlop == 3 && FoldedTurn == 4 && FoldedRiver == 5);
  const int onBoard = std::min<int>(fold, inputs.boardCount);
  const CardSet known = SetOf(hand.hole1) + SetOf(hand.hole2) + inputs.boardUpTo[onBoard];
  return fold == FoldedRiver ? PackedValueOf(known)
                             : DrawScore(known, kHoleCards + onBoard, hand.hole1, hand.hole2);
}

PlayerSet FoldWeakest(const RunInputs& inputs, const SimHands& hands, SeatState fold,
                      PlayerSet in) {
  // The score in the upper bits and the player's number below, so that the least is the one to fold
  // next.
  constexpr int kPlayerBits = 4;
  std::array<std::uint32_t, kSeats + 1> ranking;
  ForEach(in, [&](int player) {
    ranking[player] =
        FoldScore(inputs, fold, hands[player]) << kPlayerBits | static_cast<unsigned>(player);
  });
  for (int folds = inputs.foldsByStreet[fold]; folds > 0 && in != 0; --folds) {
    std::uint32_t weakest = ~0U;
    ForEach(in, [&](int player) { weakest = std::min(weakest, ranking[player]); });
    in &= ~PlayerBit(weakest & ((1 << kPlayerBits) - 1));
  }
  return in;
}

}  // namespace

PlayerSet FoldOnEachStreet(const RunInputs& inputs, const SimHands& hands, PlayerSet opponents) {
  for (const SeatState fold : {FoldedPreFlop, FoldedFlop, FoldedTurn, FoldedRiver}) {
    if (inputs.foldsByStreet[fold] > 0) {
      opponents = FoldWeakest(inputs, hands, fold, opponents);
    }
  }
  return opponents;
}

}  // namespace holdem
