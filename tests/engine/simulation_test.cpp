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
    RunSimulation();
    const PlayerTally& me = tallies.SimTally[kMe];
    EXPECT_EQ(simulation, tallies);
    EXPECT_EQ(advice.WinSplitChance, static_cast<float>(1.0 * (me.wins + me.splits) / me.deals));
    EXPECT_EQ(generator.Next(), random.Next()) << "the generators have gone apart";
    EXPECT_EQ(deck.free, before.free);
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

TEST_F(SimulationTest, GivesTheTalliesOfTheLiteralRun) {
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
    ExpectLiteralRun(settings.DealsPerRun = 80);
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

// A change at a yield stops the run at the next deal, but is of no other effect on it.
TEST_F(SimulationTest, StopsAtAChangeButNeverBeforeTenDealsAreDone) {
  const std::pair<int, int> cases[] = {
      // the yield, 1 + n is that of deal n; the deals done
      {0, 100}, {1, 10}, {2, 10}, {4, 10}, {11, 10}, {12, 10}, {13, 11}, {51, 49}};
  for (const auto& [when, deals] : cases) {
    SCOPED_TRACE(when);
    Set(CardsOf(kTurnHand), 6);
    analysis.FoldedCount = analysis.FoldsByStreet[FoldedFlop] = 2;
    seats.WatchFoldDepth = true;
    settings.DealsPerRun = 100;
    run.AbortRequested = true;  // left over from before: of no effect
    display.atYield = [&](int yield) {
      if (yield != when) return;
      run.AbortRequested = true;
      settings.DealsPerRun = 5;
      seats.WatchFoldDepth = false;
      analysis.PlayerCount = 2;
      analysis.FoldsByStreet = {};
      Put(kFlopHand);
      RebuildDeck();
    };
    ExpectLiteralRun(deals);
  }
}

// Of 200 deals every odd count is a percentage that ends in a half and goes to the even neighbour;
// the chance and its hundredfold are in single precision.
TEST_F(SimulationTest, GridOfWorkedTallies) {
  using Column = decltype(results.lblMe);
  simulation.SimTally[kMe] = {.deals = 200, .categories = {1, 1, 2, 3, 5, 200}, .wins = 57};
  simulation.OpponentCategoryTally = {100, 99, 1, 0, 60, 9, 11, 13, 7};
  analysis.MyHandValue = 2.1309;
  for (const auto& [street, chance, current, percent] :
       {std::tuple{Turn, 0.295F, "Current", " 29%"}, {River, 0.305F, "Final", " 30%"}}) {
    analysis.CurrentStreet = street;
    advice.WinSplitChance = chance;
    FillResultsGrid();
    EXPECT_EQ(results.lblMe, (Column{"", current, " 2%", " 2%", " 100%", "", "", "", percent}));
    EXPECT_EQ(results.lblThem,
              (Column{" 50%", "", "", " 30%", " 4%", " 6%", " 6%", " 4%", " 72%"}));
  }
}

}  // namespace
}  // namespace holdem
