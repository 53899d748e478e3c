#include "advice/show_advice.h"
#include "engine/analysis_pass.h"
#include "engine/run_protocol.h"
#include "engine/simulation.h"
#include "fakes/fake_ports.h"
#include "reference/literal.h"

namespace holdem {
namespace {

struct AnalysisPassTest : ProgramTest {
  // What is not as the literal pass has it.
  static void ExpectFigures(const literal::Figures& wantedFigures) {
    const auto table = [](const Analysis& of) {
      return std::tuple(of.CurrentStreet, of.EmptyBoardSlots, of.PlayerCount, of.FoldedCount,
                        of.FoldsByStreet, of.MyTablePosition, of.MyLivePosition, of.PositionPercent,
                        of.IsSmallBlind, of.IsBigBlind, of.MyHandValue);
    };
    const auto scored = [](const AdviceValues& of) {
      const auto rounded = [](double figure) { return std::round(figure * 1e9) / 1e9; };
      return std::tuple(of.StartOpponents, of.WinSplitChance, rounded(of.FairShare), of.LevelFactor,
                        rounded(of.MeterThreshold), rounded(of.MeterValue), rounded(of.MeterScore));
    };
    const auto shown = [](const Results& of) {
      return std::tie(of.lblCurrentScore, of.lblMe, of.lblThem, of.lblAdvice, of.lblAdviceLit);
    };
    const auto& [wanted, wantedAdvice, wantedResults] = wantedFigures;
    EXPECT_EQ(table(analysis), table(wanted)) << "from the street to the value of the hand";
    EXPECT_EQ(scored(advice), scored(wantedAdvice)) << "from the opponents to the meter";
    EXPECT_EQ(shown(results), shown(wantedResults)) << "hand, both columns, the advice, lit or not";
    EXPECT_EQ(results.OutRows, wantedResults.OutRows) << "by card";
    for (Card card = 1; card <= kCardCount; ++card)
      EXPECT_EQ(deck.DeckUsed(card), !slots.InDeck(card)) << TextOf(card);
  }

