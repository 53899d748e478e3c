// The speed of the engine against the literal evaluator and simulation of the tests, and the
// fingerprint of what it works out.

#include <cstdio>

#include "cards/deck.h"
#include "cards/random.h"
#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "engine_fingerprint.h"
#include "platform/ports.h"
#include "reference/literal.h"
#include "rows.h"
#include "state/analysis.h"
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
