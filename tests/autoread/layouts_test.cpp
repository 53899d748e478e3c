#include "autoread/layouts.h"

#include <gtest/gtest.h>

#include <utility>

namespace holdem {
namespace {

using Place = std::pair<int, int>;

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

TEST(Layouts, ARowIsStoredWithTheCardBesideIt) {
  const struct {
    const char* row;
    int layout, seat, card;
    Place place, next;
  } cases[] = {{"01 07 01 0009 0010", 1, 7, 1, {9, 10}, {25, 12}},
               {"02 10 01 9999 0000", 2, 10, 1, {9999, 0}, {10016, 2}},
               {"03 01 01 0100 1234", 3, 1, 1, {100, 1234}, {114, 1234}},
               {"04 02 01 0100 0200", 4, 2, 1, {100, 200}, {115, 204}},
               {"05 02 01 0100 0200", 5, 2, 1, {100, 200}, {115, 204}},
               {"05 00 04 0001 0002", 5, kBoardSeat, 4, {1, 2}, {0, 0}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.row);
    CardPoints = {};
    ParseLayoutRow(c.row);
    const auto& [first, second] =
        std::tie(CardPoints[c.layout][c.seat][c.card], CardPoints[c.layout][c.seat][c.card + 1]);
    EXPECT_EQ(Place(first.x, first.y), c.place);
    EXPECT_EQ(Place(second.x, second.y), c.next);
  }
  LoadTableLayouts();
}

}  // namespace
}  // namespace holdem
