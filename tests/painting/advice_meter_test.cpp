#include "painting/advice_meter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "fakes/recording_canvas.h"
#include "state/advice_values.h"
#include "state/analysis.h"

namespace holdem {
namespace {

constexpr Size kDesign{4935, 690};

RecordingCanvas Meter(double score, Street street = Flop, Size size = kDesign) {
  advice = {};
  analysis = {};
  advice.MeterScore = score;
  analysis.CurrentStreet = street;
  RecordingCanvas canvas(size, {size.width + 30, size.height + 30});
  canvas.FilledBox({}, kWhite);  // of an earlier drawing
  DrawAdviceMeter(canvas);
  return canvas;
}

constexpr int kZoneBars = 4;  // the last boxes drawn; those before are the colour bar

TEST(AdviceMeter, OneShadePerTwipFromRedToBlue) {
  for (const Size size : {kDesign, Size{9870, 1380}, Size{2460, 345}, Size{150, 30}}) {
    const RecordingCanvas canvas = Meter(kNoScore, Flop, size);
    const std::size_t shades = canvas.boxes.size() - kZoneBars;
    EXPECT_LE(shades, 256U);
    EXPECT_EQ(canvas.boxes[0].box.left, 0);
    for (std::size_t i = 0; i < shades; ++i) {
      const auto& [box, color] = canvas.boxes[i];
      const double end = i + 1 < shades ? canvas.boxes[i + 1].box.left : size.width + 1;
      EXPECT_DOUBLE_EQ(box.top, 0.3 * size.height);
      EXPECT_DOUBLE_EQ(box.top + box.height, size.height);
      EXPECT_EQ(box.left + box.width, end - 1 + 15);  // its last line is a pixel wide
      for (double x = box.left; x < end; ++x) {
        const int blue = static_cast<int>(std::nearbyint(x * 255 / size.width));
        EXPECT_EQ(color.blue, blue) << x;
        EXPECT_EQ(color.red, 255 - blue) << x;
        EXPECT_EQ(color.green, 0) << x;
      }
    }
    EXPECT_EQ(canvas.boxes[0].color, kRed);
    EXPECT_EQ(canvas.boxes[shades - 1].color, (Color{0, 0, 255}));
  }
}

TEST(AdviceMeter, FrameAndZoneBars) {
  const RecordingCanvas canvas = Meter(kNoScore);
  EXPECT_EQ(canvas.clears, 1);
  ASSERT_EQ(canvas.outlines.size(), 1U);
  EXPECT_EQ(canvas.outlines[0].box, (Rect{0, 207, 4925, 473}));
  EXPECT_EQ(canvas.outlines[0].color, kBlack);
  const double kBorders[] = {1645, 2467.5, 3290, 4112.5};
  for (int i = 0; i < kZoneBars; ++i) {
    const auto& [box, color] = canvas.boxes[canvas.boxes.size() - kZoneBars + i];
    EXPECT_DOUBLE_EQ(box.left, kBorders[i] - 5);
    EXPECT_DOUBLE_EQ(box.width, 10);
    EXPECT_DOUBLE_EQ(box.top, 207);
    EXPECT_DOUBLE_EQ(box.height, 483);
    EXPECT_EQ(color, kBlack);
  }
}

TEST(AdviceMeter, LabelsByStreet) {
  using Lines = std::vector<std::string>;
  const Lines beforeFlop = {"Check or fold", "Call or",     "fold if", "raised",  "Raise or",
                            "call one",      "small raise", "Raise",   "or call", "raised",
                            "Raise",         "or",          "re-raise"};
  const Lines afterFlop = {"Check or fold", "Check or",  "call one", "small bet", "Bet or",
                           "call one",      "small bet", "Raise",    "or call",   "one raise",
                           "Raise",         "or",        "re-raise"};
  for (const Street street : {NoStreet, PreFlop, Flop, Turn, River}) {
    Lines lines;
    for (const auto& text : Meter(0.7, street).texts) {
      if (!text.text.empty()) lines.push_back(text.text);
    }
    EXPECT_EQ(lines, street == PreFlop ? beforeFlop : afterFlop) << street;
  }
}

// At the design size three lines of 160 twips are higher than 65 % of the meter, so the gap between
// them is negative.
TEST(AdviceMeter, LabelsStandInTheirZones) {
  struct Zone {
    double left, right;
  };
  for (const Size size : {kDesign, Size{9870, 1380}}) {
    const double sixth = size.width / 6;
    const Zone zones[] = {{0, 2 * sixth},
                          {2 * sixth, 3 * sixth},
                          {3 * sixth, 4 * sixth},
                          {4 * sixth, 5 * sixth},
                          {5 * sixth, size.width}};
    const double lineHeight = 8 * RecordingCanvas::kTwipsPerPoint;
    const double gap = (0.65 * size.height - 3 * lineHeight) / 4;
    EXPECT_EQ(gap < 0, size.height == kDesign.height);
    int drawn = 0;
    for (const auto& label : Meter(kNoScore, PreFlop, size).texts) {
      if (label.text.empty()) continue;
      SCOPED_TRACE(label.text);
      // Zone 1 has only its middle line.
      const int line = drawn == 0 ? 1 : (drawn - 1) % 3;
      const Zone& zone = zones[drawn == 0 ? 0 : 1 + (drawn - 1) / 3];
      EXPECT_NEAR(label.y, 0.35 * size.height + gap + line * (lineHeight + gap), 1e-6);
      const double width = static_cast<double>(label.text.size()) * lineHeight / 2;
      EXPECT_NEAR(label.x - zone.left, zone.right - (label.x + width), 1e-6);
      EXPECT_EQ(label.font, (Font{FontFamily::SmallFonts, 7}));
      EXPECT_EQ(label.color, kWhite);
      ++drawn;
    }
    EXPECT_EQ(drawn, 13);
  }
}

TEST(AdviceMeter, PointerAtTheScore) {
  const struct {
    double width, score, tip;
  } cases[] = {{4935, -1, 0},     {4935, 0, 1645},     {4935, 0.5, 2467}, {4935, 1, 3290},
               {4935, 1.5, 4113}, {4935, 2, 4935},     {4935, 3, 4935},   {4935, -4, 0},
               {4935, -9.999, 0}, {4935, 1e300, 4935}, {4935, 0.1, 1809}, {4936, 0, 1645},
               {4936, 2, 4936},   {4936, -1, 0},       {4937, 0, 1646},   {4937, 2, 4937}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.score << " of " << c.width);
    const RecordingCanvas canvas = Meter(c.score, Flop, {c.width, 690});
    ASSERT_EQ(canvas.lines.size(), 208U);
    for (int i = 0; i < 208; ++i) {
      const auto& line = canvas.lines[i];
      EXPECT_EQ(line.x1, c.tip - i * 0.5);
      EXPECT_EQ(line.x2, c.tip + i * 0.5);
      EXPECT_EQ(line.y1, 207 - i);
      EXPECT_EQ(line.y2, 207 - i);
      EXPECT_EQ(line.color, kBlack);
    }
  }
  EXPECT_TRUE(Meter(kNoScore).lines.empty());
}

}  // namespace
}  // namespace holdem
