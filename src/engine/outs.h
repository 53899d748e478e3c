// The outs: which unseen cards would improve the user's hand. Marked by every analysis pass, before
// it simulates.
#pragma once

namespace holdem {

// Marks every out in results.OutRows and the user's current category in the results grid. Exact:
// every card is tried once.
void MarkOuts();

}  // namespace holdem
