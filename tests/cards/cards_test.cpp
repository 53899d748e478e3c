#include "cards/dealer.h"
#include "cards/description.h"
#include "cards/evaluator.h"
#include "cards/seven_cards.h"
#include "fakes/fake_ports.h"
#include "reference/literal.h"

namespace holdem {
namespace {

TEST(DeckDeathTest, AnEmptyDeckEndsTheProcessSilently) {
  deck.free = 0;
  EXPECT_EXIT(DealRandomCard(), testing::ExitedWithCode(EXIT_FAILURE), "^$");
}

// However many are dealt at once, and from however many.
TEST(Dealer, DealsWhatWouldBeDrawnOneByOne) {
  const auto deal = []<int kCount>(std::integral_constant<int, kCount>) {
    for (int left = kCardCount; left >= kCount; --left) {
      deck = {};
      while (deck.CardsLeft() > left) DealRandomCard();
      const Dealer dealer(deck);
      RandomGenerator source = generator;
      const auto places = dealer.Deal<kCount>(source);
      for (int i = 0; i < kCount; ++i)
        ASSERT_EQ(TextOf(dealer.CardAt(places[i])), TextOf(DealRandomCard()))
            << "card " << i + 1 << " of " << kCount << " from " << left;
    }
  };
  [&]<int... kCounts>(std::integer_sequence<int, kCounts...>) {
    (deal(std::integral_constant<int, kCounts + 1>()), ...);
  }
  (std::make_integer_sequence<int, 32>());
}

// The generator is xoshiro256++ 1.0, its state filled by splitmix64, as its authors advise: these
// are the first figures that it gives everywhere when seeded with 0, as at first.
TEST(RandomGenerator, GivesThePublishedSequence) {
  RandomGenerator random;
  for (const auto figure : {5987356902031041503U, 7051070477665621255U, 6633766593972829180U})
    EXPECT_EQ(random.Next(), figure);
}

// Of the literal one: the value, and the bonus for draws. The fast one agrees with it in every
// pass.
TEST(Evaluator, KnownHands) {
  std::istringstream cases(
      "AS 2D 3C 4H 5S KD QC=4.05+0;AS 2S 3S 4S 5S KD QC=8.05+0;QS KS AS 2D 3D=0.1413120302+0;"
      "9S 9D 9C KH AS=3.091413+0;KS KD KC 9S 9D 9C 2H=6.1309+0;AS AD KS KD QS QD 2C=2.141312+0;"
      "2S 4S 6S 8S TS QS 3D=5.1210080604+0;5H 6H 7H 9H QH 8S 2D=5.1209070605+0;"
      "AH 9H 2H 7H KC=0.1413090702+2.5;AH 9H 2H 7H KC 4S=0.1413090704+1.5;"
      "AH 9S 2H 7H KH 4C=0.1413090704+2.5;8H 9S 2H 7H KH 4C=0.1309080704+0;"
      "9H 8S 2H 7H KH 4C=0.1309080704+1.5;8S QH 2H 7H KH 4C=0.1312080704+1.5;"
      "5S 6D 7C 8H KS=0.1308070605+2;5S 6D 9C 8H KS=0.1309080605+1;5H 6H 7H 8H KS=0.1308070605+4.5;"
      "5S 6D 7C 8H KS 2D=0.1308070605+1;5S 6D 9C 8H KS 2D=0.1309080605+0.5");
  for (std::string text; std::getline(cases, text, ';');) {
    const auto equals = text.find('='), plus = text.find('+');
    const Hand hand = HandOf(CardsOf(text.substr(0, equals)));
    const double value = std::stod(text.substr(equals + 1)), bonus = std::stod(text.substr(plus));
    EXPECT_NEAR(literal::EvaluateHand(hand, false), value, 1e-12) << text;
    EXPECT_NEAR(literal::EvaluateHand(hand, true), value + bonus, 1e-12) << text;
  }
}

TEST(Description, OfEachCardAndHand) {
  std::ostringstream words;
  for (Card card = 1; card <= kCardCount; ++card)
    words << CardInWords(card) << (RankOf(card) == King ? "\n" : ", ");
  for (int weight = 2; weight <= 14; ++weight) words << DescribeHand(1 + weight / 100.0) << ", ";
  for (const double value :
       {0.0,          0.1413120907, 1.0,    2.0, 2.080614, 3.0, 3.071413, 4.0,  4.05, 5.0,
        5.1413120908, 6.0,          6.0214, 7.0, 7.0403,   8.0, 8.13,     8.14, 0.15, 9.0})
    words << "\n" << value << ": " << DescribeHand(value);
  ExpectApproved("hands", words.str() + "\n");
}

// Counted by category, and looked up as the simulation does.
TEST(Evaluator, AllSevenCardHands) {
  if (kSanitized) GTEST_SKIP() << "133 million hands take too long under a sanitizer";
  std::array<int, kCategoryCount> hands{};
  int lookedUpWrongly = 0;
  const auto addUp = [&](auto& self, int further, Card last, CardSet set, CardSum sum) -> void {
    for (Card card = last + 1; further > 0 && card <= kCardCount; ++card)
      self(self, further - 1, card, set + SetOf(card), sum + SevenCards::SumOf(card));
    if (further > 0) return;
    const PackedValue value = PackedValueOf(set);
    ++hands[CategoryOf(value)];
    lookedUpWrongly += SevenCards::Table().ValueOf(sum, [&] { return set; }) != value;
  };
  addUp(addUp, 7, kNoCard, 0, SevenCards::kNoCards);
  EXPECT_EQ(hands, (std::array{23294460, 58627800, 31433400, 6461620, 6180020, 4047644, 3473184,
                               224848, 41584}));
  EXPECT_EQ(lookedUpWrongly, 0);
}

}  // namespace
}  // namespace holdem
