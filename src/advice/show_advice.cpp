#include "advice/show_advice.h"

#include <algorithm>
#include <array>

#include "platform/display.h"
#include "platform/ports.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/results.h"

namespace holdem {
namespace {

// From this score on the small blind calls, with half a bet in the pot already; others only from 0
// on.
constexpr double kSmallBlindCalls = -0.5;

constexpr std::array<const char*, kZones> kBeforeFlop = {
    "Fold", "Call unraised only", "Raise or call 1 small raise", "Raise or call raised",
    "Raise or Re-Raise"};
constexpr std::array<const char*, kZones> kAfterFlop = {
    "Check or Fold", "Check or call one small bet", "Bet or call one small bet",
    "Raise or call one Raise", "Raise or Re-Raise"};

// The small blind's text applies when both blinds are set.
const char* AdviceText(double score, Street street) {
  const int zone = ZoneOf(score);
  if (street != PreFlop) return kAfterFlop[zone];
  if (zone > 1 || !(analysis.IsSmallBlind || analysis.IsBigBlind)) return kBeforeFlop[zone];
  if (!analysis.IsSmallBlind) return "Big Blind: Check or Fold";
  return score < kSmallBlindCalls ? "Small Blind: Fold" : "Small Blind: Call. Fold if raised.";
}

}  // namespace

int ZoneOf(double score) {
  return static_cast<int>(std::count_if(kZoneBorders.begin(), kZoneBorders.end(),
                                        [&](double border) { return score >= border; }));
}

void Think(double score) {
  advice.MeterScore = score;
  ports.display->ShowMeter();
}

void ShowAdvice(double score, Street street) {
  // The meter shows it so on every street, though only before the flop the advice says it.
  const bool smallBlindCalls = analysis.IsSmallBlind && score >= kSmallBlindCalls && score < 0;
  Think(smallBlindCalls ? 0 : score);
  results.lblAdviceLit = true;
  results.lblAdvice = AdviceText(score, street);
}

}  // namespace holdem
