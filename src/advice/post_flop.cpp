#include "advice/post_flop.h"

#include <cassert>

#include "advice/scoring.h"
#include "advice/show_advice.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/settings.h"

namespace holdem {

void PostFlopStep() {
  // Fair shares to ask for before any step. On the river nothing is left to hope for.
  constexpr double kSharesBefore = 1.0;
  constexpr double kSharesOnTheRiver = 1.1;
  constexpr double kLastToAct = 0.15;

  const int playersIn = analysis.PlayerCount - analysis.FoldedCount;
  assert(playersIn >= 1);
  const bool twoSeated = analysis.PlayerCount == 2;  // then position does not count
  advice.FairShare = 1.0 / playersIn;
  advice.LevelFactor =
      LevelFactorOf(analysis.CurrentStreet == River ? kSharesOnTheRiver : kSharesBefore,
                    {LevelStep(settings.LevelPost),
                     twoSeated ? 0 : PositionStep(analysis.PositionPercent, kLastToAct),
                     HeadsUpStep(advice.StartOpponents)});
  advice.MeterThreshold = advice.LevelFactor * advice.FairShare;
  advice.MeterValue = ScoreOf(advice.WinSplitChance, advice.MeterThreshold, 0, 1);
  ShowAdvice(advice.MeterValue, analysis.CurrentStreet);
}

}  // namespace holdem
