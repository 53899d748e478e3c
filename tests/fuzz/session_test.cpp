#include "fuzz/session.h"

#include "effort.h"

namespace holdem::fuzz {
namespace {

// Users without a plan; with other programs beside, and without.
TEST(Session, AnyScriptLeavesEverythingInOrder) {
  RandomGenerator random;
  int calculated = 0;
  for (int i = 0; i < Effort(1000); ++i) {
    std::vector<std::uint8_t> bytes(2000);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.Next() >> 56);
    Session session(i % 2 == 0, bytes);
    session.Play();
    calculated += session.calculated;
  }
  EXPECT_GT(calculated, Effort(1000) * 30);
}

}  // namespace
}  // namespace holdem::fuzz
