#include "reference/literal.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>
#include <vector>

#include "advice/hole_table.h"
#include "cards/description.h"
#include "reference/card_text.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem::literal {
namespace {

std::vector<Card> CardsIn(std::span<const Slot> places) {
  std::vector<Card> cards;
  for (const int slot : places)
    if (slots.IsFilled(slot)) cards.push_back(slots.picHand[slot]);
  return cards;
}

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
  for (auto next = making.begin(); count > 0; --count) {
    const int weight = next != making.end() ? *next++ : Highest(ranks, 1);
    value += weight / (unit *= 100);
    ranks[weight] = 0;
  }
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

int PreFlopScore(Card card1, Card card2) {
  constexpr int kPoints[] = {0, 19, 2, 3, 4, 5, 6, 7, 8, 9, 12, 14, 15, 16};
  const int rank1 = RankOf(card1), rank2 = RankOf(card2);
  const int aceHighGap = std::abs(RankWeight(rank2) - RankWeight(rank1));
  const int gap = std::min(std::abs(rank2 - rank1), aceHighGap);
  return kPoints[rank1] + kPoints[rank2] + (rank1 == rank2 ? 20 : 0) +
         (SuitOf(card1) == SuitOf(card2) ? 5 : 0) + (gap >= 1 && gap <= 3 ? 4 - gap : 0);
}

// A player without a value has folded.
void ShowDown(const std::map<int, double>& values, SimulationTallies& tallies) {
  double bestOpponent = 0;
  for (const auto& [player, value] : values)
    if (player != 1) bestOpponent = std::max(bestOpponent, value);
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

double ValueOf(const std::vector<Card>& cards) { return EvaluateHand(HandOf(cards), false); }

// Halves go to the even neighbour.
int Percent(int part, int whole) {
  const int below = 100 * part / whole, rest = 100 * part % whole;
  return below + (2 * rest + below % 2 > whole);
}

std::string Text(int percent) { return std::to_string(percent) + "%"; }

void GoAroundTheTable(Analysis& found) {
  int live = 0;
  for (int step = 0; step < 10; ++step) {
    const int seat = (seats.DealerSeat + step) % 10 + 1;
    const bool mine = seat == seats.MySeat;
    if (seats.SeatStates[seat] >= FoldedPreFlop) ++found.FoldedCount;
    if (seats.SeatStates[seat] != Empty || mine) ++found.PlayerCount;
    if (seats.SeatStates[seat] == In || mine) ++live;
    if (mine) found.MyTablePosition = found.PlayerCount;
    if (mine) found.MyLivePosition = live;
  }
  found.PositionPercent = live > 1 ? Percent(found.MyLivePosition - 1, live - 1) : 100;
  const bool headsUp = found.PlayerCount == 2, mine = seats.DealerSeat == seats.MySeat;
  found.IsSmallBlind = headsUp ? mine : found.MyTablePosition == 1;
  found.IsBigBlind = headsUp ? !mine : found.MyTablePosition == 2;
}

Street StreetOf(const Analysis& found) {
  if (!slots.IsFilled(0) || !slots.IsFilled(1)) return NoStreet;
  if (found.EmptyBoardSlots == 5) return PreFlop;
  if (!slots.IsFilled(6) || !slots.IsFilled(7) || !slots.IsFilled(8)) return NoStreet;
  if (found.PlayerCount - found.FoldedCount < 2) return NoStreet;
  if (!slots.IsFilled(9)) return slots.IsFilled(10) ? NoStreet : Flop;
  return slots.IsFilled(10) ? River : Turn;
}

// Asks for so many fair shares, a few steps more or less, each in single precision, and tells how
// far from that the chance lies between the worst and the best one.
void Score(Figures& figures, float shares, int level, double onButton, double worst, double best) {
  AdviceValues& is = figures.advice;
  const int position = figures.analysis.PositionPercent;
  const auto step = [&](double by) { shares = static_cast<float>(shares + by); };
  if (level == Loose) step(-0.15);
  if (level == Tight) step(0.15);
  if (onButton != 0 && position <= 33) step(0.1);
  if (onButton != 0 && position >= 66) step(position == 100 ? -onButton : -0.1);
  if (is.StartOpponents == 1) step(-0.2);
  is.LevelFactor = shares;
  const double threshold = is.MeterThreshold = is.LevelFactor * is.FairShare;
  is.MeterValue = static_cast<float>(threshold) < is.WinSplitChance
                      ? (is.WinSplitChance - threshold) * 2 / (best - threshold)
                      : (is.WinSplitChance - worst) / (threshold - worst) - 1;
  ShowAdvice(figures, is.MeterValue);
}

void AdviseBeforeFlop(Figures& figures) {
  auto& [analysis, advice, results] = figures;
  const Card card1 = slots.picHand[0], card2 = slots.picHand[1];
  const auto [lo, hi] = std::minmax({RankOf(card1), RankOf(card2)});
  const bool pair = hi == lo, suited = SuitOf(card1) == SuitOf(card2);
  const int against = advice.StartOpponents = analysis.PlayerCount - 1;
  const int chance = modHole::HoleOdds[{hi, lo, suited}][against];
  advice.WinSplitChance = static_cast<float>(chance) / 100;
  results.lblMe[8] = Text(chance);
  results.lblThem[8] = Text(100 - chance);

  if (!pair) results.lblMe[0] = "44%";
  results.lblMe[1] = pair ? "40%" : "22%";
  results.lblMe[2] = pair ? "12%" : "4%";
  results.lblMe[3] = " " + Text(modHole::HoleStraightPct[{hi, lo, suited}]);
  results.lblMe[4] = suited ? "7%" : "2%";
  results.lblMe[5] = pair ? "9%" : "2%";
  if (pair) results.lblMe[6] = "1%";

  advice.FairShare = 1.0 / analysis.PlayerCount;
  Score(figures, 1, settings.LevelPre, 0.18, modHole::HoleOddsMin[against] / 100.0,
        modHole::HoleOddsMax[against] / 100.0);
}

// The results grid, the chance and the advice.
void EndRun(Figures& figures, const SimulationTallies& tallies) {
  auto& [analysis, advice, results] = figures;
  const PlayerTally& me = tallies.SimTally[1];
  const auto shown = [&](int count) {
    const int percent = Percent(count, me.deals);
    return percent == 0 ? "" : " " + Text(percent);
  };
  const bool final = analysis.CurrentStreet == River;
  for (int row = 0; row < 8; ++row) {
    const bool mine = row + 1 == static_cast<int>(analysis.MyHandValue);
    results.lblMe[row] = final ? "" : shown(me.categories[row + 1]);
    if (mine) results.lblMe[row] = final ? "Final" : "Current";
    results.lblThem[row] = shown(tallies.OpponentCategoryTally[row + 1]);
  }
  advice.WinSplitChance = static_cast<float>(1.0 * (me.wins + me.splits) / me.deals);
  results.lblMe[8] = " " + Text(static_cast<int>(std::nearbyint(100 * advice.WinSplitChance)));
  results.lblThem[8] = " " + Text(100 - Percent(me.wins, me.deals));
  advice.FairShare = 1.0 / (analysis.PlayerCount - analysis.FoldedCount);
  const double onButton = analysis.PlayerCount == 2 ? 0 : 0.15;  // of two, it does not count
  Score(figures, final ? 1.1F : 1, settings.LevelPost, onButton, 0, 1);
}

// What counts as better: the category, the ranks of two pairs and full houses, the top card of
// straights and flushes, no kicker.
int ClassOf(double value) {
  constexpr int kRanks[] = {1, 1, 10000, 1, 100, 100, 10000, 1, 100};  // by category
  const int ranks = kRanks[static_cast<int>(value)];
  return static_cast<int>(value * ranks + 0.001) * (10000 / ranks);
}

RowByCard Outs() {
  RowByCard rows = NoOuts();
  const std::vector<Card> known = CardsIn(kSlotOrder);
  const std::vector<Card> board = CardsIn(kBoardSlots);
  for (Card card = 1; card <= 52 && known.size() < 7; ++card) {
    if (std::ranges::count(known, card) > 0) continue;
    std::vector<Card> with = known, everybody = board;
    with.push_back(card);
    everybody.push_back(card);
    const int gained = ClassOf(ValueOf(with));
    const int without = std::max(ClassOf(ValueOf(known)), ClassOf(ValueOf(everybody)));
    if (gained > without) rows[card] = gained / 10000 - 1;
  }
  return rows;
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
  const double value = trips != 0       ? Value(3, ranks, 3, {trips})
                       : pair == 0      ? Value(0, ranks, 5)
                       : lowerPair != 0 ? Value(2, ranks, 3, {pair, lowerPair})
                                        : Value(1, ranks, 4, {pair});
  const bool draws = includeDraws && (hand.count == 5 || hand.count == 6);
  return draws ? value + FlushDraw(hand, suits) + StraightDraw(hand, ranks) : value;
}

SimulationTallies RunSimulation(const Analysis& found, RandomGenerator& random) {
  const std::vector<Card> known = CardsIn(kSlotOrder);
  const int count = static_cast<int>(known.size());
  std::vector<Card> unseen;
  for (Card card = 1; card <= kCardCount; ++card)
    if (std::ranges::count(known, card) == 0) unseen.push_back(card);
  auto foldsOn = found.FoldsByStreet;
  if (!seats.WatchFoldDepth) foldsOn = {0, 0, found.FoldedCount};  // all of them before the flop

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

    for (int street = FoldedPreFlop; street <= FoldedRiver; ++street) {
      const int cards = std::min(street + 2, count);  // never one that has not been dealt
      const auto score = [&](int player) {
        const auto& holes = hands[player].entries;
        return street == FoldedPreFlop ? PreFlopScore(holes[1].card, holes[2].card)
                                       : valueOf(player, cards, street != FoldedRiver);
      };
      // The weakest go, the first of equals before the others.
      for (int folds = foldsOn[street]; folds > 0 && !in.empty(); --folds)
        in.erase(std::ranges::min_element(in, {}, score));
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

int BandOf(double score) {
  int band = 0;
  for (const double border : {-0.5, 0.0, 0.5, 1.0, 1.5}) band += score >= border;
  return band;
}

void ShowAdvice(Figures& figures, double score) {
  constexpr const char* kBeforeFlop[] = {"Fold", "Call unraised only",
                                         "Raise or call 1 small raise", "Raise or call raised",
                                         "Raise or Re-Raise"};
  constexpr const char* kAfterFlop[] = {"Check or Fold", "Check or call one small bet",
                                        "Bet or call one small bet", "Raise or call one Raise",
                                        "Raise or Re-Raise"};
  const bool small = figures.analysis.IsSmallBlind, big = figures.analysis.IsBigBlind;
  const bool preFlop = figures.analysis.CurrentStreet == PreFlop;
  const int band = BandOf(score);
  const int zone = std::max(band - 1, 0);
  std::string& text = figures.results.lblAdvice;
  text = (preFlop ? kBeforeFlop : kAfterFlop)[zone];
  if (preFlop && band < 3 && small) text = "Small Blind: Call. Fold if raised.";
  if (preFlop && band == 0 && small) text = "Small Blind: Fold";
  if (preFlop && band < 3 && big) text = "Big Blind: Check or Fold";
  figures.results.lblAdviceLit = true;  // it is seen at once
  figures.advice.MeterScore = small && band == 1 ? 0 : score;
}

SimulationTallies Pass(Figures& figures, bool changed, RandomGenerator& random) {
  auto& [analysis, advice, results] = figures;
  analysis = {};
  analysis.EmptyBoardSlots = 5 - static_cast<int>(CardsIn(kBoardSlots).size());
  GoAroundTheTable(analysis);
  const Street street = analysis.CurrentStreet = StreetOf(analysis);
  for (const int state : seats.SeatStates)
    if (state >= 2) ++analysis.FoldsByStreet[std::min(state, std::max(street + 1, 2))];
  if (changed) {
    results.lblAdvice = "";
    results.lblMe = results.lblThem = {};
    advice.MeterScore = -10;
  }
  const double value = analysis.MyHandValue = ValueOf(CardsIn(kSlotOrder));
  results.lblCurrentScore = value > 0 ? DescribeHand(value) : "";
  if (street == PreFlop && analysis.PlayerCount > 1) AdviseBeforeFlop(figures);
  results.OutRows = Outs();
  const bool allKnown = analysis.EmptyBoardSlots == 0 && slots.IsFilled(0) && slots.IsFilled(1);
  if (value >= 1 && !allKnown) results.lblMe[static_cast<int>(value) - 1] = "Current";
  if (!changed || street < Flop) return {};
  const SimulationTallies tallies = RunSimulation(analysis, random);
  EndRun(figures, tallies);
  return tallies;
}

}  // namespace holdem::literal
