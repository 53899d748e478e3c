// The rows are the program's own and well formed; whatever they say must come out as it went in,
// and the rest of the tables stay as they are.
#include <cstdio>

#include "advice/hole_table.h"
#include "autoread/layouts.h"
#include "fuzz/fuzz.h"

namespace holdem::fuzz {
namespace {

void TryLayoutRow(Script& script) {
  constexpr PixelPoint kBeside[] = {{16, 2}, {17, 2}, {14, 0}, {15, 4}, {15, 4}};
  const int layout = 1 + script.Any(kLayouts);
  const int seat = script.Any(kSeats + 1);
  const int card = seat == kBoardSeat ? 1 + script.Any(5) : 1;
  const PixelPoint point = {script.Word() % 10000, script.Word() % 10000};
  char row[32];
  std::snprintf(row, sizeof row, "%02d %02d %02d %04d %04d", layout, seat, card, point.x, point.y);

  auto expected = CardPoints;
  expected[layout][seat][card] = point;
  if (seat != kBoardSeat) {
    expected[layout][seat][2] = {point.x + kBeside[layout - 1].x, point.y + kBeside[layout - 1].y};
  }
  ParseLayoutRow({row, 18});
  for (int i = 0; i <= kLayouts; ++i) {
    for (int j = 0; j <= kSeats; ++j) {
      for (int k = 0; k < 6; ++k) {
        HOLDS(CardPoints[i][j][k].x == expected[i][j][k].x &&
              CardPoints[i][j][k].y == expected[i][j][k].y);
      }
    }
  }
}

void TryHoleRow(Script& script) {
  const int a = 1 + script.Any(13);
  const int b = 1 + script.Any(13);
  const bool suited = a != b && script.Any(2) == 1;
  std::array<int, 10> figures;  // against 1..9 opponents, and of a straight
  std::string row = std::to_string(a) + "," + std::to_string(b) + (suited ? ",1" : ",0");
  for (int& figure : figures) {
    figure = 1 + script.Any(100);
    row += "," + std::to_string(figure);
  }
  modHole::HoleOddsMax = modHole::HoleOddsMin = {};
  modHole::ParseHoleRow(row);
  const auto kind = modHole::KindOf(CardOf(Spades, a), CardOf(suited ? Spades : Hearts, b));
  for (int opponents = 1; opponents <= 9; ++opponents) {
    HOLDS(modHole::HoleOdds[kind][opponents] == figures[opponents - 1]);
    HOLDS(modHole::HoleOddsMax[opponents] == figures[opponents - 1]);
    HOLDS(modHole::HoleOddsMin[opponents] == figures[opponents - 1]);
  }
  HOLDS(modHole::HoleStraightPct[kind] == figures[9]);
}

}  // namespace

int FuzzRows(Bytes bytes) {
  Script script(bytes);
  int tried = 0;
  for (; !script.Ended() || tried == 0; ++tried) {
    script.Any(2) == 0 ? TryLayoutRow(script) : TryHoleRow(script);
  }
  LoadTableLayouts();
  modHole::HoleOddsMax = modHole::HoleOddsMin = {};
  modHole::LoadHoleTable();
  return tried;
}

}  // namespace holdem::fuzz
