// The painters' calls, as the canvas writes them down.
#include "fakes/fake_ports.h"
#include "painting/advice_meter.h"
#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "painting/seat_picture.h"

namespace holdem {
namespace {

// A canvas that writes down what is drawn on it, a line for each call: what, its numbers, its
// colours. Every character is half as wide as its font is high, a point is 20 twips, and the border
// is 15 twips wide on every side.
class RecordingCanvas : public Canvas {
 public:
  explicit RecordingCanvas(Size inner) : inner_(inner) {}
  std::string Drawn() const { return drawn_.str(); }

  Size InnerSize() const override { return inner_; }
  Size OuterSize() const override { return {inner_.width + 30, inner_.height + 30}; }
  void Clear() override { Write("clear"); }
  void Line(double x1, double y1, double x2, double y2, Color color) override {
    Write("line", x1, y1, x2, y2, color);
  }
  void FilledBox(const Rect& box, Color color) override { Write("box", box, color); }
  void BoxOutline(const Rect& box, Color color) override { Write("outline", box, color); }
  void Circle(double x, double y, double radius, Color fill, Color outline) override {
    Write("circle", x, y, radius, fill, outline);
  }
  void Stretched(Picture picture, const Rect& box) override {
    constexpr std::array kNames = {"in",     "folded",   "me",    "empty",
                                   "spades", "diamonds", "clubs", "hearts"};
    Write(kNames.at(static_cast<std::size_t>(picture)), box);
  }
  void Text(double x, double y, std::string_view text, const Font& font, Color color) override {
    if (text.empty()) return;
    constexpr std::array kFamilies = {"Times", "Small", "Sans"};
    const char* const family = kFamilies.at(static_cast<std::size_t>(font.family));
    Write(family, font.bold ? "bold" : "plain", text, x, y, font.points, color);
  }
  Size TextSize(std::string_view text, const Font& font) const override {
    return {static_cast<double>(text.size()) * font.points * 10, font.points * 20};
  }

 private:
  void Write(const char* what, const auto&... parts) {
    drawn_ << what;
    (Add(parts), ...);
    drawn_ << "\n";
  }
  void Add(const auto& part) { drawn_ << " " << part; }
  void Add(const Rect& box) { (Add(box.left), Add(box.top), Add(box.width), Add(box.height)); }
  void Add(const Color& color) {
    drawn_ << " " << +color.red << "/" << +color.green << "/" << +color.blue;
  }

  Size inner_;
  std::ostringstream drawn_;
};

struct PaintingTest : ProgramTest {
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
  PutSeats(".i2345.... 7 2");
  for (const std::string table : {"", ", fold depth", ", followed"}) {
    seats.WatchFoldDepth = table == ", fold depth";
    autoRead.WatchedWindow = table == ", followed" ? 77 : 0;
    for (int seat = 1; seat <= 7; ++seat)
      Add(std::string("seat as ") + ".i2345m"[seat - 1] + table, {1065, 585}, DrawSeat, seat);
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
