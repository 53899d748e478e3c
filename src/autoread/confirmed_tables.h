// The tables for which the user has named the seat: none is asked about twice as long as its window
// lives. Kept for the watcher and the wizard.
#pragma once

#include "state/auto_read.h"

namespace holdem {

// What is known of the table in autoRead.CurrentTable; null when the user has not been asked.
ConfirmedTable* Confirmed();

// The table followed is what it is taken for, and seats.AutoReadSeat is the user's seat there.
void Confirm();

// The table followed is to be asked about again.
void Withdraw();

// The next table may be another: the last one keeps the seat that it has now.
void KeepSeat();

// Those whose windows are no more.
void ForgetClosedTables();

}  // namespace holdem
