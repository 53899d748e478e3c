#include "painting/out_marker.h"

#include <gtest/gtest.h>

#include "fakes/recording_canvas.h"
#include "state/results.h"

namespace holdem {
namespace {

TEST(OutMarker, SitsAtTheLowerLeftInTheRowsColour) {
  RecordingCanvas canvas({420, 600}, {450, 630});
  DrawOutMarker(canvas, lbllbl[4].color);
  EXPECT_EQ(canvas.clears, 0);
  ASSERT_EQ(canvas.circles.size(), 1U);
  const auto& marker = canvas.circles[0];
  EXPECT_DOUBLE_EQ(marker.x, 105);
  EXPECT_DOUBLE_EQ(marker.y, 480);
  EXPECT_DOUBLE_EQ(marker.radius, 60);
  EXPECT_EQ(marker.fill, (Color{128, 255, 255}));
  EXPECT_EQ(marker.outline, kBlack);
}

}  // namespace
}  // namespace holdem
