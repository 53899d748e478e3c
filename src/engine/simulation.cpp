#include "engine/simulation.h"

#include <algorithm>
#include <bit>
#include <cassert>

#include "cards/deck.h"
#include "cards/random.h"
#include "engine/pre_flop_score.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/run.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem {
namespace {

constexpr int kCertainDeals = 10;  // done in every run, however early it is stopped
constexpr int kHoleCards = 2;
constexpr int kFullBoard = 5;

// What a run works on, copied at its start.
struct RunInputs {
  int PlayerCount = 0;
  int deals = 0;
  int BoardCount = 0;
  std::array<CardSet, kFullBoard + 1> boardUpTo{};   // the first n known board cards, by n
  std::array<int, FoldedRiver + 1> foldsByStreet{};  // by folded state
  Deck startDeck = deck;
  Dealer dealer{startDeck};
};

struct SimHand {
  Card hole1 = kNoCard;
  Card hole2 = kNoCard;
  CardSet holes = 0;
};

std::array<SimHand, kSeats + 1> SimHands;  // by player 1..10

// The players still in, bit = player number.
using PlayerSet = unsigned;

constexpr PlayerSet PlayerBit(int player) { return 1U << player; }
constexpr PlayerSet kMeOnly = PlayerBit(kMe);

template <typename Action>
void ForEachPlayer(PlayerSet players, Action action) {
  for (; players != 0; players &= players - 1) action(std::countr_zero(players));
}

void SetHole(SimHand& hand, Card hole1, Card hole2) {
  hand = {hole1, hole2, SetOf(hole1) + SetOf(hole2)};
}

RunInputs CopyInputs() {
  RunInputs inputs;
  inputs.PlayerCount = analysis.PlayerCount;
  inputs.deals = settings.DealsPerRun;
  if (seats.WatchFoldDepth) {
    inputs.foldsByStreet = analysis.FoldsByStreet;
  } else {  // all folds are taken as folds before the flop
    inputs.foldsByStreet[FoldedPreFlop] = analysis.FoldedCount;
  }
  SetHole(SimHands[kMe], slots.picHand[kHoleSlots[0]], slots.picHand[kHoleSlots[1]]);
  for (const int slot : kBoardSlots) {
    if (!slots.IsFilled(slot)) continue;
    const CardSet before = inputs.boardUpTo[inputs.BoardCount++];
    inputs.boardUpTo[inputs.BoardCount] = before + SetOf(slots.picHand[slot]);
  }
  assert(inputs.PlayerCount >= 2 && inputs.PlayerCount <= kSeats && inputs.BoardCount >= 3);
  return inputs;
}

constexpr auto kPreFlopScores = [] {
  std::array<std::array<std::uint8_t, kCardCount + 1>, kCardCount + 1> scores{};
  for (Card card1 = 1; card1 <= kCardCount; ++card1) {
    for (Card card2 = 1; card2 <= kCardCount; ++card2) {
      scores[card1][card2] = static_cast<std::uint8_t>(PreFlopScore(card1, card2));
    }
  }
  return scores;
}();

// By what a hand stays or folds on a street.
std::uint32_t FoldScore(const RunInputs& inputs, SeatState street, const SimHand& hand) {
  if (street == FoldedPreFlop) return kPreFlopScores[hand.hole1][hand.hole2];
  // 3 cards on the flop, 4 on the turn, 5 on the river.
  const int onBoard = std::min<int>(street, inputs.BoardCount);
  const CardSet known = hand.holes + inputs.boardUpTo[onBoard];
  return street == FoldedRiver ? PackedValueOf(known)
                               : DrawScore(known, kHoleCards + onBoard, hand.hole1, hand.hole2);
}

// Folds the weakest opponents, the lowest numbered of equals first. The user never folds.
PlayerSet FoldWeakest(const RunInputs& inputs, SeatState street, PlayerSet in) {
  // Scores above the numbers of the players: the least is the one to fold.
  constexpr int kPlayerBits = 4;
  std::array<std::uint32_t, kSeats + 1> ranking;
  ForEachPlayer(in & ~kMeOnly, [&](int player) {
    ranking[player] =
        FoldScore(inputs, street, SimHands[player]) << kPlayerBits | static_cast<unsigned>(player);
  });
  for (int folds = inputs.foldsByStreet[street]; folds > 0 && in != kMeOnly; --folds) {
    std::uint32_t weakest = ~0U;
    ForEachPlayer(in & ~kMeOnly, [&](int player) { weakest = std::min(weakest, ranking[player]); });
    in &= ~PlayerBit(weakest & ((1 << kPlayerBits) - 1));
  }
  return in;
}

void ShowDown(PlayerSet in, CardSet board) {
  std::array<PackedValue, kSeats + 1> values;
  ForEachPlayer(
      in, [&](int player) { values[player] = PackedValueOf(SimHands[player].holes + board); });
  PackedValue bestOpponent = 0;
  ForEachPlayer(in & ~kMeOnly,
                [&](int player) { bestOpponent = std::max(bestOpponent, values[player]); });
  ++simulation.OpponentCategoryTally[CategoryOf(bestOpponent)];

  const PackedValue best = std::max(bestOpponent, values[kMe]);
  PlayerSet winners = 0;
  ForEachPlayer(in, [&](int player) {
    PlayerTally& tally = simulation.SimTally[player];
    ++tally.deals;
    ++tally.categories[CategoryOf(values[player])];
    if (values[player] == best) winners |= PlayerBit(player);
  });
  const bool wonAlone = std::has_single_bit(winners);
  ForEachPlayer(winners, [&](int player) {
    PlayerTally& tally = simulation.SimTally[player];
    ++(wonAlone ? tally.wins : tally.splits);
  });
}

void PlayDeal(const RunInputs& inputs) {
  const int holes = kHoleCards * (inputs.PlayerCount - 1);
  const auto cards = inputs.dealer.Deal(holes + kFullBoard - inputs.BoardCount, generator);
  const Card* next = cards.data();
  PlayerSet in = kMeOnly;
  for (int player = kMe + 1; player <= inputs.PlayerCount; ++player, next += kHoleCards) {
    SetHole(SimHands[player], next[0], next[1]);
    in |= PlayerBit(player);
  }
  for (const SeatState street : {FoldedPreFlop, FoldedFlop, FoldedTurn, FoldedRiver}) {
    if (inputs.foldsByStreet[street] > 0) in = FoldWeakest(inputs, street, in);
  }
  CardSet board = inputs.boardUpTo[inputs.BoardCount];
  for (int known = inputs.BoardCount; known < kFullBoard; ++known) board += SetOf(*next++);
  ShowDown(in, board);
}

}  // namespace

void RunSimulation() {
  const RunInputs inputs = CopyInputs();
  simulation = {};
  run.AbortRequested = false;
  ports.display->Yield();

  for (int deal = 1; deal <= inputs.deals; ++deal) {
    ports.display->Yield();
    if (run.Ending) return;
    if (run.AbortRequested && deal > kCertainDeals) break;
    PlayDeal(inputs);
  }
  run.AbortRequested = false;
  deck = inputs.startDeck;

  const PlayerTally& me = simulation.SimTally[kMe];
  advice.WinSplitChance = static_cast<float>(static_cast<double>(me.wins + me.splits) / me.deals);
}

}  // namespace holdem
