#include "engine/analysis_pass.h"

#include <limits>

#include "engine/outs.h"
#include "engine/run_protocol.h"
#include "engine/simulation.h"
#include "fakes/fake_ports.h"

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
};

TEST_F(AnalysisPassTest, StreetAndSimulationByCardsAndPlayers) {
  const char* const full = "iiiiiiiiii 2 1";
  const struct {
    Street street;
    const char* seats;
    std::vector<const char*> deals;
  } cases[] = {{NoStreet, full, {"", "-- AS", "AS 9D 2C", "AS 9D 2C 5H", "AS 9D -- -- -- 7S"}},
               {NoStreet, full, {"AS -- 2C 5H KH", "AS 9D 2C -- KH 7S", "AS 9D 2C 5H KH -- JD"}},
               {PreFlop, "2222222222 2 1", {"AS 9D"}},
               {Flop, "2i3.4.5.i. 2 1", {kFlopHand}},
               {Turn, full, {kTurnHand}},
               {River, "ii........ 2 1", {kRiverHand}},
               {NoStreet, "2i3.4.5.2. 2 1", {kRiverHand}},
               {NoStreet, ".i........ 2 1", {kFlopHand}}};
  for (const auto& c : cases) {
    for (const char* cards : c.deals) {
      for (const bool recalcNeeded : {false, true}) {
        SCOPED_TRACE(testing::Message() << c.seats << ", " << cards);
        PutSeats(c.seats);
        EXPECT_EQ(Run(cards, recalcNeeded), recalcNeeded && c.street >= Flop ? 13 : 0);
        EXPECT_EQ(analysis.CurrentStreet, c.street);
        EXPECT_FALSE(run.Calculating || run.RecalcNeeded);
        for (Card card = 1; card <= kCardCount; ++card) {
          ASSERT_EQ(deck.DeckUsed(card), !slots.InDeck(card)) << card;
        }
      }
    }
  }
}

TEST_F(AnalysisPassTest, PlacesAndBlinds) {
  // Players, folded, place, place among live players, percentage, blind.
  const std::pair<const char*, const char*> cases[] = {
      {"iiiiiiiiii 1 10", "10 0 1 1 0 small"}, {"iiiiiiiiii 2 10", "10 0 2 2 11 big"},
      {"iiiiiiiiii 5 5", "10 0 10 10 100 "},   {"iiiiiiiiii 2 0", "10 0 2 2 11 big"},
      {"iiiiiiiii. 2 10", "9 0 2 2 12 big"},   {"iiiiiiiii. 4 10", "9 0 4 4 38 "},
      {"iiiiiiiii. 6 10", "9 0 6 6 62 "},      {"i.i.i.i.i. 7 1", "5 0 3 3 50 "},
      {"2345i22i.i 8 1", "9 6 7 2 50 "},       {"22i2222222 3 2", "10 9 1 1 100 small"},
      {"i......... 5 1", "2 0 1 1 0 big"},     {"i...3..... 5 5", "2 1 2 2 100 small"},
      {"i...i..... 5 8", "2 0 2 2 100 big"},   {"....i..... 5 8", "1 0 1 1 100 small"}};
  for (const auto& [seating, expected] : cases) {
    PutSeats(seating);
    Run("AS 9D");
    std::ostringstream figures;
    figures << analysis.PlayerCount << " " << analysis.FoldedCount << " "
            << analysis.MyTablePosition << " " << analysis.MyLivePosition << " "
            << analysis.PositionPercent << " " << (analysis.IsSmallBlind ? "small" : "")
            << (analysis.IsBigBlind ? "big" : "");
    EXPECT_EQ(figures.str(), expected) << seating;
  }
}

TEST_F(AnalysisPassTest, AFoldCountsAtMostAtTheCurrentStreet) {
  const std::pair<const char*, std::array<int, 4>> cases[] = {// folded pre-flop to river
                                                              {"AS 9D 2C", {7, 0, 0, 0}},
                                                              {kFlopHand, {1, 6, 0, 0}},
                                                              {kTurnHand, {1, 2, 4, 0}},
                                                              {kRiverHand, {1, 2, 3, 1}}};
  PutSeats("ii2334445. 1 1");
  for (const auto& [cards, folds] : cases) {
    Run(cards);
    EXPECT_TRUE(std::equal(folds.begin(), folds.end(), &analysis.FoldsByStreet[2])) << cards;
  }
}

TEST_F(AnalysisPassTest, BlanksTheResultsOnlyForANewCalculation) {
  for (const bool recalcNeeded : {false, true}) {
    results.lblAdvice = results.lblMe[1] = results.lblThem[8] = results.lblCurrentScore = "old";
    advice.MeterScore = 1;
    Run("AH 9H 2H 7H -- 9C", recalcNeeded);  // a gap, and a draw that does not count
    EXPECT_EQ(results.lblMe[1] + results.lblThem[8] + results.lblAdvice,
              recalcNeeded ? "" : "oldoldold");
    EXPECT_EQ(advice.MeterScore, recalcNeeded ? kNoScore : 1);
    EXPECT_EQ(results.lblCurrentScore, "Pair of Nines");
    EXPECT_TRUE(display.shown["results"] > 0 && display.shown["deck"] > 0);
  }
}

