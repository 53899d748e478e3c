#include "gestures/card_typing.h"

#include <cctype>
#include <string_view>

#include "cards/description.h"
#include "gestures/card_gestures.h"
#include "table/card_slots.h"

namespace holdem {
namespace {

constexpr char kTenBegun = '1';

// The number of the letter among the others, from 1; 0 when it is none of them.
int NumberIn(std::string_view letters, char letter) {
  const auto found = letters.find(letter);
  return found == letters.npos ? 0 : static_cast<int>(found) + 1;
}

}  // namespace

void TypeCharacter(char character, Slot focusedSlot) {
  const bool intoFocused = focusedSlot != kNoSlot && !slots.IsFilled(focusedSlot);
  if (intoFocused && focusedSlot != slots.TypedSlot) ForgetTyped();
  const bool waiting = slots.TypedSlot != kNoSlot;
  const Slot target = waiting ? slots.TypedSlot : intoFocused ? focusedSlot : NextEmptySlot();

  const auto typed = static_cast<unsigned char>(character == '0' ? 't' : character);
  const char letter = static_cast<char>(std::toupper(typed));
  const bool begins = letter == kTenBegun || NumberIn(kRankLetters, letter) != 0;
  if (begins && target != kNoSlot) return ShowTyped(letter, target, !intoFocused);

  const int rank = waiting ? NumberIn(kRankLetters, slots.TypedRank) : 0;
  const int suit = NumberIn(kSuitLetters, static_cast<char>(std::tolower(typed)));
  const Card card = rank != 0 && suit != 0 ? CardOf(suit, rank) : kNoCard;
  if (card == kNoCard || !slots.InDeck(card)) return ForgetTyped();
  DropDeckCard(card, target);  // covers what was typed
}

}  // namespace holdem
