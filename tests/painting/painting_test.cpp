// The painters' calls, as the canvas writes them down.
#include "fakes/approved.h"
#include "fakes/fake_ports.h"
#include "fakes/recording_canvas.h"
#include "painting/advice_meter.h"
#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "painting/seat_picture.h"

namespace holdem {
namespace {

class PaintingTest : public ProgramTest {
 protected:
  // A line of what is painted on a surface of that size. Of the meter's many shades, every
  // fiftieth.
  template <typename Painter, typename... Values>
  void Add(const std::string& situation, Size inner, Painter paint, Values... values) {
    RecordingCanvas canvas(inner);
    paint(canvas, values...);
    text << situation << " on " << inner.width << "x" << inner.height << ":";
    std::istringstream calls(canvas.Drawn());
    int shades = 0;
    for (std::string call; std::getline(calls, call);) {
      const bool isShade = call.starts_with("box") && !call.ends_with(" 0/0/0");
      if (!isShade || shades++ % 50 == 0) text << " " << call << ";";
    }
    text << "\n";
  }

  std::ostringstream text;
};

// 430 and 450 twips are 21.5 and 22.5 points, of which halves go to the even neighbour.
TEST_F(PaintingTest, CardsSeatsAndOuts) {
  for (Card card = 1; card <= 13; ++card) Add(TextOf(card), {430, 615}, DrawCardFace, card, kWhite);
  for (const Card card : {14, 27, 40})
    Add(TextOf(card), {450, 855}, DrawCardFace, card, Color{1, 2, 3});
  for (const char* typed : {"?", "10"})
    for (const double width : {430, 450}) Add(typed, {width, 615}, DrawSlotText, typed);
  for (const WindowHandle followed : {0, 77}) {
    for (const bool depth : {false, true}) {
      PutSeats(".i2345.... 7 2");
      seats.WatchFoldDepth = depth;
      autoRead.WatchedWindow = followed;
      for (int seat = 1; seat <= 7; ++seat)
        Add(std::string("seat as ") + ".i2345m"[seat - 1] + (depth ? ", fold depth" : "") +
                (followed == 0 ? "" : ", followed"),
            {1065, 585}, DrawSeat, seat);
    }
  }
  for (int row = 0; row < kCategoryRows; ++row) {
    Add(lbllbl[row] + std::string(" out"), {700, 1000}, DrawOutMarker, row);
    Add(lbllbl[row] + std::string(" title"), {1500, 240}, DrawRowMarker, row);
  }
  Add("Flush title", {1500, 1000}, DrawRowMarker, 4);
  ExpectApproved("pictures", text.str());
}

// Only before the flop it has labels of its own.
TEST_F(PaintingTest, TheMeterIsAsWideAsItsSurface) {
  for (const Size size : {Size{4935, 690}, Size{4937, 345}, Size{2000, 690}, Size{60, 90}}) {
    for (const Street street : {NoStreet, PreFlop, Flop, Turn, River}) {
      analysis.CurrentStreet = street;
      Add("street " + std::to_string(street), size, DrawMeterScale);
    }
  }
  for (const double score : {kNoScore, -9.99, -1.0, -0.5, 0.0, 0.5, 1.5, 1.99, 2.0, 1e300}) {
    advice.MeterScore = score;
    Add("score " + std::to_string(score).substr(0, 6), {4937, 10}, DrawMeterPointer);
  }
  ExpectApproved("meter", text.str());
}

}  // namespace
}  // namespace holdem
