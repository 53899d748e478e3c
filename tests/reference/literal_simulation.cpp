#include "reference/literal_simulation.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "cards/deck.h"
#include "reference/literal_evaluator.h"
#include "state/analysis.h"
#include "state/slots.h"

namespace holdem::literal {
namespace {

struct FlagDeck {
  bool used[53] = {};
  int cardsLeft = 52;
};

Card DealRandomCard(FlagDeck& flags, RandomGenerator& random) {
  const float r = NextFloat(random);
  const int k = static_cast<int>(static_cast<double>(r) * flags.cardsLeft + 1);
  int free = 0;
  for (Card card = 1; card <= 52; ++card) {
    if (flags.used[card] || ++free < k) continue;
    flags.used[card] = true;
    --flags.cardsLeft;
    return card;
  }
  std::abort();
}

struct Table {
  int players = 0;
  Hand hands[11];
  bool in[11] = {};
  double values[11] = {};
  bool finalValue[11] = {};  // the value is that of the final seven cards

  void FoldWeakest(const double* figures, int times) {
    for (int i = 0; i < times; ++i) {
      double minimum = 100;
      for (int p = 2; p <= players; ++p) {
        if (in[p] && figures[p] < minimum) minimum = figures[p];
      }
      for (int p = 2; p <= players; ++p) {
        if (in[p] && figures[p] <= minimum) {
          in[p] = false;
          break;
        }
      }
    }
  }
};

int PreFlopScore(const Hand& hand) {
  constexpr int kPoints[] = {0, 19, 2, 3, 4, 5, 6, 7, 8, 9, 12, 14, 15, 16};
  const int rank1 = RankOf(hand.entries[1].card);
  const int rank2 = RankOf(hand.entries[2].card);
  int gap = std::abs(rank2 - rank1);
  if (rank1 == 1 && rank2 >= 11) gap = 14 - rank2;
  if (rank2 == 1 && rank1 >= 11) gap = 14 - rank1;
  int score = kPoints[rank1] + kPoints[rank2];
  if (rank1 == rank2) score += 20;
  if (SuitOf(hand.entries[1].card) == SuitOf(hand.entries[2].card)) score += 5;
  if (gap >= 1 && gap <= 3) score += 4 - gap;
  return score;
}

// To the nearest whole number, halves to the even neighbour; in whole numbers, so there is no
// doubt.
int RoundedPercent(int part, int whole) {
  const int twice = 200 * part;
  const int down = twice / (2 * whole);
  const int rest = twice % (2 * whole);
  return down + (rest > whole || (rest == whole && down % 2 == 1) ? 1 : 0);
}

std::string Text(int percent) { return " " + std::to_string(percent) + "%"; }
std::string TextOrEmpty(int percent) { return percent == 0 ? "" : Text(percent); }

}  // namespace

float NextFloat(RandomGenerator& random) {
  return static_cast<float>(random.Next() >> 40) * 0x1p-24F;
}

SimulationTallies RunSimulation(RandomGenerator& random, int deals) {
  SimulationTallies tallies;
  Table table;
  table.players = analysis.PlayerCount;
  FlagDeck known;
  for (Card card = 1; card <= 52; ++card) {
    known.used[card] = deck.DeckUsed(card);
    if (known.used[card]) --known.cardsLeft;
  }
  table.hands[1].entries[1].card = slots.picHand[0];
  table.hands[1].entries[2].card = slots.picHand[1];
  int boardCount = 0;
  for (int k = 1; k <= 5; ++k) {
    const Card card = slots.picHand[5 + k];
    if (card == 0) continue;
    ++boardCount;
    for (int p = 1; p <= table.players; ++p) table.hands[p].entries[k + 2].card = card;
  }

  for (int deal = 1; deal <= deals; ++deal) {
    FlagDeck flags = known;
    double scores[11] = {};
    for (int p = 1; p <= table.players; ++p) {
      table.in[p] = true;
      table.values[p] = 0;
      table.finalValue[p] = false;
    }
    for (int p = 2; p <= table.players; ++p) {
      auto& entries = table.hands[p].entries;
      entries[1].card = DealRandomCard(flags, random);
      entries[2].card = DealRandomCard(flags, random);
      scores[p] = PreFlopScore(table.hands[p]);
    }

    table.FoldWeakest(scores, seats.WatchFoldDepth ? analysis.FoldsByStreet[FoldedPreFlop]
                                                   : analysis.FoldedCount);
    for (int folded = FoldedFlop; seats.WatchFoldDepth && folded <= FoldedRiver; ++folded) {
      if (analysis.FoldsByStreet[folded] == 0) continue;
      const int cards = std::min(folded + 2, boardCount + 2);  // never a card not yet dealt
      for (int p = 2; p <= table.players; ++p) {
        if (!table.in[p]) continue;
        FillHand(table.hands[p], cards);
        table.values[p] = literal::EvaluateHand(table.hands[p], folded != FoldedRiver);
        table.finalValue[p] = folded == FoldedRiver && cards == 7;
      }
      table.FoldWeakest(table.values, analysis.FoldsByStreet[folded]);
    }

    for (int i = 7; i >= boardCount + 3; --i) {
      const Card card = DealRandomCard(flags, random);
      for (int p = 1; p <= table.players; ++p) {
        if (table.in[p]) table.hands[p].entries[i].card = card;
      }
    }

    double best = 0;
    int winners = 0;
    double bestOpponent = 0;
    for (int p = 1; p <= table.players; ++p) {
      if (!table.in[p]) continue;
      if (!table.finalValue[p]) {
        FillHand(table.hands[p], 7);
        table.values[p] = literal::EvaluateHand(table.hands[p], false);
      }
      const double value = table.values[p];
      if (value > best) {
        best = value;
        winners = 1;
      } else if (value == best) {
        ++winners;
      }
      if (p >= 2 && value > bestOpponent) bestOpponent = value;
    }
    ++tallies.OpponentCategoryTally[static_cast<int>(bestOpponent)];
    for (int p = 1; p <= table.players; ++p) {
      if (!table.in[p]) continue;
      auto& tally = tallies.SimTally[p];
      if (table.values[p] == best) ++(winners == 1 ? tally.wins : tally.splits);
      ++tally.deals;
      ++tally.categories[static_cast<int>(table.values[p])];
    }
  }
  return tallies;
}

Results ResultsOf(const SimulationTallies& tallies) {
  Results grid;
  const PlayerTally& me = tallies.SimTally[1];
  for (int row = 0; row < 8; ++row) {
    const bool mine = row == static_cast<int>(analysis.MyHandValue) - 1;
    const std::string chance = TextOrEmpty(RoundedPercent(me.categories[row + 1], me.deals));
    grid.lblMe[row] =
        analysis.CurrentStreet == River ? (mine ? "Final" : "") : (mine ? "Current" : chance);
    const int theirs = tallies.OpponentCategoryTally[row + 1];
    grid.lblThem[row] = TextOrEmpty(RoundedPercent(theirs, me.deals));
  }
  // The chance is kept in single precision, and so is its hundredfold.
  const float chance = static_cast<float>(static_cast<double>(me.wins + me.splits) / me.deals);
  grid.lblMe[8] = Text(static_cast<int>(std::nearbyint(100.0F * chance)));
  grid.lblThem[8] = Text(100 - RoundedPercent(me.wins, me.deals));
  return grid;
}

}  // namespace holdem::literal
