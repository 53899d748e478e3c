#include "autoread/mod_card_read.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "autoread/card_templates.h"
#include "autoread/layouts.h"
#include "platform/ports.h"
#include "state/auto_read.h"
#include "state/seats.h"

namespace holdem::modCardRead {
namespace {

constexpr PixelColor kBlack = 0x000000;
constexpr PixelColor kWhite = 0xFFFFFF;
constexpr const char* kNoFace = "??";

// How often a layout-1 card is read on a tick before it is given up as moving.
constexpr int kMaxReads = 6;

// Pixels by their distance from a corner, found in whichever of the captures holds them.
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
    if (card.Min(k, 0) > 100 || card.Min(k, 1) < 100) return false;
    if (card.Min(0, k) > 100 || card.Min(1, k) < 100) return false;
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

// The felt in its one colour, and a white border inside it, along the top and left edges. The felt
// is met at `start`, and both are followed from there to the last pixel but for the round corner.
bool HasWhiteBorder(const PixelsFrom& card, int start, int last) {
  const PixelColor felt = card(start, 0);
  if (felt == kWhite || card(start, 1) != kWhite) return false;
  for (int k = start + 1; k <= last; ++k) {
    if (card(k, 1) != kWhite || card(k, 0) != felt) return false;
    if (card(0, k) != felt || card(1, k) != kWhite) return false;
  }
  return true;
}

// The card's back: one colour all along.
bool HasPlainStrip(const PixelsFrom& card) {
  const PixelColor colour = card(5, 5);
  if (colour == kWhite) return false;
  for (int dx = 10; dx <= 15; ++dx) {
    if (card(dx, 5) != colour) return false;
  }
  return true;
}

// Of the part of a card that its recogniser looks at, from the card's corner; by layout 1..5.
constexpr PixelArea kCardAreas[kLayouts] = {
    {0, 0, 14, 32}, {0, 0, 16, 26}, {0, 0, 14, 39}, {0, 0, 16, 30}, {0, 0, 16, 30}};

// Of the parts of an opponent's cards that are looked at, from the holding point; by layout 1..5.
constexpr PixelArea kHoldingAreas1[] = {{0, 0, 1, 1}, {0, 26, 1, 27}};
constexpr PixelArea kHoldingAreas2[] = {{10, 0, 16, 1}, {0, 13, 1, 14}};
constexpr PixelArea kHoldingAreas3[] = {{12, 0, 25, 1}};
constexpr PixelArea kHoldingAreas45[] = {{0, 0, 5, 5}};
constexpr std::span<const PixelArea> kHoldingAreas[kLayouts] = {
    kHoldingAreas1, kHoldingAreas2, kHoldingAreas3, kHoldingAreas45, kHoldingAreas45};

bool IsKnown(int layout) { return layout >= 1 && layout <= kLayouts; }

PixelPoint InWindow(PixelPoint point) { return {point.x, point.y - autoRead.CaptionAdjust}; }

PixelArea AreaFrom(PixelPoint corner, const PixelArea& area) {
  return {corner.x + area.left, corner.y + area.top, corner.x + area.right, corner.y + area.bottom};
}

std::optional<std::vector<Capture>> ReadTable(std::span<const PixelArea> areas) {
  return ports.desktop->Read(autoRead.CurrentTable.windowHandle, areas);
}

Card RecogniseCard(int layout, const Capture& card) {
  switch (layout) {
    case 1: return CardTextToCode(RecogniseCardLayout1(card));
    case 2: return CardTextToCode(RecogniseCardLayout2(card));
    case 3: return CardTextToCode(RecogniseCardLayout3(card));
    default: return CardTextToCode(RecogniseCardLayout45(card));
  }
}

bool IsButton(int layout, PixelColor colour) {
  switch (layout) {
    case 1: return MinComponent(colour) >= 200;
    case 2: return RedExcess(colour) >= 200;
    case 3: return MinComponent(colour) >= 150;
    default: return RedExcess(colour) >= 130;
  }
}

bool HoldsCards(int layout, const PixelsFrom& cards) {
  switch (layout) {
    case 1: return GreenExcess(cards(0, 0)) < 20 && GreenExcess(cards(0, 26)) < 20;  // no felt
    case 2: return cards(0, 13) == kBlack && cards(15, 0) == kBlack && cards(10, 0) == kBlack;
    case 3: return cards(24, 0) == kBlack && cards(12, 0) == kBlack;
    default: return HasWhiteBorder(cards, 2, 4);
  }
}

// The excess of one component over the others, 0 when it is not above both.
int Excess(int component, int other, int another) {
  return std::max(component - std::max(other, another), 0);
}

}  // namespace

Components SplitColour(PixelColor colour) {
  const auto value = static_cast<std::int32_t>(colour);  // all ones is -1
  return {value % 256, value / 256 % 256, value / 65536 % 256};
}

int MinComponent(PixelColor colour) {
  const auto [red, green, blue] = SplitColour(colour);
  return std::min({red, green, blue});
}

int GreenExcess(PixelColor colour) {
  const auto [red, green, blue] = SplitColour(colour);
  return Excess(green, red, blue);
}

int RedExcess(PixelColor colour) {
  const auto [red, green, blue] = SplitColour(colour);
  return Excess(red, green, blue);
}

Card CardTextToCode(std::string_view text) {
  if (text.size() != 2) return kNoCard;
  const auto rank = std::string_view("A23456789TJQK").find(text[0] == '1' ? 'A' : text[0]);
  const auto suit = std::string_view("SDCH").find(text[1]);
  if (rank == text.npos || suit == text.npos) return kNoCard;
  return CardOf(static_cast<int>(suit) + 1, static_cast<int>(rank) + 1);
}

std::string RecogniseCardLayout1(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasOutline(card, 2, 6)) return kNoFace;
  return CardText(FirstMatch(kLayout1Ranks, card, 120, '9'),
                  FirstMatch(kLayout1Suits, card, 40, 'C'));
}

