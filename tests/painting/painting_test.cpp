// The painters' calls, as the canvas writes them down.
#include <cmath>

#include "fakes/approved.h"
#include "fakes/fake_ports.h"
#include "fakes/recording_canvas.h"
#include "painting/advice_meter.h"
#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "painting/seat_picture.h"

namespace holdem {
namespace {

template <typename Painter, typename... Values>
std::string Drawn(Size inner, Painter paint, Values... values) {
  RecordingCanvas canvas(inner);
  paint(canvas, values...);
  return canvas.Drawn();
}

using PaintingTest = ProgramTest;

// What the rules say of each picture, on a canvas of the same size.
double InPoints(double twips) { return std::nearbyint(twips / 20); }

void TellCardFace(Canvas& on, Card card, Color background) {
  const char* const ranks[] = {"A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"};
  const Picture suits[] = {Picture::Spades, Picture::Diamonds, Picture::Clubs, Picture::Hearts};
  const int suit = (card - 1) / 13;
  const Color ink = suit % 2 == 0 ? kBlack : kRed;
  const char* const rank = ranks[(card - 1) % 13];
  const auto [w, h] = on.InnerSize();
  const auto [outerW, outerH] = on.OuterSize();
  const Font font{FontFamily::TimesNewRoman, InPoints(w) / 1.8, true};
  const Size text = on.TextSize(rank, font);
  on.Clear();
  on.FilledBox({0, 0, w, h}, background);
  on.Stretched(suits[suit], {(w - outerW / 2) / 1.9, outerH / 2.2, outerW / 2, outerW / 2});
  on.Text((w - text.width) / 2.1, (h - text.height) / 18, rank, font, ink);
  on.Line(0.02 * w, 0, 0.98 * w, 0, ink);
  on.Line(w - 15, 0.02 * h, w - 15, 0.98 * h, ink);
  on.Line(0.02 * w, h - 15, 0.98 * w, h - 15, ink);
  on.Line(0, 0.02 * h, 0, 0.98 * h, ink);
}

// All but the labels. Lines of one shade, a twip apart and a pixel wide, are one box.
void TellMeterBar(Canvas& on) {
  const auto [w, h] = on.InnerSize();
  const double top = 0.3 * h;
  const auto blueAt = [&, w = w](int x) { return static_cast<int>(std::nearbyint(x * 255 / w)); };
  on.Clear();
  for (int x = 0, start = 0; x <= w; ++x) {
    const int blue = blueAt(x);
    if (x + 1 <= w && blueAt(x + 1) == blue) continue;
    on.FilledBox({1.0 * start, top, x - start + 15.0, h - top},
                 {static_cast<std::uint8_t>(255 - blue), 0, static_cast<std::uint8_t>(blue)});
    start = x + 1;
  }
  on.BoxOutline({0, top, w - 10, h - 10 - top}, kBlack);
  for (const int sixths : {2, 3, 4, 5})
    on.FilledBox({w / 6 * sixths - 5, top, 10, h - top}, kBlack);
}

void TellMeterPointer(Canvas& on, double score) {
  if (score == kNoScore) return;
  const auto [w, h] = on.InnerSize();
  const double x = std::clamp(std::nearbyint(w / 3 + std::nearbyint(w / 3 * score)) + 0.0, 0.0, w);
  double half = 0;
  for (int y = static_cast<int>(0.3 * h); y >= 0; --y, half += 0.5)
    on.Line(x - half, y, x + half, y, kBlack);
}

// 430 and 450 twips are 21.5 and 22.5 points, of which halves go to the even neighbour.
TEST_F(PaintingTest, EachCardFaceHasItsPlaces) {
  for (const Size size : {Size{430, 615}, Size{450, 855}, Size{870, 1230}}) {
    for (Card card = 1; card <= kCardCount; ++card) {
      EXPECT_EQ(Drawn(size, DrawCardFace, card, kWhite), Drawn(size, TellCardFace, card, kWhite))
          << TextOf(card) << " on " << size.width;
    }
  }
}

TEST_F(PaintingTest, SeatsSlotsAndOutsLookAsApproved) {
  std::string text;
  const auto add = [&](const std::string& situation, std::string drawn) {
    std::ranges::replace(drawn, '\n', ';');
    text += situation + ": " + drawn + "\n";
  };
  for (const WindowHandle followed : {0, 77}) {
    for (const bool depth : {false, true}) {
      PutSeats(".i2345.... 7 2");
      seats.WatchFoldDepth = depth;
      autoRead.WatchedWindow = followed;
      for (int seat = 1; seat <= 7; ++seat)
        add(std::string("seat as ") + ".i2345m"[seat - 1] + (depth ? ", fold depth" : "") +
                (followed == 0 ? "" : ", followed"),
            Drawn({1065, 585}, DrawSeat, seat));
    }
  }
  for (const char* typed : {"?", "10"})
    for (const double width : {430, 450})
      add(typed + (" on " + std::to_string(width)), Drawn({width, 615}, DrawSlotText, typed));
  for (int row = 0; row < kCategoryRows; ++row) {
    add(lbllbl[row] + std::string(" on a card"), Drawn({700, 1000}, DrawOutMarker, row));
    add(lbllbl[row] + std::string(" on a title"), Drawn({700, 1000}, DrawRowMarker, row));
  }
  ExpectApproved("pictures", text);
}

TEST_F(PaintingTest, TheMeterIsAsWideAsItsSurface) {
  std::string labels;
  for (const auto& [w, h] : {std::pair{4935, 690}, {4937, 345}, {2000, 690}, {60, 90}}) {
    const Size size{1.0 * w, 1.0 * h};
    const std::string bar = Drawn(size, TellMeterBar);
    analysis.CurrentStreet = Flop;
    const std::string later = Drawn(size, DrawMeterScale);
    for (const Street street : {PreFlop, NoStreet, Flop, Turn, River}) {
      analysis.CurrentStreet = street;
      const std::string drawn = Drawn(size, DrawMeterScale);
      EXPECT_EQ(drawn.substr(0, bar.size()), bar) << w << "x" << h;
      EXPECT_TRUE(street == PreFlop || drawn == later) << "on street " << street;
      std::istringstream lines(street > Flop || street == NoStreet
                                   ? ""
                                   : drawn.substr(std::min(bar.size(), drawn.size())));
      for (std::string line; std::getline(lines, line);)
        labels +=
            std::to_string(w) + (street == Flop ? " wide: " : " wide, pre-flop: ") + line + "\n";
    }
    for (const double score : {kNoScore, -9.99, -1.0, -0.5, 0.0, 0.5, 1.5, 1.99, 2.0, 1e300}) {
      advice.MeterScore = score;
      EXPECT_EQ(Drawn(size, DrawMeterPointer), Drawn(size, TellMeterPointer, score))
          << score << " on " << w;
    }
  }
  ExpectApproved("meter_labels", labels);
}

}  // namespace
}  // namespace holdem
