#include "reference/literal.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

#include "reference/card_text.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem::literal {
namespace {

using Counts = std::array<int, 15>;  // of cards, by weight 2..14; of all of them at 0

// The highest weight of at least so many cards, other than `besides`; 0 when there is none.
int Highest(const Counts& ranks, int cards, int besides = 0) {
  int weight = 14;
  while (weight > 0 && (ranks[weight] < cards || weight == besides)) --weight;
  return weight;
}

// The top of the highest run of five ranks that are all there, the Ace below the Two included; 0
// without one.
int TopOfRun(Counts ranks) {
  ranks[1] = ranks[14];
  int top = 14;
  while (top >= 5 && std::count(&ranks[top - 4], &ranks[top] + 1, 0) > 0) --top;
  return top >= 5 ? top : 0;
}

// The category with so many ranks behind it: those that make it, then the highest of the others.
double Value(double value, Counts ranks, int count, std::initializer_list<int> making = {}) {
  double unit = 1;
  const auto add = [&](int weight) {
    value += weight / (unit *= 100);
    ranks[weight] = 0;
    --count;
  };
  for (const int weight : making) add(weight);
  while (count > 0) add(Highest(ranks, 1));
  return value;
}

double FlushDraw(const Hand& hand, const std::array<Counts, 5>& suits) {
  const auto& [card1, suit1, rank1] = hand.entries[1];
  const auto& [card2, suit2, rank2] = hand.entries[2];
  if (suit1 == suit2) return suits[suit1][0] < 4 ? 0 : hand.count == 5 ? 2.5 : 1.5;
  if (hand.count == 5) return 0;
  const int rank = suits[suit1][0] >= 4 ? rank1 : suits[suit2][0] >= 4 ? rank2 : 0;
  return rank == Ace || rank == King ? 2.5 : rank >= 9 ? 1.5 : 0;
}

// The ranks that would make a straight where there is none.
double StraightDraw(const Hand& hand, const Counts& ranks) {
  int completing = 0;
  for (int added = 2; added <= 14; ++added) {
    Counts with = ranks;
    ++with[added];
    completing += TopOfRun(with) != 0;
  }
  return completing * (hand.count == 5 ? 1 : 0.5);
}

Card Draw(std::vector<Card>& cards, RandomGenerator& random) {
  const double r = static_cast<double>(random.Next() >> 40) * 0x1p-24;  // 24 bits, below 1
  const auto drawn = cards.begin() + static_cast<int>(r * static_cast<double>(cards.size()));
  const Card card = *drawn;
  cards.erase(drawn);
  return card;
}

int PreFlopScore(const Hand& hand) {
  constexpr int kPoints[] = {0, 19, 2, 3, 4, 5, 6, 7, 8, 9, 12, 14, 15, 16};
  const int rank1 = RankOf(hand.entries[1].card);
  const int rank2 = RankOf(hand.entries[2].card);
  const int aceHighGap = std::abs(RankWeight(rank2) - RankWeight(rank1));
  const int gap = std::min(std::abs(rank2 - rank1), aceHighGap);
  int score = kPoints[rank1] + kPoints[rank2];
  if (rank1 == rank2) score += 20;
  if (SuitOf(hand.entries[1].card) == SuitOf(hand.entries[2].card)) score += 5;
  if (gap >= 1 && gap <= 3) score += 4 - gap;
  return score;
}

// The weakest go, the first of equals before the others.
template <typename Score>
void Fold(std::vector<int>& opponents, int folds, Score score) {
  for (; folds > 0 && !opponents.empty(); --folds) {
    opponents.erase(std::ranges::min_element(opponents, {}, score));
  }
}

// A player without a value has folded.
void ShowDown(const std::map<int, double>& values, SimulationTallies& tallies) {
  double bestOpponent = 0;
  for (const auto& [player, value] : values) {
    if (player != 1) bestOpponent = std::max(bestOpponent, value);
  }
  ++tallies.OpponentCategoryTally[static_cast<int>(bestOpponent)];
  const double best = std::max(bestOpponent, values.at(1));
  const auto winners = std::ranges::count(values, best, &std::pair<const int, double>::second);
  for (const auto& [player, value] : values) {
    PlayerTally& tally = tallies.SimTally[player];
    ++tally.deals;
    ++tally.categories[static_cast<int>(value)];
    if (value == best) ++(winners == 1 ? tally.wins : tally.splits);
  }
}

}  // namespace

