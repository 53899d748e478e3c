#include "autoread/mod_card_read.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "autoread/layouts.h"
#include "cards/description.h"
#include "platform/ports.h"
#include "state/auto_read.h"
#include "state/seats.h"

namespace holdem::modCardRead {
namespace {

bool ShowsLayout3Marker(const Capture& capture) {
  const PixelsFrom row(capture);
  const PixelColor a = row(0, 0);
  const PixelColor b = row(1, 0);
  return a != b && row(4, 0) == a && row(7, 0) == a && row(9, 0) == a && row(3, 0) == b &&
         row(6, 0) == b && row(8, 0) == b;
}

// Rank then suit, such as "TD"; kNoCard for anything else.
Card CardTextToCode(std::string_view text) {
  if (text.size() != 2) return kNoCard;
  const auto rank = kRankLetters.find(text[0] == '1' ? 'A' : text[0]);
  const auto suit = std::string_view("SDCH").find(text[1]);
  if (rank == text.npos || suit == text.npos) return kNoCard;
  return CardOf(static_cast<int>(suit) + 1, static_cast<int>(rank) + 1);
}

// The lowest seat with the button, 0 for none.
int FindDealerSeat(std::span<const Capture> buttons) {
  const auto shown = std::ranges::find_if(buttons, [](const Capture& button) {
    return !button.pixels.empty() && LayoutOf(autoRead.TableLayout).isButton(button.pixels[0]);
  });
  return shown == buttons.end() ? 0 : static_cast<int>(shown - buttons.begin()) + 1;
}

// kNoCard when none can be read.
Card ReadCard(const Capture& card) {
  if (card.pixels.empty()) return kNoCard;
  return CardTextToCode(LayoutOf(autoRead.TableLayout).recogniseCard(card));
}

// Face down.
bool SeatHasCards(Seat seat, std::span<const Capture> backs) {
  const auto ofSeat = backs.subspan(2 * static_cast<std::size_t>(seat) - 2, 2);
  if (ofSeat[0].pixels.empty()) return false;
  const PixelPoint corner = InWindow(HoldingPoints[autoRead.TableLayout][seat]);
  return LayoutOf(autoRead.TableLayout).holdsCards({corner, ofSeat});
}

}  // namespace

PixelPoint InWindow(PixelPoint point) { return {point.x, point.y - autoRead.CaptionAdjust}; }

PartsOfTable<PixelArea> AreasOfTable() {
  PartsOfTable<PixelArea> areas;
  const int number = autoRead.TableLayout;
  if (number < 1 || number > kLayouts) return areas;
  const Layout& layout = LayoutOf(number);
  const auto from = [](const PixelArea& area, PixelPoint corner) {
    return area.Moved(InWindow(corner));
  };
  const auto& cardPoints = CardPoints[number];
  for (int card = 1; card <= 5; ++card) {
    areas.Cards()[card + 1] = from(layout.cardArea, cardPoints[kBoardSeat][card]);
  }
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!LayoutHasSeat(number, seat)) continue;
    areas.Buttons()[seat - 1] = from({0, 0, 1, 1}, ButtonPoints[number][seat]);
    for (int i = 0; i < 2; ++i) {
      if (seat == seats.MySeat) {
        areas.Cards()[i] = from(layout.cardArea, cardPoints[seat][i + 1]);
      } else {
        areas.Backs()[2 * seat - 2 + i] = from(layout.holdingAreas[i], HoldingPoints[number][seat]);
      }
    }
  }
  if (layout.hasMarker) areas.Marker() = Layout3MarkerArea();
  return areas;
}

std::optional<TableReading> LookAtTable() {
  auto read = ports.desktop->Read(autoRead.CurrentTable.windowHandle, AreasOfTable().all);
  if (!read || !std::ranges::all_of(*read, &Capture::IsWhole)) return std::nullopt;
  PartsOfTable<Capture> table{std::move(*read)};
  if (!table.Marker().area.IsEmpty() && !ShowsLayout3Marker(table.Marker())) return std::nullopt;
  TableReading reading{.dealerSeat = FindDealerSeat(table.Buttons())};
  std::ranges::transform(table.Cards(), reading.cards.begin(), ReadCard);
  for (int seat = 1; seat <= kSeats; ++seat) {
    reading.holding[seat] = SeatHasCards(seat, table.Backs());
  }
  return reading;
}

PixelArea Layout3MarkerArea() { return PixelArea{0, 0, 10, 1}.Moved(InWindow({373, 417})); }

bool HasLayout3Marker(WindowHandle window) {
  const auto captures = ports.desktop->Read(window, std::array{Layout3MarkerArea()});
  return captures && ShowsLayout3Marker(captures->front());
}

}  // namespace holdem::modCardRead
