#include <bit>

#include "cards/dealer.h"
#include "cards/description.h"
#include "cards/evaluator.h"
#include "cards/seven_cards.h"
#include "effort.h"
#include "fakes/fake_ports.h"
#include "reference/literal.h"

namespace holdem {
namespace {

TEST(Card, SuitAndRankOfEveryKindOfCode) {
  const std::tuple<int, int, int> cases[] = {{26, 2, 13},  {27, 3, 1},   {52, 4, 13}, {0, 0, 0},
                                             {53, 99, 99}, {54, 99, 99}, {55, 0, 0}};
  for (const auto& [card, suit, rank] : cases) {
    EXPECT_EQ(std::pair(SuitOf(card), RankOf(card)), std::pair(suit, rank)) << card;
  }
}

TEST(Hand, IsFilledUpToTheFirstGap) {
  const std::tuple<const char*, int, int> cases[] = {
      {"AH AS -- AC 5S", 5, 2}, {"AH AS", 0, 0}, {"AH AS 2S AC", 3, 3}, {"-- AH", 2, 0}};
  for (const auto& [cards, n, count] : cases) {
    Hand hand = HandOf(CardsOf(cards));
    EXPECT_EQ(FillHand(hand, n), count > 0);
    EXPECT_EQ(hand.count, count) << cards;
  }
}

using DeckDeathTest = ProgramTest;

TEST_F(DeckDeathTest, AnEmptyDeckEndsTheProcessSilently) {
  deck.free = 0;
  EXPECT_EXIT(DealRandomCard(), testing::ExitedWithCode(EXIT_FAILURE), "^$");
}

// The fifth figure that xoshiro256++ gives everywhere when seeded with 0 by splitmix64.
TEST(RandomGenerator, GivesTheKnownSequence) {
  RandomGenerator random;
  random.Seed(0);
  for (int i = 0; i < 4; ++i) random.Next();
  EXPECT_EQ(random.Next(), 9136120204379184874U);
}

// What does not tell the date stands for the moment itself.
TEST(SeedRandom, DiffersByDateAndBySecond) {
  std::set<std::uint64_t> draws;
  for (const auto field :
       {&std::tm::tm_yday, &std::tm::tm_wday, &std::tm::tm_sec, &std::tm::tm_min, &std::tm::tm_hour,
        &std::tm::tm_mday, &std::tm::tm_mon, &std::tm::tm_year}) {
    std::tm now{30, 20, 10, 15, 6, 126};
    ++(now.*field);
    SeedRandom(now);
    draws.insert(generator.Next());
  }
  EXPECT_EQ(draws.size(), 7U);
}

// Of the literal one, with which the fast one has to agree, with the bonus for draws.
TEST(Evaluator, ValuesBonusesAndWordsAsTheyWere) {
  const auto value = [](const char* cards) {
    return literal::EvaluateHand(HandOf(CardsOf(cards)), true);
  };
  EXPECT_NEAR(value("AS 2D 3C 4H 5S KD QC"), 4.05, 1e-12);
  EXPECT_NEAR(value("KS KD KC 9S 9D 9C 2H"), 6.1309, 1e-12);
  EXPECT_NEAR(value("AH 9S 2H 7H KH 4C"), 0.1413090704 + 2.5, 1e-12);
  EXPECT_NEAR(value("5H 6H 7H 8H KS"), 0.1308070605 + 4.5, 1e-12);
  EXPECT_EQ(DescribeHand(6.0614), "Full House (Sixs full of Aces)");
  EXPECT_EQ(RankWord(5.1413120908, 5), "Eight");
  Fingerprint hands;  // a change must be meant
  for (const double odd : {8.14, 0.0403, 0.15, 9.0, 9.14}) hands.Add(DescribeHand(odd));
  for (int category = 0; category <= 8; ++category) hands.Add(DescribeHand(category));
  generator.Seed(0);
  for (int i = 0; i < 100000; ++i) {
    deck = {};
    std::vector<Card> cards(i % 8);
    for (Card& card : cards) hands.Add(CardInWords(card = DealRandomCard()));
    hands.Add(std::to_string(literal::EvaluateHand(HandOf(cards), true)));
    hands.Add(DescribeHand(literal::EvaluateHand(HandOf(cards), false)));
  }
  EXPECT_EQ(hands.value, 18019223466787422802U);
}

TEST(Evaluator, AgreesWithTheLiteralOneToTheBit) {
  const Dealer dealer{Deck{}};
  generator.Seed(0);
  for (int i = 0; i < Effort(12000000); ++i) {
    Hand hand;
    const auto places = dealer.Deal<Hand::kMaxCards>(generator);  // with more than count
    for (int k = 0; k < Hand::kMaxCards; ++k) hand.entries[k + 1].card = dealer.CardAt(places[k]);
    FillHand(hand, i % 8);
    const double value = literal::EvaluateHand(hand, false);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(EvaluateHand(hand)),
              std::bit_cast<std::uint64_t>(value));
    if (hand.count != 5 && hand.count != 6) continue;
    CardSet cards = 0;
    for (int k = 1; k <= hand.count; ++k) cards += SetOf(hand.entries[k].card);
    const PackedValue bonus =  // in half points
        DrawScore(cards, hand.count, hand.entries[1].card, hand.entries[2].card) -
        PackedValueOf(cards);
    ASSERT_NEAR(bonus / 2.0 / (1 << kHalfPointShift), literal::EvaluateHand(hand, true) - value,
                1e-9);
  }
}

// Counted by category, and looked up as the simulation does.
TEST(Evaluator, AllSevenCardHands) {
  if (kSanitized) GTEST_SKIP() << "133 million hands take too long under a sanitizer";
  std::array<int, kCategoryCount> hands{};
  int lookedUpWrongly = 0;
  const auto addUp = [&](auto& self, int further, Card last, CardSet set, CardSum sum) -> void {
    if (further == 0) {
      const PackedValue value = PackedValueOf(set);
      ++hands[CategoryOf(value)];
      lookedUpWrongly += SevenCards::Table().ValueOf(sum, [&] { return set; }) != value;
      return;
    }
    for (Card card = last + 1; card <= kCardCount; ++card) {
      self(self, further - 1, card, set + SetOf(card), sum + SevenCards::SumOf(card));
    }
  };
  addUp(addUp, 7, kNoCard, 0, SevenCards::kNoCards);
  EXPECT_EQ(hands, (std::array{23294460, 58627800, 31433400, 6461620, 6180020, 4047644, 3473184,
                               224848, 41584}));
  EXPECT_EQ(lookedUpWrongly, 0);
}

}  // namespace
}  // namespace holdem
