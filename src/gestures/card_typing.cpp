#include "gestures/card_typing.h"

#include <cctype>
#include <string_view>

namespace holdem {
namespace {

constexpr std::string_view kRankLetters = "A23456789TJQK";  // by rank, from 1
constexpr std::string_view kSuitLetters = "SDCH";           // by suit, from 1

// The place of the character in the letters, from 1; 0 when it is none of them.
int PlaceIn(std::string_view letters, char character) {
  const auto place = letters.find(character);
  return place == std::string_view::npos ? 0 : static_cast<int>(place) + 1;
}

}  // namespace

Card CardTyping::Type(char character) {
  const char letter = static_cast<char>(
      std::toupper(static_cast<unsigned char>(character == '0' ? 'T' : character)));
  const int suit = PlaceIn(kSuitLetters, letter);
  const Card card = rank_ != 0 && suit != 0 ? CardOf(suit, rank_) : kNoCard;
  rank_ = PlaceIn(kRankLetters, letter);
  return card;
}

}  // namespace holdem
