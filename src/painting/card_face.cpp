#include "painting/card_face.h"

#include <cassert>
#include <string>

#include "cards/description.h"
#include "figures/percent_text.h"

namespace holdem {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kRankShare = 1.8;  // how many times wider a card is than its rank is high

// The surface's inner width in whole points, from which the font sizes follow.
double WidthInPoints(const Canvas& surface) {
  return RoundHalfEven(surface.InnerSize().width / kTwipsPerPoint);
}

std::string RankText(int rank) {
  return rank == 10 ? "10" : std::string(1, kRankLetters[static_cast<std::size_t>(rank) - 1]);
}

constexpr Picture SuitPicture(int suit) {
  return static_cast<Picture>(static_cast<int>(Picture::Spades) + suit - Spades);
}

// Four lines that leave the corners open.
void DrawBorder(Canvas& surface, Color color) {
  const auto [width, height] = surface.InnerSize();
  const double right = width - kTwipsPerPixel;
  const double bottom = height - kTwipsPerPixel;
  surface.Line(0.02 * width, 0, 0.98 * width, 0, color);
  surface.Line(right, 0.02 * height, right, 0.98 * height, color);
  surface.Line(0.02 * width, bottom, 0.98 * width, bottom, color);
  surface.Line(0, 0.02 * height, 0, 0.98 * height, color);
}

// The second digit of a ten stands closer to the first, so that the next card in the deck window
// does not cover it.
void DrawRank(Canvas& surface, std::string_view text, const Font& font, Color color) {
  constexpr double kCloser = 0.07;  // of a digit's width
  const Size inner = surface.InnerSize();
  const Size size = surface.TextSize(text, font);
  double x = (inner.width - size.width) / 2.1;
  for (; !text.empty(); text.remove_prefix(1)) {
    const std::string_view sign = text.substr(0, 1);
    surface.Text(x, (inner.height - size.height) / 18, sign, font, color);
    x += surface.TextSize(sign, font).width * (1 - kCloser);
  }
}

}  // namespace

void DrawCardFace(Canvas& surface, Card card, Color background) {
  assert(IsRealCard(card));
  const int suit = SuitOf(card);
  const Color color = suit == Diamonds || suit == Hearts ? kRed : kBlack;
  const Size inner = surface.InnerSize();
  const Size outer = surface.OuterSize();

  surface.Clear();
  surface.FilledBox({0, 0, inner.width, inner.height}, background);
  surface.Stretched(SuitPicture(suit), {(inner.width - outer.width / 2) / 1.9, outer.height / 2.2,
                                        outer.width / 2, outer.width / 2});
  const std::string text = RankText(RankOf(card));
  const Font font{FontFamily::TimesNewRoman, WidthInPoints(surface) / kRankShare, true};
  DrawRank(surface, text, font, color);
  DrawBorder(surface, color);
}

void DrawSlotText(Canvas& surface, std::string_view text) {
  const Size inner = surface.InnerSize();
  const double points = WidthInPoints(surface);
  const Font font{FontFamily::TimesNewRoman, text.size() > 1 ? points / kRankShare : points};
  const Size size = surface.TextSize(text, font);
  surface.Text((inner.width - size.width) / 2, (inner.height - size.height) / 2, text, font,
               kBlack);
}

}  // namespace holdem
