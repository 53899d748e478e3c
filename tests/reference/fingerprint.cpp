#include "reference/fingerprint.h"

#include <string_view>

#include "cards/deck.h"
#include "cards/random.h"
#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "state/analysis.h"
#include "state/results.h"
#include "state/run.h"
#include "state/settings.h"
#include "state/slots.h"

namespace holdem {
namespace {

constexpr int kPositions = 120;

// FNV-1a.
struct Hash {
  std::uint64_t value = 0xcbf29ce484222325;

  void Add(std::string_view bytes) {
    for (const char byte : bytes) {
      value = (value ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
  }
  void Add(int number) { Add(std::to_string(number) + " "); }
};

int Below(int limit) { return static_cast<int>(generator.Next() % static_cast<unsigned>(limit)); }

// Any seats, about two in three still in; from five cards, the flop, to all seven.
void SetUpPosition() {
  seats = {};
  for (int seat = 1; seat <= kSeats; ++seat) {
    seats.SeatStates[seat] = Below(3) == 0 ? static_cast<SeatState>(Below(FoldedRiver + 1)) : In;
  }
  seats.MySeat = 1 + Below(kSeats);
  seats.WatchFoldDepth = Below(2) == 0;
  slots = {.DeckShown = true};
  deck = {};
  const int cards = 5 + Below(3);
  for (int i = 0; i < cards; ++i) slots.picHand[kSlotOrder[i]] = DealRandomCard();
}

void AddResults(Hash& hash) {
  for (const std::string& text : results.lblMe) hash.Add(text + ";");
  for (const std::string& text : results.lblThem) hash.Add(text + ";");
  hash.Add(results.lblAdvice + ";" + results.lblCurrentScore);
  for (const int row : results.OutRows) hash.Add(row);
  for (const PlayerTally& tally : simulation.SimTally) {
    for (const int count : {tally.deals, tally.wins, tally.splits}) hash.Add(count);
    for (const int count : tally.categories) hash.Add(count);
  }
  for (const int count : simulation.OpponentCategoryTally) hash.Add(count);
}

}  // namespace

std::uint64_t EngineFingerprint() {
  Hash hash;
  generator.Seed(52);
  settings = {.DealsPerRun = 200};
  for (int position = 0; position < kPositions; ++position) {
    SetUpPosition();
    results = {};
    run = {};
    RunAnalysis();
    AddResults(hash);
  }
  hash.Add(std::to_string(generator.Next()));
  return hash.value;
}

}  // namespace holdem
