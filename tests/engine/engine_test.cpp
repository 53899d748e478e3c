#include <random>

#include "advice/hole_table.h"
#include "advice/post_flop.h"
#include "effort.h"
#include "engine/analysis_pass.h"
#include "engine/pre_flop_score.h"
#include "engine/results_grid.h"
#include "engine/run_protocol.h"
#include "engine/simulation.h"
#include "fakes/fake_ports.h"
#include "reference/kinds.h"
#include "reference/literal.h"
#include "reference/literal_pass.h"

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

  // A pass over the table as it is, held against the literal one.
  void ExpectLiteralPass(bool changed) {
    results = {.lblAdvice = "old", .lblAdviceLit = false};
    results.lblMe.fill("old");
    results.lblThem.fill("old");
    advice.MeterScore = 0.1;
    literal::Figures wanted = {analysis, advice, results};
    display.shown.clear();
    display.yields = 0;
    RunAnalysis();
    const bool simulated = literal::Pass(wanted, changed, simulation);
    const std::string differences = literal::Differences(wanted, {analysis, advice, results});
    EXPECT_TRUE(differences.empty()) << differences;
    EXPECT_EQ(display.yields, simulated ? 1 + settings.DealsPerRun : 0);
    EXPECT_FALSE(run.Calculating || run.RecalcNeeded);
    EXPECT_TRUE(display.shown["deck"] == 1 && display.shown["results"] == 1 + simulated);
    EXPECT_EQ(display.shown["meter"], changed + wanted.results.lblAdviceLit);
    for (Card card = 1; card <= kCardCount; ++card) {
      EXPECT_EQ(deck.DeckUsed(card), !slots.InDeck(card)) << TextOf(card);
    }
  }

  int Random(int below) { return static_cast<int>(random() % below); }

  // Every fourth table is heads-up; the button is often the user's.
  void PutRandomTable() {
    const int in = 1 + Random(5);
    for (SeatState& state : seats.SeatStates) {
      state = Random(5) < in ? std::array{In,         In,         In,         In, In, FoldedPreFlop,
                                          FoldedFlop, FoldedTurn, FoldedRiver}[Random(9)]
                             : Empty;
    }
    seats.SeatStates[0] = Empty;
    if (Random(3) == 0) seats.SeatStates[6] = Empty;
    const int other = 1 + Random(kSeats);
    seats.MySeat = 1 + (other + Random(kSeats - 1)) % kSeats;
    if (Random(4) == 0) {
      seats.SeatStates = {};
      seats.SeatStates[other] = Random(6) == 0 ? FoldedFlop : In;
      seats.SeatStates[seats.MySeat] = SeatState{Random(6)};
    }
    seats.DealerSeat = std::array{seats.MySeat, other, Random(kSeats + 1)}[Random(3)];
  }

  // Half of the time few ranks and two suits: pairs, straights and flushes, in the hand and on the
  // board.
  void PutRandomCards() {
    const bool few = Random(2) == 0;
    const int count = std::array{0, 1, 2, 2, 2, 2, 2, 2, 3, 4, 5, 5, 6, 7}[Random(14)];
    deck = {};
    slots.picHand = {};
    for (int i = 0; i < count; ++i) {
      Card card = DealRandomCard();
      while (few && (RankOf(card) % 12 > 6 || SuitOf(card) > 2)) card = DealRandomCard();
      if (Random(20) != 0) slots.picHand[kSlotOrder[i]] = card;
    }
  }

  std::minstd_rand random;
};

