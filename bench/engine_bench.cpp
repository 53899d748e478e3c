// The speed of the engine against the literal evaluator and simulation of the tests, and the
// fingerprint of what it works out.

#include <cstdio>
#include <sstream>

#include "cards/deck.h"
#include "cards/random.h"
#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "platform/ports.h"
#include "reference/literal.h"
#include "rows.h"
#include "state/analysis.h"
#include "state/results.h"
#include "state/run.h"
#include "state/settings.h"
#include "state/slots.h"
#include "still_display.h"

namespace holdem::bench {
namespace {

constexpr int kHands = 1 << 14;  // too many to be learnt by heart by the branch predictor
constexpr int kPositions = 8;

Hand RandomHand() {
  deck = {};
  Hand hand;
  for (int i = 1; i <= Hand::kMaxCards; ++i) hand.entries[i].card = DealRandomCard();
  FillHand(hand, Hand::kMaxCards);
  return hand;
}

template <typename Evaluator>
void EvaluateAll(const std::vector<Hand>& hands, Evaluator evaluate) {
  for (const Hand& hand : hands) benchmark::DoNotOptimize(evaluate(hand));
}

// So many players, random known cards, so many folds on each street up to the current one.
void SetUp(int players, Street street, int foldsAStreet) {
  seats = {};
  seats.WatchFoldDepth = foldsAStreet > 0;
  slots = {};
  deck = {};
  const int known = street + 3;
  for (int i = 0; i < known; ++i) slots.picHand[kSlotOrder[i]] = DealRandomCard();
  RebuildDeck();
  analysis = {.PlayerCount = players, .CurrentStreet = street};
  for (int folded = FoldedPreFlop; folded <= street + 1; ++folded) {
    analysis.FoldsByStreet[folded] = foldsAStreet;
    analysis.FoldedCount += foldsAStreet;
  }
}

// Deals on several positions; the two sides meet the same ones.
Row DealRow(const std::string& what, double times, int players, Street street, int foldsAStreet) {
  const auto onEachPosition = [=](const auto& play) {
    return [=] {
      generator.Seed(1);
      for (int position = 0; position < kPositions; ++position) {
        SetUp(players, street, foldsAStreet);
        play();
      }
    };
  };
  return {.what = what,
          .against = "literal",
          .limit = Row::Limit::AtLeastTimesFaster,
          .times = times,
          .items = kPositions * settings.DealsPerRun,
          .run = onEachPosition([] { RunSimulation(); }),
          .runAgainst = onEachPosition(
              [] { benchmark::DoNotOptimize(literal::RunSimulation(analysis, generator)); })};
}

int AnyBelow(int limit) {
  return static_cast<int>(generator.Next() % static_cast<unsigned>(limit));
}

// Any seats, about two in three still in; from five cards, the flop, to all seven.
void SetUpAnyPosition() {
  seats = {};
  for (int seat = 1; seat <= kSeats; ++seat) {
    const bool any = AnyBelow(3) == 0;
    seats.SeatStates[seat] = any ? static_cast<SeatState>(AnyBelow(FoldedRiver + 1)) : In;
  }
  seats.MySeat = 1 + AnyBelow(kSeats);
  seats.WatchFoldDepth = AnyBelow(2) == 0;
  slots = {.DeckShown = true};
  deck = {};
  const int cards = 5 + AnyBelow(3);
  for (int i = 0; i < cards; ++i) slots.picHand[kSlotOrder[i]] = DealRandomCard();
}

void WriteResults(std::ostream& text) {
  for (const std::string& me : results.lblMe) text << me << ";";
  for (const std::string& them : results.lblThem) text << them << ";";
  text << results.lblAdvice << ";" << results.lblCurrentScore;
  for (const int row : results.OutRows) text << row << " ";
  for (const PlayerTally& tally : simulation.SimTally) {
    text << tally.deals << " " << tally.wins << " " << tally.splits << " ";
    for (const int count : tally.categories) text << count << " ";
  }
  for (const int count : simulation.OpponentCategoryTally) text << count << " ";
}

// One number for all that the engine works out in a fixed set of positions, so that a change of
// behaviour cannot hide in a change of speed: FNV-1a.
std::uint64_t EngineFingerprint() {
  std::ostringstream text;
  generator.Seed(52);
  settings = {.DealsPerRun = 200};
  for (int position = 0; position < 120; ++position) {
    SetUpAnyPosition();
    results = {};
    run = {};
    RunAnalysis();
    WriteResults(text);
  }
  text << generator.Next();
  std::uint64_t hash = 0xcbf29ce484222325;
  for (const char byte : text.str()) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
  }
  return hash;
}

int Main(int argc, char** argv) {
  StillDisplay display;
  ports.display = &display;
  const std::uint64_t fingerprint = EngineFingerprint();

  settings = {};
  std::vector<Hand> hands(kHands);
  for (Hand& hand : hands) hand = RandomHand();
  const int failure = Measure(
      argc, argv,
      {{.what = "EvaluateHand, seven random cards",
        .against = "literal",
        .limit = Row::Limit::AtLeastTimesFaster,
        .times = 10,
        .items = kHands,
        .run = [&] { EvaluateAll(hands, EvaluateHand); },
        .runAgainst =
            [&] {
              EvaluateAll(hands,
                          [](const Hand& hand) { return literal::EvaluateHand(hand, false); });
            }},
       DealRow("A deal on the flop, 2 players", 10, 2, Flop, 0),
       DealRow("A deal on the flop, 3 players", 10, 3, Flop, 0),
       DealRow("A deal on the flop, 6 players", 14, 6, Flop, 0),
       DealRow("A deal on the flop, 10 players", 15, 10, Flop, 0),
       DealRow("A deal on the turn, 10 players, 2 folds on each street so far", 20, 10, Turn, 2)});
  std::printf("Engine fingerprint %016llx\n", static_cast<unsigned long long>(fingerprint));
  return failure;
}

}  // namespace
}  // namespace holdem::bench

int main(int argc, char** argv) { return holdem::bench::Main(argc, argv); }
