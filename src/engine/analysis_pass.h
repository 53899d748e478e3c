// The analysis pass: brings every figure up to date after a change of seats, cards or levels.
#pragma once

namespace holdem {

// One pass. While one is running, a further call only stamps the change and stops the running
// simulation; the refresh timer then starts a new pass. A simulation runs only when something
// changed since the last pass: run.RecalcNeeded is set, or a change was stamped.
void RunAnalysis();

// One pass after a change, with new figures.
void Recalculate();

// What the refresh timer does every 100 ms: starts a pass when a change came after the last one
// started.
void CheckRefresh();

// What keeps the known cards and players from making a street, in the order in which it is looked
// for: hole cards, the flop's cards, a turn below the river, an opponent left after the flop.
enum class Missing { Nothing, HoleCards, FlopCards, Turn, Opponents };
Missing MissingForAStreet();

// Sets the deck to the cards that the deck window shows.
void RebuildDeck();

}  // namespace holdem
