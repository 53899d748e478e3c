#include "advice/pre_flop.h"

namespace holdem {

void PreFlopStep() {}

}  // namespace holdem
