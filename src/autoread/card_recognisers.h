// Which card's face some pixels show, and whether they show face-down cards: a function of each for
// every way in which table clients draw. The rows of layouts.cpp name the ones that fit.
#pragma once

#include <span>
#include <string>

#include "autoread/colour_measures.h"
#include "platform/desktop.h"

namespace holdem::modCardRead {

// The colour of a pixel by its distance from a corner, from whichever capture holds it; kUnreadable
// where none does.
class PixelsFrom {
 public:
  PixelsFrom(PixelPoint corner, std::span<const Capture> captures)
      : corner_(corner), captures_(captures) {}
  explicit PixelsFrom(const Capture& card)
      : PixelsFrom({card.area.left, card.area.top}, {&card, 1}) {}

  PixelColor operator()(int dx, int dy) const {
    for (const Capture& capture : captures_) {
      const PixelColor colour = capture.At(corner_.x + dx, corner_.y + dy);
      if (colour != kUnreadable) return colour;
    }
    return kUnreadable;
  }
  int Min(int dx, int dy) const { return MinComponent((*this)(dx, dy)); }

 private:
  PixelPoint corner_;
  std::span<const Capture> captures_;
};

// The text of the card whose top-left corner is that of the capture, rank then suit; "??" when no
// card's face is there. These look at pixels (0, 0) to (15, 38) from the corner at most.
std::string RecogniseCardLayout1(const Capture& capture);
std::string RecogniseCardLayout2(const Capture& capture);
std::string RecogniseCardLayout3(const Capture& capture);
std::string RecogniseCardLayout45(const Capture& capture);

// Whether face-down cards lie at the point that the pixels are counted from.
bool HoldsCardsLayout1(const PixelsFrom& cards);
bool HoldsCardsLayout2(const PixelsFrom& cards);
bool HoldsCardsLayout3(const PixelsFrom& cards);
bool HoldsCardsLayout45(const PixelsFrom& cards);

}  // namespace holdem::modCardRead
