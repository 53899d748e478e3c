// Cards and hands in words. A made hand is read back from its value alone; the analysis pass shows
// it under the card slots.
#pragma once

#include <string>
#include <string_view>

#include "cards/card.h"
#include "cards/evaluator.h"

namespace holdem {

// "Ace of Spades". REQUIRES: a real card.
std::string CardInWords(Card card);

// The word of the rank digit at a position (1..5) of a value; empty where the value has none.
std::string_view RankWord(HandValue value, int position);

// The wording of a value without draw bonus; empty for a score of 9 or more.
std::string DescribeHand(HandValue value);

}  // namespace holdem
