#include "gestures/card_typing.h"

#include <cctype>
#include <string_view>

#include "cards/description.h"
#include "gestures/card_gestures.h"
#include "table/card_slots.h"

namespace holdem {
namespace {

constexpr char kTenBegun = '1';

// The place of the letter among the others, from 1; 0 when it is none of them.
int PlaceIn(std::string_view letters, char letter) {
  return static_cast<int>(letters.find(letter) + 1);
}

}  // namespace

void TypeCharacter(char character, int focusedSlot) {
  const bool intoFocused = focusedSlot != kNoSlot && !slots.IsFilled(focusedSlot);
  const int target = intoFocused ? focusedSlot : NextEmptySlot();
  const char waiting =
      slots.TypedSlot != kNoSlot && slots.TypedSlot == target ? slots.TypedRank : '\0';
  const auto typed = static_cast<unsigned char>(character == '0' ? 't' : character);
  const char letter = static_cast<char>(std::toupper(typed));
  const int rank = PlaceIn(kRankLetters, waiting);
  const int suit = PlaceIn(kSuitLetters, static_cast<char>(std::tolower(typed)));
  const bool begins = letter == kTenBegun || PlaceIn(kRankLetters, letter) != 0;
  if (begins && target != kNoSlot) return ShowTyped(letter, target);
  if (rank != 0 && suit != 0) DropDeckCard(CardOf(suit, rank), target);
  ForgetTyped();
}

}  // namespace holdem
