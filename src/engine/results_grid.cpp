#include "engine/results_grid.h"

#include <cassert>

#include "engine/simulation.h"
#include "figures/percent_text.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/results.h"

namespace holdem {
namespace {

int PercentOf(int count, int deals) { return RoundHalfEven(100.0 * count / deals); }

std::string CategoryText(int count, int deals) {
  const int percent = PercentOf(count, deals);
  return percent == 0 ? std::string() : BlankPercentText(percent);
}

}  // namespace

void MarkCurrentCategory(HandValue known) {
  const int row = static_cast<int>(known) - 1;
  if (row >= 0) results.lblMe[row] = analysis.CurrentStreet == River ? kFinal : kCurrent;
}

void FillResultsGrid() {
  const PlayerTally& me = simulation.SimTally[kMe];
  assert(me.deals > 0);
  for (int row = 0; row < kCategoryRows; ++row) {
    results.lblMe[row] = CategoryText(me.categories[row + 1], me.deals);
    results.lblThem[row] = CategoryText(simulation.OpponentCategoryTally[row + 1], me.deals);
  }
  MarkCurrentCategory(analysis.MyHandValue);
  results.lblMe[kWinSplitRow] = BlankPercentText(RoundHalfEven(advice.WinSplitChance * 100));
  results.lblThem[kWinSplitRow] = BlankPercentText(100 - PercentOf(me.wins, me.deals));
}

}  // namespace holdem
