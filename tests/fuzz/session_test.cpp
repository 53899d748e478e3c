#include "fuzz/session.h"

namespace holdem::fuzz {
namespace {

// Users without a plan; with other programs beside, and without.
TEST(Session, AnyScriptLeavesEverythingInOrder) {
  RandomGenerator random;
  for (int i = 0; i < Effort(1000); ++i) {
    std::vector<std::uint8_t> bytes(2000);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.Next() >> 56);
    Session(i % 2 == 0, bytes).Play();
  }
}

}  // namespace
}  // namespace holdem::fuzz
