#include "cards/description.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "reference/card_text.h"

namespace holdem {
namespace {

TEST(DescribeHand, Wording) {
  const struct {
    HandValue value;
    const char* text;
  } cases[] = {{8.14, "Royal Flush"},
               {8.13, "Straight Flush to the King"},
               {8.05, "Straight Flush to the Five"},
               {7.1402, "4 of a Kind (Aces)"},
               {7.13, "4 of a Kind (Kings)"},
               {6.1305, "Full House (Kings full of Fives)"},
               {6.0614, "Full House (Sixs full of Aces)"},
               {5.1412100806, "Flush (Ace high)"},
               {4.1, "Straight to the Ten"},
               {3.0714, "3 Sevens"},
               {2.141306, "2 pair (Aces and Kings)"},
               {2.0605, "2 pair (Sixs and Fives)"},
               {1.11, "Pair of Jacks"},
               {0.13, "King High"},
               {8, "Straight Flush"},
               {7, "4 of a Kind"},
               {6, "Full House"},
               {5, "Flush"},
               {4, "Straight"},
               {3, "Trips"},
               {2, "2 pair"},
               {1, "Pair"},
               {0, "High Card"},
               {9, ""},
               {9.14, ""}};
  for (const auto& c : cases) EXPECT_EQ(DescribeHand(c.value), c.text) << c.value;
}

TEST(DescribeHand, RankWordsByPosition) {
  const struct {
    HandValue value;
    std::array<const char*, 5> words;
  } cases[] = {{5.1413120908, {"Ace", "King", "Queen", "Nine", "Eight"}},
               {0.1110070403, {"Jack", "Ten", "Seven", "Four", "Three"}},
               {2.060502, {"Six", "Five", "Two", "", ""}},
               {7.0116, {"Ace", "", "", "", ""}},
               {0.15, {"", "", "", "", ""}}};
  for (const auto& c : cases) {
    for (int i = 0; i < 5; ++i) EXPECT_EQ(RankWord(c.value, i + 1), c.words[i]) << c.value;
  }
}

// The five ranks as an onlooker sees them: how often each lies there, the most frequent first.
std::string WordingOf(const std::vector<int>& weights, bool suited) {
  const char* const kNames[] = {"",      "",     "Two", "Three", "Four",  "Five", "Six", "Seven",
                                "Eight", "Nine", "Ten", "Jack",  "Queen", "King", "Ace"};
  std::vector<std::pair<int, int>> groups;  // how many, weight
  for (const int weight : std::set<int>(weights.begin(), weights.end())) {
    groups.emplace_back(std::count(weights.begin(), weights.end(), weight), weight);
  }
  std::sort(groups.rbegin(), groups.rend());
  const std::string first = kNames[groups[0].second];
  if (groups.size() == 2) {
    if (groups[0].first == 4) return "4 of a Kind (" + first + "s)";
    return "Full House (" + first + "s full of " + kNames[groups[1].second] + "s)";
  }
  if (groups.size() == 3) {
    if (groups[0].first == 3) return "3 " + first + "s";
    return "2 pair (" + first + "s and " + kNames[groups[1].second] + "s)";
  }
  if (groups.size() == 4) return "Pair of " + first + "s";
  const bool wheel = groups[0].second == 14 && groups[1].second == 5;
  if (wheel || groups[0].second - groups[4].second == 4) {
    const std::string top = kNames[wheel ? 5 : groups[0].second];
    if (suited && top == "Ace") return "Royal Flush";
    return (suited ? "Straight Flush to the " : "Straight to the ") + top;
  }
  return suited ? "Flush (" + first + " high)" : first + " High";
}

// One hand for each of the 7462 values that five cards can have.
TEST(DescribeHand, EveryFiveCardHand) {
  std::set<HandValue> values;
  const auto check = [&](const std::array<int, 5>& ranks, bool suited) {
    std::vector<Card> cards;
    std::vector<int> weights;
    for (const int rank : ranks) {
      const auto others = std::count(ranks.begin(), ranks.begin() + cards.size(), rank);
      // Equal ranks have different suits; the last card keeps the rest from being a flush.
      const bool last = cards.size() == 4;
      const int suit = suited                ? Hearts
                       : last && others == 0 ? Clubs
                                             : Spades + static_cast<int>(others);
      cards.push_back(CardOf(suit, rank));
      weights.push_back(RankWeight(rank));
    }
    const HandValue value = EvaluateHand(HandOf(cards));
    values.insert(value);
    ASSERT_EQ(DescribeHand(value), WordingOf(weights, suited)) << value;
  };
  for (int a = 1; a <= kRankCount; ++a) {
    for (int b = a; b <= kRankCount; ++b) {
      for (int c = b; c <= kRankCount; ++c) {
        for (int d = c; d <= kRankCount; ++d) {
          for (int e = d; e <= kRankCount; ++e) {
            if (a == e) continue;  // there is no fifth card of a rank
            check({a, b, c, d, e}, false);
            if (a < b && b < c && c < d && d < e) check({a, b, c, d, e}, true);
          }
        }
      }
    }
  }
  EXPECT_EQ(values.size(), 7462U);
}

}  // namespace
}  // namespace holdem
