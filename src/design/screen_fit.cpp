#include "design/screen_fit.h"

#include <algorithm>
#include <cmath>

#include "figures/percent_text.h"
#include "state/screen.h"

namespace holdem::modResize {

bool IsSmallScreen() {
  return screenState.ScreenWidthPx < 1025 || screenState.ScreenHeightPx < 769;
}

std::string SmallScreenMessage() {
  return "Screen Resolution: " + std::to_string(screenState.ScreenWidthPx) + "x" +
         std::to_string(screenState.ScreenHeightPx) + "\r\nProgram will be resized";
}

Rect Scaled(const Rect& design, double xRatio, double yRatio) {
  return {xRatio * design.left, yRatio * design.top, xRatio * design.width, yRatio * design.height};
}

Font ScaledFont(double points) {
  constexpr double kSmallestFont = 2;
  constexpr double kLargestFont = 72;
  constexpr double kSmallFontsUpTo = 7;  // points
  const double size = std::clamp(points, kSmallestFont, kLargestFont);
  return {size <= kSmallFontsUpTo ? FontFamily::SmallFonts : FontFamily::MsSansSerif, size};
}

PixelArea LogicalArea(const PixelArea& own, double scale) {
  const auto up = [scale](int pixels) { return static_cast<int>(std::ceil(pixels / scale)); };
  const auto down = [scale](int pixels) { return static_cast<int>(std::floor(pixels / scale)); };
  return {up(own.left), up(own.top), down(own.right), down(own.bottom)};
}

PixelArea PlaceMain(int width, int height, int deckWidth, const PixelArea& free, double scale) {
  constexpr int kFreeBelow = 550;    // pixels of the screen below the main window
  constexpr int kLeastHeight = 100;  // pixels; below this nothing is gained by shrinking
  const int available = screenState.ScreenHeightPx - kFreeBelow;
  if (available > kLeastHeight && height * scale > available) {
    const int lower = static_cast<int>(available / scale);
    width = RoundHalfEven(static_cast<double>(lower) / height * width);
    height = lower;
  }
  if (width > free.Width()) {
    height = RoundHalfEven(static_cast<double>(free.Width()) / width * height);
    width = free.Width();
  }
  const bool sideBySide = width + deckWidth <= free.Width();
  const int right = sideBySide ? free.right - deckWidth : free.right;
  return {right - width, free.top, right, free.top + height};
}

PixelPoint PlaceDeck(const PixelArea& main, int deckWidth, int deckHeight, const PixelArea& free) {
  const int lastLeft = std::max(free.right - deckWidth, free.left);
  const int lastTop = std::max(free.bottom - deckHeight, free.top);
  if (main.right <= lastLeft) return {main.right, std::min(main.top, lastTop)};
  return {lastLeft, std::min(main.bottom, lastTop)};
}

}  // namespace holdem::modResize
