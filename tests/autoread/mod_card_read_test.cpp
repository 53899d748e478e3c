#include "autoread/mod_card_read.h"

#include <random>

#include "autoread/layouts.h"
#include "effort.h"
#include "fakes/fake_ports.h"
#include "fakes/table_window.h"

namespace holdem::modCardRead {
namespace {

// Parts of what a look reads.
std::optional<int> FindDealerSeat() {
  return modCardRead::FindDealerSeat(*ports.desktop->Read(77, AreasOfTable().Buttons()));
}
std::optional<std::array<bool, kSeats + 1>> SeatsHoldingCards() {
  return modCardRead::SeatsHoldingCards(*ports.desktop->Read(77, AreasOfTable().Backs()));
}

// The readers against the stand-in client's pictures, which know nothing of the readers' tables.
class EveryTable : public ProgramTest, public testing::WithParamInterface<int> {
 protected:
  EveryTable() {
    LoadTableLayouts();
    FollowATable();
    autoRead.TableLayout = table.layout;
  }
  void Show() { desktop.windows = {TableWindow(table, 77)}; }

  table_client::Table table{.layout = GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Layouts, EveryTable, testing::Range(1, kLayouts + 1));

// Wherever the user sits, every card stands at each of the user's and the board's places; button
// and opponents change all the time. First no cards are shown, and no place shows a face. All under
// a lower caption bar than the drawn one, and in fresh noise at every read, but for what is
// compared exactly.
TEST_P(EveryTable, IsReadBack) {
  autoRead.CaptionAdjust = 7;
  std::minstd_rand random;
  const std::vector<bool> exact = table_client::ExactPixels(table.layout);
  for (int round = 0; round < kSeats * (kCardCount + 1); ++round) {
    const int hero = 1 + round % kSeats, card = round / kSeats;
    if (!table.HasSeat(hero)) continue;
    SCOPED_TRACE(testing::Message() << "user " << hero << ", card " << card);
    seats.MySeat = table.heroSeat = hero;
    table.buttonSeat = table.HasSeat(card % 11) ? card % 11 : 0;
    std::array<Card, 7> cards{};
    for (int i = 0; i < 7 && card > 0; ++i) {
      cards[i] = (card + (i < 2 ? 5 * hero * i : 9 * (i - 2) + hero)) % kCardCount + 1;
      (i < 2 ? table.hole[i] : table.board[i - 2]) = cards[i];
    }
    std::array<bool, kSeats + 1> holding{};
    for (int seat = 1; seat <= kSeats; ++seat) {
      table.looks[seat] = static_cast<table_client::SeatLook>(random() % 3);
      const bool in = table.looks[seat] == table_client::SeatLook::In;
      holding[seat] = in && table.HasSeat(seat) && seat != hero;
    }
    Show();
    FakeWindow& window = desktop.windows[0];
    window.painted = [&, drawn = window.painted](int x, int y) {
      const PixelColor color = drawn(x, y += autoRead.CaptionAdjust);
      const auto noise = static_cast<std::uint32_t>(random());
      return exact.at(y * window.outer.Width() + x) ? color : table_client::Noisy(color, 4, noise);
    };
    const TableReading read = LookAtTable().value();
    EXPECT_EQ(read.cards, cards);
    EXPECT_EQ(read.dealerSeat, table.buttonSeat);
    EXPECT_EQ(read.holding, holding);
  }
}

// Which pixels count and where the borders of their colours lie was found on the clients' own
// cards, so a change must be meant. The pixels of each rank's card, of an opponent's backs, of the
// button and of the marker take, one at a time, each of the colours around those borders; what is
// read then is kept as a fingerprint.
TEST_P(EveryTable, EachPixelCountsAsItDid) {
  if (kSanitized) GTEST_SKIP() << "a million cards take too long under a sanitizer";
  std::vector<PixelColor> colors = {0,        0xFFFFFF, 0x63FFFF, 0xFF63FF, 0x404241, 0x404242,
                                    0x201F85, 0x1F2084, 0x1A10E2, 0x1A10E1, 0x101A9C, 0x101A9B,
                                    0x203310, 0x103320, 0x203410, 0x103420, 0x006010};
  for (const int least : {1, 29, 39, 99, 100, 119, 149, 169, 199, 200, 250, 254}) {
    for (const int measure : {least, least + 1}) colors.push_back(0xFFFFFF - (255 - measure));
  }
  table.looks[9] = table_client::SeatLook::In;
  table.buttonSeat = 9;
  Fingerprint readings;
  for (int rank = 1; rank <= kRankCount; ++rank) {
    table.board = {CardOf(1 + rank % 4, rank)};
    Show();
    const PixelArea area = PixelArea{0, 0, 16, 39}.Moved(CardPoints[table.layout][kBoardSeat][1]);
    Capture card = desktop.Read(77, {&area, 1})->at(0);
    for (PixelColor& pixel : card.pixels) {
      for (const PixelColor color : colors) {
        const PixelColor drawn = std::exchange(pixel, color);
        readings.Add(CardTextToCode(LayoutOf(table.layout).recogniseCard(card)));
        pixel = drawn;
      }
    }
  }
  const auto tryAll = [&](PixelPoint corner, int width, int height, auto read) {
    for (int pixel = 0; pixel < width * height; ++pixel) {
      for (const PixelColor color : colors) {
        const std::pair place(corner.x + pixel % width, corner.y + pixel / width);
        desktop.windows[0].changed = {{place, color}};
        readings.Add(read());
      }
    }
  };
  tryAll(HoldingPoints[table.layout][9], 26, 28, [] { return SeatsHoldingCards()->at(9); });
  tryAll(ButtonPoints[table.layout][9], 1, 1, [] { return *FindDealerSeat(); });
  tryAll({373, 417}, 10, 1, [] { return HasLayout3Marker(77); });
  for (const auto* points : {&ButtonPoints, &HoldingPoints}) readings.Add((*points)[table.layout]);
  readings.Add(CardPoints[table.layout]);
  constexpr std::array<std::uint64_t, kLayouts> kKnown = {
      15197797047956156725U, 7386962078940380373U, 4023726223265560849U, 7327943830289413724U,
      12422083813428781663U};
  EXPECT_EQ(readings.value, kKnown[table.layout - 1]);
}

using NoTable = ProgramTest;

TEST_F(NoTable, ReadsAsNothing) {
  for (const char* text : {"?D", "A?", "", "A", "ASS"}) EXPECT_EQ(CardTextToCode(text), kNoCard);
  LoadTableLayouts();
  FollowATable();
  seats.MySeat = 6;
  // The places of seat 6 in layout 4 are in the window's corner, where anything may stand.
  desktop.windows[0].painted = [](int x, int y) { return x * y == 0 ? 0x0000FF : 0xFFFFFF; };
  for (const int layout : {4, -1, 0, 6}) {
    autoRead.TableLayout = layout;
    EXPECT_EQ(LookAtTable(), TableReading()) << layout;
  }
  EXPECT_FALSE(HasLayout3Marker(77));  // a row of one colour
  desktop.windows.clear();
  EXPECT_FALSE(LookAtTable() || HasLayout3Marker(77));
}

}  // namespace
}  // namespace holdem::modCardRead
