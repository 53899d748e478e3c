#include "words/explained.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "advice/show_advice.h"
#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "figures/percent_text.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/auto_read.h"
#include "state/results.h"
#include "state/run.h"

namespace holdem {
namespace {

// Why there are neither chances nor advice; empty where there are.
std::string WhyNoAnswer() {
  if (!results.lblAdvice.empty() && results.lblAdvice != kThinking) return {};
  if (!run.Settled()) return "Being worked out";
  switch (MissingForAStreet()) {
    case Missing::HoleCards: return "Both of your hole cards are needed";
    case Missing::FlopCards: return "All three cards of the flop are needed";
    case Missing::Turn: return "There is a river card, but no turn";
    case Missing::Opponents: return "Every opponent has folded";
    case Missing::Nothing: return {};
  }
  return {};
}

std::string Percent(double share) { return PercentText(RoundHalfEven(100 * share)); }

std::string WithDecimals(int decimals, double number) {
  std::array<char, 32> text{};
  char* const begin = text.data();
  return {
      begin,
      std::to_chars(begin, begin + text.size(), number, std::chars_format::fixed, decimals).ptr};
}

std::string MyChance() {
  if (analysis.CurrentStreet == PreFlop) {
    return "How often these two cards win or split, against " +
           std::to_string(analysis.PlayerCount - 1) +
           (analysis.PlayerCount == 2 ? " opponent" : " opponents") +
           ".\nBefore the flop nothing tells wins from splits.";
  }
  const PlayerTally& me = simulation.SimTally[kMe];
  const double deals = std::max(me.deals, 1);
  return PriceOfACall(me.wins / deals, me.splits / deals);
}

std::string TheirChance() {
  if (analysis.CurrentStreet == PreFlop) return "What your own chance leaves to the others";
  return "How often another player wins or splits.\n"
         "A split counts on both sides: together they may be more than a hundred.";
}

constexpr const char* kSeldom = "Hardly ever: in fewer than one of 200 deals";

}  // namespace

std::string PriceOfACall(double win, double split) {
  const double equity = win + split / 2;
  const std::string chances = "Win " + Percent(win) + ", split " + Percent(split) + ": ";
  if (equity <= 0) return chances + "no call pays.";
  if (equity >= 0.5) return chances + "any call pays, as the pot never holds less than it costs.";
  const double price = (1 - equity) / equity;
  return chances + "a call pays when the pot holds at least " +
         WithDecimals(price < 10 ? 1 : 0, price) +
         " times what you must put in.\nA split counts as half a win; later bets are not counted.";
}

std::string ExplainMine(int row) {
  const std::string& cell = results.lblMe[row];
  const std::string name = lbllbl[row];
  if (cell == kCurrent) return name + " is what you hold now";
  if (cell == kFinal) return name + " is what you hold in the end";
  if (std::string why = WhyNoAnswer(); !why.empty()) return why;
  if (row == kWinSplitRow) return MyChance();
  return cell.empty() ? kSeldom : "How often you end with " + name + " as your best hand";
}

std::string ExplainTheirs(int row) {
  if (std::string why = WhyNoAnswer(); !why.empty()) return why;
  if (row == kWinSplitRow) return TheirChance();
  if (analysis.CurrentStreet == PreFlop) return "Worked out from the flop on";
  if (results.lblThem[row].empty()) return kSeldom;
  return std::string("How often the best other hand is ") + lbllbl[row];
}

std::string ExplainTitle(int row) {
  if (row == kWinSplitRow) return "How often the pot is won, or shared";
  return std::string("The sign marks, in the deck, the cards that would give you ") + lbllbl[row];
}

std::string ExplainScore() {
  return results.lblCurrentScore.empty() ? WhyNoAnswer() : "What you hold now";
}

std::string ExplainAdvice() {
  if (std::string why = WhyNoAnswer(); !why.empty()) return why;
  const int players = analysis.CurrentStreet == PreFlop
                          ? analysis.PlayerCount
                          : analysis.PlayerCount - analysis.FoldedCount;
  return "Zone " + std::to_string(ZoneOf(advice.MeterValue) + 1) + " of " + std::to_string(kZones) +
         ", from folding to raising.\nYour chance of " + Percent(advice.WinSplitChance) +
         " was compared with the " + Percent(advice.MeterThreshold) + " asked for:\n" +
         WithDecimals(2, advice.LevelFactor) + " times the fair share of one among " +
         std::to_string(players) + " players, by your level and position.";
}

std::string ExplainNewHand() {
  if (autoRead.Following()) return "The table that is read tells when a hand begins";
  return "Takes all cards back, deals in who has folded, and moves the button on.\n"
         "Ctrl+Z undoes it.";
}

}  // namespace holdem
