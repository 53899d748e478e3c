// Why no table is followed, for the user to read: writes autoRead.Look. Called by the watcher.
#pragma once

namespace holdem {

// Called when discovery has found no table to follow.
void ExplainDiscovery();

// Called when the table followed until now can no longer be read, or is a table no more.
void ExplainLoss();

}  // namespace holdem
