#include "reference/literal_simulation.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <vector>

#include "cards/deck.h"
#include "reference/literal_evaluator.h"
#include "state/analysis.h"
#include "state/slots.h"

namespace holdem::literal {
namespace {

Card Draw(std::vector<Card>& cards, RandomGenerator& random) {
  const double r = random.NextFloat();
  const auto drawn = cards.begin() + static_cast<int>(r * static_cast<double>(cards.size()));
  const Card card = *drawn;
  cards.erase(drawn);
  return card;
}

int PreFlopScore(const Hand& hand) {
  constexpr int kPoints[] = {0, 19, 2, 3, 4, 5, 6, 7, 8, 9, 12, 14, 15, 16};
  const int rank1 = RankOf(hand.entries[1].card);
  const int rank2 = RankOf(hand.entries[2].card);
  int gap = std::abs(rank2 - rank1);
  if (rank1 == Ace && rank2 >= Jack) gap = 14 - rank2;
  if (rank2 == Ace && rank1 >= Jack) gap = 14 - rank1;
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
