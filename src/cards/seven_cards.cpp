#include "cards/seven_cards.h"

#include <cassert>

namespace holdem {
namespace {

constexpr int kCards = 7;
constexpr int kSuits = 4;
constexpr int kLowestWeight = 2;

constexpr int RankAt(int weight) {
  return weight == RankWeight(Ace) ? static_cast<int>(Ace) : weight;
}

// Calls action(digits, cards) for every way to add so many cards of the next ranks, from the given
// weight up, to the cards. They are of each suit in turn, so that no suit has five.
template <typename Action>
void ForEachWay(int count, int weight, int ranks, CardSet cards, Action action, int digits = 0,
                int power = 1) {
  if (ranks == 0) {
    if (count == 0) action(digits, cards);
    return;
  }
  for (int held = 0; held <= kSuits && held <= count; ++held) {
    ForEachWay(count - held, weight + 1, ranks - 1, cards, action, digits + held * power,
               5 * power);
    cards += SetOf(CardOf(1 + CountOf(cards) % kSuits, RankAt(weight)));
  }
}

}  // namespace

SevenCards::SevenCards() {
  std::size_t next = 0;
  for (int high = 0; high <= kCards; ++high) {
    const auto addLow = [&](int digits, CardSet highCards) {
      const std::size_t first = next;
      first_[digits] = static_cast<std::uint16_t>(first);
      ForEachWay(kCards - high, kLowestWeight, kLowRanks, highCards, [&](int low, CardSet cards) {
        further_[low] = static_cast<std::uint16_t>(next - first);
        values_[next++] = PackedValueOf(cards);
      });
    };
    ForEachWay(high, kLowestWeight + kLowRanks, kHighRanks, 0, addLow);
  }
  assert(next == values_.size());
}

CardSum SevenCards::SumOf(Card card) {
  assert(IsRealCard(card));
  const int rank = RankWeight(RankOf(card)) - kLowestWeight;
  const int suitShift = 32 + 4 * (SuitOf(card) - 1);
  const CardSum digit = rank < kLowRanks ? CardSum(kPowersOf5[rank])
                                         : CardSum(kPowersOf5[rank - kLowRanks]) << kLowBits;
  return digit + (CardSum{1} << suitShift);
}

const SevenCards& SevenCards::Table() {
  static const SevenCards table;
  return table;
}

}  // namespace holdem
