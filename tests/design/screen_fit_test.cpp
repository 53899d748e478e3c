// How the two windows fit the screen.
#include "design/screen_fit.h"

#include "design/deck_layout.h"
#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using ScreenFitTest = ProgramTest;

TEST_F(ScreenFitTest, MessageAndPlaces) {
  const struct {
    int width, height;
    double scale;
    bool small;
    modResize::Arrangement places;  // of a main window of 785 x 290 and a deck 332 wide
  } kCases[] = {
      {1920, 1080, 1, false, {803, 785, 290, 1588, 0}},
      {1920, 1080, 1.25, false, {419, 785, 290, 1204, 0}},
      {1920, 1080, 1.5, false, {163, 785, 290, 948, 0}},
      {2560, 1440, 2, false, {163, 785, 290, 948, 0}},
      {3840, 2160, 2, false, {803, 785, 290, 1588, 0}},
      {1280, 1024, 1.5, false, {68, 785, 290, 521, 290}},  // no room for them side by side
      {1025, 769, 1, false, {100, 593, 219, 693, 0}},
      {1025, 768, 1, true, {103, 590, 218, 693, 0}},
      {1024, 769, 1, true, {99, 593, 219, 692, 0}},
      {640, 480, 1, true, {-477, 785, 290, 308, 0}},  // no use in shrinking
      {640, 650, 1, true, {-477, 785, 290, 308, 0}},
      {1920, 840, 1, false, {803, 785, 290, 1588, 0}},
      {1920, 840, 1.5, false, {426, 522, 193, 948, 0}}};
  for (const auto& screen : kCases) {
    SCOPED_TRACE(testing::Message()
                 << screen.width << "x" << screen.height << " at " << screen.scale);
    screenState = {.ScreenWidthPx = screen.width, .ScreenHeightPx = screen.height};
    EXPECT_EQ(modResize::IsSmallScreen(), screen.small);
    EXPECT_EQ(modResize::Arrange(785, 290, 332, screen.scale), screen.places);
  }
  EXPECT_EQ(modResize::SmallScreenMessage(),
            "Screen Resolution: 1920x840\r\nProgram will be resized");
}

TEST_F(ScreenFitTest, FontsScaleWithinTheirClamps) {
  const struct {
    double points;
    Font font;
  } kCases[] = {{6.4, {FontFamily::SmallFonts, 6.4}}, {8, {FontFamily::MsSansSerif, 8}},
                {7, {FontFamily::SmallFonts, 7}},     {7.01, {FontFamily::MsSansSerif, 7.01}},
                {1.9, {FontFamily::SmallFonts, 2}},   {73, {FontFamily::MsSansSerif, 72}}};
  for (const auto& size : kCases) EXPECT_EQ(modResize::ScaledFont(size.points), size.font);
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
