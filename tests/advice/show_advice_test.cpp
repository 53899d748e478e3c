#include "advice/show_advice.h"

#include <cmath>

#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using ShowAdviceTest = ProgramTest;

// Each text at its lowest score; the text before it a hair below.
TEST_F(ShowAdviceTest, TextsByScoreSeatAndStreet) {
  struct Band {
    double from;
    const char* text;
  };
  constexpr double kAnything = -1e9;
  const Band common[] = {{0.5, "Raise or call 1 small raise"},
                         {1.0, "Raise or call raised"},
                         {1.5, "Raise or Re-Raise"}};
  const auto beforeFlop = [&](std::vector<Band> low) {
    low.insert(low.end(), std::begin(common), std::end(common));
    return low;
  };
  const auto smallBlind =
      beforeFlop({{kAnything, "Small Blind: Fold"}, {-0.5, "Small Blind: Call. Fold if raised."}});
  const auto bigBlind = beforeFlop({{kAnything, "Big Blind: Check or Fold"}});
  const auto other = beforeFlop({{kAnything, "Fold"}, {0, "Call unraised only"}});
  const std::vector<Band> afterFlop = {{kAnything, "Check or Fold"},
                                       {0, "Check or call one small bet"},
                                       {0.5, "Bet or call one small bet"},
                                       {1.0, "Raise or call one Raise"},
                                       {1.5, "Raise or Re-Raise"}};
  const struct {
    Street street;
    bool small, big;
    const std::vector<Band>& bands;
  } cases[] = {{PreFlop, true, false, smallBlind}, {PreFlop, true, true, smallBlind},
               {PreFlop, false, true, bigBlind},   {PreFlop, false, false, other},
               {Flop, false, false, afterFlop},    {Turn, true, false, afterFlop},
               {River, false, true, afterFlop}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.street << ' ' << c.small << ' ' << c.big);
    analysis.IsSmallBlind = c.small;
    analysis.IsBigBlind = c.big;
    for (std::size_t i = 0; i < c.bands.size(); ++i) {
      ShowAdvice(c.bands[i].from, c.street);
      EXPECT_EQ(results.lblAdvice, c.bands[i].text);
      const bool last = i + 1 == c.bands.size();
      ShowAdvice(last ? 1e9 : std::nextafter(c.bands[i + 1].from, -1e9), c.street);
      EXPECT_EQ(results.lblAdvice, c.bands[i].text);
    }
  }
}

TEST_F(ShowAdviceTest, TheSmallBlindsMeterStandsAtZeroWhereItCalls) {
  const struct {
    double score, smallBlind;
  } cases[] = {{-0.51, -0.51}, {-0.5, 0}, {-0.25, 0}, {-1e-9, 0}, {0, 0}, {0.3, 0.3}, {-1, -1}};
  for (const Street street : {PreFlop, Flop, Turn, River}) {
    for (const auto& c : cases) {
      analysis.IsSmallBlind = true;
      ShowAdvice(c.score, street);
      EXPECT_EQ(advice.MeterScore, c.smallBlind) << c.score << " on street " << street;
      analysis.IsSmallBlind = false;
      ShowAdvice(c.score, street);
      EXPECT_EQ(advice.MeterScore, c.score) << c.score << " on street " << street;
    }
  }
}

}  // namespace
}  // namespace holdem
