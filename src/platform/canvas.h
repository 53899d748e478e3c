// A drawing surface in twips (1/1440 inch). The painters draw on it without knowing the window
// system.
#pragma once

#include <string_view>

#include "platform/color.h"

namespace holdem {

inline constexpr int kTwipsPerPixel = 15;  // a logical pixel is 1/96 inch

struct Size {
  double width = 0;
  double height = 0;
};

struct Rect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  bool operator==(const Rect&) const = default;
};

enum class FontFamily { TimesNewRoman, SmallFonts, MsSansSerif };

struct Font {
  FontFamily family = FontFamily::MsSansSerif;
  double points = 8;
  bool bold = false;

  bool operator==(const Font&) const = default;
};

// The main window's own font, by which labels on pictures are measured.
inline constexpr Font kMainWindowFont{};

enum class Picture { SeatIn, SeatFolded, SeatMe, SeatEmpty, Spades, Diamonds, Clubs, Hearts };

class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual Size InnerSize() const = 0;  // the drawing area
  virtual Size OuterSize() const = 0;  // with the border, as the surface's container sees it

  virtual void Clear() = 0;
  virtual void Line(double x1, double y1, double x2, double y2, Color color) = 0;  // one pixel wide
  virtual void FilledBox(const Rect& box, Color color) = 0;  // at least one pixel each way
  // One pixel wide, corners included.
  virtual void BoxOutline(const Rect& box, Color color) = 0;
  // Filled, with an outline one pixel wide.
  virtual void Circle(double x, double y, double radius, Color fill, Color outline) = 0;
  virtual void Stretched(Picture picture, const Rect& box) = 0;
  // Top-left corner of the text at (x, y).
  virtual void Text(double x, double y, std::string_view text, const Font& font, Color color) = 0;
  virtual Size TextSize(std::string_view text, const Font& font) const = 0;
};

}  // namespace holdem
