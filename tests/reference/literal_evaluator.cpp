#include "reference/literal_evaluator.h"

#include <algorithm>

namespace holdem::literal {
namespace {

using Counts = std::array<int, 15>;  // of cards, by weight 2..14

// The highest weight of at least so many cards, other than `besides`; 0 when there is none.
int Highest(const Counts& ranks, int cards, int besides = 0) {
  for (int weight = 14; weight >= 2; --weight) {
    if (ranks[weight] >= cards && weight != besides) return weight;
  }
  return 0;
}

// The top of the highest run of five ranks that are all there, the Ace below the Two included; 0
// without one.
int TopOfRun(const Counts& ranks) {
  for (int top = 14; top >= 5; --top) {
    int weight = top;
    while (weight > top - 5 && ranks[weight == 1 ? 14 : weight] > 0) --weight;
    if (weight == top - 5) return top;
  }
  return 0;
}

// The category with so many ranks behind it: those that make it, then the highest of the others.
double Value(double category, const Counts& ranks, int count, int made1 = 0, int made2 = 0) {
  double value = category;
  double unit = 1;
  const auto add = [&](int weight) { value += weight / (unit *= 100); };
  for (const int made : {made1, made2}) {
    if (made != 0 && count-- > 0) add(made);
  }
  for (int weight = 14; weight >= 2 && count > 0; --weight) {
    if (ranks[weight] == 0 || weight == made1 || weight == made2) continue;
    add(weight);
    --count;
  }
  return value;
}

double FlushDraw(const Hand& hand, const std::array<int, 5>& suits) {
  const auto& [card1, suit1, rank1] = hand.entries[1];
  const auto& [card2, suit2, rank2] = hand.entries[2];
  if (suit1 == suit2) return suits[suit1] < 4 ? 0 : hand.count == 5 ? 2.5 : 1.5;
  if (hand.count == 5) return 0;
  const int rank = suits[suit1] >= 4 ? rank1 : suits[suit2] >= 4 ? rank2 : 0;
  return rank == Ace || rank == King ? 2.5 : rank >= 9 ? 1.5 : 0;
}

double StraightDraw(const Hand& hand, const Counts& ranks) {
  int completing = 0;
  for (int added = 2; added <= 14; ++added) {
    Counts with = ranks;
    if (with[added]++ == 0 && TopOfRun(with) != 0) ++completing;
  }
  return completing * (hand.count == 5 ? 1 : 0.5);
}

}  // namespace

double EvaluateHand(const Hand& hand, bool includeDraws) {
  std::array<int, 5> suits{};
  Counts ranks{}, suited{};
  for (int i = 1; i <= hand.count; ++i) {
    ++suits[hand.entries[i].suit];
    ++ranks[RankWeight(hand.entries[i].rank)];
  }
  const auto flush = std::ranges::find_if(suits, [](int cards) { return cards >= 5; });
  for (int i = 1; i <= hand.count && flush != suits.end(); ++i) {
    if (hand.entries[i].suit == flush - suits.begin()) ++suited[RankWeight(hand.entries[i].rank)];
  }

  if (const int top = TopOfRun(suited)) return Value(8, suited, 1, top);
  if (const int quads = Highest(ranks, 4)) return Value(7, ranks, 2, quads);
  const int trips = Highest(ranks, 3);
  const int pair = Highest(ranks, 2, trips);
  if (trips != 0 && pair != 0) return Value(6, ranks, 2, trips, pair);
  if (flush != suits.end()) return Value(5, suited, 5);
  if (const int top = TopOfRun(ranks)) return Value(4, ranks, 1, top);

  const int lowerPair = Highest(ranks, 2, pair);
  double value = trips != 0       ? Value(3, ranks, 3, trips)
                 : pair == 0      ? Value(0, ranks, 5)
                 : lowerPair != 0 ? Value(2, ranks, 3, pair, lowerPair)
                                  : Value(1, ranks, 4, pair);
  if (includeDraws && (hand.count == 5 || hand.count == 6)) {
    value += FlushDraw(hand, suits);
    value += StraightDraw(hand, ranks);
  }
  return value;
}

}  // namespace holdem::literal
