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

// What the evaluator looks up for a mask of ranks, 8 bytes an entry.
struct RankFacts {
  PackedValue topFive;
  std::uint8_t count;
  std::uint8_t straightTop;   // 5..14, 0 for no straight
  std::uint8_t straightOuts;  // 0..8
};

constexpr std::array<RankFacts, kRankMasks> MakeRankFacts() {
  std::array<RankFacts, kRankMasks> facts{};
  for (int mask = 0; mask < kRankMasks; ++mask) {
    const auto ranks = static_cast<RankMask>(mask);
    facts[mask] = {TopFive(ranks), static_cast<std::uint8_t>(std::popcount(ranks)),
                   static_cast<std::uint8_t>(StraightTop(ranks)),
                   static_cast<std::uint8_t>(StraightOuts(ranks))};
  }
  return facts;
}

constexpr auto kFacts = MakeRankFacts();

constexpr std::array<double, kDigits + 1> kPowersOf100 = {1, 1e2, 1e4, 1e6, 1e8, 1e10};

using DigitValues = std::array<std::array<double, 16>, kDigits + 1>;
constexpr DigitValues MakeDigitValues() {
  DigitValues values{};
  for (int position = 1; position <= kDigits; ++position) {
    for (int weight = 0; weight < 16; ++weight) {
      values[position][weight] = weight / kPowersOf100[position];
    }
  }
  return values;
}
constexpr DigitValues kDigitValues = MakeDigitValues();

PackedValue Pack(HandCategory category) { return static_cast<PackedValue>(category) << 20; }

// A weight as digit d1 or d2.
PackedValue Digit(int position, int weight) {
  return static_cast<PackedValue>(weight) << (kDigitBits * (kDigits - position));
}

// The highest ranks of the mask as digits after the first `used`, at most `most` of them.
PackedValue Kickers(RankMask ranks, int used, int most) {
  const PackedValue highest = kFacts[ranks].topFive >> (kDigitBits * (kDigits - most));
  return highest << (kDigitBits * (kDigits - used - most));
}

int TopWeight(RankMask ranks) { return std::bit_width(ranks) + 1; }

double FlushDrawBonus(CardSet cards, int count, Card hole1, Card hole2) {
  const int suit1 = SuitOf(hole1);
  const int suit2 = SuitOf(hole2);
  const auto drawsTo = [&](int suit) { return kFacts[SuitLane(cards, suit)].count >= 4; };
  if (suit1 == suit2) return !drawsTo(suit1) ? 0 : count == 5 ? 2.5 : 1.5;
  if (count == 5) return 0;
  // One hole card makes the draw: only a high one is worth having.
  const int weight = RankWeight(drawsTo(suit1)   ? RankOf(hole1)
                                : drawsTo(suit2) ? RankOf(hole2)
                                                 : 2);
  return weight >= 13 ? 2.5 : weight >= 9 ? 1.5 : 0;
}

double StraightDrawBonus(RankMask ranks, int count) {
  const double forOneRank = count == 5 ? 1 : 0.5;
  const int outs = kFacts[ranks].straightOuts;
  return outs == 0 ? 0 : outs == 1 ? forOneRank : 2 * forOneRank;
}

RankMask RanksOf(CardSet cards) {
  return SuitLane(cards, Spades) | SuitLane(cards, Diamonds) | SuitLane(cards, Clubs) |
         SuitLane(cards, Hearts);
}

}  // namespace

PackedValue PackedValueOf(CardSet cards) {
  const RankMask spades = SuitLane(cards, Spades);
  const RankMask diamonds = SuitLane(cards, Diamonds);
  const RankMask clubs = SuitLane(cards, Clubs);
  const RankMask hearts = SuitLane(cards, Hearts);

  // With five cards of a suit, seven cards leave no room for a full house or four of a kind.
  for (const RankMask suited : {spades, diamonds, clubs, hearts}) {
    const RankFacts& facts = kFacts[suited];
    if (facts.count >= 5) {
      return facts.straightTop != 0 ? Pack(StraightFlush) | Digit(1, facts.straightTop)
                                    : Pack(Flush) | facts.topFive;
    }
  }

  // Ranks held at least once .. four times.
  const RankMask black = spades | clubs;
  const RankMask red = diamonds | hearts;
  const RankMask bothBlack = spades & clubs;
  const RankMask bothRed = diamonds & hearts;
  const RankMask ranks = black | red;
  const RankMask pairs = bothBlack | bothRed | (black & red);
  const RankMask trips = (bothBlack & red) | (bothRed & black);
  const RankMask quads = bothBlack & bothRed;

  if (quads != 0) {
    return Pack(FourOfAKind) | Digit(1, TopWeight(quads)) | Kickers(ranks & ~quads, 1, 1);
  }
  if (trips != 0) {
    const int weight = TopWeight(trips);
    const RankMask others = pairs & ~RankBit(weight);
    if (others != 0) return Pack(FullHouse) | Digit(1, weight) | Digit(2, TopWeight(others));
  }
  const RankFacts& facts = kFacts[ranks];
  if (facts.straightTop != 0) return Pack(Straight) | Digit(1, facts.straightTop);
  if (trips != 0) {
    return Pack(ThreeOfAKind) | Digit(1, TopWeight(trips)) | Kickers(ranks & ~trips, 1, 2);
  }
  if (pairs != 0) {
    const int weight = TopWeight(pairs);
    const RankMask lowerPairs = pairs & ~RankBit(weight);
    const RankMask others = ranks & ~RankBit(weight);
    if (lowerPairs == 0) return Pack(OnePair) | Digit(1, weight) | Kickers(others, 1, 3);
    const int lower = TopWeight(lowerPairs);
    return Pack(TwoPair) | Digit(1, weight) | Digit(2, lower) |
           Kickers(others & ~RankBit(lower), 2, 1);
  }
  return Pack(HighCard) | facts.topFive;
}

HandValue HandValueOf(PackedValue value) {
  double sum = CategoryOf(value);
  for (int position = 1; position <= kDigits; ++position) {
    sum += kDigitValues[position][(value >> (kDigitBits * (kDigits - position))) & 15];
  }
  return sum;
}

double DrawScore(CardSet cards, int count, Card hole1, Card hole2) {
  assert(count == 5 || count == 6);
  const PackedValue packed = PackedValueOf(cards);
  const HandValue value = HandValueOf(packed);
  if (CategoryOf(packed) >= Straight) return value;
  return value + FlushDrawBonus(cards, count, hole1, hole2) +
         StraightDrawBonus(RanksOf(cards), count);
}

HandValue EvaluateHand(const Hand& hand, bool includeDraws) {
  CardSet cards = 0;
  for (int i = 1; i <= hand.count; ++i) cards |= SetOf(hand.entries[i].card);
  if (includeDraws && (hand.count == 5 || hand.count == 6)) {
    return DrawScore(cards, hand.count, hand.entries[1].card, hand.entries[2].card);
  }
  return HandValueOf(PackedValueOf(cards));
}

}  // namespace holdem
