#include "autoread/layouts.h"

#include <gtest/gtest.h>

#include <utility>

namespace holdem {
namespace {

using Place = std::pair<int, int>;

Place PlaceOf(int layout, int seat, int card) {
  const PixelPoint& point = CardPoints[layout][seat][card];
  return {point.x, point.y};
}

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

TEST(Layouts, PlacesOfCards) {
  LoadTableLayouts();
  const struct {
    int layout, seat, card;
    Place place;
  } cases[] = {{1, kBoardSeat, 1, {266, 157}},
               {1, kBoardSeat, 2, {320, 157}},  // no second card is derived on the board
               {1, 5, 2, {468, 363}},
               {2, 5, 2, {475, 368}},
               {3, 1, 2, {526, 79}},
               {4, 6, 1, {0, 0}},
               {4, 6, 2, {15, 4}},
               {5, 10, 1, {245, 38}},
               {5, 10, 2, {260, 42}},
               {5, 10, 3, {0, 0}}};
  for (const auto& c : cases) {
    EXPECT_EQ(PlaceOf(c.layout, c.seat, c.card), c.place)
        << c.layout << " " << c.seat << " " << c.card;
  }
  for (int card = 1; card <= 5; ++card) {
    EXPECT_EQ(PlaceOf(4, kBoardSeat, card), PlaceOf(5, kBoardSeat, card));
  }
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
    EXPECT_EQ(PlaceOf(c.layout, c.seat, c.card), c.place);
    EXPECT_EQ(PlaceOf(c.layout, c.seat, c.card + 1), c.next);
  }
  LoadTableLayouts();
}

}  // namespace
}  // namespace holdem
