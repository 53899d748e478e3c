#include "autoread/layouts.h"

#include <gtest/gtest.h>

namespace holdem {
namespace {

// FNV-1a over every entry, the empty ones included.
std::uint64_t Fingerprint() {
  std::uint64_t hash = 0xcbf29ce484222325;
  const auto add = [&](const PixelPoint& point) {
    for (const int value : {point.x, point.y}) {
      hash = (hash ^ static_cast<std::uint16_t>(value)) * 0x100000001b3;
    }
  };
  for (int layout = 0; layout <= kLayouts; ++layout) {
    for (int seat = 0; seat <= kSeats; ++seat) {
      for (const PixelPoint& place : CardPoints[layout][seat]) add(place);
      add(ButtonPoints[layout][seat]);
      add(HoldingPoints[layout][seat]);
    }
  }
  return hash;
}

TEST(Layouts, StayAsTheyAre) {
  CardPoints = {};
  ButtonPoints = HoldingPoints = {};
  LoadTableLayouts();
  EXPECT_EQ(Fingerprint(), 0x99325fceeef4bcfU);
}

}  // namespace
}  // namespace holdem
