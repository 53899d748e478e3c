#include "reference/literal_evaluator.h"

namespace holdem::literal {
namespace {

// Ranks are scanned by weight, from 14, the Ace, down to 2.
int RankAt(int weight) { return weight == 14 ? 1 : weight; }

double RankValue(int rank, int position) {
  constexpr double kPowers[] = {1, 100, 1e4, 1e6, 1e8, 1e10};
  return (rank == 1 ? 14 : rank) / kPowers[position];
}

struct Counters {
  int suits[5] = {};
  int ranks[14] = {};

  // The highest rank of at least so many cards, other than `besides`; 0 when there is none.
  int Highest(int cards, int besides = 0) const {
    for (int weight = 14; weight >= 2; --weight) {
      const int rank = RankAt(weight);
      if (ranks[rank] >= cards && rank != besides) return rank;
    }
    return 0;
  }
};

bool HandHasCard(const Hand& hand, int suit, int rank) {
  for (int i = 1; i <= hand.count; ++i) {
    if (hand.entries[i].card == (suit - 1) * 13 + rank) return true;
  }
  return false;
}

// The top of the highest run of five ranks that are all there, 0 without one.
template <typename Has>
int TopOfRun(Has has) {
  for (int top = 14; top >= 5; --top) {
    int weight = top;
    while (weight > top - 5 && has(RankAt(weight))) --weight;
    if (weight == top - 5) return top;
  }
  return 0;
}

// Adds the highest ranks that fit, one after another, at the given position and so on to the last.
template <typename Fits>
double WithRanks(double value, int position, int last, Fits fits) {
  for (int weight = 14; weight >= 2 && position <= last; --weight) {
    if (fits(RankAt(weight))) value += RankValue(RankAt(weight), position++);
  }
  return value;
}

double FlushDraw(const Hand& hand, const Counters& counters) {
  const auto& hole1 = hand.entries[1];
  const auto& hole2 = hand.entries[2];
  if (hole1.suit == hole2.suit) {
    if (counters.suits[hole1.suit] < 4) return 0;
    return hand.count == 5 ? 2.5 : 1.5;
  }
  if (hand.count == 5) return 0;
  const int rank = counters.suits[hole1.suit] >= 4   ? hole1.rank
                   : counters.suits[hole2.suit] >= 4 ? hole2.rank
                                                     : 0;
  return rank == 1 || rank == 13 ? 2.5 : rank >= 9 ? 1.5 : 0;
}

double StraightDraw(const Hand& hand, const Counters& counters) {
  int completing = 0;
  for (int added = 1; added <= 13; ++added) {
    if (counters.ranks[added] > 0) continue;
    if (TopOfRun([&](int rank) { return counters.ranks[rank] > 0 || rank == added; })) ++completing;
  }
  const double bonus = completing >= 2 ? 2 : completing;
  return hand.count == 5 ? bonus : bonus / 2;
}

}  // namespace

double EvaluateHand(const Hand& hand, bool includeDraws) {
  Counters counters;
  for (int i = 1; i <= hand.count; ++i) {
    ++counters.suits[hand.entries[i].suit];
    ++counters.ranks[hand.entries[i].rank];
  }
  const auto& ranks = counters.ranks;
  const auto besides = [&](int made1, int made2) {
    return [=, &ranks](int rank) { return ranks[rank] > 0 && rank != made1 && rank != made2; };
  };
  // Every run of five holds a Five or a Ten.
  const bool straightPossible = hand.count >= 5 && (ranks[5] > 0 || ranks[10] > 0);
  int flushSuit = 0;
  for (int suit = 1; suit <= 4; ++suit) {
    if (counters.suits[suit] >= 5) flushSuit = suit;
  }
  const auto inFlush = [&](int rank) {
    return ranks[rank] > 0 && HandHasCard(hand, flushSuit, rank);
  };

  if (straightPossible && flushSuit != 0) {
    if (const int top = TopOfRun(inFlush)) return 8 + top / 100.0;
  }
  if (const int quads = counters.Highest(4)) {
    return WithRanks(7 + RankValue(quads, 1), 2, 2, besides(quads, 0));
  }
  const int trips = counters.Highest(3);
  const int pair = counters.Highest(2, trips);
  if (trips != 0 && pair != 0) return 6 + RankValue(trips, 1) + RankValue(pair, 2);
  if (flushSuit != 0) return WithRanks(5, 1, 5, inFlush);
  if (straightPossible) {
    if (const int top = TopOfRun(besides(0, 0))) return 4 + top / 100.0;
  }

  double value = 0;
  const int lowerPair = counters.Highest(2, pair);
  if (trips != 0) {
    value = WithRanks(3 + RankValue(trips, 1), 2, 3, besides(trips, 0));
  } else if (lowerPair != 0) {
    value = 2 + RankValue(pair, 1) + RankValue(lowerPair, 2);
    value = WithRanks(value, 3, 3, besides(pair, lowerPair));
  } else if (pair != 0) {
    value = WithRanks(1 + RankValue(pair, 1), 2, 4, besides(pair, 0));
  } else {
    value = WithRanks(0, 1, 5, besides(0, 0));
  }
  if (includeDraws && (hand.count == 5 || hand.count == 6)) {
    value += FlushDraw(hand, counters);
    value += StraightDraw(hand, counters);
  }
  return value;
}

}  // namespace holdem::literal
