// The value of seven cards by look-up, for the showdowns of the simulation. Everybody else, and any
// other number of cards, goes to the evaluator.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "cards/card_set.h"
#include "cards/evaluator.h"

namespace holdem {

// Cards added up, which tells how many there are of each suit and each rank:
//
//   47    44 43   40 39   36 35    32 31 30              14 13             0
//   | Hearts | Clubs | Diam. | Spades |  | A K Q J T 9 8   | 7 6 5 4 3 2   |
//
// A suit has four bits, for the number of its cards and 3 more, so that the highest is set from
// five cards on. The ranks are two groups of digits to the base 5.
using CardSum = std::uint64_t;

class SevenCards {
 public:
  static constexpr CardSum kNoCards = CardSum{0x3333} << 32;
  // Added to a sum, has it valued by the evaluator: for cards of which one is there twice.
  static constexpr CardSum kNoLookUp = CardSum{5} << 32;

  static CardSum SumOf(Card card);  // REQUIRES: a real card

  // Made, in about a millisecond, when it is first asked for.
  static const SevenCards& Table();

  // As PackedValueOf. cards() gives the set of the cards; it is asked for it when five of them are
  // of a suit. REQUIRES: sum is kNoCards and seven cards added up.
  template <typename Cards>
  PackedValue ValueOf(CardSum sum, Cards cards) const {
    if ((sum & kFiveOfASuit) != 0) return PackedValueOf(cards());
    const auto ranks = static_cast<std::uint32_t>(sum);
    return values_[std::size_t{first_[ranks >> kLowBits]} +
                   further_[ranks & ((1U << kLowBits) - 1)]];
  }

 private:
  static constexpr CardSum kFiveOfASuit = CardSum{0x8888} << 32;
  static constexpr int kLowRanks = 6;
  static constexpr int kHighRanks = kRankCount - kLowRanks;
  static constexpr int kLowBits = 14;
  static constexpr int kWaysToHoldSeven = 49205;  // by ranks alone, none more than four times
  static constexpr std::array<int, kHighRanks + 1> kPowersOf5 = {1,   5,    25,    125,
                                                                 625, 3125, 15625, 78125};

  SevenCards();

  // Hands stand in the order of the constructor: by the digits of the high group, and for each of
  // these by those of the low one. How many hands of a high group come before given low digits does
  // not depend on the high digits, since all low digits with as many cards are gone through in the
  // same order. So first_ says where a high group begins, further_ how many hands after that, and
  // no two hands share a place.
  std::array<PackedValue, kWaysToHoldSeven> values_{};
  std::array<std::uint16_t, kPowersOf5[kHighRanks]> first_{};   // by the high group
  std::array<std::uint16_t, kPowersOf5[kLowRanks]> further_{};  // by the low group
};

}  // namespace holdem
