// A canvas that writes down what is drawn on it, a line for each call: what, its numbers, its
// colours. Every character is half as wide as its font is high, a point is 20 twips, and the border
// is 15 twips wide on every side.
#pragma once

#include <array>
#include <sstream>

#include "platform/canvas.h"

namespace holdem {

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

}  // namespace holdem
