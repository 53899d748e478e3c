#include "cards/hand.h"

#include <cassert>

namespace holdem {

bool FillHand(Hand& hand, int n) {
  assert(n <= Hand::kMaxCards);
  hand.count = 0;
  for (int i = 1; i <= n && hand.entries[i].card >= 1; ++i) {
    Hand::Entry& entry = hand.entries[i];
    entry.suit = static_cast<std::int16_t>(SuitOf(entry.card));
    entry.rank = static_cast<std::int16_t>(RankOf(entry.card));
    hand.count = static_cast<std::int16_t>(i);
  }
  return hand.count >= 1;
}

}  // namespace holdem
