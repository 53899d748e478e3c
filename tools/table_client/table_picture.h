// The picture of a poker table in any of the five layouts: what the stand-in client's window shows,
// pixel by pixel, without a window system. Drawn by the client; the tests read it back.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cards/card.h"

namespace holdem::table_client {

inline constexpr int kSeatCount = 10;
inline constexpr int kDrawnCaption = 26;  // the caption bar's height that all places count on

enum class SeatLook { Empty, In, Folded };

struct Table {
  int layout = 1;                                // 1..5
  int heroSeat = 1;                              // 1..10
  std::array<SeatLook, kSeatCount + 1> looks{};  // by seat 1..10; In shows backs but at the hero's
  std::array<Card, 2> hole{};                    // the hero's, kNoCard when not shown
  std::array<Card, 5> board{};
  int buttonSeat = 0;  // 0 for none

  bool HasSeat(int seat) const {
    return seat >= 1 && seat <= kSeatCount && (layout != 4 || seat != 6);
  }
};

using Rgb = std::uint32_t;  // 0x00RRGGBB

struct Point {
  int x, y;
};
struct Size {
  int width, height;
};

struct Picture {
  Size size{};
  std::vector<Rgb> pixels;  // row by row

  bool Has(int x, int y) const { return x >= 0 && y >= 0 && x < size.width && y < size.height; }
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
           static_cast<std::size_t>(x);
  }
  void Set(int x, int y, Rgb colour) {
    if (Has(x, y)) pixels[Index(x, y)] = colour;
  }
  // Black beyond the edges.
  Rgb At(int x, int y) const { return Has(x, y) ? pixels[Index(x, y)] : 0; }
};

// Of the window with its frame, where a caption bar has this height.
Size OuterSize(int layout, int captionHeight);

std::string WindowClass(int layout);
std::string DefaultCaption(int layout);

// From the outer top-left corner of a window with the caption bar that all places count on; under
// it lie some rows more than that window has, for one with a lower caption bar.
Picture DrawTable(const Table& table);

// What of a picture lies in a box, black beyond its edges.
Picture Part(const Picture& picture, Point corner, Size size);

// By Picture::Index: the pixels of the layout's picture that a reader compares for an exact colour
// or with each other. No noise may change them.
std::vector<bool> ExactPixels(int layout);

// Each component of the colour moved by up to so many levels either way.
Rgb Noisy(Rgb colour, int levels, std::uint32_t random);

}  // namespace holdem::table_client
