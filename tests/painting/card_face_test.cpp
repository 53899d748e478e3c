#include "painting/card_face.h"

#include <gtest/gtest.h>

#include "fakes/recording_canvas.h"
#include "painting/out_marker.h"
#include "painting/row_colors.h"

namespace holdem {
namespace {

TEST(CardFaceTest, RankSuitAndColour) {
  const struct {
    Card card;
    const char* rank;
    Picture suit;
    Color color;
  } kCases[] = {{1, "A", Picture::Spades, kBlack},  {10, "10", Picture::Spades, kBlack},
                {15, "2", Picture::Diamonds, kRed}, {24, "J", Picture::Diamonds, kRed},
                {38, "Q", Picture::Clubs, kBlack},  {52, "K", Picture::Hearts, kRed}};
  for (const auto& expected : kCases) {
    RecordingCanvas canvas({435, 615}, {435, 615});
    DrawCardFace(canvas, expected.card, kWhite);
    EXPECT_EQ(canvas.texts.at(0).text, expected.rank);
    EXPECT_EQ(canvas.texts[0].color, expected.color) << expected.rank;
    EXPECT_EQ(canvas.pictures.at(0).picture, expected.suit) << expected.rank;
    for (const auto& line : canvas.lines) EXPECT_EQ(line.color, expected.color) << expected.rank;
  }
}

// A surface whose border is 15 twips wide on every side, so that inner and outer sizes differ.
TEST(CardFaceTest, GeometryFollowsTheSurface) {
  RecordingCanvas canvas({600, 840}, {630, 870});
  DrawCardFace(canvas, 40, kWhite);
  EXPECT_EQ(canvas.clears, 1);
  EXPECT_EQ(canvas.boxes.at(0).box, (Rect{0, 0, 600, 840}));
  EXPECT_EQ(canvas.pictures.at(0).box, (Rect{(600 - 315) / 1.9, 870 / 2.2, 315, 315}));

  const auto& rank = canvas.texts.at(0);
  EXPECT_EQ(rank.font, (Font{FontFamily::TimesNewRoman, 30 / 1.8, true}));
  const double height = 30 / 1.8 * RecordingCanvas::kTwipsPerPoint;
  EXPECT_DOUBLE_EQ(rank.x, (600 - height / 2) / 2.1);
  EXPECT_DOUBLE_EQ(rank.y, (840 - height) / 18);

  ASSERT_EQ(canvas.lines.size(), 4U);
  const double kLines[4][4] = {
      {12, 0, 588, 0}, {585, 16.8, 585, 823.2}, {12, 825, 588, 825}, {0, 16.8, 0, 823.2}};
  for (int i = 0; i < 4; ++i) {
    const auto& line = canvas.lines[i];
    EXPECT_DOUBLE_EQ(line.x1, kLines[i][0]);
    EXPECT_DOUBLE_EQ(line.y1, kLines[i][1]);
    EXPECT_DOUBLE_EQ(line.x2, kLines[i][2]);
    EXPECT_DOUBLE_EQ(line.y2, kLines[i][3]);
  }
}

// 430 and 450 twips are 21.5 and 22.5 points: halves go to the even neighbour.
TEST(CardFaceTest, SlotTextIsCentredAtTheSurfacesWidthInWholePoints) {
  for (const double width : {430.0, 450.0}) {
    RecordingCanvas canvas({width, 855}, {width + 30, 885});
    DrawSlotText(canvas, "?");
    EXPECT_EQ(canvas.clears, 0);
    const auto& mark = canvas.texts.at(0);
    EXPECT_EQ(mark.font, (Font{FontFamily::TimesNewRoman, 22, false}));
    EXPECT_EQ(mark.color, kBlack);
    EXPECT_DOUBLE_EQ(mark.x, (width - 220) / 2);
    EXPECT_DOUBLE_EQ(mark.y, (855 - 440) / 2.0);
  }
}

TEST(OutMarker, SitsAtTheLowerLeftInTheRowsColour) {
  RecordingCanvas canvas({420, 600}, {450, 630});
  DrawOutMarker(canvas, kRowColors[4]);
  EXPECT_EQ(canvas.clears, 0);
  const auto& [x, y, radius, fill, outline] = canvas.circles.at(0);
  EXPECT_TRUE(x == 105 && y == 480 && radius == 60);
  EXPECT_TRUE(fill == (Color{128, 255, 255}) && outline == kBlack);
}

}  // namespace
}  // namespace holdem
