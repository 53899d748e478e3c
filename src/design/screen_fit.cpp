#include "design/screen_fit.h"

#include <algorithm>

#include "figures/percent_text.h"
#include "state/screen.h"

namespace holdem::modResize {
namespace {

constexpr double kSmallestFont = 2;
constexpr double kLargestFont = 72;
constexpr double kSmallFontsUpTo = 7;  // points
constexpr int kFreeBelow = 550;        // pixels of the screen below the main window
constexpr int kLeastHeight = 100;      // pixels; below this nothing is gained by shrinking

}  // namespace

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
  const double size = std::clamp(points, kSmallestFont, kLargestFont);
  return {size <= kSmallFontsUpTo ? FontFamily::SmallFonts : FontFamily::MsSansSerif, size};
}

Arrangement Arrange(int mainWidth, int mainHeight, int deckWidth, double scale) {
  const int available = screenState.ScreenHeightPx - kFreeBelow;
  if (available > kLeastHeight && mainHeight * scale > available) {
    const int height = static_cast<int>(available / scale);
    mainWidth = RoundHalfEven(static_cast<double>(height) / mainHeight * mainWidth);
    mainHeight = height;
  }
  const int right = RoundHalfEven(screenState.ScreenWidthPx / scale);
  const int left = right - mainWidth - deckWidth;
  const bool sideBySide = left >= 0 || IsSmallScreen();
  return {.mainLeft = sideBySide ? left : std::max(right - mainWidth, 0),
          .mainWidth = mainWidth,
          .mainHeight = mainHeight,
          .deckLeft = right - deckWidth,
          .deckTop = sideBySide ? 0 : mainHeight};
}

}  // namespace holdem::modResize
