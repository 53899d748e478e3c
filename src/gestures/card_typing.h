// Cards entered by their letters, for hands that stay on the keyboard: the rank, then the suit, as
// in "as" or "TH".
#pragma once

#include "cards/card.h"

namespace holdem {

class CardTyping {
 public:
  // The card that this character completes, or kNoCard. Any other character begins anew.
  Card Type(char character);

 private:
  int rank_ = 0;  // typed already; 0 for none
};

}  // namespace holdem
