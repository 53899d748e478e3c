// Colours as the window system shows them, and the ones that several folders share.
#pragma once

#include <cstdint>

namespace holdem {

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
};

inline constexpr Color kBlack{0, 0, 0};
inline constexpr Color kWhite{255, 255, 255};
inline constexpr Color kRed{255, 0, 0};
inline constexpr Color kTableGreen{64, 172, 78};

}  // namespace holdem
