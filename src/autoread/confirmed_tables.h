// The tables at which the user has said where they sit. As long as its window lives, they are not
// asked about such a table again. The watcher and the wizard use it.
#pragma once

#include "state/auto_read.h"

namespace holdem {

// What is known of the table in autoRead.CurrentTable; null when the user has not been asked.
ConfirmedTable* Confirmed();

// The user has confirmed the table followed: it has the layout that it was taken for, and their
// seat there is seats.AutoReadSeat.
void Confirm();

// The table followed is to be asked about again.
void Withdraw();

// Called before another table is followed: keeps the user's seat at the last one with what is known
// of it.
void KeepSeat();

// Those whose windows are no more.
void ForgetClosedTables();

}  // namespace holdem
