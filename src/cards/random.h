// The one pseudo-random generator of the process. Every random card comes from it; tests seed it,
// and a reference run copies it.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <ctime>

namespace holdem {

// xoshiro256++ 1.0 by D. Blackman and S. Vigna: period 2^256 - 1, passes BigCrush and PractRand.
class RandomGenerator {
 public:
  RandomGenerator() { Seed(0); }

  // Spreads the seed over the 256 bits of state with splitmix64, as the generator's authors advise.
  void Seed(std::uint64_t seed);

  std::uint64_t Next() {
    const std::uint64_t result = std::rotl(state_[0] + state_[3], 23) + state_[0];
    const std::uint64_t shifted = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = std::rotl(state_[3], 45);
    return result;
  }

  // Uniform in [0, 1): 24 bits, so the result is exact in single precision and below 1.
  float NextFloat() { return static_cast<float>(NextBits()) * 0x1p-24F; }

  // The integer part of NextFloat() x limit, in 0..limit - 1; exact, where the product in single
  // precision would round up to the limit. REQUIRES 1 <= limit <= 256.
  int Below(int limit) { return static_cast<int>(NextBits() * static_cast<unsigned>(limit) >> 24); }

 private:
  std::uint32_t NextBits() { return static_cast<std::uint32_t>(Next() >> 40); }

  std::array<std::uint64_t, 4> state_;
};

inline RandomGenerator generator;

// Seeds the generator from the seconds since midnight, then once more with a mix of the date, those
// seconds and a few draws. Called once, at start-up, with the local time.
void SeedRandom(const std::tm& now);

}  // namespace holdem
