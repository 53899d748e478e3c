#include "cards/random.h"

namespace holdem {

void RandomGenerator::Seed(std::uint64_t seed) {
  for (std::uint64_t& word : state_) {
    seed += 0x9e3779b97f4a7c15;
    std::uint64_t mixed = seed;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
    word = mixed ^ (mixed >> 31);
  }
}

void SeedRandom(const std::tm& now) {
  const int seconds = (now.tm_hour * 60 + now.tm_min) * 60 + now.tm_sec;
  generator.Seed(static_cast<std::uint64_t>(seconds));
  const int ddmmyyyy = (now.tm_mday * 100 + now.tm_mon + 1) * 10000 + now.tm_year + 1900;
  std::uint64_t mixed =
      static_cast<std::uint64_t>(ddmmyyyy) << 20 ^ static_cast<std::uint64_t>(seconds);
  for (int draw = 0; draw < 3; ++draw) mixed ^= generator.Next();
  generator.Seed(mixed);
}

}  // namespace holdem
