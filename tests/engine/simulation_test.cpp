#include "engine/simulation.h"

#include "effort.h"
#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "reference/literal_simulation.h"

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
                .MyHandValue = EvaluateHand(HandOf(cards), false)};
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
    EXPECT_EQ(simulation, tallies);
    EXPECT_EQ(generator.Next(), random.Next()) << "the generators have gone apart";
    EXPECT_EQ(deck.free, before.free);
    EXPECT_EQ(results.lblMe, grid.lblMe);
    EXPECT_EQ(results.lblThem, grid.lblThem);
    EXPECT_FALSE(run.AbortRequested);
  }
};

TEST_F(SimulationTest, PreFlopScores) {
  for (const std::string score :
       {"AS AD 58", "AS KS 43", "AS 2D 24", "3S 2D 08", "7S 2S 14", "7S 2D 09", "KS AD 38",
        "AH QD 36", "JD AH 34", "AH TD 31", "TS 9S 29", "9H TD 24", "TH 8D 22", "TH 7C 20",
        "TH 6C 18", "3D AC 24", "4D AC 24", "5D AC 24", "QC KC 39", "2C 2H 24"}) {
    const auto cards = CardsOf(score.substr(0, 5));
    EXPECT_EQ(PreFlopScore(cards[0], cards[1]), std::stoi(score.substr(6))) << score;
    EXPECT_EQ(PreFlopScore(cards[1], cards[0]), std::stoi(score.substr(6))) << score;
  }
  for (const Card code : {0, -1, 53, 55})
    EXPECT_EQ(PreFlopScore(code, 1) + PreFlopScore(1, code), 0);
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

TEST_F(SimulationTest, StopsAtTheNextDealButNeverBeforeTenAreDone) {
  const struct {
    int yield;  // 1 is the set-up's, 1 + n that of deal n
    int deals;
  } cases[] = {{0, 100}, {1, 10}, {2, 10}, {4, 10}, {11, 10}, {12, 10}, {13, 11}, {51, 49}};
  settings.DealsPerRun = 100;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.yield);
    Set(CardsOf("AS 9D 2C 5H KH"), 5);
    run.AbortRequested = true;  // left over from before: of no effect
    display.atYield = [&](int yield) {
      if (yield == c.yield) run.AbortRequested = true;
    };
    ExpectLiteralRun(c.deals);
    EXPECT_EQ(simulation.SimTally[1].deals, c.deals);
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

TEST_F(SimulationTest, WritesAtItsEndButNothingOnceTheProgramIsEnding) {
  settings.DealsPerRun = 30;
  for (const int ending :
       {1, 2, 31, 99}) {  // at the yield of the set-up, of a deal, of the last; never
    Set(CardsOf("AS 9D 2C 5H KH"), 5);
    run.Ending = false;
    results.lblMe[8] = "old";
    display.shown["results"] = 0;
    display.atYield = [&](int yield) {
      run.Ending = yield >= ending;
      EXPECT_EQ(results.lblAdvice, kThinking);
      EXPECT_EQ(results.lblMe[8], "old");
      EXPECT_EQ(display.shown["results"], 1);
    };
    RunSimulation();
    EXPECT_LE(display.yields, std::min(ending + 1, 31));
    EXPECT_EQ(display.shown["results"] > 1, ending == 99);
    EXPECT_EQ(results.lblAdvice != kThinking, ending == 99);
    EXPECT_EQ(results.lblMe[8] != "old", ending == 99);
    EXPECT_EQ(advice.WinSplitChance > 0, ending == 99);
  }
  EXPECT_EQ(display.yields, 31);
}

}  // namespace
}  // namespace holdem
