#include <algorithm>

#include "cards/hand.h"
#include "fakes/fake_ports.h"
#include "reference/literal_simulation.h"

namespace holdem {
namespace {

TEST(Card, SuitAndRankOfEveryKindOfCode) {
  const struct {
    int card, suit, rank;
  } cases[] = {{1, 1, 1},   {13, 1, 13},  {14, 2, 1},   {26, 2, 13}, {27, 3, 1},
               {39, 3, 13}, {40, 4, 1},   {52, 4, 13},  {50, 4, 11}, {0, 0, 0},
               {-1, 0, 0},  {53, 99, 99}, {54, 99, 99}, {55, 0, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(SuitOf(c.card), c.suit) << c.card;
    EXPECT_EQ(RankOf(c.card), c.rank) << c.card;
  }
}

TEST(Hand, IsFilledUpToTheFirstGap) {
  const struct {
    std::array<Card, 7> cards;
    int n, count;
  } cases[] = {{{40, 1, 0, 27, 5, 6, 7}, 7, 2}, {{40, 1, 0, 27, 5, 6, 7}, 0, 0},
               {{40, 1, 2, 27, 5, 6, 7}, 7, 7}, {{40, 1, 2, 27, 5, 6, 7}, 5, 5},
               {{0, 1, 2, 3, 4, 5, 6}, 7, 0},   {{40, -1, 2, 27, 5, 6, 7}, 7, 1}};
  for (const auto& c : cases) {
    Hand hand;
    for (int i = 0; i < 7; ++i) hand.entries[i + 1].card = c.cards[i];
    EXPECT_EQ(FillHand(hand, c.n), c.count > 0);
    EXPECT_EQ(hand.count, c.count);
    for (int i = 1; i <= 7; ++i) {
      EXPECT_EQ(hand.entries[i].suit, i <= c.count ? SuitOf(c.cards[i - 1]) : 0);
      EXPECT_EQ(hand.entries[i].rank, i <= c.count ? RankOf(c.cards[i - 1]) : 0);
    }
  }
}

class DeckTest : public ProgramTest {};

TEST_F(DeckTest, DealsEveryFreeCardOnceAndWithTheSameChance) {
  Deck half;
  for (Card card = 1; card <= kCardCount; card = static_cast<Card>(card + 2)) half.Use(card);
  const struct {
    Deck start;
    double chiSquare;  // exceeded by one unbiased deck in 10,000
  } cases[] = {{Deck{}, 96}, {half, 60}};
  for (const auto& c : cases) {
    std::array<int, kCardCount + 1> seen{};
    const int expected = 4000;
    for (int i = 0; i < expected * c.start.CardsLeft(); ++i) {
      deck = c.start;
      ++seen[DealRandomCard()];
    }
    double chiSquare = 0;
    for (Card card = 1; card <= kCardCount; ++card) {
      const int due = c.start.DeckUsed(card) ? 0 : expected;
      chiSquare += (seen[card] - due) * (seen[card] - due) / (due + 1e-9);
    }
    EXPECT_LT(chiSquare, c.chiSquare);
    EXPECT_GT(chiSquare, 1) << "too even for chance";
    for (deck = c.start; deck.CardsLeft() > 0;) {
      const Deck before = deck;
      const Card card = DealRandomCard();
      EXPECT_FALSE(before.DeckUsed(card));
      ASSERT_EQ(deck.free, before.free & ~(1ULL << (card - 1)));
    }
  }
}

TEST_F(DeckTest, ADealerDealsWhatSingleDrawsWould) {
  for (int i = 0; i < 20000; ++i) {
    Deck some{.free = Deck::kAllFree & generator.Next() & (i % 2 == 0 ? ~0ULL : generator.Next())};
    const int count = std::min(some.CardsLeft(), i % (Dealer::kMostCards + 1));
    const RandomGenerator before = generator;
    const auto cards = Dealer(some).Deal(count, generator);
    const std::uint64_t next = generator.Next();
    generator = before;
    deck = some;
    for (int k = 0; k < count; ++k) ASSERT_EQ(cards[k], DealRandomCard()) << i << ", card " << k;
    ASSERT_EQ(generator.Next(), next);
  }
}

using DeckDeathTest = DeckTest;

TEST_F(DeckDeathTest, AnEmptyDeckEndsTheProcessSilently) {
  deck.free = 0;
  EXPECT_EXIT(DealRandomCard(), testing::ExitedWithCode(EXIT_FAILURE), "^$");
}

// The figures that xoshiro256++ gives everywhere when seeded with 0 by splitmix64.
TEST(RandomGenerator, GivesTheKnownSequence) {
  RandomGenerator random;
  random.Seed(0);
  for (const std::uint64_t known :
       {5987356902031041503U, 7051070477665621255U, 6633766593972829180U, 211316841551650330U,
        9136120204379184874U}) {
    EXPECT_EQ(random.Next(), known);
  }
}

TEST(RandomGenerator, BelowIsTheWholePartOfAFloatsMultiple) {
  RandomGenerator random, same;
  for (int i = 0; i < 2000000; ++i) {
    const int limit = 1 + i % 52;
    ASSERT_EQ(random.Below(limit), static_cast<int>(double{literal::NextFloat(same)} * limit));
  }
}

TEST(RandomGenerator, FloatsReachBothEndsButNeverOne) {
  RandomGenerator random;
  std::pair<float, float> range = {1, 0};
  for (int i = 0; i < 20000000; ++i) {
    const float r = literal::NextFloat(random);
    range = {std::min(range.first, r), std::max(range.second, r)};
  }
  EXPECT_TRUE(range.first >= 0 && range.first < 1e-6) << range.first;
  EXPECT_TRUE(range.second < 1 && range.second > 1 - 1e-6) << range.second;
}

TEST(SeedRandom, DiffersByDateAndBySecond) {
  std::tm base{
      .tm_sec = 30, .tm_min = 20, .tm_hour = 10, .tm_mday = 15, .tm_mon = 6, .tm_year = 126};
  const auto firstDraw = [](std::tm now) {
    SeedRandom(now);
    return generator.Next();
  };
  EXPECT_EQ(firstDraw(base), firstDraw(base));
  for (int std::tm::*field : {&std::tm::tm_sec, &std::tm::tm_min, &std::tm::tm_hour,
                              &std::tm::tm_mday, &std::tm::tm_mon, &std::tm::tm_year}) {
    std::tm other = base;
    other.*field += 1;
    EXPECT_NE(firstDraw(other), firstDraw(base));
  }
}

}  // namespace
}  // namespace holdem
