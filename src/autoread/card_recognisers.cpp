#include "autoread/card_recognisers.h"

#include <cstddef>
#include <cstdint>

#include "autoread/card_templates.h"

namespace holdem::modCardRead {
namespace {

constexpr PixelColor kBlack = 0x000000;
constexpr PixelColor kWhite = 0xFFFFFF;
constexpr const char* kNoFace = "??";

// The figures below are measures 0..255 of the clients' cards as they are drawn. Black and full
// colours measure 0 by their smallest component, paper 255; soft edges lie between.

// The line around a card is at most so bright, the face inside it at least.
constexpr int kOutline = 100;

// A cell below this is ink. Where strokes are thin or signs bold the figure is high, so that soft
// edges count as ink. Where signs are much alike it is low, so that only the middle of a stroke
// counts.
constexpr int kInkOfSuits1 = 40;
constexpr int kInk1 = 120;
constexpr int kInk2 = 30;
constexpr int kInk3 = 120;
constexpr int kThinInk3 = 150;  // of the curves of Six and Nine
constexpr int kInk45 = 170;

// Above these a cell is paper: nothing of the sign reaches there.
constexpr int kPaper = 250;
constexpr int kPaperByHeart2 = 200;  // beside its tip, where the other suits have ink

// A red excess above this is the red of a heart, not the black of a club.
constexpr int kRedInk = 100;

// A green excess below this is not felt, but a card that lies on it.
constexpr int kFelt = 20;

template <std::size_t count>
char FirstMatch(const TemplateChain<count>& chain, const PixelsFrom& card, int threshold,
                char otherwise) {
  CardTemplate::Rows dark{};
  for (std::size_t row = 0; row < chain.rows; ++row) {
    const int dy = chain.top + static_cast<int>(row);
    for (int dx = 0; dx < 16; ++dx) {
      if (card.Min(dx, dy) < threshold) dark[row] |= static_cast<std::uint16_t>(1 << dx);
    }
  }
  for (const CardTemplate& sign : chain.templates) {
    bool holds = true;
    for (std::size_t row = 0; row < dark.size(); ++row) {
      holds &= (dark[row] & sign.dark[row]) == sign.dark[row] && (dark[row] & sign.light[row]) == 0;
    }
    if (holds) return sign.sign;
  }
  return otherwise;
}

std::string CardText(char rank, char suit) { return {rank, suit}; }

// A dark line and the card's light face inside it, from the first to the last pixel along the top
// and left edges.
bool HasOutline(const PixelsFrom& card, int first, int last) {
  for (int k = first; k <= last; ++k) {
    if (card.Min(k, 0) > kOutline || card.Min(k, 1) < kOutline) return false;
    if (card.Min(0, k) > kOutline || card.Min(1, k) < kOutline) return false;
  }
  return true;
}

bool HasBlackOutline(const PixelsFrom& card) {
  for (int k = 1; k <= 5; ++k) {
    if (card(k, 0) != kBlack || card(k, 1) == kBlack) return false;
    if (card(0, k) != kBlack || card(1, k) == kBlack) return false;
  }
  return true;
}

// Whether felt of one colour, and inside it a white border, run along the card's top and left edges
// from pixel `start` to pixel `last`. Nearer to the corner the card is round.
bool HasWhiteBorder(const PixelsFrom& card, int start, int last) {
  const PixelColor felt = card(start, 0);
  if (felt == kWhite || card(start, 1) != kWhite) return false;
  for (int k = start + 1; k <= last; ++k) {
    if (card(k, 1) != kWhite || card(k, 0) != felt) return false;
    if (card(0, k) != felt || card(1, k) != kWhite) return false;
  }
  return true;
}

// Whether a strip of one colour other than white is there, as on a card's back.
bool HasPlainStrip(const PixelsFrom& card) {
  const PixelColor colour = card(5, 5);
  if (colour == kWhite) return false;
  for (int dx = 10; dx <= 15; ++dx) {
    if (card(dx, 5) != colour) return false;
  }
  return true;
}

}  // namespace

std::string RecogniseCardLayout1(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasOutline(card, 2, 6)) return kNoFace;
  return CardText(FirstMatch(kLayout1Ranks, card, kInk1, '9'),
                  FirstMatch(kLayout1Suits, card, kInkOfSuits1, 'C'));
}

std::string RecogniseCardLayout2(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasOutline(card, 6, 10)) return kNoFace;
  const bool green = GreenExcess(card(10, 25)) > 0;
  const char suit = card.Min(10, 23) > kPaperByHeart2   ? 'H'
                    : green && card.Min(5, 25) > kPaper ? 'C'
                    : green                             ? 'S'
                                                        : 'D';
  return CardText(FirstMatch(kLayout2Ranks, card, kInk2, 'Q'), suit);
}

std::string RecogniseCardLayout3(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasBlackOutline(card)) return kNoFace;
  const auto dark = [&](int dx, int dy) { return card.Min(dx, dy) < kInk3; };
  const bool diamond = dark(8, 23) && dark(2, 31) && dark(13, 31) && dark(8, 38);
  const char suit = diamond                            ? 'D'
                    : !dark(8, 34)                     ? 'S'
                    : RedExcess(card(8, 30)) > kRedInk ? 'H'
                                                       : 'C';
  char rank = FirstMatch(kLayout3Ranks, card, kInk3, '?');
  if (rank == '?') rank = FirstMatch(kLayout3LateRanks, card, kThinInk3, '5');
  return CardText(rank, suit);
}

std::string RecogniseCardLayout45(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasWhiteBorder(card, 4, 7) || HasPlainStrip(card)) return kNoFace;
  const auto white = [&](int dx, int dy) { return card.Min(dx, dy) > kPaper; };
  const char suit = white(7, 28) ? 'C' : white(7, 29) ? 'S' : white(5, 22) ? 'D' : 'H';
  return CardText(FirstMatch(kLayout45Ranks, card, kInk45, 'Q'), suit);
}

bool HoldsCardsLayout1(const PixelsFrom& cards) {
  return GreenExcess(cards(0, 0)) < kFelt && GreenExcess(cards(0, 26)) < kFelt;
}

bool HoldsCardsLayout2(const PixelsFrom& cards) {
  return cards(0, 13) == kBlack && cards(15, 0) == kBlack && cards(10, 0) == kBlack;
}

bool HoldsCardsLayout3(const PixelsFrom& cards) {
  return cards(24, 0) == kBlack && cards(12, 0) == kBlack;
}

bool HoldsCardsLayout45(const PixelsFrom& cards) { return HasWhiteBorder(cards, 2, 4); }

}  // namespace holdem::modCardRead
