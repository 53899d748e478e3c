// The one pseudo-random generator of the process. Every random card comes from it; tests seed it,
// and a reference run copies it.
// Written by: cards/ engine/
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

  // Uniform in 0..limit - 1: the integer part of r x limit, where r is the next number as a
  // fraction in [0, 1) of 24 bits, all that single precision holds. REQUIRES 1 <= limit <= 256.
  int Below(int limit) {
    const auto fraction = static_cast<std::uint32_t>(Next() >> 40);
    return static_cast<int>(fraction * static_cast<unsigned>(limit) >> 24);
  }

 private:
  std::array<std::uint64_t, 4> state_;
};

inline RandomGenerator generator;

// Seeds the generator from the seconds since midnight, then once more with a mix of the date, those
// seconds and a few draws. Called once, at start-up, with the local time.
void SeedRandom(const std::tm& now);

}  // namespace holdem
