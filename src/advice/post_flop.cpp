#include "advice/post_flop.h"

#include "state/results.h"

namespace holdem {

void PostFlopStep() { results.lblAdvice.clear(); }

}  // namespace holdem
