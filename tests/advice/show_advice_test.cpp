#include "advice/show_advice.h"

#include <cmath>

#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using ShowAdviceTest = ProgramTest;

// Each text at its lowest score; the text before it a hair below.
TEST_F(ShowAdviceTest, TextsByScoreSeatAndStreet) {
  using Bands = std::map<double, std::string>;  // by the lowest score
  const auto beforeFlop = [&](Bands low) {
    low.insert({{0.5, "Raise or call 1 small raise"},
                {1.0, "Raise or call raised"},
                {1.5, "Raise or Re-Raise"}});
    return low;
  };
  const auto smallBlind =
      beforeFlop({{-1e9, "Small Blind: Fold"}, {-0.5, "Small Blind: Call. Fold if raised."}});
  const auto bigBlind = beforeFlop({{-1e9, "Big Blind: Check or Fold"}});
  const auto other = beforeFlop({{-1e9, "Fold"}, {0, "Call unraised only"}});
  const Bands afterFlop = {{-1e9, "Check or Fold"},
                           {0, "Check or call one small bet"},
                           {0.5, "Bet or call one small bet"},
                           {1.0, "Raise or call one Raise"},
                           {1.5, "Raise or Re-Raise"}};
  const struct {
    Street street;
    bool small, big;
    const Bands& bands;
  } cases[] = {{PreFlop, true, false, smallBlind}, {PreFlop, true, true, smallBlind},
               {PreFlop, false, true, bigBlind},   {PreFlop, false, false, other},
               {Flop, false, false, afterFlop},    {Turn, true, false, afterFlop},
               {River, false, true, afterFlop}};
  for (const auto& c : cases) {
    analysis.IsSmallBlind = c.small;
    analysis.IsBigBlind = c.big;
    for (auto band = c.bands.begin(); band != c.bands.end(); ++band) {
      const auto next = std::next(band);
      const double last = next == c.bands.end() ? 1e9 : std::nextafter(next->first, -1e9);
      for (const double score : {band->first, last}) {
        ShowAdvice(score, c.street);
        EXPECT_EQ(results.lblAdvice, band->second) << &c - cases << ": " << score;
        // The small blind's meter stands at zero where it calls.
        EXPECT_EQ(advice.MeterScore, c.small && score >= -0.5 && score < 0 ? 0 : score);
      }
    }
  }
}

}  // namespace
}  // namespace holdem
