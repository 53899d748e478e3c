// A canvas that records what is drawn on it. Every character is half as wide as its font is high.
#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"

namespace holdem {

class RecordingCanvas : public Canvas {
 public:
  struct LineCall {
    double x1, y1, x2, y2;
    Color color;
  };
  struct BoxCall {
    Rect box;
    Color color;
  };
  struct CircleCall {
    double x, y, radius;
    Color fill, outline;
  };
  struct PictureCall {
    Picture picture;
    Rect box;
  };
  struct TextCall {
    double x, y;
    std::string text;
    Font font;
    Color color;
  };

  RecordingCanvas(Size inner, Size outer) : inner_(inner), outer_(outer) {}

  Size InnerSize() const override { return inner_; }
  Size OuterSize() const override { return outer_; }
  void Clear() override {
    ++clears;
    lines.clear();
    boxes.clear();
    outlines.clear();
    circles.clear();
    pictures.clear();
    texts.clear();
  }
  void Line(double x1, double y1, double x2, double y2, Color color) override {
    lines.push_back({x1, y1, x2, y2, color});
  }
  void FilledBox(const Rect& box, Color color) override { boxes.push_back({box, color}); }
  void BoxOutline(const Rect& box, Color color) override { outlines.push_back({box, color}); }
  void Circle(double x, double y, double radius, Color fill, Color outline) override {
    circles.push_back({x, y, radius, fill, outline});
  }
  void Stretched(Picture picture, const Rect& box) override { pictures.push_back({picture, box}); }
  void Text(double x, double y, std::string_view text, const Font& font, Color color) override {
    texts.push_back({x, y, std::string(text), font, color});
  }
  Size TextSize(std::string_view text, const Font& font) const override {
    const double height = font.points * kTwipsPerPoint;
    return {static_cast<double>(text.size()) * height / 2, height};
  }

  static constexpr double kTwipsPerPoint = 20;

  int clears = 0;
  std::vector<LineCall> lines;
  std::vector<BoxCall> boxes;
  std::vector<BoxCall> outlines;
  std::vector<CircleCall> circles;
  std::vector<PictureCall> pictures;
  std::vector<TextCall> texts;

 private:
  Size inner_;
  Size outer_;
};

}  // namespace holdem
