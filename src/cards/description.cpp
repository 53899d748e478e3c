#include "cards/description.h"

namespace holdem {

std::string DescribeHand(HandValue) { return {}; }

}  // namespace holdem
