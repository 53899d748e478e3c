// The outs: which unseen cards would improve the user's hand.
#pragma once

namespace holdem {

// Marks every out in the deck window and the user's current category in the results grid.
void MarkOuts();

}  // namespace holdem
