#include "engine/simulation.h"

#include <cmath>

#include "effort.h"
#include "engine/analysis_pass.h"
#include "engine/pre_flop_score.h"
#include "engine/results_grid.h"
#include "fakes/fake_ports.h"
#include "reference/card_text.h"
#include "reference/fingerprint.h"
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

// Changes only when the engine is meant to work out something else.
TEST_F(SimulationTest, TheEnginesFingerprintIsWhatItWas) {
  EXPECT_EQ(EngineFingerprint(), 0x34875abfbf7ad321U);
}

TEST_F(SimulationTest, TextsOfCertainPositions) {
  using Rows = std::map<int, std::string>;  // all others are empty
  const struct {
    const char* cards;
    int players, folded;
    Rows me, them;
  } cases[] = {
      {"AS KS QS JS TS 2D 3D", 2, 1, {{7, "Final"}, {8, " 100%"}}, {{8, " 0%"}}},
      {"2D 3D AS KS QS JS TS", 9, 0, {{7, "Final"}, {8, " 100%"}}, {{7, " 100%"}, {8, " 100%"}}},
      {"8S 8D 8C 8H AS", 3, 2, {{6, "Current"}, {8, " 100%"}}, {{8, " 0%"}}},
      {"2S 3D 8C TH QH 4D 6C", 4, 9, {{8, " 100%"}}, {{8, " 0%"}}}};
  for (const auto& c : cases) {
    Set(CardsOf(c.cards), c.players);
    analysis.FoldedCount = c.folded;
    RunSimulation();
    FillResultsGrid();
    for (int row = 0; row <= 8; ++row) {
      EXPECT_EQ(results.lblMe[row], c.me.contains(row) ? c.me.at(row) : "") << c.cards;
      EXPECT_EQ(results.lblThem[row], c.them.contains(row) ? c.them.at(row) : "") << c.cards;
    }
    EXPECT_EQ(advice.WinSplitChance, 1);
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
  slots.DeckShown = true;
  for (const int ending :
       {1, 2, 31, 99}) {  // at the yield of the set-up, of a deal, of the last; never
    Set(CardsOf("KS KD 2C 5H KH"), 10);
    run = {};
    display.resultsShown = 0;
    display.atYield = [&](int yield) {
      run.Ending = yield >= ending;
      EXPECT_EQ(results.lblAdvice, kThinking);
      EXPECT_EQ(results.lblMe[8], "");
      EXPECT_EQ(display.resultsShown, 2);
    };
    advice = {};
    RunAnalysis();
    EXPECT_LE(display.yields, std::min(ending + 1, 31));
    EXPECT_EQ(display.resultsShown > 2, ending == 99);
    EXPECT_EQ(results.lblAdvice != kThinking, ending == 99);
    EXPECT_EQ(results.lblMe[8] != "", ending == 99);
    EXPECT_EQ(advice.WinSplitChance > 0, ending == 99);
  }
  EXPECT_EQ(display.yields, 31);
}

// Heads-up, against the chance to win or split over every completion of the board and every hand.
TEST_F(SimulationTest, ComesNearExactEnumeration) {
  for (const char* hand :
       {"AS 9D 2C 5H KH 7S JD", "8H 9H 2H 7H KC TS 3D", "4S 4D QC QH 9S 2D QD"}) {
    for (const std::size_t known : {5U, 6U, 7U}) {
      auto cards = CardsOf(hand);
      cards.resize(known);
      Set(cards, 2);
      settings.DealsPerRun = Effort(200000);
      RunSimulation();

      const CardSet mine = SetOf(cards[0]) + SetOf(cards[1]);
      CardSet board = 0;
      for (std::size_t i = 2; i < known; ++i) board += SetOf(cards[i]);
      double kept = 0;
      double all = 0;
      ForEachSet(static_cast<int>(7 - known), mine + board, [&](CardSet rest) {
        const CardSet full = board + rest;
        ForEachSet(2, mine + full, [&](CardSet theirs) {
          ++all;
          kept += PackedValueOf(mine + full) >= PackedValueOf(theirs + full);
        });
      });
      const double exact = kept / all;
      const double error = std::sqrt(exact * (1 - exact) / settings.DealsPerRun);
      EXPECT_NEAR(advice.WinSplitChance, exact, 4 * error) << hand << ", " << known << " known";
    }
  }
}

}  // namespace
}  // namespace holdem