TEST_F(AnalysisPassTest, NeedsTheDeckWindowAndForPreFlopAdviceAnOpponent) {
  for (const bool opponent : {true, false}) {
    PutSeats(opponent ? ".i.i...... 2 1" : ".i........ 2 1");
    Run("AS 9D");
    EXPECT_EQ(analysis.CurrentStreet, PreFlop);
    EXPECT_EQ(!results.lblAdvice.empty() && advice.MeterScore != kNoScore, opponent);
  }
  MarkTableChanged();
  slots.DeckShown = false;
  EXPECT_EQ(Run(kFlopHand), 0);
  EXPECT_EQ(analysis.CurrentStreet, PreFlop);
  EXPECT_TRUE(run.RecalcNeeded && !run.Calculating && run.LastCalcTicks == run.LastChangeTicks);
}

TEST_F(AnalysisPassTest, ANestedPassOnlyStopsTheRunningOne) {
  settings.DealsPerRun = 100;
  display.atYield = [&](int yield) {
    if (yield != 4 && yield != 7) return;
    slots.picHand[kTurnSlot] = 30;
    run.RecalcNeeded = true;
    RunAnalysis();
    CheckRefresh();  // must wait for the end of the pass
    EXPECT_EQ(run.LastChangeTicks, yield == 4 ? clock.now : clock.now + 1);
    EXPECT_TRUE(run.AbortRequested && run.Calculating);
    EXPECT_EQ(analysis.CurrentStreet, Flop);
  };
  EXPECT_EQ(Run(kFlopHand), 12);
  EXPECT_EQ(simulation.SimTally[1].deals, 10);
  EXPECT_FALSE(run.Calculating || run.AbortRequested);

  display.yields = 0;
  display.atYield = nullptr;
  for (int tick = 0; tick < 3; ++tick) CheckRefresh();
  EXPECT_EQ(analysis.CurrentStreet, Turn);
  EXPECT_EQ(display.yields, 101) << "one pass for any number of changes";
}

TEST_F(AnalysisPassTest, NothingIsAnalysedOnceTheProgramIsEnding) {
  run.Ending = true;
  EXPECT_EQ(Run(kFlopHand), 0);
  EXPECT_TRUE(run.RecalcNeeded && display.shown.empty() && analysis == Analysis());
}

// A change may come at any yield, the last included, in the same millisecond as the one before, and
// when the clock wraps.
TEST_F(AnalysisPassTest, NoChangeIsLost) {
  constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
  const std::pair<std::int32_t, std::int32_t> stampsAndClocks[] = {
      {0, 0}, {5000, 6000}, {6000, 5000}, {kMax, kMax}, {kMax, kMin}, {kMin, kMax}, {1000, kMin}};
  for (const auto& [stamp, now] : stampsAndClocks) {
    for (const int when : {1, 2, 12, 13}) {
      SCOPED_TRACE(testing::Message() << stamp << " -> " << now << ", yield " << when);
      run = {.LastChangeTicks = stamp, .LastCalcTicks = stamp};
      clock.now = now;
      Put(kFlopHand);
      MarkTableChanged();
      EXPECT_FALSE(run.AbortRequested);
      display.atYield = [&](int yield) { yield == when ? MarkTableChanged() : void(); };
      for (const int yields : {std::max(when, 12), 13, 0}) {
        display.yields = 0;
        CheckRefresh();
        EXPECT_EQ(display.yields, yields);
        display.atYield = nullptr;
      }
    }
  }
}

// A hand, the row of its category, and the rows with the cards that would make them.
TEST_F(AnalysisPassTest, OutsOfKnownHands) {
  const struct {
    const char* cards;
    int row;
    std::map<int, const char*> outs;
  } cases[] = {
      {"AS 7D 9C 9H 2S", 0, {{1, "AD AC AH 7S 7C 7H"}}},
      // From the straight to the Nine to the one to the Ten: 4.09 and 4.10.
      {"8S 9D 7C 6H 5S", 3, {{3, "TS TD TC TH"}}},
      // A set: four of a kind, or the board pairs.
      {"9S 9D 9C 4H 2S", 2, {{5, "4S 4D 4C 2D 2C 2H"}, {6, "9H"}}},
      // A flush to the Ace has nothing to hope for.
      {"AH 3D KH TH 7H 5H", 4, {}},
      // Without a board every pair is the user's own.
      {"5S 5D", 0, {{2, "5C 5H"}}},
      {"AS KD", -1, {{0, "AD AC AH KS KC KH"}}},
      // A third pair counts where it is higher than the second one.
      {"9S 8D 9C 4H 4S", 1, {{1, "8S 8C 8H"}, {5, "9D 9H 4D 4C"}}},
      {"9S 4D 9C 4H 4S", 5, {{5, "9D 9H"}, {6, "4C"}}},
      // A flush and a straight flush grow by their top card only.
      {"2H 9H KH 7H 5H 3S", 4, {{4, "AH"}}},
      {"5H 6H 7H 8H 9H", 7, {{7, "TH"}}},
      // Nothing is to come.
      {kRiverHand, -1, {}},
  };
  for (const auto& c : cases) {
    Put(c.cards);
    results = {};
    MarkOuts();
    RowByCard expected = NoOuts();
    for (const auto& [row, outs] : c.outs) {
      for (const Card card : CardsOf(outs)) expected[card] = row;
    }
    EXPECT_EQ(results.OutRows, expected) << c.cards;
    for (int row = 0; row < 9; ++row) {
      EXPECT_EQ(results.lblMe[row], row == c.row ? "Current" : "") << c.cards;
    }
  }
}

}  // namespace
}  // namespace holdem
