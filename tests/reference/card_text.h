// Cards written for people, so that a test's table reads like a hand: "AS TD 9H 2C"; and all the
// ways to complete a set of cards.
#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cards/card_set.h"
#include "cards/hand.h"

namespace holdem {

inline std::vector<Card> CardsOf(const std::string& text) {
  std::vector<Card> cards;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const auto rank = std::string_view("A23456789TJQK").find(word.at(0)) + 1;
    const auto suit = std::string_view("SDCH").find(word.at(1)) + 1;
    cards.push_back(CardOf(static_cast<int>(suit), static_cast<int>(rank)));
  }
  return cards;
}

inline Hand HandOf(const std::vector<Card>& cards) {
  Hand hand;
  for (std::size_t i = 0; i < cards.size(); ++i) hand.entries.at(i + 1).card = cards[i];
  FillHand(hand, static_cast<int>(cards.size()));
  return hand;
}

inline bool HaveCommonCard(CardSet some, CardSet others) {
  return (some & others & kAllRanks) != 0;
}

// Calls action with every set of so many cards that has none of the excluded ones.
template <typename Action>
void ForEachSet(int count, CardSet excluded, Action action, CardSet begun = 0, int first = 1) {
  if (count == 0) return action(begun);
  for (int card = first; card <= kCardCount - count + 1; ++card) {
    const CardSet bit = SetOf(static_cast<Card>(card));
    if (!HaveCommonCard(bit, excluded)) {
      ForEachSet(count - 1, excluded, action, begun + bit, card + 1);
    }
  }
}

}  // namespace holdem