TEST_F(AnalysisPassTest, IsTheLiteralPassAtRandomTables) {
  modHole::LoadHoleTable();
  Kinds kinds(Effort(10));
  for (int i = 0; i < Effort(8000) && !HasFailure(); ++i) {
    PutRandomTable();
    PutRandomCards();
    settings.LevelPre = Random(5) - 1;
    settings.LevelPost = Random(5) - 1;
    const bool changed = Random(4) > 0;
    run.RecalcNeeded = changed && Random(2) == 0;
    if (changed && !run.RecalcNeeded) MarkTableChanged();
    SCOPED_TRACE(testing::Message()
                 << "seats, yours and the button " << Seating() << "; cards " << Cards()
                 << (changed ? "; changed" : "; not changed") << "; levels " << settings.LevelPre
                 << " and " << settings.LevelPost);
    ExpectLiteralPass(changed);

    const Street street = analysis.CurrentStreet;
    const bool headsUp = analysis.PlayerCount == 2, onButton = seats.DealerSeat == seats.MySeat;
    const SeatState my = seats.SeatStates[seats.MySeat],
                    button = seats.SeatStates[seats.DealerSeat];
    kinds.Count("heads-up on the button", headsUp && onButton);
    kinds.Count("heads-up against the button", headsUp && !onButton && button != Empty);
    kinds.Count("heads-up, nobody has the button", headsUp && !onButton && button == Empty);
    kinds.Count("three players", analysis.PlayerCount == 3);
    kinds.Count("seat six is closed", analysis.PlayerCount == 9 && !seats.IsOccupied(6));
    kinds.Count("ten players", analysis.PlayerCount == 10);
    kinds.Count("the user alone", analysis.PlayerCount == 1 && street == PreFlop);
    kinds.Count("all others folded", street == NoStreet && analysis.EmptyBoardSlots < 3);
    kinds.Count("own seat folded, after the flop", IsFolded(my) && street >= Flop);
    kinds.Count("own seat empty, after the flop", my == Empty && street >= Flop);
    kinds.Count("button on an empty seat", button == Empty && seats.DealerSeat > 0);
    kinds.Count("no button", seats.DealerSeat == 0);
    kinds.Count("river without turn", slots.IsFilled(10) && !slots.IsFilled(9));
    kinds.Count("all cards are known, not changed", street == River && !changed);
    kinds.Count("folds later than the street", analysis.FoldsByStreet[street + 1] > 1);
    kinds.Count("splits", street >= Flop && changed && simulation.SimTally[kMe].splits > 0);
    kinds.Count("a pair on the flop",
                street >= Flop && RankOf(slots.picHand[6]) == RankOf(slots.picHand[7]));
    for (int row = 0; row < kCategoryRows; ++row) {
      kinds.Count("outs to a " + std::string(lbllbl[row]),
                  std::ranges::count(results.OutRows, row) > 0);
    }
    const int level = street <= PreFlop ? settings.LevelPre : settings.LevelPost;
    kinds.CountOneOf(25, "street and level", 5 * street + level + 1);
    const int blind = analysis.IsSmallBlind ? 1 : analysis.IsBigBlind ? 2 : 0;
    const bool advised = street == PreFlop && analysis.PlayerCount > 1;
    kinds.CountOneOf(18, "blind and band before the flop",
                     advised ? 6 * blind + literal::BandOf(advice.MeterValue) : -1);
  }
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
    ExpectLiteralRun(settings.DealsPerRun = 50);
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

// Tallies by chance, a deal to either side of a border of the advice among them. Of 200 deals every
// odd count is a percentage that ends in a half.
TEST_F(SimulationTest, EndsWithTheLiteralGridAndAdvice) {
  Kinds kinds(Effort(50));
  std::minstd_rand random;
  const auto upTo = [&](int most) { return static_cast<int>(random() % (most + 1)); };
  for (int i = 0; i < Effort(20000) && !HasFailure(); ++i) {
    analysis.PlayerCount = 2 + upTo(8);
    analysis.FoldedCount = upTo(analysis.PlayerCount - 2);
    analysis.CurrentStreet = Street{Flop + i % 3};
    analysis.PositionPercent = std::array{0, 33, 34, 65, 66, 99, 100}[upTo(6)];
    analysis.IsSmallBlind = upTo(3) == 0;
    analysis.MyHandValue = upTo(8) + 0.13;
    advice.StartOpponents = upTo(3);
    settings.LevelPost = upTo(4) - 1;
    simulation = {};
    PlayerTally& me = simulation.SimTally[kMe];
    const int deals = me.deals = std::array{10, 200, 1500, 3000, 4500}[upTo(4)];
    for (int category = 0; category < kCategoryCount; ++category) {
      me.categories[category] = upTo(3) * upTo(deals) / 20;
      simulation.OpponentCategoryTally[category] = upTo(3) * upTo(deals) / 20;
    }
    if (analysis.CurrentStreet == River) {  // then all of the user's hands are the same
      me.categories = {};
      me.categories[static_cast<int>(analysis.MyHandValue)] = deals;
    }
    me.splits = upTo(2) * upTo(deals) / 20;
    me.wins = upTo(deals - me.splits);
    literal::Figures wanted = {analysis, advice, results};
    literal::EndRun(wanted, simulation);
    const double share = wanted.advice.MeterThreshold;
    const double border = share + std::array{0, 1, 2, 3}[upTo(3)] * (1 - share) / 4;
    const int near = static_cast<int>(border * deals + upTo(2) - 0.5) - me.splits;
    if (upTo(1) == 0 && near >= 0 && near <= deals - me.splits) me.wins = near;
    literal::EndRun(wanted, simulation);
    SCOPED_TRACE(testing::Message() << analysis.PlayerCount << " players, " << analysis.FoldedCount
                                    << " folded, street " << analysis.CurrentStreet << ", position "
                                    << analysis.PositionPercent << " %, " << advice.StartOpponents
                                    << " dealt in, level " << settings.LevelPost << "; " << me.wins
                                    << " won and " << me.splits << " split of " << deals);
    advice.WinSplitChance = wanted.advice.WinSplitChance;
    FillResultsGrid();
    PostFlopStep();
    const std::string differences = literal::Differences(wanted, {analysis, advice, results});
    EXPECT_TRUE(differences.empty()) << differences;

    const double score = advice.MeterValue;
    kinds.CountOneOf(18, "street and band", i % 3 * 6 + literal::BandOf(score));
    kinds.CountOneOf(15, "street and level", i % 3 * 5 + settings.LevelPost + 1);
    kinds.Count("on a border", std::abs(score * 2 - std::round(score * 2)) < 1e-6);
    kinds.Count("splits", me.splits > 0 && results.lblMe[8] != results.lblThem[8]);
    kinds.Count("two seated", analysis.PlayerCount == 2);
    kinds.Count("the last but one", analysis.PlayerCount - analysis.FoldedCount == 2);
  }
}

}  // namespace
}  // namespace holdem
