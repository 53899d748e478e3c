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

// One shade a twip from red to blue, the frame, the zones' borders; a pointer that widens upwards.
TEST_F(PaintingTest, TheBarOfASmallMeterAndItsPointer) {
  advice.MeterScore = 1;
  const std::string drawn = Drawn({3, 5}, DrawMeterScale) + Drawn({3, 5}, DrawMeterPointer);
  EXPECT_TRUE(
      drawn.starts_with("clear\n"
                        "box 0 1.5 15 3.5 255/0/0\n"
                        "box 1 1.5 15 3.5 170/0/85\n"
                        "box 2 1.5 15 3.5 85/0/170\n"
                        "box 3 1.5 15 3.5 0/0/255\n"
                        "outline 0 1.5 -7 -6.5 0/0/0\n"
                        "box -4 1.5 10 3.5 0/0/0\n"))
      << drawn;
  EXPECT_TRUE(drawn.ends_with("line 2 1 2 1 0/0/0\nline 1.5 0 2.5 0 0/0/0\n")) << drawn;
}

TEST_F(PaintingTest, AnAceOfHearts) {
  EXPECT_EQ(Drawn({600, 840}, DrawCardFace, 40, Color{1, 2, 3}),
            "clear\n"
            "box 0 0 600 840 1/2/3\n"
            "hearts 150 395.455 315 315\n"
            "Times bold A 206.349 28.1481 16.6667 255/0/0\n"
            "line 12 0 588 0 255/0/0\n"
            "line 585 16.8 585 823.2 255/0/0\n"
            "line 12 825 588 825 255/0/0\n"
            "line 0 16.8 0 823.2 255/0/0\n");
}

// What the rules say of each picture, on a canvas of the same size.
Font SmallFont(double points) { return {FontFamily::SmallFonts, points}; }
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

void TellSlotText(Canvas& on, const char* text) {
  const double points = InPoints(on.InnerSize().width);
  const Font font{FontFamily::TimesNewRoman, text[1] == 0 ? points : points / 1.8};  // "10" is wide
  const Size size = on.TextSize(text, font);
  on.Text((on.InnerSize().width - size.width) / 2, (on.InnerSize().height - size.height) / 2, text,
          font, kBlack);
}

void TellSeat(Canvas& on, SeatState state, bool mine) {
  const auto [width, height] = on.OuterSize();
  const auto show = [&](Picture picture) { on.Stretched(picture, {0, 0, width, height}); };
  on.Clear();
  if (mine) return show(Picture::SeatMe);
  if (state == In) return show(Picture::SeatIn);
  if (state == Empty && !autoRead.Following()) return show(Picture::SeatEmpty);
  if (state == Empty) return;
  show(Picture::SeatFolded);
  const std::string street = std::array{"", "", "PreFlop", "Flop", "Turn", "River"}[state];
  const double left = (width - on.TextSize(street, kMainWindowFont).width) / 2;
  if (seats.WatchFoldDepth) on.Text(left, 0, street, SmallFont(7), kBlack);
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

// Around the sizes that matter: 430 and 450 twips are 21.5 and 22.5 points, of which halves go to
// the even neighbour.
TEST_F(PaintingTest, EachCardFaceHasItsPlaces) {
  for (const Size size : {Size{430, 615}, Size{450, 855}, Size{870, 1230}}) {
    for (Card card = 1; card <= kCardCount; ++card) {
      EXPECT_EQ(Drawn(size, DrawCardFace, card, kWhite), Drawn(size, TellCardFace, card, kWhite))
          << card << " on " << size.width;
    }
    for (const char* text : {"?", "10"})
      EXPECT_EQ(Drawn(size, DrawSlotText, text), Drawn(size, TellSlotText, text)) << size.width;
  }
}

TEST_F(PaintingTest, EachSeatShowsItsState) {
  for (int round = 0; round < 48; ++round) {
    seats.WatchFoldDepth = round % 2 == 1;
    autoRead.WatchedWindow = round / 2 % 2 == 1 ? 77 : 0;
    seats.MySeat = round / 4 % 2 == 1 ? 7 : 1;  // drawn as such whatever its state
    seats.SeatStates[7] = SeatState{round / 8};
    EXPECT_EQ(Drawn({1065, 585}, DrawSeat, 7),
              Drawn({1065, 585}, TellSeat, seats.SeatStates[7], seats.MySeat == 7))
        << Seating() << (seats.WatchFoldDepth ? ", fold depth" : "")
        << (autoRead.Following() ? ", followed" : "");
  }
}

TEST_F(PaintingTest, TheMeterIsAsWideAsItsSurface) {
  std::string labels;
  for (const auto& [w, h] : {std::pair{4935, 690}, {4937, 345}, {2000, 690}, {60, 90}}) {
    const Size size{1.0 * w, 1.0 * h};
    for (const Street street : {PreFlop, Flop, NoStreet, Turn, River}) {
      analysis.CurrentStreet = street;
      const std::string bar = Drawn(size, TellMeterBar), drawn = Drawn(size, DrawMeterScale);
      EXPECT_EQ(drawn.substr(0, bar.size()), bar) << w << "x" << h;
      if (street == PreFlop || street == Flop) {
        std::istringstream lines(drawn.substr(std::min(bar.size(), drawn.size())));
        for (std::string line; std::getline(lines, line);)
          labels += std::to_string(w) + "x" + std::to_string(h) +
                    (street == Flop ? " flop: " : " pre-flop: ") + line + "\n";
      } else {
        analysis.CurrentStreet = Flop;
        EXPECT_EQ(drawn, Drawn(size, DrawMeterScale)) << "as on the flop, on street " << street;
      }
    }
    for (const double score : {kNoScore, -9.99, -1.0, -0.5, 0.0, 0.5, 1.5, 1.99, 2.0, 1e300}) {
      advice.MeterScore = score;
      EXPECT_EQ(Drawn(size, DrawMeterPointer), Drawn(size, TellMeterPointer, score))
          << score << " on " << w;
    }
  }
  ExpectApproved("meter_labels", labels);
}

// Where the tip points, on the bar of a usual meter.
TEST_F(PaintingTest, ThePointerStandsAtTheScore) {
  const std::pair<double, int> cases[] = {{-4, 0},     {-1, 0},      {0, 1645},   {0.5, 2467},
                                          {0.6, 2632}, {1.0, 3290},  {1.5, 4113}, {2, 4935},
                                          {3, 4935},   {1.999, 4933}};
  for (const auto& [score, x] : cases) {
    advice.MeterScore = score;
    const std::string tip = "line " + std::to_string(x) + " 207 " + std::to_string(x) + " 207 ";
    EXPECT_TRUE(Drawn({4935, 690}, DrawMeterPointer).starts_with(tip)) << score << ": " << tip;
  }
}

TEST_F(PaintingTest, EachOutHasASignOfItsOwn) {
  std::string signs;
  for (int row = 0; row < kCategoryRows; ++row) {
    for (const auto& [where, paint] :
         {std::pair{"card", &DrawOutMarker}, {"title", &DrawRowMarker}}) {
      std::string drawn = Drawn({700, 1000}, paint, row);
      std::ranges::replace(drawn, '\n', ';');
      signs += std::string(lbllbl[row]) + " on a " + where + ": " + drawn + "\n";
    }
  }
  ExpectApproved("out_signs", signs);
}

}  // namespace
}  // namespace holdem
