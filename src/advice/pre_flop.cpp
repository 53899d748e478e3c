#include "advice/pre_flop.h"

#include <cassert>

#include "advice/hole_table.h"
#include "advice/scoring.h"
#include "advice/show_advice.h"
#include "figures/percent_text.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/results.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem {
namespace {

// The button, last to act on every later street: worth more here, with all of them to come.
constexpr double kLastToAct = 0.18;

// The first or the second, 0 or 1.
Card HoleCard(int which) {
  const Card card = slots.picHand[kHoleSlots[which]];
  assert(IsRealCard(card));
  return card;
}

void ShowCategory(HandCategory category, std::string text) {
  results.lblMe[category - 1] = std::move(text);
}

// Fills the user's column with the chances of the final categories; rows without a figure keep
// their text.
void ShowPreFlopOutcomes() {
  const modHole::HoleKind kind = modHole::KindOf(HoleCard(0), HoleCard(1));
  if (kind.hi == kind.lo) {
    ShowCategory(TwoPair, "40%");
    ShowCategory(ThreeOfAKind, "12%");
    ShowCategory(FullHouse, "9%");
    ShowCategory(FourOfAKind, "1%");
  } else {
    ShowCategory(OnePair, "44%");
    ShowCategory(TwoPair, "22%");
    ShowCategory(ThreeOfAKind, "4%");
    ShowCategory(FullHouse, "2%");
  }
  ShowCategory(Flush, kind.suited ? "7%" : "2%");
  ShowCategory(Straight, BlankPercentText(modHole::HoleStraightPct[kind]));
}

}  // namespace

void PreFlopStep() {
  assert(analysis.PlayerCount >= 2 && analysis.PlayerCount <= kSeats);
  const int opponents = analysis.PlayerCount - 1;
  advice.StartOpponents = opponents;
  advice.WinSplitChance = modHole::HoleWinChance(HoleCard(0), HoleCard(1), opponents);
  const int percent = RoundHalfEven(advice.WinSplitChance * 100);
  results.lblMe[kWinSplitRow] = PercentText(percent);
  results.lblThem[kWinSplitRow] = PercentText(100 - percent);
  ShowPreFlopOutcomes();

  advice.FairShare = 1.0 / analysis.PlayerCount;
  advice.LevelFactor = LevelFactorOf(
      1.0, {LevelStep(settings.LevelPre), PositionStep(analysis.PositionPercent, kLastToAct),
            HeadsUpStep(opponents)});
  advice.MeterThreshold = advice.LevelFactor * advice.FairShare;
  advice.MeterValue =
      ScoreOf(advice.WinSplitChance, advice.MeterThreshold, modHole::HoleOddsMin[opponents] / 100.0,
              modHole::HoleOddsMax[opponents] / 100.0);
  ShowAdvice(advice.MeterValue, PreFlop);
}

}  // namespace holdem
