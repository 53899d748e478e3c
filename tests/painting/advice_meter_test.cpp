#include "painting/advice_meter.h"

#include <gtest/gtest.h>

#include <cmath>

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
  for (const Size size : {kDesign, Size{9870, 1380}, Size{150, 30}}) {
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
        const auto blue = static_cast<std::uint8_t>(std::nearbyint(x * 255 / size.width));
        EXPECT_EQ(color, (Color{static_cast<std::uint8_t>(255 - blue), 0, blue})) << x;
      }
    }
  }
}

TEST(AdviceMeter, FrameAndZoneBars) {
  const RecordingCanvas canvas = Meter(kNoScore);
  EXPECT_EQ(canvas.clears, 1);
  EXPECT_TRUE(canvas.lines.empty());
  ASSERT_EQ(canvas.outlines.size(), 1U);
  EXPECT_EQ(canvas.outlines[0].box, (Rect{0, 207, 4925, 473}));
  EXPECT_EQ(canvas.outlines[0].color, kBlack);
  for (int i = 0; i < kZoneBars; ++i) {
    const auto& bar = canvas.boxes[canvas.boxes.size() - kZoneBars + i];
    EXPECT_EQ(bar.box, (Rect{1640 + i * 822.5, 207, 10, 483}));
    EXPECT_EQ(bar.color, kBlack);
  }
}

// The labels' lines stand centred in their zones. At the design size three lines of 160 twips are
// higher than 65 % of the meter, so the gap between them is negative.
TEST(AdviceMeter, LabelsByStreetStandInTheirZones) {
  using Lines = std::vector<std::string>;
  const Lines beforeFlop = {"Check or fold", "Call or",     "fold if", "raised",  "Raise or",
                            "call one",      "small raise", "Raise",   "or call", "raised",
                            "Raise",         "or",          "re-raise"};
  const Lines afterFlop = {"Check or fold", "Check or",  "call one", "small bet", "Bet or",
                           "call one",      "small bet", "Raise",    "or call",   "one raise",
                           "Raise",         "or",        "re-raise"};
  const double lineHeight = 8 * RecordingCanvas::kTwipsPerPoint;
  for (const Street street : {NoStreet, PreFlop, Flop, Turn, River}) {
    const Size size = street == Flop ? Size{9870, 1380} : kDesign;
    const double gap = (0.65 * size.height - 3 * lineHeight) / 4;
    Lines lines;
    for (const auto& label : Meter(kNoScore, street, size).texts) {
      if (label.text.empty()) continue;
      const int drawn = static_cast<int>(lines.size());
      lines.push_back(label.text);
      const int line = drawn == 0 ? 1 : (drawn - 1) % 3;  // the first zone has but a middle line
      const int zone = (drawn + 2) / 3;
      const double middle = (zone == 0 ? 1 : zone + 1.5) * size.width / 6;
      const double width = static_cast<double>(label.text.size()) * lineHeight / 2;
      EXPECT_NEAR(label.y, 0.35 * size.height + gap + line * (lineHeight + gap), 1e-6);
      EXPECT_NEAR(label.x + width / 2, middle, 1e-6) << label.text;
      EXPECT_EQ(label.font, (Font{FontFamily::SmallFonts, 7}));
      EXPECT_EQ(label.color, kWhite);
    }
    EXPECT_EQ(lines, street == PreFlop ? beforeFlop : afterFlop) << street;
  }
}

TEST(AdviceMeter, PointerAtTheScore) {
  const std::array<double, 3> cases[] = {
      // width, score, tip
      {4935, -1, 0},    {4935, 0, 1645}, {4935, 0.5, 2467}, {4935, 1.5, 4113}, {4935, 2, 4935},
      {4935, 3, 4935},  {4935, -4, 0},   {4935, 0.1, 1809}, {4936, 0, 1645},   {4936, 2, 4936},
      {4935, -9.99, 0}, {4936, -1, 0},   {4937, 0, 1646},   {4937, 2, 4937},   {4935, 1e300, 4935}};
  for (const auto& [width, score, tip] : cases) {
    const RecordingCanvas canvas = Meter(score, Flop, {width, 690});
    ASSERT_EQ(canvas.lines.size(), 208U);
    for (int i = 0; i < 208; ++i) {
      const auto& [x1, y1, x2, y2, color] = canvas.lines[i];
      EXPECT_TRUE(x1 == tip - i * 0.5 && x2 == tip + i * 0.5) << score << " of " << width;
      EXPECT_TRUE(y1 == 207 - i && y2 == 207 - i && color == kBlack);
    }
  }
}

}  // namespace
}  // namespace holdem
