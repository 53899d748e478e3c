// Why no table is followed, for the user to read: writes autoRead.Look. Called by the watcher.
#pragma once

namespace holdem {

// Discovery has taken none of the windows.
void ExplainDiscovery();

// The table in autoRead.CurrentTable, followed until now, cannot be read any more.
void ExplainLoss();

}  // namespace holdem
