#include "cards/evaluator.h"

#include <bit>
#include <cassert>

namespace holdem {
namespace {

constexpr int kDigitBits = 4;
constexpr int kDigits = 5;
constexpr int kLowestTop = 5;    // the Five tops the lowest straight, 5-4-3-2-A
constexpr int kHighestTop = 14;  // the Ace tops the highest

constexpr RankMask StraightMask(int top) {
  RankMask mask = 0;
  for (int weight = top; weight > top - 5; --weight) mask |= RankBit(weight == 1 ? 14 : weight);
  return mask;
}

constexpr int StraightTop(RankMask ranks) {
  for (int top = kHighestTop; top >= kLowestTop; --top) {
    if ((ranks & StraightMask(top)) == StraightMask(top)) return top;
  }
  return 0;
}

// How many single ranks, absent from the mask, would complete a straight.
constexpr int StraightOuts(RankMask ranks) {
  RankMask completing = 0;
  for (int top = kHighestTop; top >= kLowestTop; --top) {
    const RankMask missing = StraightMask(top) & ~ranks;
    if (std::has_single_bit(missing)) completing |= missing;
  }
  return std::popcount(completing);
}

// The weights of the five highest ranks, packed as d1..d5.
constexpr PackedValue TopFive(RankMask ranks) {
  PackedValue digits = 0;
  int found = 0;
  for (int weight = kHighestTop; weight >= 2 && found < kDigits; --weight) {
    if (ranks & RankBit(weight)) {
      ++found;
      digits |= static_cast<PackedValue>(weight) << (kDigitBits * (kDigits - found));
    }
  }
  return digits;
}

// What the evaluator looks up for a mask of ranks, in 4 bytes.
struct RankFacts {
  PackedValue topFive : 20;
  PackedValue straightOuts : 8;
  PackedValue straightTop : 4;  // 5..14, 0 for no straight
};

constexpr auto kFacts = [] {
  std::array<RankFacts, kRankMasks> facts{};
  for (RankMask ranks = 0; ranks < kRankMasks; ++ranks) {
    facts[ranks].topFive = TopFive(ranks) & 0xfffff;
    facts[ranks].straightOuts = StraightOuts(ranks) & 0xff;
    facts[ranks].straightTop = StraightTop(ranks) & 15;
  }
  return facts;
}();

constexpr PackedValue Pack(HandCategory category) {
  return static_cast<PackedValue>(category) << kCategoryShift;
}

// A weight as one of the digits d1 .. d5, and back.
constexpr int DigitShift(int position) { return kDigitBits * (kDigits - position); }
constexpr PackedValue Digit(int position, PackedValue weight) {
  return weight << DigitShift(position);
}
constexpr PackedValue DigitOf(PackedValue value, int position) {
  return value >> DigitShift(position) & 15;
}

constexpr PackedValue TopWeight(RankMask ranks) {
  return static_cast<PackedValue>(std::bit_width(ranks) + 1);
}

// The digits after the first `used`, for at most `most` kickers.
struct Kickers {
  std::uint8_t dropped;  // bits of topFive
  std::uint8_t shift;

  constexpr Kickers(int used, int most)
      : dropped(static_cast<std::uint8_t>(kDigitBits * (kDigits - most))),
        shift(static_cast<std::uint8_t>(kDigitBits * (kDigits - used - most))) {}

