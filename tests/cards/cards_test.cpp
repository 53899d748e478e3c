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

TEST(DescribeHand, Wording) {
  std::istringstream cases(
      "8.14 Royal Flush;8.13 Straight Flush to the King;8.05 Straight Flush to the Five;"
      "7.1402 4 of a Kind (Aces);7.13 4 of a Kind (Kings);6.1305 Full House (Kings full of Fives);"
      "6.0614 Full House (Sixs full of Aces);5.1412100806 Flush (Ace high);"
      "4.1 Straight to the Ten;3.0714 3 Sevens;2.141306 2 pair (Aces and Kings);"
      "2.0605 2 pair (Sixs and Fives);1.11 Pair of Jacks;0.13 King High;0.0403 Four High;"
      "0.09 Nine High;0.08 Eight High;0.12 Queen High;1.02 Pair of Twos;1.03 Pair of Threes;"
      "8 Straight Flush;7 4 of a Kind;6 Full House;5 Flush;4 Straight;3 Trips;2 2 pair;1 Pair;"
      "0 High Card;0.15 High Card;9 ;9.14 ");
  for (std::string text; std::getline(cases, text, ';');) {
    EXPECT_EQ(DescribeHand(std::stod(text)), text.substr(text.find(' ') + 1)) << text;
  }
  EXPECT_EQ(RankWord(5.1413120908, 5), "Eight");
  EXPECT_EQ(CardInWords(25), "Queen of Diamonds");
}

TEST(Evaluator, WorkedFigures) {
  std::istringstream figures(  // the value, and the bonus when draws count
      "= 0;AS KS = 0.1413;KS KD KH KC = 7.13;AS 2D 3C 4H 5S KD QC = 4.05;"
      "AH 2H 3H 4H 5H KD QC = 8.05;KS KD KC 9S 9D 9C 2H = 6.1309;"
      "AS AD KS KD QS QD 2C = 2.141312;2H 4H 6H 8H TH QH 2C = 5.1210080604;"
      "KH KS KD QH 2H = 3.131202;AH 9H 2H 7H KC = 0.1413090702 + 2.5;"
      "AH 9H 2H 7H KC 4S = 0.1413090704 + 1.5;AH 9S 2H 7H KH = 0.1413090702;"
      "AH 9S 2H 7H KH 4C = 0.1413090704 + 2.5;9S KH 2H 7H 8H 4C = 0.1309080704 + 2.5;"
      "JH 9S 2H 7H KH 4C = 0.1311090704 + 1.5;8H 9S 2H 7H KH 4C = 0.1309080704;"
      "5S 6D 7C 8H KS = 0.1308070605 + 2;5S 6D 9C 8H KS 2D = 0.1309080605 + 0.5;"
      "AS 2D 3C 4H 9S = 0.1409040302 + 1;5H 6H 7H 8H KS = 0.1308070605 + 4.5");
  for (std::string figure; std::getline(figures, figure, ';');) {
    const Hand hand = HandOf(CardsOf(figure.substr(0, figure.find('='))));
    std::istringstream numbers(figure.substr(figure.find('=') + 1));
    double plain = 0, bonus = 0;
    char plus;
    numbers >> plain >> plus >> bonus;
    EXPECT_NEAR(EvaluateHand(hand), plain, 1e-12) << figure;
    EXPECT_NEAR(literal::EvaluateHand(hand, true), plain + bonus, 1e-12) << figure;
  }
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
