// Cards written for people, so that a test's table reads like a hand: "AS TD 9H 2C"; "--" is no
// card.
#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cards/hand.h"

namespace holdem {

inline std::vector<Card> CardsOf(const std::string& text) {
  std::vector<Card> cards;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const auto rank = std::string_view("A23456789TJQK").find(word.at(0)) + 1;
    const auto suit = std::string_view("SDCH").find(word.at(1)) + 1;
    cards.push_back(word == "--" ? kNoCard
                                 : CardOf(static_cast<int>(suit), static_cast<int>(rank)));
  }
  return cards;
}

inline std::string TextOf(Card card) {
  if (!IsRealCard(card)) return "--";
  return {"A23456789TJQK"[RankOf(card) - 1], "SDCH"[SuitOf(card) - 1]};
}

inline Hand HandOf(const std::vector<Card>& cards) {
  Hand hand;
  for (std::size_t i = 0; i < cards.size(); ++i) hand.entries.at(i + 1).card = cards[i];
  FillHand(hand, static_cast<int>(cards.size()));
  return hand;
}

}  // namespace holdem
