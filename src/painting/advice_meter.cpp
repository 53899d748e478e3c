#include "painting/advice_meter.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "figures/percent_text.h"
#include "state/advice_values.h"
#include "state/analysis.h"

namespace holdem {
namespace {

constexpr double kBarTop = 0.3;     // of the height; the pointer is above
constexpr double kLabelTop = 0.35;  // likewise
// The largest font of the labels; where they do not fit they get a smaller one. Bold, since white
// on red is faint.
constexpr Font kLabelFont{FontFamily::SmallFonts, 7, true};
constexpr double kLeastPoints = 1;
constexpr double kLabelMargin = 20;  // twips on either side: half a zone bar and a pixel

constexpr int kLabelLines = 3;
using Labels = std::array<std::array<const char*, kLabelLines>, kZones>;
constexpr Labels kLabelsBeforeFlop = {{{"", "Check or fold", ""},
                                       {"Call or", "fold if", "raised"},
                                       {"Raise or", "call one", "small raise"},
                                       {"Raise", "or call", "raised"},
                                       {"Raise", "or", "re-raise"}}};
constexpr Labels kLabelsAfterFlop = {{{"", "Check or fold", ""},
                                      {"Check or", "call one", "small bet"},
                                      {"Bet or", "call one", "small bet"},
                                      {"Raise", "or call", "one raise"},
                                      {"Raise", "or", "re-raise"}}};

// Scores -1 to 2 span the width.
double PositionOf(double score, double width) { return width / 3 * (1 + score); }

// From pure red at the left edge to pure blue at the right, a shade for each twip. Twips of one
// shade are drawn as one box. It reaches a pixel further, under the next one, so that no scale
// opens a gap between them.
void DrawColorBar(Canvas& surface, Size size) {
  const double top = kBarTop * size.height;
  const auto blueAt = [&](int x) { return RoundHalfEven(x * 255 / size.width); };
  for (int x = 0; x <= size.width;) {
    const int blue = blueAt(x);
    int next = x + 1;
    while (next <= size.width && blueAt(next) == blue) ++next;
    const Color shade{static_cast<std::uint8_t>(255 - blue), 0, static_cast<std::uint8_t>(blue)};
    surface.FilledBox(
        {static_cast<double>(x), top, next - x - 1.0 + kTwipsPerPixel, size.height - top}, shade);
    x = next;
  }
}

void DrawZoneBars(Canvas& surface, Size size) {
  const double top = kBarTop * size.height;
  surface.BoxOutline({0, top, size.width - 10, size.height - 10 - top}, kBlack);
  for (const double border : kZoneBorders) {
    surface.FilledBox({PositionOf(border, size.width) - 5, top, 10, size.height - top}, kBlack);
  }
}

struct Extent {
  double left;
  double width;
};

Extent ExtentOf(int zone, double width) {
  const double left = zone == 0 ? 0 : PositionOf(kZoneBorders[zone - 1], width);
  const double right = zone == kZones - 1 ? width : PositionOf(kZoneBorders[zone], width);
  return {left, right - left};
}

// The share of its size to which the font must shrink so that every label fits its zone and its
// line; 1 where they fit.
double FittingShare(Canvas& surface, const Labels& labels, const Font& font, double lineHeight) {
  double share = 1;
  for (int zone = 0; zone < kZones; ++zone) {
    const double room = ExtentOf(zone, surface.InnerSize().width).width - 2 * kLabelMargin;
    for (const char* const text : labels[zone]) {
      const Size size = surface.TextSize(text, font);
      share = std::min({share, lineHeight / size.height, *text == 0 ? 1 : room / size.width});
    }
  }
  return share;
}

Font LabelFont(Canvas& surface, const Labels& labels, double lineHeight) {
  Font font = kLabelFont;
  while (font.points > kLeastPoints) {
    const double share = FittingShare(surface, labels, font, lineHeight);
    if (share >= 1) break;
    font.points = std::max(kLeastPoints, std::min(share * font.points, font.points - 0.25));
  }
  return font;
}

// Three lines with equal gaps, by the height of the main window's own font. Where the lines are too
// high for the bar, the gaps are negative and the lines close up: the first never begins above the
// bar, and the last ends with it.
void DrawLabels(Canvas& surface, Size size, const Labels& labels) {
  const double top = kLabelTop * size.height;
  const double room = size.height - top;
  const double textHeight = surface.TextSize("blah", kMainWindowFont).height;
  const double gap = std::max((room - kLabelLines * textHeight) / (kLabelLines + 1),
                              (kBarTop - kLabelTop) * size.height);
  const double lineHeight = (room - gap) / kLabelLines;
  const Font font = LabelFont(surface, labels, lineHeight);
  for (int zone = 0; zone < kZones; ++zone) {
    const auto [left, width] = ExtentOf(zone, size.width);
    double y = top + gap;
    for (const char* const text : labels[zone]) {
      const double textWidth = surface.TextSize(text, font).width;
      surface.Text(left + (width - textWidth) / 2, y, text, font, kWhite);
      y += lineHeight;
    }
  }
}

// Points down at the score; off the scale it stands at the edge. One line per twip, each a twip
// wider than the one below.
void DrawPointer(Canvas& surface, Size size, double score) {
  const double third = size.width / 3;
  const int tip = RoundHalfEven(third + RoundHalfEven(third * std::clamp(score, -1.0, 2.0)));
  double half = 0;
  for (int y = static_cast<int>(kBarTop * size.height); y >= 0; --y) {
    surface.Line(tip - half, y, tip + half, y, kBlack);
    half += 0.5;
  }
}

}  // namespace

void DrawMeterScale(Canvas& surface) {
  const Size size = surface.InnerSize();
  assert(size.width > 0 && size.height > 0);
  surface.Clear();
  DrawColorBar(surface, size);
  DrawZoneBars(surface, size);
  DrawLabels(surface, size,
             analysis.CurrentStreet == PreFlop ? kLabelsBeforeFlop : kLabelsAfterFlop);
}

void DrawMeterPointer(Canvas& surface) {
  if (advice.MeterScore == kNoScore) return;
  DrawPointer(surface, surface.InnerSize(), advice.MeterScore);
}

}  // namespace holdem
