// The painters' calls, as the canvas writes them down.
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

TEST_F(PaintingTest, AnOpponentWhoFoldedOnTheTurn) {
  PutSeats("iiiiii4iii 2 1");
  seats.WatchFoldDepth = true;
  EXPECT_EQ(Drawn({1065, 585}, DrawSeat, 7),
            "clear\nfolded 0 0 1095 615\nSmall plain Turn 387.5 0 7 0/0/0\n");
}

// Everything at sizes and scores around those that matter, kept as fingerprints: a change must be
// meant.
TEST_F(PaintingTest, EachPictureLooksAsItDid) {
  Fingerprint meters, cards, seatPictures;
  const Size sizes[] = {{4935, 690},  {4936, 1380}, {4937, 345},
                        {9870, 1380}, {2000, 690},  {60, 90}};
  for (const Size size : sizes) {
    for (const Street street : {NoStreet, PreFlop, Flop, Turn, River}) {
      for (const double score : {kNoScore, -9.99, -1.0, -0.5, 0.0, 0.5, 1.5, 1.99, 2.0, 1e300}) {
        analysis.CurrentStreet = street;
        advice.MeterScore = score;
        meters.Add(Drawn(size, DrawMeterScale) + Drawn(size, DrawMeterPointer));
      }
    }
  }
  // 430 and 450 twips are 21.5 and 22.5 points: halves go to the even neighbour.
  for (const Size size : {Size{430, 615}, Size{450, 855}, Size{870, 1230}}) {
    for (Card card = 1; card <= kCardCount; ++card) {
      cards.Add(Drawn(size, DrawCardFace, card, kWhite));
    }
    for (const char* text : {"?", "10"}) cards.Add(Drawn(size, DrawSlotText, text));
    for (int row = 0; row < kCategoryRows; ++row) {
      for (const auto paint : {DrawOutMarker, DrawRowMarker}) cards.Add(Drawn(size, paint, row));
    }
  }
  seats.MySeat = 1;  // drawn as such whatever its state
  for (const bool watchFoldDepth : {false, true}) {
    for (const WindowHandle followed : {0, 77}) {
      for (const SeatState state :
           {Empty, In, FoldedPreFlop, FoldedFlop, FoldedTurn, FoldedRiver}) {
        seats.WatchFoldDepth = watchFoldDepth;
        seats.SeatStates.fill(state);
        autoRead.WatchedWindow = followed;
        for (const int seat : {1, 7}) seatPictures.Add(Drawn({1065, 585}, DrawSeat, seat));
      }
    }
  }
  EXPECT_EQ(meters.value, 681496980030992603U);
  EXPECT_EQ(cards.value, 7222017130536228184U);
  EXPECT_EQ(seatPictures.value, 183400389469623477U);
}

}  // namespace
}  // namespace holdem