std::string RecogniseCardLayout2(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasOutline(card, 6, 10)) return kNoFace;
  const bool green = GreenExcess(card(10, 25)) > 0;
  const char suit = card.Min(10, 23) > 200           ? 'H'
                    : green && card.Min(5, 25) > 250 ? 'C'
                    : green                          ? 'S'
                                                     : 'D';
  return CardText(FirstMatch(kLayout2Ranks, card, 30, 'Q'), suit);
}

std::string RecogniseCardLayout3(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasBlackOutline(card)) return kNoFace;
  const auto dark = [&](int dx, int dy) { return card.Min(dx, dy) < 120; };
  const bool diamond = dark(8, 23) && dark(2, 31) && dark(13, 31) && dark(8, 38);
  const char suit = diamond ? 'D' : !dark(8, 34) ? 'S' : RedExcess(card(8, 30)) > 100 ? 'H' : 'C';
  char rank = FirstMatch(kLayout3Ranks, card, 120, '?');
  if (rank == '?') rank = FirstMatch(kLayout3LateRanks, card, 150, '5');
  return CardText(rank, suit);
}

std::string RecogniseCardLayout45(const Capture& capture) {
  const PixelsFrom card(capture);
  if (!HasWhiteBorder(card, 4, 7) || HasPlainStrip(card)) return kNoFace;
  const auto white = [&](int dx, int dy) { return card.Min(dx, dy) > 250; };
  const char suit = white(7, 28) ? 'C' : white(7, 29) ? 'S' : white(5, 22) ? 'D' : 'H';
  return CardText(FirstMatch(kLayout45Ranks, card, 170, 'Q'), suit);
}

// A layout-1 card may be caught while it is drawn: it is taken when two successive reads agree.
std::optional<std::vector<Card>> ReadCards(std::span<const CardPosition> positions) {
  const int layout = autoRead.TableLayout;
  std::vector<Card> cards(positions.size(), kNoCard);
  if (!IsKnown(layout)) return cards;
  const bool twice = layout == 1;
  std::vector<Card> lastRead = cards;
  std::vector<std::size_t> open;  // indices of the positions not decided yet
  for (std::size_t i = 0; i < positions.size(); ++i) {
    if (LayoutHasSeat(layout, positions[i].seat)) open.push_back(i);
  }
  for (int read = 1; read <= kMaxReads && !open.empty(); ++read) {
    std::vector<PixelArea> areas;
    for (const std::size_t i : open) {
      const auto [seat, card] = positions[i];
      areas.push_back(AreaFrom(InWindow(CardPoints[layout][seat][card]), kCardAreas[layout - 1]));
    }
    const auto captures = ReadTable(areas);
    if (!captures) return std::nullopt;
    std::vector<std::size_t> stillOpen;
    for (std::size_t n = 0; n < open.size(); ++n) {
      const std::size_t i = open[n];
      const Card card = RecogniseCard(layout, (*captures)[n]);
      if (card == kNoCard || card == lastRead[i] || !twice) {
        cards[i] = card;
      } else {
        lastRead[i] = card;
        stillOpen.push_back(i);
      }
    }
    open = std::move(stillOpen);
  }
  return cards;
}

std::optional<int> FindDealerSeat() {
  const int layout = autoRead.TableLayout;
  if (!autoRead.Following() || !IsKnown(layout)) return 0;
  std::array<PixelArea, kSeats> areas;
  for (int seat = 1; seat <= kSeats; ++seat) {
    areas[seat - 1] = AreaFrom(InWindow(ButtonPoints[layout][seat]), {0, 0, 1, 1});
  }
  const auto captures = ReadTable(areas);
  if (!captures) return std::nullopt;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (LayoutHasSeat(layout, seat) && IsButton(layout, (*captures)[seat - 1].pixels[0])) {
      return seat;
    }
  }
  return 0;
}

std::optional<std::array<bool, kSeats + 1>> SeatsHoldingCards() {
  const int layout = autoRead.TableLayout;
  std::array<bool, kSeats + 1> holding{};
  if (!IsKnown(layout)) return holding;
  const std::span<const PixelArea> parts = kHoldingAreas[layout - 1];
  std::vector<PixelArea> areas;
  for (int seat = 1; seat <= kSeats; ++seat) {
    for (const PixelArea& part : parts) {
      areas.push_back(AreaFrom(InWindow(HoldingPoints[layout][seat]), part));
    }
  }
  const auto captures = ReadTable(areas);
  if (!captures) return std::nullopt;
  for (int seat = 1; seat <= kSeats; ++seat) {
    const auto ofSeat = std::span(*captures).subspan((seat - 1) * parts.size(), parts.size());
    holding[seat] = LayoutHasSeat(layout, seat) &&
                    HoldsCards(layout, {InWindow(HoldingPoints[layout][seat]), ofSeat});
  }
  return holding;
}

bool HasLayout3Marker(WindowHandle window) {
  const PixelPoint corner = InWindow({373, 417});
  const std::array<PixelArea, 1> area = {AreaFrom(corner, {0, 0, 10, 1})};
  const auto captures = ports.desktop->Read(window, area);
  if (!captures) return false;
  const PixelsFrom row(corner, *captures);
  const PixelColor a = row(0, 0);
  const PixelColor b = row(1, 0);
  return a != b && row(4, 0) == a && row(7, 0) == a && row(9, 0) == a && row(3, 0) == b &&
         row(6, 0) == b && row(8, 0) == b;
}

}  // namespace holdem::modCardRead
