#include "autoread/mod_card_read.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "autoread/layouts.h"
#include "platform/ports.h"
#include "state/auto_read.h"
#include "state/seats.h"

namespace holdem::modCardRead {
namespace {

// How often a moving card is read on a tick before it is given up.
constexpr int kMaxReads = 6;

bool IsKnown(int layout) { return layout >= 1 && layout <= kLayouts; }

// Pixels that cannot be read, as beyond the screen's edge, say nothing of the table.
std::optional<std::vector<Capture>> ReadTable(std::span<const PixelArea> areas) {
  auto captures = ports.desktop->Read(autoRead.CurrentTable.windowHandle, areas);
  const auto isWhole = [](const Capture& capture) {
    return std::ranges::count(capture.pixels, kUnreadable) == 0;
  };
  if (captures && !std::ranges::all_of(*captures, isWhole)) captures.reset();
  return captures;
}

// Of one position, by two reads in a row. Nothing when a third is needed: a card that moves may be
// caught while it is drawn.
std::optional<Card> ReadCard(const TableLayout& layout, const Capture& capture, Card& lastRead) {
  const Card card = CardTextToCode(layout.recogniseCard(capture));
  if (card == kNoCard || card == std::exchange(lastRead, card) || !layout.cardsMove) return card;
  return std::nullopt;
}

bool SeatHasCards(int seat, std::span<const Capture> captures) {
  const int layout = autoRead.TableLayout;
  return LayoutHasSeat(layout, seat) &&
         LayoutOf(layout).holdsCards({InWindow(HoldingPoints[layout][seat]), captures});
}

}  // namespace

PixelPoint InWindow(PixelPoint point) { return {point.x, point.y - autoRead.CaptionAdjust}; }

Card CardTextToCode(std::string_view text) {
  if (text.size() != 2) return kNoCard;
  const auto rank = std::string_view("A23456789TJQK").find(text[0] == '1' ? 'A' : text[0]);
  const auto suit = std::string_view("SDCH").find(text[1]);
  if (rank == text.npos || suit == text.npos) return kNoCard;
  return CardOf(static_cast<int>(suit) + 1, static_cast<int>(rank) + 1);
}

std::optional<std::vector<Card>> ReadCards(std::span<const CardPosition> positions) {
  std::vector<Card> cards(positions.size(), kNoCard);
  if (!IsKnown(autoRead.TableLayout)) return cards;
  const TableLayout& layout = LayoutOf(autoRead.TableLayout);
  std::vector<Card> lastRead = cards;
  std::vector<std::size_t> open;  // indices of the positions not decided yet
  for (std::size_t i = 0; i < positions.size(); ++i) {
    if (LayoutHasSeat(autoRead.TableLayout, positions[i].seat)) open.push_back(i);
  }
  for (int read = 1; read <= kMaxReads && !open.empty(); ++read) {
    std::vector<PixelArea> areas;
    for (const std::size_t i : open) {
      const auto [seat, card] = positions[i];
      const PixelPoint corner = CardPoints[autoRead.TableLayout][seat][card];
      areas.push_back(layout.cardArea.Moved(InWindow(corner)));
    }
    const auto captures = ReadTable(areas);
    if (!captures) return std::nullopt;
    std::vector<std::size_t> stillOpen;
    for (std::size_t n = 0; n < open.size(); ++n) {
      const std::size_t i = open[n];
      const auto card = ReadCard(layout, (*captures)[n], lastRead[i]);
      if (card) cards[i] = *card;
      if (!card) stillOpen.push_back(i);
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
    if (!LayoutHasSeat(layout, seat)) continue;
    areas[seat - 1] = PixelArea{0, 0, 1, 1}.Moved(InWindow(ButtonPoints[layout][seat]));
  }
  const auto captures = ReadTable(areas);
  if (!captures) return std::nullopt;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!LayoutHasSeat(layout, seat)) continue;
    if (LayoutOf(layout).isButton((*captures)[seat - 1].pixels[0])) return seat;
  }
  return 0;
}

std::optional<std::array<bool, kSeats + 1>> SeatsHoldingCards() {
  std::array<bool, kSeats + 1> holding{};
  const int layout = autoRead.TableLayout;
  if (!IsKnown(layout)) return holding;
  const auto& parts = LayoutOf(layout).holdingAreas;
  std::vector<PixelArea> areas;
  for (int seat = 1; seat <= kSeats; ++seat) {
    for (const PixelArea& part : parts) {
      areas.push_back(LayoutHasSeat(layout, seat)
                          ? part.Moved(InWindow(HoldingPoints[layout][seat]))
                          : PixelArea{});
    }
  }
  const auto captures = ReadTable(areas);
  if (!captures) return std::nullopt;
  for (int seat = 1; seat <= kSeats; ++seat) {
    const auto ofSeat = std::span(*captures).subspan((seat - 1) * parts.size(), parts.size());
    holding[seat] = SeatHasCards(seat, ofSeat);
  }
  return holding;
}

bool HasLayout3Marker(WindowHandle window) {
  const PixelPoint corner = InWindow({373, 417});
  const std::array<PixelArea, 1> area = {PixelArea{0, 0, 10, 1}.Moved(corner)};
  const auto captures = ports.desktop->Read(window, area);
  if (!captures) return false;
  const PixelsFrom row(corner, *captures);
  const PixelColor a = row(0, 0);
  const PixelColor b = row(1, 0);
  return a != b && row(4, 0) == a && row(7, 0) == a && row(9, 0) == a && row(3, 0) == b &&
         row(6, 0) == b && row(8, 0) == b;
}

}  // namespace holdem::modCardRead
