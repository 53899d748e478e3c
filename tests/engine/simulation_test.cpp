#include "engine/simulation.h"

#include "effort.h"
#include "engine/analysis_pass.h"
#include "engine/pre_flop_score.h"
#include "engine/results_grid.h"
#include "fakes/fake_ports.h"
#include "reference/literal.h"

namespace holdem {
namespace {

class SimulationTest : public ProgramTest {
 protected:
  // What the analysis pass hands over: the cards, 5 to 7, the deck without them, the players.
  void Set(const std::vector<Card>& cards, int players) {
    slots.picHand = {};
    for (std::size_t i = 0; i < cards.size(); ++i) slots.picHand[kSlotOrder[i]] = cards[i];
    RebuildDeck();
    analysis = {.PlayerCount = players,
                .CurrentStreet = static_cast<Street>(cards.size() - 3),
                .MyHandValue = EvaluateHand(HandOf(cards))};
    display.yields = 0;
  }

  // Runs, and compares everything with the literal run of so many deals from the same generator
  // state.
  void ExpectLiteralRun(int deals) {
    RandomGenerator random = generator;
    const Deck before = deck;
    const SimulationTallies tallies = literal::RunSimulation(random, deals);
    const Results grid = literal::ResultsOf(tallies);
    RunSimulation();
    FillResultsGrid();
    EXPECT_EQ(simulation, tallies);
    EXPECT_EQ(generator.Next(), random.Next()) << "the generators have gone apart";
    EXPECT_EQ(deck.free, before.free);
    EXPECT_EQ(results.lblMe, grid.lblMe);
    EXPECT_EQ(results.lblThem, grid.lblThem);
    EXPECT_FALSE(run.AbortRequested);
  }
};

// What the literal run does not meet: codes that are no cards.
TEST_F(SimulationTest, PreFlopScores) {
  EXPECT_EQ(PreFlopScore(1, 40), 58);
  for (const Card none : {0, -1, 53, 55}) {
    EXPECT_EQ(PreFlopScore(none, 1) + PreFlopScore(1, none), 0);
  }
}

// Of 40 deals every odd count is a percentage that ends in a half; 59 wins of 200 show that the
// figure is worked out in single precision.
TEST_F(SimulationTest, GivesTheTalliesAndTextsOfTheLiteralRun) {
  for (int i = 0; i < Effort(8000) && !HasFailure(); ++i) {
    const int players = 2 + i % 9;
    SCOPED_TRACE(testing::Message() << "position " << i << ", players " << players);
    std::vector<Card> cards(5 + i / 9 % 3);
    deck = {};
    for (Card& card : cards) card = DealRandomCard();
    Set(cards, players);
    seats.WatchFoldDepth = i / 27 % 2 == 1;
    for (int folded = FoldedPreFlop; folded <= FoldedRiver; ++folded) {
      analysis.FoldsByStreet[folded] = std::max(0, static_cast<int>(generator.Next() % 7) - 3);
      analysis.FoldedCount += analysis.FoldsByStreet[folded];
    }
    settings.DealsPerRun = i % 4 == 0 ? 200 : 40;
    ExpectLiteralRun(settings.DealsPerRun);
  }
}

// A table may be misread: then a card is known twice, or all of them are the same.
TEST_F(SimulationTest, ACardKnownTwiceDoesNoHarm) {
  for (const char* cards : {"AS AS AS AS AS AS AS", "AS AS AD AC AH", "KS QD QD 7H 7H 7H"}) {
    Set(CardsOf(cards), 10);
    RunSimulation();
    EXPECT_EQ(simulation.SimTally[10].deals, settings.DealsPerRun) << cards;
  }
}

TEST_F(SimulationTest, StopsAtTheNextDealButNeverBeforeTenAreDone) {
  const std::pair<int, int> cases[] = {
      // the yield, 1 + n is that of deal n; the deals done
      {0, 100}, {1, 10}, {2, 10}, {4, 10}, {11, 10}, {12, 10}, {13, 11}, {51, 49}};
  settings.DealsPerRun = 100;
  for (const auto& [when, deals] : cases) {
    SCOPED_TRACE(when);
    Set(CardsOf(kFlopHand), 5);
    run.AbortRequested = true;  // left over from before: of no effect
    display.atYield = [&](int yield) { run.AbortRequested |= yield == when; };
    ExpectLiteralRun(deals);
    EXPECT_EQ(simulation.SimTally[kMe].deals, deals);
  }
}

TEST_F(SimulationTest, ChangesDuringTheRunTouchOnlyTheNextOne) {
  for (const int when : {1, 2, 20}) {
    Set(CardsOf("AS 9D 2C 5H KH 7S"), 6);
    analysis.FoldedCount = 2;
    analysis.FoldsByStreet[FoldedFlop] = 2;
    seats.WatchFoldDepth = true;
    settings.DealsPerRun = 40;
    display.atYield = [&](int yield) {
      if (yield != when) return;
      settings.DealsPerRun = 5;
      seats.WatchFoldDepth = false;
      seats.SeatStates.fill(Empty);
      slots.picHand[0] = 30;
      slots.picHand[kRiverSlot] = 1;
      RebuildDeck();
    };
    ExpectLiteralRun(40);
  }
}

}  // namespace
}  // namespace holdem
