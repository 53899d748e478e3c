#include "reference/literal.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

#include "cards/deck.h"
#include "state/analysis.h"
#include "state/slots.h"

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

void ShowDown(const std::map<int, double>& values, SimulationTallies& tallies) {
  double best = 0, bestOpponent = 0;
  int winners = 0;
  for (const auto& [player, value] : values) {
    if (value > best) winners = 0;
    best = std::max(best, value);
    winners += value == best;
    if (player != 1) bestOpponent = std::max(bestOpponent, value);
  }
  ++tallies.OpponentCategoryTally[static_cast<int>(bestOpponent)];
  for (const auto& [player, value] : values) {
    PlayerTally& tally = tallies.SimTally[player];
    ++tally.deals;
    ++tally.categories[static_cast<int>(value)];
    if (value == best) ++(winners == 1 ? tally.wins : tally.splits);
  }
}

// To the nearest whole number, halves to the even neighbour.
std::string Text(double percent) {
  return " " + std::to_string(static_cast<int>(std::nearbyint(percent))) + "%";
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

SimulationTallies RunSimulation(RandomGenerator& random, int deals) {
  std::vector<Card> unseen;
  for (Card card = 1; card <= kCardCount; ++card) {
    if (!deck.DeckUsed(card)) unseen.push_back(card);
  }
  Hand known;
  int count = 0;
  for (const int slot : kSlotOrder) {
    if (slots.IsFilled(slot)) known.entries[++count].card = slots.picHand[slot];
  }

  SimulationTallies tallies;
  for (; deals > 0; --deals) {
    std::vector<Card> left = unseen;
    std::vector<Hand> hands(kSeats + 1, known);
    std::vector<int> in;  // besides the user
    for (int player = 2; player <= analysis.PlayerCount; ++player) {
      hands[player].entries[1].card = Draw(left, random);
      hands[player].entries[2].card = Draw(left, random);
      in.push_back(player);
    }
    const auto valueOf = [&](int player, int cards, bool draws) {
      FillHand(hands[player], cards);
      return literal::EvaluateHand(hands[player], draws);
    };

    const auto& folds = analysis.FoldsByStreet;
    Fold(in, seats.WatchFoldDepth ? folds[FoldedPreFlop] : analysis.FoldedCount,
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

Results ResultsOf(const SimulationTallies& tallies) {
  Results grid;
  const PlayerTally& me = tallies.SimTally[1];
  const auto textOf = [&](int times) {
    const std::string text = Text(100.0 * times / me.deals);
    return text == " 0%" ? "" : text;
  };
  for (int row = 0; row < kCategoryRows; ++row) {
    const bool mine = row == static_cast<int>(analysis.MyHandValue) - 1;
    const bool river = analysis.CurrentStreet == River;
    grid.lblMe[row] = mine ? river ? "Final" : "Current" : textOf(me.categories[row + 1]);
    grid.lblThem[row] = textOf(tallies.OpponentCategoryTally[row + 1]);
  }
  // The chance is kept in single precision, and so is its hundredfold.
  const float chance = static_cast<float>(static_cast<double>(me.wins + me.splits) / me.deals);
  grid.lblMe[kWinSplitRow] = Text(chance * 100.0F);
  grid.lblThem[kWinSplitRow] = Text(100 - std::nearbyint(100.0 * me.wins / me.deals));
  return grid;
}

}  // namespace holdem::literal
