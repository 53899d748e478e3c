// A canvas that writes down what is drawn on it, a line for each call: what, its numbers, its
// colours. Every character is half as wide as its font is high, and a point is 20 twips.
#pragma once

#include <array>
#include <sstream>

#include "platform/canvas.h"

namespace holdem {

class RecordingCanvas : public Canvas {
 public:
  RecordingCanvas(Size inner, Size outer) : inner_(inner), outer_(outer) {}
  std::string Drawn() const { return drawn_.str(); }

  Size InnerSize() const override { return inner_; }
  Size OuterSize() const override { return outer_; }
  void Clear() override { drawn_ << "clear\n"; }
  void Line(double x1, double y1, double x2, double y2, Color color) override {
    Write("line", {x1, y1, x2, y2}, {color});
  }
  void FilledBox(const Rect& box, Color color) override { Write("box", box, {color}); }
  void BoxOutline(const Rect& box, Color color) override { Write("outline", box, {color}); }
  void Circle(double x, double y, double radius, Color fill, Color outline) override {
    Write("circle", {x, y, radius}, {fill, outline});
  }
  void Stretched(Picture picture, const Rect& box) override {
    constexpr std::array kNames = {"in",     "folded",   "me",    "empty",
                                   "spades", "diamonds", "clubs", "hearts"};
    Write(kNames.at(static_cast<std::size_t>(picture)), box, {});
  }
  void Text(double x, double y, std::string_view text, const Font& font, Color color) override {
    if (text.empty()) return;
    constexpr std::array kFamilies = {"Times", "Small", "Sans"};
    const std::string family = kFamilies.at(static_cast<std::size_t>(font.family));
    Write(family + (font.bold ? " bold " : " ") + std::string(text), {x, y, font.points}, {color});
  }
  Size TextSize(std::string_view text, const Font& font) const override {
    return {static_cast<double>(text.size()) * font.points * 10, font.points * 20};
  }

 private:
  void Write(const std::string& what, const Rect& box, std::initializer_list<Color> colors) {
    Write(what, {box.left, box.top, box.width, box.height}, colors);
  }
  void Write(const std::string& what, std::initializer_list<double> numbers,
             std::initializer_list<Color> colors) {
    drawn_ << what;
    for (const double number : numbers) drawn_ << " " << number;
    for (const auto& [red, green, blue] : colors)
      drawn_ << " " << +red << "/" << +green << "/" << +blue;
    drawn_ << "\n";
  }

  Size inner_;
  Size outer_;
  std::ostringstream drawn_;
};

}  // namespace holdem
