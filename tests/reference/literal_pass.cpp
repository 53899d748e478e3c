#include <algorithm>
#include <cmath>

#include "advice/hole_table.h"
#include "cards/description.h"
#include "reference/card_text.h"
#include "reference/literal.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem::literal {
namespace {

bool Known(int slot) { return slots.picHand[slot] != kNoCard; }

std::vector<Card> CardsIn(std::initializer_list<int> indices) {
  std::vector<Card> cards;
  for (const int slot : indices) {
    if (Known(slot)) cards.push_back(slots.picHand[slot]);
  }
  return cards;
}

double ValueOf(const std::vector<Card>& cards) { return EvaluateHand(HandOf(cards), false); }

// Halves go to the even neighbour.
int Percent(int part, int whole) {
  const int below = 100 * part / whole;
  const int rest = 2 * (100 * part % whole);
  return rest > whole || (rest == whole && below % 2 == 1) ? below + 1 : below;
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
  if (!Known(0) || !Known(1)) return NoStreet;
  if (found.EmptyBoardSlots == 5) return PreFlop;
  if (!Known(6) || !Known(7) || !Known(8)) return NoStreet;
  if (found.PlayerCount - found.FoldedCount < 2) return NoStreet;
  if (!Known(9)) return Known(10) ? NoStreet : Flop;
  return Known(10) ? River : Turn;
}

// Asks for so many fair shares, a few steps more or less, each in single precision, and tells how
// far from that the chance lies between the weakest and the strongest one.
void Score(Figures& figures, float shares, int level, double onButton, double weakest,
           double strongest) {
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
  if (static_cast<float>(threshold) < is.WinSplitChance) {
    is.MeterValue = (is.WinSplitChance - threshold) * 2 / (strongest - threshold);
  } else {
    is.MeterValue = (is.WinSplitChance - weakest) / (threshold - weakest) - 1;
  }
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

void AdviseAfterFlop(Figures& figures) {
  const Analysis& is = figures.analysis;
  figures.advice.FairShare = 1.0 / (is.PlayerCount - is.FoldedCount);
  Score(figures, is.CurrentStreet == River ? 1.1F : 1, settings.LevelPost,
        is.PlayerCount == 2 ? 0 : 0.15, 0, 1);  // of two, the position does not count
}

// What counts as better: the category, the ranks of two pairs and full houses, the top card of
// straights and flushes, no kicker.
int ClassOf(double value) {
  const int category = static_cast<int>(value);
  const int ranks = category == 2 || category == 6                    ? 10000
                    : category == 4 || category == 5 || category == 8 ? 100
                                                                      : 1;
  return static_cast<int>(value * ranks + 0.001) * (10000 / ranks);
}

RowByCard Outs() {
  RowByCard rows = NoOuts();
  const std::vector<Card> known = CardsIn({0, 1, 6, 7, 8, 9, 10});
  const std::vector<Card> board = CardsIn({6, 7, 8, 9, 10});
  for (Card card = 1; card <= 52 && !known.empty() && known.size() < 7; ++card) {
    if (std::ranges::count(known, card) > 0) continue;
    std::vector<Card> with = known, everybody = board;
    with.push_back(card);
    everybody.push_back(card);
    const int gained = ClassOf(ValueOf(with));
    const bool better = gained > ClassOf(ValueOf(known)) && gained > ClassOf(ValueOf(everybody));
    if (better && ValueOf(with) >= 1) rows[card] = static_cast<int>(ValueOf(with)) - 1;
  }
  return rows;
}

}  // namespace

int BandOf(double score) {
  int band = 0;
  for (const double border : {-0.5, 0.0, 0.5, 1.0, 1.5}) band += score >= border;
  return band;
}

void ShowAdvice(Figures& figures, double score) {
  constexpr const char* kRaises[] = {"Raise or call 1 small raise", "Raise or call raised",
                                     "Raise or Re-Raise"};
  constexpr const char* kCall = "Small Blind: Call. Fold if raised.";
  constexpr const char* kAfterFlop[] = {"Check or Fold",
                                        "Check or Fold",
                                        "Check or call one small bet",
                                        "Bet or call one small bet",
                                        "Raise or call one Raise",
                                        "Raise or Re-Raise"};
  const bool small = figures.analysis.IsSmallBlind, big = figures.analysis.IsBigBlind;
  const int band = BandOf(score);
  figures.results.lblAdvice = figures.analysis.CurrentStreet != PreFlop ? kAfterFlop[band]
                              : band >= 3                               ? kRaises[band - 3]
                              : small     ? (band > 0 ? kCall : "Small Blind: Fold")
                              : big       ? "Big Blind: Check or Fold"
                              : band == 2 ? "Call unraised only"
                                          : "Fold";
  figures.results.lblAdviceLit = true;  // it is seen at once
  figures.advice.MeterScore = small && band == 1 ? 0 : score;
}

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
  const float hundredfold = 100 * advice.WinSplitChance;
  results.lblMe[8] = " " + Text(static_cast<int>(std::nearbyint(hundredfold)));
  results.lblThem[8] = " " + Text(100 - Percent(me.wins, me.deals));
  AdviseAfterFlop(figures);
}

SimulationTallies Pass(Figures& figures, bool changed, RandomGenerator& random) {
  auto& [analysis, advice, results] = figures;
  analysis = {};
  analysis.EmptyBoardSlots = 5 - static_cast<int>(CardsIn({6, 7, 8, 9, 10}).size());
  GoAroundTheTable(analysis);
  const Street street = analysis.CurrentStreet = StreetOf(analysis);
  for (const int state : seats.SeatStates) {
    if (state >= 2) ++analysis.FoldsByStreet[std::min(state, std::max(street + 1, 2))];
  }
  if (changed) {
    results.lblAdvice = "";
    results.lblMe = results.lblThem = {};
    advice.MeterScore = -10;
  }
  const double value = analysis.MyHandValue = ValueOf(CardsIn({0, 1, 6, 7, 8, 9, 10}));
  results.lblCurrentScore = value > 0 ? DescribeHand(value) : "";
  if (street == PreFlop && analysis.PlayerCount > 1) AdviseBeforeFlop(figures);
  results.OutRows = Outs();
  const bool allKnown = analysis.EmptyBoardSlots == 0 && Known(0) && Known(1);
  if (value >= 1 && !allKnown) results.lblMe[static_cast<int>(value) - 1] = "Current";
  if (!changed || street < Flop) return {};
  const SimulationTallies tallies = RunSimulation(analysis, random);
  EndRun(figures, tallies);
  return tallies;
}

}  // namespace holdem::literal
