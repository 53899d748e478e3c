#include "engine/simulation.h"

#include <algorithm>

#include "cards/random.h"
#include "engine/folds.h"
#include "engine/players.h"
#include "engine/run_inputs.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "state/advice_values.h"
#include "state/run.h"

namespace holdem {
namespace {

constexpr int kCertainDeals = 10;  // done in every run, however early it is stopped

constexpr int FirstHole(int player) { return kHoleCards * (player - kMe - 1); }

using Values = std::array<PackedValue, kSeats + 1>;  // by player

// Counts everything but the deals, which the categories add up to.
template <typename Opponents>
[[gnu::always_inline]] inline void Count(Opponents in, const Values& values) {
  PackedValue bestOpponent = 0;
  ForEach(in, [&](int player) { bestOpponent = std::max(bestOpponent, values[player]); });
  ++simulation.OpponentCategoryTally[CategoryOf(bestOpponent)];

  const PackedValue best = std::max(bestOpponent, values[kMe]);
  PlayerSet winners = 0;
  const auto countPlayer = [&](int player) {
    ++simulation.SimTally[player].categories[CategoryOf(values[player])];
    winners |= static_cast<PlayerSet>(values[player] == best) << player;
  };
  countPlayer(kMe);
  ForEach(in, countPlayer);
  if ((winners & (winners - 1)) == 0) {
    ++simulation.SimTally[std::countr_zero(winners)].wins;
  } else {
    ForEach(winners, [](int player) { ++simulation.SimTally[player].splits; });
  }
}

// Inline, so that the values of opponents known to the compiler stay in registers.
template <typename Opponents, typename Places>
[[gnu::always_inline]] inline void ShowDown(const RunInputs& inputs, const Places& places,
                                            Opponents in, CardSet board, CardSum boardSum) {
  Values values;
  values[kMe] = inputs.sevenCards.ValueOf(inputs.mine.sum + boardSum,
                                          [&] { return inputs.mine.set + board; });
  ForEach(in, [&](int player) {
    const Dealer::Place hole1 = places[FirstHole(player)];
    const Dealer::Place hole2 = places[FirstHole(player) + 1];
    values[player] = inputs.sevenCards.ValueOf(
        inputs.sumAt[hole1] + inputs.sumAt[hole2] + boardSum,
        [&] { return inputs.setAt[hole1] + inputs.setAt[hole2] + board; });
  });
  Count(in, values);
}

template <typename Places>
PlayerSet OpponentsLeft(const RunInputs& inputs, const Places& places) {
  SimHands hands;
  PlayerSet opponents = 0;
  for (int player = kMe + 1; player <= inputs.playerCount; ++player) {
    const Dealer::Place* const holes = &places[FirstHole(player)];
    hands[player] = {inputs.dealer.CardAt(holes[0]), inputs.dealer.CardAt(holes[1])};
    opponents |= PlayerBit(player);
  }
  return FoldOnEachStreet(inputs, hands, opponents);
}

template <typename Places>
void PlayWithFolds(const RunInputs& inputs, Places places, CardSet board, CardSum boardSum) {
  ShowDown(inputs, places, OpponentsLeft(inputs, places), board, boardSum);
}

template <int kPlayers, int kBoardToCome>
void PlayDeal(const RunInputs& inputs) {
  constexpr int kHoles = FirstHole(kPlayers + 1);
  const auto places = inputs.dealer.Deal<kHoles + kBoardToCome>(generator);
  CardSet board = inputs.board.set;
  CardSum boardSum = inputs.board.sum;
  for (int i = kHoles; i < kHoles + kBoardToCome; ++i) {
    board += inputs.setAt[places[i]];
    boardSum += inputs.sumAt[places[i]];
  }
  if (inputs.anybodyFolds) return PlayWithFolds(inputs, places, board, boardSum);
  ShowDown(inputs, places, AllOpponents<kPlayers>(), board, boardSum);
}

using DealFunction = void (*)(const RunInputs&);

template <int kBoardToCome>
constexpr std::array<DealFunction, kSeats - 1> kPlayDeal = {
    PlayDeal<2, kBoardToCome>, PlayDeal<3, kBoardToCome>, PlayDeal<4, kBoardToCome>,
    PlayDeal<5, kBoardToCome>, PlayDeal<6, kBoardToCome>, PlayDeal<7, kBoardToCome>,
    PlayDeal<8, kBoardToCome>, PlayDeal<9, kBoardToCome>, PlayDeal<10, kBoardToCome>};

DealFunction DealFunctionFor(const RunInputs& inputs) {
  const int players = inputs.playerCount - 2;
  switch (kFullBoard - inputs.boardCount) {
    case 0: return kPlayDeal<0>[players];
    case 1: return kPlayDeal<1>[players];
    default: return kPlayDeal<2>[players];
  }
}

void SumUp() {
  for (PlayerTally& tally : simulation.SimTally) {
    for (const int count : tally.categories) tally.deals += count;
  }
  const PlayerTally& me = simulation.SimTally[kMe];
  advice.WinSplitChance = static_cast<float>(static_cast<double>(me.wins + me.splits) / me.deals);
}

}  // namespace

void RunSimulation() {
  const RunInputs inputs = CopyInputs();
  const DealFunction playDeal = DealFunctionFor(inputs);
  simulation = {};
  run.AbortRequested = false;
  ports.display->Yield();

  for (int deal = 1; deal <= inputs.deals; ++deal) {
    ports.display->Yield();
    if (run.Ending) return;
    if (run.AbortRequested && deal > kCertainDeals) break;
    playDeal(inputs);
  }
  run.AbortRequested = false;
  deck = inputs.startDeck;
  SumUp();
}

}  // namespace holdem
