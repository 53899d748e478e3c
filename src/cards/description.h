// Cards and hands in words. A made hand is read back from its value alone; the analysis pass shows
// it under the card slots.
#pragma once

#include <string>
#include <string_view>

#include "cards/card.h"
#include "cards/evaluator.h"

namespace holdem {

// The shorthand of ranks and suits, as in "As" or "Td": by rank and by suit, from 1.
inline constexpr std::string_view kRankLetters = "A23456789TJQK";
inline constexpr std::string_view kSuitLetters = "sdch";

// "As". REQUIRES: a real card.
std::string CardInShorthand(Card card);

// "Ace of Spades". REQUIRES: a real card.
std::string CardInWords(Card card);

// The wording of a value without draw bonus; empty for a score of 9 or more.
std::string DescribeHand(HandValue value);

}  // namespace holdem
