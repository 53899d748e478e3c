// The one pseudo-random generator of the process. Every random card comes from it; tests seed it,
// and a reference run copies it.
#pragma once

#include <array>
#include <cstdint>
#include <ctime>

namespace holdem {

// xoshiro256++ 1.0 by D. Blackman and S. Vigna: period 2^256 - 1, passes BigCrush and PractRand.
class RandomGenerator {
 public:
  RandomGenerator() { Seed(0); }

  // Spreads the seed over the 256 bits of state with splitmix64, as the generator's authors advise.
  void Seed(std::uint64_t seed);

  std::uint64_t Next();

  // Uniform in [0, 1): the top 24 bits, so the result is exact in single precision and below 1.
  float NextFloat() { return static_cast<float>(Next() >> 40) * 0x1p-24F; }

 private:
  std::array<std::uint64_t, 4> state_;
};

inline RandomGenerator generator;

// Seeds the generator from the seconds since midnight, then once more with a mix of the date, those
// seconds and a few draws. Called once, at start-up, with the local time.
void SeedRandom(const std::tm& now);

}  // namespace holdem
