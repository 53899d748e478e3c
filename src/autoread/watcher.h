// Auto Read's watcher: follows a poker client's table and writes what it reads into seats and
// slots, just as the user's gestures would.
#pragma once

namespace holdem {

// One tick, every 500 ms. Does nothing while the main window is minimised, the wizard is open, a
// card is being dragged (its picture may lie over the table) or another tick is going on. May open
// the wizard, and then goes on when it closes.
void WatchTable();

// Called when the user asks for the wizard while a table is followed. Looks anew which layout the
// table has; when it is no table any more, or covered, the program goes into Manual Mode.
void LookAgainAtTable();

}  // namespace holdem
