// A made hand in words, for the label under the card slots.
#pragma once

#include <string>

#include "cards/evaluator.h"

namespace holdem {

// The wording of a value without draw bonus.
std::string DescribeHand(HandValue value);

}  // namespace holdem
