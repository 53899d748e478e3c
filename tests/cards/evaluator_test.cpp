#include "cards/evaluator.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <set>

#include "cards/deck.h"
#include "cards/random.h"
#include "effort.h"
#include "reference/card_text.h"
#include "reference/literal_evaluator.h"

namespace holdem {
namespace {

// What draws add to the value; nothing but on the flop and the turn.
double BonusOf(const Hand& hand) {
  if (hand.count != 5 && hand.count != 6) return 0;
  CardSet cards = 0;
  for (int i = 1; i <= hand.count; ++i) cards += SetOf(hand.entries[i].card);
  const PackedValue score =
      DrawScore(cards, hand.count, hand.entries[1].card, hand.entries[2].card);
  return (score - PackedValueOf(cards)) / double{1 << kHalfPointShift} / 2;
}

TEST(Evaluator, WorkedFigures) {
  for (const std::string figure :  // the value, and the bonus when draws count
       {"= 0",
        "AS KS = 0.1413",
        "AS AD = 1.14",
        "KS KD 9H = 1.1309",
        "KS KD KH = 3.13",
        "KS KD 9H 9C = 2.1309",
        "KS KD KH KC = 7.13",
        "5S 6S 7S 8S = 0.08070605",
        "AS 2D 3C 4H 5S KD QC = 4.05",
        "AH 2H 3H 4H 5H KD QC = 8.05",
        "TS JS QS KS AS 2D 3C = 8.14",
        "KS KD KC 9S 9D 9C 2H = 6.1309",
        "AS AD KS KD QS QD 2C = 2.141312",
        "AS AD AC AH KS KD 2C = 7.1413",
        "2H 4H 6H 8H TH QH 2C = 5.1210080604",
        "5S 6D 7C 8H 9S 9D = 4.09",
        "5H 6H 7H 8H 9D KH 2C = 5.1308070605",
        "5H 6H 7H 8H 9H TD = 8.09",
        "KH KS KD QH 2H = 3.131202",
        "5S 6D 7C 8H 9S = 4.09",
        "AH 9H 2H 7H KC = 0.1413090702 + 2.5",
        "AH 9H 2H 7H KC 4S = 0.1413090704 + 1.5",
        "AH 9S 2H 7H KH = 0.1413090702",
        "AH 9S 2H 7H KH 4C = 0.1413090704 + 2.5",
        "9S KH 2H 7H 8H 4C = 0.1309080704 + 2.5",
        "JH 9S 2H 7H KH 4C = 0.1311090704 + 1.5",
        "8H 9S 2H 7H KH 4C = 0.1309080704",
        "9S 4C AH 2H 7H KH = 0.1413090704",
        "5S 6D 7C 8H KS = 0.1308070605 + 2",
        "5S 6D 7C 8H KS 2D = 0.1308070605 + 1",
        "5S 6D 9C 8H KS = 0.1309080605 + 1",
        "5S 6D 9C 8H KS 2D = 0.1309080605 + 0.5",
        "AS 2D 3C 4H 9S = 0.1409040302 + 1",
        "5H 6H 7H 8H KS = 0.1308070605 + 4.5",
        "5H 6H 7H 8H KS 2D 3C = 0.1308070605"}) {
    const auto equals = figure.find('=');
    const auto plus = figure.find('+');
    const double plain = std::stod(figure.substr(equals + 1));
    const double bonus = plus == std::string::npos ? 0 : std::stod(figure.substr(plus + 1));
    const Hand hand = HandOf(CardsOf(figure.substr(0, equals)));
    EXPECT_NEAR(EvaluateHand(hand), plain, 1e-12) << figure;
    EXPECT_EQ(BonusOf(hand), bonus) << figure;
  }
}

class RandomHands {
 public:
  RandomHands() { generator.Seed(0); }

  Hand Next(int count) {
    Hand hand;
    const auto cards =
        dealer_.Deal(Hand::kMaxCards, generator);  // those after the count do not count
    for (int i = 0; i < Hand::kMaxCards; ++i) hand.entries[i + 1].card = cards[i];
    FillHand(hand, count);
    return hand;
  }

 private:
  Dealer dealer_{Deck{}};
};

TEST(Evaluator, AgreesWithTheLiteralOneToTheBit) {
  RandomHands hands;
  for (int i = 0; i < Effort(12000000); ++i) {
    const Hand hand = hands.Next(i % 8);
    const auto bits = std::bit_cast<std::uint64_t>(EvaluateHand(hand));
    const double expected = literal::EvaluateHand(hand, false);
    if (bits != std::bit_cast<std::uint64_t>(expected)) FAIL() << "hand " << i;
    const double bonus = literal::EvaluateHand(hand, true) - expected;
    if (std::abs(BonusOf(hand) - bonus) > 1e-9) FAIL() << "draws of hand " << i;
  }
}

using Counts = std::array<int, kCategoryCount>;

TEST(Evaluator, AllFiveCardHands) {
  Counts counts{};
  std::set<PackedValue> values;
  ForEachSet(5, 0, [&, last = PackedValue{}](CardSet hand) mutable {
    const PackedValue value = PackedValueOf(hand);
    ++counts[CategoryOf(value)];
    if (value == last || !values.insert(last = value).second) return;
    std::vector<Card> cards;
    for (Card card = 1; card <= kCardCount; ++card) {
      if (HaveCommonCard(hand, SetOf(card))) cards.push_back(card);
    }
    EXPECT_EQ(HandValueOf(value), literal::EvaluateHand(HandOf(cards), false));
  });
  EXPECT_EQ(counts, (Counts{1302540, 1098240, 123552, 54912, 10200, 5108, 3744, 624, 40}));
  EXPECT_EQ(values.size(), 7462U);
  double before = 0;
  for (const PackedValue value : values) {  // in rising order
    EXPECT_GT(HandValueOf(value), before);
    EXPECT_EQ(static_cast<int>(HandValueOf(value)), CategoryOf(value));
    before = HandValueOf(value);
  }
}

TEST(Evaluator, AllSevenCardHands) {
  if (kSanitized) GTEST_SKIP() << "133 million hands take too long under a sanitizer";
  Counts counts{};
  ForEachSet(7, 0, [&](CardSet hand) { ++counts[CategoryOf(PackedValueOf(hand))]; });
  EXPECT_EQ(counts, (Counts{23294460, 58627800, 31433400, 6461620, 6180020, 4047644, 3473184,
                            224848, 41584}));
}

TEST(Evaluator, SevenCardsAreWorthTheBestFiveOfThem) {
  RandomHands hands;
  for (int i = 0; i < Effort(400000); ++i) {
    const Hand hand = hands.Next(7);
    CardSet all = 0;
    for (int k = 1; k <= 7; ++k) all += SetOf(hand.entries[k].card);
    PackedValue best = 0;
    ForEachSet(2, ~all, [&](CardSet out) { best = std::max(best, PackedValueOf(all - out)); });
    ASSERT_EQ(PackedValueOf(all), best) << i;
    ASSERT_EQ(EvaluateHand(hand), HandValueOf(best)) << i;
  }
}

}  // namespace
}  // namespace holdem
