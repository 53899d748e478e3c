// Auto Read's watcher: follows a poker client's table and writes what it reads into seats and
// slots, just as the user's gestures would.
#pragma once

namespace holdem {

// One tick, every 500 ms. Does nothing while the main window is minimised, the wizard is open, a
// card is being dragged (its picture may lie over the table) or another tick is going on. May open
// the wizard, and then goes on when it closes.
void WatchTable();

// Before the user is asked where they sit: looks anew at what the table followed is. Another layout
// is taken; when it is no table any more, or covered, the program is in Manual Mode.
void LookAgainAtTable();

}  // namespace holdem
