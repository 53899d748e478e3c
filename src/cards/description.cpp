#include "cards/description.h"

#include <array>
#include <cassert>
#include <cmath>

namespace holdem {

namespace {

// By rank or by rank weight.
constexpr std::array<std::string_view, 15> kRankWords = {"",     "Ace",  "Two",   "Three", "Four",
                                                         "Five", "Six",  "Seven", "Eight", "Nine",
                                                         "Ten",  "Jack", "Queen", "King",  "Ace"};
constexpr std::array<std::string_view, 5> kSuitWords = {"", "Spades", "Diamonds", "Clubs",
                                                        "Hearts"};

// The word of the rank digit at a position (1..5) of a value; empty where the value has none.
std::string_view RankWord(HandValue value, int position) {
  // Rounded, since a double may lie a little below its digits; the digits that follow add less than
  // 0.15.
  const long long digits = std::llrint(value * std::pow(100, position));
  const auto digit = static_cast<std::size_t>(digits % 100);
  return digit < kRankWords.size() ? kRankWords[digit] : std::string_view();
}

}  // namespace

std::string CardInShorthand(Card card) {
  assert(IsRealCard(card));
  return {kRankLetters.at(RankOf(card) - 1), kSuitLetters.at(SuitOf(card) - 1)};
}

std::string CardInWords(Card card) {
  assert(IsRealCard(card));
  return std::string(kRankWords[RankOf(card)]) + " of " + std::string(kSuitWords[SuitOf(card)]);
}

std::string DescribeHand(HandValue value) {
  const std::string first(RankWord(value, 1));
  const std::string second(RankWord(value, 2));
  const auto named = [&](const char* name, const std::string& ranks) {
    return first.empty() ? name : name + ranks;
  };
  // Every plural is a plain "s", Sixs included.
  switch (static_cast<int>(value)) {
    case HighCard: return first.empty() ? "High Card" : first + " High";
    case OnePair: return named("Pair", " of " + first + "s");
    case TwoPair: return named("2 pair", " (" + first + "s and " + second + "s)");
    case ThreeOfAKind: return first.empty() ? "Trips" : "3 " + first + "s";
    case Straight: return named("Straight", " to the " + first);
    case Flush: return named("Flush", " (" + first + " high)");
    case FullHouse: return named("Full House", " (" + first + "s full of " + second + "s)");
    case FourOfAKind: return named("4 of a Kind", " (" + first + "s)");
    case StraightFlush:
      return first == "Ace" ? "Royal Flush" : named("Straight Flush", " to the " + first);
    default: return {};
  }
}

}  // namespace holdem
