#include <random>

#include "effort.h"
#include "engine/analysis_pass.h"
#include "engine/outs.h"
#include "engine/pre_flop_score.h"
#include "engine/results_grid.h"
#include "engine/run_protocol.h"
#include "engine/simulation.h"
#include "fakes/fake_ports.h"
#include "reference/literal.h"

namespace holdem {
namespace {

class AnalysisPassTest : public ProgramTest {
 protected:
  // One pass; the number of yields tells whether it has simulated.
  int Run(const std::string& cards, bool recalcNeeded = true) {
    Put(cards);
    run.RecalcNeeded = recalcNeeded;
    display.yields = 0;
    RunAnalysis();
    return display.yields;
  }

  // Street, players, place, place among live players, percentage, blind, folds by state, as a pass
  // finds them.
  std::string Found(const std::string& seating, const std::string& cards,
                    bool recalcNeeded = true) {
    SCOPED_TRACE(testing::Message() << seating << ", " << cards << ", " << recalcNeeded);
    PutSeats(seating);
    results.lblAdvice = "old";
    results.lblAdviceLit = false;
    advice.MeterScore = 0.1;
    display.shown.clear();
    const int yields = Run(cards, recalcNeeded);
    const Analysis& found = analysis;
    EXPECT_EQ(yields, recalcNeeded && found.CurrentStreet >= Flop ? 13 : 0);
    const bool advised = yields > 0 || (found.CurrentStreet == PreFlop && found.PlayerCount > 1);
    EXPECT_EQ(results.lblAdviceLit, advised);  // new advice is seen at once
    EXPECT_EQ(results.lblAdvice.empty(), recalcNeeded && !advised);
    EXPECT_EQ(advice.MeterScore == kNoScore, recalcNeeded && !advised);
    EXPECT_FALSE(run.Calculating || run.RecalcNeeded);
    EXPECT_TRUE(display.shown["deck"] == 1 && display.shown["results"] == 1 + (yields > 0));
    EXPECT_EQ(found.FoldedCount, std::ranges::count_if(seats.SeatStates, IsFolded));
    for (Card card = 1; card <= kCardCount; ++card) {
      EXPECT_EQ(deck.DeckUsed(card), !slots.InDeck(card)) << card;
    }
    std::ostringstream text;
    text << found.CurrentStreet << ": " << found.PlayerCount << " " << found.MyTablePosition << " "
         << found.MyLivePosition << " " << found.PositionPercent
         << (found.IsSmallBlind ? " small " : " ") << (found.IsBigBlind ? "big " : "");
    for (const int folds : found.FoldsByStreet) text << std::hex << folds;
    return text.str();
  }
};

TEST_F(AnalysisPassTest, StreetPlacesBlindsAndFolds) {
  EXPECT_EQ(Found("iiiiiiiiii 2 10", "AS 9D"), "1: 10 2 2 11 big 000000");
  EXPECT_EQ(Found("i...i..... 5 8", "AS 9D"), "1: 2 2 2 100 big 000000");
  EXPECT_EQ(Found("ii2334445. 1 1", kTurnHand), "3: 9 9 2 100 001240");
  Fingerprint found;  // a change must be meant
  std::minstd_rand random;
  for (int i = 0; i < 3000; ++i) {
    std::string seating, cards;
    for (int seat = 1; seat <= kSeats; ++seat) seating += ".ii2345..."[random() % (6 + i % 5)];
    seating += " " + std::to_string(1 + i % 10) + " " + std::to_string(random() % 11);
    for (int k = 0; k < i / 10 % 8; ++k)
      cards += random() % 20 == 0 ? "-- " : std::string(kRiverHand).substr(3 * k, 2) + " ";
    found.Add(Found(seating, cards, random() % 2 == 0));
  }
  EXPECT_EQ(found.value, 3060151619840338659U);
}

TEST_F(AnalysisPassTest, NeedsTheDeckWindowAndARunningProgram) {
  MarkTableChanged();
  slots.DeckShown = false;
  EXPECT_EQ(Run(kFlopHand), 0);
  EXPECT_EQ(analysis.CurrentStreet, NoStreet);
  EXPECT_TRUE(run.RecalcNeeded && !run.Calculating && run.LastCalcTicks == run.LastChangeTicks);
  slots.DeckShown = run.Ending = true;
  MarkTableChanged();
  EXPECT_EQ(Run(kFlopHand), 0);
  EXPECT_NE(run.LastCalcTicks, run.LastChangeTicks);
}

TEST_F(AnalysisPassTest, ANestedPassOnlyStopsTheRunningOne) {
  settings.DealsPerRun = 100;
  display.atYield = [&](int yield) {
    if (yield != 4 && yield != 7) return;
    Put(kTurnHand);
    Recalculate();
    CheckRefresh();  // must wait for the end of the pass
    EXPECT_TRUE(run.AbortRequested && run.Calculating && analysis.CurrentStreet == Flop);
  };
  EXPECT_EQ(Run(kFlopHand), 12);
  display.yields = 0;
  display.atYield = nullptr;
  for (int tick = 0; tick < 3; ++tick) CheckRefresh();
  EXPECT_EQ(analysis.CurrentStreet, Turn);
  EXPECT_EQ(display.yields, 101) << "one pass for any number of changes";
}

TEST_F(AnalysisPassTest, EachOutIsMarkedAsItWas) {
  // From the straight to the Nine to the one to the Ten: 4.09 and 4.10.
  Put("8S 9D 7C 6H 5S");
  MarkOuts();
  for (const Card ten : CardsOf("TS TD TC TH"))
    EXPECT_EQ(std::exchange(results.OutRows[ten], kNoOut), 3);
  EXPECT_EQ(results.OutRows, NoOuts());
  Fingerprint outs;  // a change must be meant
  for (int i = 0; i < 30000; ++i) {
    deck = {};
    slots.picHand = {};
    for (int k = 0; k < 2 + i % 6; ++k) slots.picHand[kSlotOrder[k]] = DealRandomCard();
    MarkOuts();
    outs.Add(results.OutRows);
  }
  EXPECT_EQ(outs.value, 16380666245334715620U);
}

class SimulationTest : public ProgramTest {
 protected:
  // What the analysis pass hands over: 5 to 7 cards, the deck without them, the players.
  void Set(const std::string& cards, int players) {
    Put(cards);
    RebuildDeck();
    analysis = {.PlayerCount = players};
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
    EXPECT_EQ(deck, before);
    EXPECT_FALSE(run.AbortRequested);
  }
};

// What the literal run does not meet.
TEST(PreFlopScore, IsNoneForCodesThatAreNoCards) {
  for (const Card none : {0, 53}) EXPECT_EQ(PreFlopScore(none, 1) + PreFlopScore(1, none), 0);
}

TEST_F(SimulationTest, GivesTheTalliesOfTheLiteralRun) {
  for (int i = 0; i < Effort(8000) && !HasFailure(); ++i) {
    const int players = 2 + i % 9;
    SCOPED_TRACE(testing::Message() << "position " << i << ", players " << players);
    std::string cards;
    deck = {};
    for (int card = 0; card < 5 + i / 9 % 3; ++card) cards += TextOf(DealRandomCard()) + " ";
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
    Set(cards, 10);
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
    Set(kTurnHand, 6);
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
