#include "engine/outs.h"

namespace holdem {

void MarkOuts() {}

}  // namespace holdem
