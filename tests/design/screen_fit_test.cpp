// How the two windows fit the screen.
#include "design/screen_fit.h"

#include "design/deck_layout.h"
#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using ScreenFitTest = ProgramTest;

TEST_F(ScreenFitTest, MessageAndPlaces) {
  // Of a main window of 785 x 290 and a deck 332 wide.
  const std::tuple<int, int, double, bool, modResize::Arrangement> cases[] = {
      {1920, 1080, 1, false, {803, 785, 290, 1588, 0}},
      {1920, 1080, 1.25, false, {419, 785, 290, 1204, 0}},
      {1920, 1080, 1.5, false, {163, 785, 290, 948, 0}},
      {1280, 1024, 1.5, false, {68, 785, 290, 521, 290}},  // no room for them side by side
      {1025, 769, 1, false, {100, 593, 219, 693, 0}},
      {1025, 768, 1, true, {103, 590, 218, 693, 0}},
      {1024, 769, 1, true, {99, 593, 219, 692, 0}},
      {640, 650, 1, true, {-477, 785, 290, 308, 0}},  // no use in shrinking
      {1920, 840, 1, false, {803, 785, 290, 1588, 0}},
      {1920, 840, 1.5, false, {426, 522, 193, 948, 0}}};
  for (const auto& [width, height, scale, small, places] : cases) {
    screenState = {.ScreenWidthPx = width, .ScreenHeightPx = height};
    EXPECT_EQ(modResize::IsSmallScreen(), small) << width << "x" << height;
    EXPECT_EQ(modResize::Arrange(785, 290, 332, scale), places) << width << "x" << height;
  }
  EXPECT_EQ(modResize::SmallScreenMessage(),
            "Screen Resolution: 1920x840\r\nProgram will be resized");
}

TEST_F(ScreenFitTest, FontsScaleWithinTheirClamps) {
  using enum FontFamily;
  EXPECT_EQ(modResize::ScaledFont(7), (Font{SmallFonts, 7}));
  EXPECT_EQ(modResize::ScaledFont(7.01), (Font{MsSansSerif, 7.01}));
  EXPECT_EQ(modResize::ScaledFont(1.9), (Font{SmallFonts, 2}));
  EXPECT_EQ(modResize::ScaledFont(73), (Font{MsSansSerif, 72}));
}

TEST_F(ScreenFitTest, DeckLayout) {
  const DeckLayout normal = LayoutDeck(800);
  EXPECT_EQ(normal.picDeck[2], (Rect{50, 50, 435, 615}));
  // From the top: spades, hearts, clubs, diamonds; the Ace last.
  EXPECT_EQ(normal.picDeck[1], (Rect{50 + 0.8 * 435 * 12, 50, 435, 615}));
  EXPECT_EQ(normal.picDeck[41].top, 50 + 1.05 * 615);
  EXPECT_EQ(normal.picDeck[28].top, 50 + 1.05 * 615 * 2);
  EXPECT_EQ(normal.picDeck[26], (Rect{50 + 0.8 * 435 * 11, 50 + 1.05 * 615 * 3, 435, 615}));
  EXPECT_EQ(normal.window.width, 50 + 0.8 * 435 * 12 + 1.4 * 435);
  EXPECT_EQ(normal.window.height, 50 + 1.05 * 615 * 3 + 1.4 * 615 + 200);
  EXPECT_EQ(LayoutDeck(799).picDeck[2], (Rect{50, 50, 400, 500}));
}

}  // namespace
}  // namespace holdem
