// The painters' calls, as the canvas writes them down.
#include "fakes/fake_ports.h"
#include "fakes/recording_canvas.h"
#include "painting/advice_meter.h"
#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "painting/seat_picture.h"

namespace holdem {
namespace {

// The calls that begin so, on a surface with a border 15 twips wide on every side.
template <typename Painter>
std::string Drawn(Size inner, Painter paint, const std::string& beginning = "") {
  RecordingCanvas canvas(inner, {inner.width + 30, inner.height + 30});
  paint(canvas);
  std::istringstream calls(canvas.Drawn());
  std::string drawn;
  for (std::string call; std::getline(calls, call);) {
    if (call.starts_with(beginning)) drawn += call + "\n";
  }
  return drawn;
}

class AdviceMeter : public ProgramTest {
 protected:
  static std::string Meter(Size size, double score, const std::string& beginning,
                           Street street = Flop) {
    advice.MeterScore = score;
    analysis.CurrentStreet = street;
    return Drawn(size, DrawAdviceMeter, beginning);
  }
};

// One shade a twip from red to blue, the frame, the zones' borders; a pointer that widens upwards.
TEST_F(AdviceMeter, BarFrameZonesAndPointer) {
  const std::string bar =
      "clear\n"
      "box 0 1.5 15 3.5 255/0/0\n"
      "box 1 1.5 15 3.5 170/0/85\n"
      "box 2 1.5 15 3.5 85/0/170\n"
      "box 3 1.5 15 3.5 0/0/255\n"
      "outline 0 1.5 -7 -6.5 0/0/0\n"
      "box -4 1.5 10 3.5 0/0/0\n"
      "box -3.5 1.5 10 3.5 0/0/0\n"
      "box -3 1.5 10 3.5 0/0/0\n"
      "box -2.5 1.5 10 3.5 0/0/0\n";
  const std::string pointer =
      "line 2 1 2 1 0/0/0\n"
      "line 1.5 0 2.5 0 0/0/0\n";
  const std::string drawn = Meter({3, 5}, 1, "");
  EXPECT_TRUE(drawn.starts_with(bar) && drawn.ends_with(pointer)) << drawn;
  EXPECT_EQ(Meter({3, 5}, kNoScore, "line"), "");
  // As wide as the twips of its shade, but for the last pixel, which the next one covers.
  const std::string wide = "box 0 207 24 483 255/0/0\nbox 10 207 34 483 254/0/1\nbox 30 207 ";
  EXPECT_TRUE(Meter({4935, 690}, 1, "box").starts_with(wide));
}

// Three lines of 160 twips are higher than 65 % of the first meter, so they close up; they shrink
// where a line is too low or a zone too narrow for them.
TEST_F(AdviceMeter, LabelsStandInTheMiddleOfTheirZones) {
  const std::tuple<Size, const char*, const char*> cases[] = {
      {{4935, 690}, "Check or fold", "367.5 385.75 7"},
      {{4935, 690}, "Bet or", "2668.75 233.625 7"},
      {{4935, 690}, "re-raise", "4243.75 537.875 7"},
      {{9870, 1380}, "one raise", "7087.5 1115.75 7"},
      {{4935, 345}, "one raise", "3520.12 264.5 4.025"},
      {{2000, 690}, "Check or fold", "121.481 385.75 3.25926"},
      {{60, 690}, "Check or fold", "-55 385.75 1"}};
  for (const auto& [size, label, place] : cases) {
    const std::string text = std::string("Small ") + label + " ";
    EXPECT_EQ(Meter(size, kNoScore, text), text + place + " 255/255/255\n");
  }
}

TEST_F(AdviceMeter, LabelsByStreet) {
  for (const Street street : {NoStreet, PreFlop, Flop, Turn, River}) {
    std::istringstream labels(Meter({4935, 690}, kNoScore, "Small", street));
    std::string texts;
    for (std::string line; std::getline(labels, line); texts += '/') {
      texts += line.substr(6, line.find_first_of("0123456789") - 7);
    }
    EXPECT_EQ(texts, street == PreFlop
                         ? "Check or fold/Call or/fold if/raised/Raise or/call one/small raise/"
                           "Raise/or call/raised/Raise/or/re-raise/"
                         : "Check or fold/Check or/call one/small bet/Bet or/call one/small bet/"
                           "Raise/or call/one raise/Raise/or/re-raise/");
  }
}

TEST_F(AdviceMeter, ThePointerStandsAtTheScoreOrAtTheEdge) {
  const std::tuple<double, double, const char*> cases[] = {
      // width, score, tip
      {4935, -1, "0"},    {4935, 0.5, "2467"}, {4935, 1.5, "4113"},   {4935, 2, "4935"},
      {4935, -9.99, "0"}, {4936, 0, "1645"},   {4935, 1e300, "4935"}, {4936, 2, "4936"},
      {4937, 2, "4937"},  {4937, 0, "1646"}};
  for (const auto& [width, score, tip] : cases) {
    const std::string pointer = Meter({width, 690}, score, "line");
    EXPECT_TRUE(pointer.starts_with("line " + std::string(tip) + " 207 " + tip + " ")) << pointer;
  }
}

TEST(CardFace, SuitRankAndOpenBorderFollowTheSurface) {
  const auto paint = [](Canvas& canvas) { DrawCardFace(canvas, 40, {1, 2, 3}); };
  EXPECT_EQ(Drawn({600, 840}, paint),
            "clear\n"
            "box 0 0 600 840 1/2/3\n"
            "hearts 150 395.455 315 315\n"
            "Times bold A 206.349 28.1481 16.6667 255/0/0\n"
            "line 12 0 588 0 255/0/0\n"
            "line 585 16.8 585 823.2 255/0/0\n"
            "line 12 825 588 825 255/0/0\n"
            "line 0 16.8 0 823.2 255/0/0\n");
}

TEST(CardFace, RankSuitAndColour) {
  const std::tuple<Card, const char*, const char*> cases[] = {
      {1, "spades", "A 148.942 20.5864 12.2222 0/0/0"},
      {10, "spades", "10 90.7407 20.5864 12.2222 0/0/0"},
      {24, "diamonds", "J 148.942 20.5864 12.2222 255/0/0"},
      {38, "clubs", "Q 148.942 20.5864 12.2222 0/0/0"},
      {52, "hearts", "K 148.942 20.5864 12.2222 255/0/0"}};
  for (const auto& [card, suit, rank] : cases) {
    const auto paint = [code = card](Canvas& canvas) { DrawCardFace(canvas, code, kWhite); };
    EXPECT_NE(Drawn({435, 615}, paint, suit), "");
    EXPECT_EQ(Drawn({435, 615}, paint, "Times"), std::string("Times bold ") + rank + "\n");
  }
}

// 430 and 450 twips are 21.5 and 22.5 points: halves go to the even neighbour.
TEST(CardFace, SlotTextAndOutMarker) {
  const auto text = [](Canvas& canvas) { DrawSlotText(canvas, "?"); };
  EXPECT_EQ(Drawn({430, 855}, text), "Times ? 105 207.5 22 0/0/0\n");
  EXPECT_EQ(Drawn({450, 855}, text), "Times ? 115 207.5 22 0/0/0\n");
  const auto marker = [](Canvas& canvas) { DrawOutMarker(canvas, 1); };
  EXPECT_EQ(Drawn({420, 600}, marker),
            "circle 105 480 60 192/192/192 0/0/0\nline 57 480 153 480 0/0/0\n");
}

using SeatPicture = ProgramTest;

// Seat 2 is the user's, drawn as such whatever its state.
TEST_F(SeatPicture, ImageAndStreetOfTheFold) {
  const std::tuple<int, SeatState, bool, WindowHandle, const char*> cases[] = {
      // Seat, state, fold depth watched, table followed.
      {7, Empty, true, 0, "empty 0 0 1095 615\n"},
      {7, Empty, true, 77, ""},
      {7, In, true, 77, "in 0 0 1095 615\n"},
      {7, FoldedFlop, false, 0, "folded 0 0 1095 615\n"},
      {7, FoldedPreFlop, true, 0, "folded 0 0 1095 615\nSmall PreFlop 267.5 0 7 0/0/0\n"},
      {7, FoldedFlop, true, 0, "folded 0 0 1095 615\nSmall Flop 387.5 0 7 0/0/0\n"},
      {7, FoldedTurn, true, 0, "folded 0 0 1095 615\nSmall Turn 387.5 0 7 0/0/0\n"},
      {7, FoldedRiver, true, 77, "folded 0 0 1095 615\nSmall River 347.5 0 7 0/0/0\n"},
      {2, Empty, true, 77, "me 0 0 1095 615\n"},
      {2, FoldedTurn, true, 0, "me 0 0 1095 615\n"}};
  for (const auto& [seat, state, watchFoldDepth, followed, drawn] : cases) {
    seats.SeatStates[seat] = state;
    seats.WatchFoldDepth = watchFoldDepth;
    autoRead.WatchedWindow = followed;
    const auto paint = [which = seat](Canvas& canvas) { DrawSeat(canvas, which); };
    EXPECT_EQ(Drawn({1065, 585}, paint), std::string("clear\n") + drawn);
  }
}

}  // namespace
}  // namespace holdem
