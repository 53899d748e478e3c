#include "autoread/mod_card_read.h"

#include "autoread/layouts.h"
#include "fakes/fake_ports.h"

namespace holdem::modCardRead {
namespace {

// The readers against the stand-in client's pictures, which know nothing of the readers' tables.
using CardReadTest = ProgramTest;

// Wherever the user sits, every card stands at each of the user's and the board's places; button
// and opponents change all the time. First no cards are shown, and no place shows a face. All under
// a lower caption bar than the drawn one, and in fresh noise at every read, but for what is
// compared exactly.
TEST_F(CardReadTest, ReadsEveryTableBack) {
  FollowATable();
  autoRead.CaptionAdjust = 7;
  for (int round = 0; round < kLayouts * kSeats * (kCardCount + 1); ++round) {
    const int layout = 1 + round % kLayouts, hero = 1 + round / kLayouts % kSeats;
    const Card card = round / kLayouts / kSeats;
    table_client::Table table{.layout = layout, .heroSeat = hero};
    if (!table.HasSeat(hero)) continue;
    SCOPED_TRACE(testing::Message() << "layout " << layout << ", user " << hero << ", " << card);
    autoRead.TableLayout = layout;
    seats.MySeat = hero;
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
    FakeWindow window = TableWindow(table, 77);
    window.painted = [&, drawn = window.painted, exact = table_client::ExactPixels(layout)](int x,
                                                                                            int y) {
      const PixelColor color = drawn(x, y += autoRead.CaptionAdjust);
      const auto noise = static_cast<std::uint32_t>(random());
      return exact.at(y * window.outer.Width() + x) ? color : table_client::Noisy(color, 4, noise);
    };
    desktop.windows = {window};
    const TableReading read = LookAtTable().value();
    EXPECT_EQ(read.cards, cards);
    EXPECT_EQ(read.dealerSeat, table.buttonSeat);
    EXPECT_EQ(read.holding, holding);
  }
}

TEST_F(CardReadTest, ColoursOfButtonsAndBacks) {
  const PixelColor buttons[] = {0xC8C8C8, 0xC8, 0x969696, 0x82, 0x82};  // just white or red enough
  for (int layout = 1; layout <= kLayouts; ++layout) {
    const PixelColor color = buttons[layout - 1];
    EXPECT_TRUE(LayoutOf(layout).isButton(color) && !LayoutOf(layout).isButton(color - 1));
  }
  for (const PixelColor color : {0x102310, 0x102410}) {  // of the felt
    const Capture backs[] = {{{0, 0, 1, 1}, {color}}, {{0, 26, 1, 27}, {color}}};
    EXPECT_EQ(LayoutOf(1).holdsCards({{0, 0}, backs}), color == 0x102310);
  }
}

TEST_F(CardReadTest, AwkwardPlaces) {
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