double EvaluateHand(const Hand& hand, bool includeDraws) {
  std::array<Counts, 5> suits{};
  Counts ranks{};
  for (int i = 1; i <= hand.count; ++i) {
    for (Counts* const counts : {&suits[hand.entries[i].suit], &ranks}) {
      ++(*counts)[0];
      ++(*counts)[RankWeight(hand.entries[i].rank)];
    }
  }
  const Counts& suited = *std::ranges::max_element(suits, {}, [](auto& suit) { return suit[0]; });

  if (const int top = TopOfRun(suited)) return Value(8, suited, 1, {top});
  if (const int quads = Highest(ranks, 4)) return Value(7, ranks, 2, {quads});
  const int trips = Highest(ranks, 3);
  const int pair = Highest(ranks, 2, trips);
  if (trips != 0 && pair != 0) return Value(6, ranks, 2, {trips, pair});
  if (suited[0] >= 5) return Value(5, suited, 5);
  if (const int top = TopOfRun(ranks)) return Value(4, ranks, 1, {top});

  const int lowerPair = Highest(ranks, 2, pair);
  double value = trips != 0       ? Value(3, ranks, 3, {trips})
                 : pair == 0      ? Value(0, ranks, 5)
                 : lowerPair != 0 ? Value(2, ranks, 3, {pair, lowerPair})
                                  : Value(1, ranks, 4, {pair});
  if (includeDraws && (hand.count == 5 || hand.count == 6)) {
    value += FlushDraw(hand, suits);
    value += StraightDraw(hand, ranks);
  }
  return value;
}

SimulationTallies RunSimulation(const Analysis& found, RandomGenerator& random) {
  std::vector<Card> known, unseen;
  for (const int slot : {0, 1, 6, 7, 8, 9, 10}) {
    if (slots.picHand[slot] != kNoCard) known.push_back(slots.picHand[slot]);
  }
  for (Card card = 1; card <= kCardCount; ++card) {
    if (std::ranges::count(known, card) == 0) unseen.push_back(card);
  }
  const int count = static_cast<int>(known.size());

  SimulationTallies tallies;
  for (int deals = settings.DealsPerRun; deals > 0; --deals) {
    std::vector<Card> left = unseen;
    std::vector<Hand> hands(kSeats + 1, HandOf(known));
    std::vector<int> in;  // besides the user
    for (int player = 2; player <= found.PlayerCount; ++player) {
      hands[player].entries[1].card = Draw(left, random);
      hands[player].entries[2].card = Draw(left, random);
      in.push_back(player);
    }
    const auto valueOf = [&](int player, int cards, bool draws) {
      FillHand(hands[player], cards);
      return literal::EvaluateHand(hands[player], draws);
    };

    const auto& folds = found.FoldsByStreet;
    Fold(in, seats.WatchFoldDepth ? folds[FoldedPreFlop] : found.FoldedCount,
         [&](int player) { return PreFlopScore(hands[player]); });
    for (int street = FoldedFlop; seats.WatchFoldDepth && street <= FoldedRiver; ++street) {
      const int cards = std::min(street + 2, count);  // never one that has not been dealt
      Fold(in, folds[street],
           [&](int player) { return valueOf(player, cards, street != FoldedRiver); });
    }
    for (int i = Hand::kMaxCards; i > count; --i) {
      const Card card = Draw(left, random);
      for (Hand& hand : hands) hand.entries[i].card = card;
    }
    std::map<int, double> values = {{1, valueOf(1, Hand::kMaxCards, false)}};
    for (const int player : in) values[player] = valueOf(player, Hand::kMaxCards, false);
    ShowDown(values, tallies);
  }
  return tallies;
}

}  // namespace holdem::literal
