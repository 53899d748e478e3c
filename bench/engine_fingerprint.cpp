#include "engine_fingerprint.h"

#include <sstream>
#include <string>

#include "cards/deck.h"
#include "cards/random.h"
#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "state/results.h"
#include "state/run.h"
#include "state/seats.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem::bench {
namespace {

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

}  // namespace

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

}  // namespace holdem::bench