  // A pass over the table as it is.
  void ExpectLiteralPass(bool changed) {
    results = {.lblAdvice = "old", .lblAdviceLit = false};
    results.lblMe.fill("old");
    results.lblThem.fill("old");
    advice.MeterScore = 0.1;
    literal::Figures wanted = {analysis, advice, results};
    RandomGenerator dealing = generator;
    const SimulationTallies tallies = literal::Pass(wanted, changed, dealing);
    const bool simulates = changed && wanted.analysis.CurrentStreet >= Flop;
    display = {};
    display.atYield = [](int) { EXPECT_EQ(results.lblAdvice, "Thinking..."); };
    RunAnalysis();
    ExpectFigures(wanted);
    EXPECT_TRUE(!simulates || simulation == tallies) << "the simulation";
    EXPECT_EQ(generator.Next(), dealing.Next()) << "the generators have gone apart";
    EXPECT_EQ(display.yields, simulates ? 1 + settings.DealsPerRun : 0);
    EXPECT_FALSE(run.Calculating || run.RecalcNeeded);
    EXPECT_TRUE(display.shown["deck"] == 1 && display.shown["results"] == 1 + simulates);
    EXPECT_EQ(display.shown["meter"], changed + wanted.results.lblAdviceLit);
    const double score = Random(13) / 4.0 - 1;  // each border among them
    SCOPED_TRACE(testing::Message() << "score " << score);
    ShowAdvice(score, analysis.CurrentStreet);
    literal::ShowAdvice(wanted, score);
    ExpectFigures(wanted);
  }
};

TEST_F(AnalysisPassTest, IsTheLiteralPassAtRandomTables) {
  Kinds kinds;
  for (int i = 0; i < Effort(12000) && !HasFailure(); ++i) {
    PutRandomTable();
    PutRandomCards();
    advice.StartOpponents = Random(3);
    seats.WatchFoldDepth = Random(2) == 0;
    const int deals = std::array{40, 80, 120}[Random(3)];  // with percentages that end in a half
    settings = {.LevelPre = Random(5) - 1, .LevelPost = Random(5) - 1, .DealsPerRun = deals};
    const bool changed = Random(4) > 0;
    run.RecalcNeeded = changed && Random(2) == 0;
    if (changed && !run.RecalcNeeded) MarkTableChanged();
    SCOPED_TRACE(testing::Message()
                 << "seats, yours and the button " << Seating() << "; cards " << Cards()
                 << (changed ? "; changed" : "; not changed") << "; levels " << settings.LevelPre
                 << " and " << settings.LevelPost << " (1 is average)");
    ExpectLiteralPass(changed);
    const int street = analysis.CurrentStreet, players = analysis.PlayerCount;
    const bool simulated = street >= Flop && changed;
    const bool onButton = seats.DealerSeat == seats.MySeat;
    const SeatState my = seats.SeatStates[seats.MySeat], at = seats.SeatStates[seats.DealerSeat];
    const int blind = analysis.IsSmallBlind ? 1 : analysis.IsBigBlind ? 2 : 0;
    const int band = literal::BandOf(advice.MeterValue);
    Meet(kinds,
         {{"on a border", 2, simulated && std::abs(std::remainder(advice.MeterValue, 0.5)) < 1e-6},
          {"heads-up: on the button, and the button on an empty seat", 4,
           players == 2 ? 2 * onButton + (at == Empty) : -1},
          {"all others folded on the flop", 2,
           players - analysis.FoldedCount == 1 && analysis.EmptyBoardSlots < 3},
          {"user's state after the flop", 6, street < Flop ? -1 : my},
          {"button's state", 7, seats.DealerSeat == 0 ? 6 : at},
          {"river without turn", 2, slots.IsFilled(10) && !slots.IsFilled(9)},
          {"folded later than the street", 2,
           street < Turn && analysis.FoldsByStreet[street + 1] > 1},
          {"players besides the user", 10, players - 1},
          {"street, not changed and changed", 10, 2 * street + changed},
          {"row of the best out", 9, 1 + std::ranges::max(results.OutRows)},
          {"blind and band", 18, street == PreFlop && players > 1 ? 6 * blind + band : -1},
          {"street after the flop and band", 18, simulated ? 6 * (street - Flop) + band : -1},
          {"meter of a small blind that calls", 2, simulated && blind == 1 && band == 1}});
  }
  for (const auto& [kind, times] : kinds) EXPECT_GE(times, Effort(10)) << "of " << kind;
}

TEST_F(AnalysisPassTest, NeedsTheDeckWindowAndARunningProgram) {
  Put(kFlopHand);
  MarkTableChanged();
  slots.DeckShown = false;
  Recalculate();
  EXPECT_TRUE(run.RecalcNeeded && !run.Calculating && run.LastCalcTicks == run.LastChangeTicks);
  slots.DeckShown = run.Ending = true;
  Recalculate();
  EXPECT_EQ(std::pair(analysis.CurrentStreet, display.yields), std::pair(NoStreet, 0));
}

// A change at a yield stops the run at the next deal, but is of no other effect on it; one pass
// follows, however many there were.
TEST_F(AnalysisPassTest, AChangeStopsTheRunButNeverBeforeTenDealsAreDone) {
  const std::pair<int, int> cases[] = {
      // the yield, 1 + n is that of deal n; the deals done
      {0, 100}, {1, 10}, {2, 10}, {4, 10}, {11, 10}, {12, 10}, {13, 11}, {51, 49}};
  for (const auto& [when, deals] : cases) {
    SCOPED_TRACE(when);
    PutSeats("i3ii5ii... 1 2");
    Put(kTurnHand);
    seats.WatchFoldDepth = true;
    settings.DealsPerRun = deals;
    literal::Figures wanted;
    RandomGenerator dealing = generator;
    const SimulationTallies tallies = literal::Pass(wanted, true, dealing);
    settings.DealsPerRun = 100;
    run.AbortRequested = true;  // left over from before: of no effect
    display.atYield = [&, when = when](int yield) {
      if (yield < when || yield > when + 2 || when == 0) return;
      settings.DealsPerRun = 5;
      seats.WatchFoldDepth = false;
      PutSeats("iiiiiiiiii 1 2");
      Put(kFlopHand);
      RebuildDeck();  // as for a random card
      Recalculate();
      CheckRefresh();  // must wait for the end of the pass
      EXPECT_TRUE(run.AbortRequested && run.Calculating && analysis.CurrentStreet == Turn);
    };
    display.yields = 0;
    Recalculate();
    EXPECT_EQ(simulation, tallies);
    EXPECT_EQ(generator.Next(), dealing.Next()) << "the generators have gone apart";
    EXPECT_FALSE(run.AbortRequested);
    for (const Card card : CardsOf(kTurnHand)) EXPECT_TRUE(deck.DeckUsed(card)) << TextOf(card);
    display = {};
    for (int tick = 0; tick < 3; ++tick) CheckRefresh();
    EXPECT_EQ(analysis.CurrentStreet, when == 0 ? Turn : Flop);
    EXPECT_EQ(display.yields, when == 0 ? 0 : 6);
  }
}

}  // namespace
}  // namespace holdem
