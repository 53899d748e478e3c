#include "autoread/colour_measures.h"

#include <algorithm>

namespace holdem::modCardRead {
namespace {

struct Components {
  int red, green, blue;
};

Components SplitColour(PixelColor colour) {
  const auto value = static_cast<std::int32_t>(colour);  // all ones is -1
  return {value % 256, value / 256 % 256, value / 65536 % 256};
}

// The excess of one component over the others, 0 when it is not above both.
int Excess(int component, int other, int another) {
  return std::max(component - std::max(other, another), 0);
}

}  // namespace

int MinComponent(PixelColor colour) {
  const auto [red, green, blue] = SplitColour(colour);
  return std::min({red, green, blue});
}

int GreenExcess(PixelColor colour) {
  const auto [red, green, blue] = SplitColour(colour);
  return Excess(green, red, blue);
}

int RedExcess(PixelColor colour) {
  const auto [red, green, blue] = SplitColour(colour);
  return Excess(red, green, blue);
}

}  // namespace holdem::modCardRead