  // The highest ranks of the mask in these places.
  PackedValue Of(RankMask ranks) const {
    return PackedValue{kFacts[ranks].topFive} >> dropped << shift;
  }
};

// What a hand is worth by its pairs when it holds nothing better: high card, one pair or two.
struct PairHand {
  PackedValue value = Pack(HighCard);  // without kickers
  RankMask ranks = 0;                  // of the one or two highest pairs
  Kickers kickers{0, 5};
};

// By the ranks that are paired. Most of the table is never touched: seven cards pair three ranks at
// most.
constexpr auto kPairHands = [] {
  std::array<PairHand, kRankMasks> hands{};
  for (RankMask pairs = 1; pairs < kRankMasks; ++pairs) {
    const RankMask high = std::bit_floor(pairs);
    const RankMask low = std::bit_floor(pairs ^ high);
    const PackedValue highDigit = Digit(1, TopWeight(high));
    hands[pairs] =
        low == 0
            ? PairHand{Pack(OnePair) | highDigit, high, {1, 3}}
            : PairHand{Pack(TwoPair) | highDigit | Digit(2, TopWeight(low)), high | low, {2, 1}};
  }
  return hands;
}();

// The top bit of every lane's count, set from four cards up.
constexpr CardSet kFourOfASuit = 0x8000'8000'8000'8000;

// That bit, where there are five cards or more.
constexpr CardSet SuitsOfFive(CardSet cards) {
  return cards & (cards << 1 | cards << 2) & kFourOfASuit;
}

PackedValue FlushValue(CardSet cards, CardSet suitOfFive) {
  const int lane = std::countr_zero(suitOfFive) / kLaneBits * kLaneBits;
  const RankFacts& facts = kFacts[cards >> lane & (kRankMasks - 1)];
  return facts.straightTop != 0 ? Pack(StraightFlush) | Digit(1, facts.straightTop)
                                : Pack(Flush) | facts.topFive;
}

RankMask RanksOf(CardSet cards) {
  const CardSet twoSuits = cards | cards >> (2 * kLaneBits);
  return static_cast<RankMask>(twoSuits | twoSuits >> kLaneBits) & (kRankMasks - 1);
}

// What draws add to an unfinished hand, in half points, of which a category has two: chosen, not
// worked out.
int FlushDrawBonus(CardSet cards, int count, Card hole1, Card hole2) {
  const CardSet draw = cards & kFourOfASuit;
  if (draw == 0) return 0;
  const int suit = std::countr_zero(draw) / kLaneBits + 1;
  const bool first = SuitOf(hole1) == suit;
  const bool second = SuitOf(hole2) == suit;
  if (SuitOf(hole1) == SuitOf(hole2)) return !first ? 0 : count == 5 ? 5 : 3;
  if (count == 5) return 0;
  // One hole card makes the draw: only a high one is worth having.
  const int weight = RankWeight(first ? RankOf(hole1) : second ? RankOf(hole2) : 2);
  return weight >= 13 ? 5 : weight >= 9 ? 3 : 0;
}

int StraightDrawBonus(CardSet cards, int count) {
  const int outs = kFacts[RanksOf(cards)].straightOuts;  // 2 at most, without a straight
  return count == 5 ? 2 * outs : outs;
}

PackedValue DrawBonus(CardSet cards, int count, Card hole1, Card hole2) {
  return static_cast<PackedValue>(FlushDrawBonus(cards, count, hole1, hole2) +
                                  StraightDrawBonus(cards, count));
}

// What a rank counts in the double, at a position from 1 to 5.
constexpr double RankValue(PackedValue weight, int position) {
  constexpr std::array<double, kDigits + 1> kPowersOf100 = {1, 1e2, 1e4, 1e6, 1e8, 1e10};
  return weight / kPowersOf100[position];
}

// Category, d1 and d2 added up, by the bits of a packed value from d2 up.
constexpr int kLaterBits = 3 * kDigitBits;
constexpr auto kFirstTerms = [] {
  std::array<double, (StraightFlush + 1) << (kCategoryShift - kLaterBits)> sums{};
  for (PackedValue bits = 0; bits < sums.size(); ++bits) {
    const PackedValue value = bits << kLaterBits;
    const auto digitValue = [&](int position) {
      return RankValue(DigitOf(value, position), position);
    };
    sums[bits] = CategoryOf(value) + digitValue(1) + digitValue(2);
  }
  return sums;
}();

// By position 3..5 and weight.
constexpr auto kLaterTerms = [] {
  std::array<std::array<double, 16>, kDigits + 1> terms{};
  for (int position = 3; position <= kDigits; ++position) {
    for (PackedValue weight = 0; weight < 16; ++weight) {
      terms[position][weight] = RankValue(weight, position);
    }
  }
  return terms;
}();

}  // namespace

PackedValue PackedValueOf(CardSet cards) {
  // With five cards of a suit, seven cards leave no room for a full house or four of a kind.
  if (const CardSet five = SuitsOfFive(cards); five != 0) return FlushValue(cards, five);

  // Ranks held at least once .. four times: first by two suits and the other two, then by all.
  const auto lower = static_cast<RankMask>(cards);
  const auto upper = static_cast<RankMask>(cards >> 32);
  const RankMask either = lower | upper;
  const RankMask both = lower & upper;
  const auto ranksOf = [](RankMask lane) { return lane & (kRankMasks - 1); };
  const RankMask ranks = ranksOf(either | either >> kLaneBits);
  const RankMask pairs = ranksOf(both | both >> kLaneBits | (either & either >> kLaneBits));
  const RankMask trips = ranksOf((both & either >> kLaneBits) | (both >> kLaneBits & either));

  if (trips != 0) {
    const RankMask quads = ranksOf(both & both >> kLaneBits);
    if (quads != 0) {
      return Pack(FourOfAKind) | Digit(1, TopWeight(quads)) | Kickers(1, 1).Of(ranks ^ quads);
    }
    const RankMask others = pairs ^ std::bit_floor(trips);
    if (others != 0) {
      return Pack(FullHouse) | Digit(1, TopWeight(trips)) | Digit(2, TopWeight(others));
    }
  }
  if (const PackedValue top = kFacts[ranks].straightTop; top != 0) {
    return Pack(Straight) | Digit(1, top);
  }
  if (trips != 0) {
    return Pack(ThreeOfAKind) | Digit(1, TopWeight(trips)) | Kickers(1, 2).Of(ranks ^ trips);
  }
  const PairHand& hand = kPairHands[pairs];
  return hand.value | hand.kickers.Of(ranks ^ hand.ranks);
}

HandValue HandValueOf(PackedValue value) {
  const auto later = [&](int position) { return kLaterTerms[position][DigitOf(value, position)]; };
  return kFirstTerms[value >> kLaterBits] + later(3) + later(4) + later(5);
}

PackedValue DrawScore(CardSet cards, int count, Card hole1, Card hole2) {
  assert(count == 5 || count == 6);
  const PackedValue value = PackedValueOf(cards);
  if (CategoryOf(value) >= Straight) return value;
  return value + (DrawBonus(cards, count, hole1, hole2) << kHalfPointShift);
}

HandValue EvaluateHand(const Hand& hand) {
  CardSet cards = 0;
#pragma GCC unroll 7
  for (int i = 1; i <= Hand::kMaxCards; ++i) {
    if (i > hand.count) break;
    cards += SetOf(hand.entries[i].card);
  }
  return HandValueOf(PackedValueOf(cards));
}

}  // namespace holdem
