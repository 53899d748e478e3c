// Why no table is followed, for the user to read: writes autoRead.Look. Called by the watcher.
#pragma once

namespace holdem {

// Discovery has taken none of the windows.
void ExplainDiscovery();

// The table followed until now cannot be read any more, or is none.
void ExplainLoss();

}  // namespace holdem
