// The readers against the stand-in client's pictures, which know nothing of the readers' tables.
#include <random>

#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "fakes/fake_ports.h"
#include "table_client/table_picture.h"

namespace holdem {
namespace {

using table_client::SeatLook;
using table_client::Table;

// One window that shows a picture, in fresh noise at every read.
struct PictureDesktop : FakeDesktop {
  table_client::Picture picture;
  std::vector<bool> exact;
  int noise = 0;  // levels
  std::minstd_rand random;

  std::optional<std::vector<Capture>> Read(WindowHandle,
                                           std::span<const PixelArea> areas) override {
    return CaptureAll(areas, [&](int x, int y) { return Pixel(x, y); });
  }
  PixelColor Pixel(int x, int y) {
    y += autoRead.CaptionAdjust;  // by so much is the window's caption bar lower than the drawn one
    table_client::Rgb colour = picture.At(x, y);
    if (noise > 0 && picture.Has(x, y) && !exact[picture.Index(x, y)]) {
      colour = table_client::Noisy(colour, noise, static_cast<std::uint32_t>(random()));
    }
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | colour >> 16;
  }
};

struct ReadBack : ProgramTest, testing::WithParamInterface<int> {
  ReadBack() {
    LoadTableLayouts();
    ports.desktop = &shown;
    shown.exact = table_client::ExactPixels(table.layout);
    autoRead = {.WatchedWindow = 7, .TableLayout = table.layout};
  }

  PictureDesktop shown;
  Table table{.layout = GetParam()};
};

// Wherever the user sits, every card stands at each of the user's and the board's places; button
// and opponents change all the time. First no cards are shown, and no place shows a face.
TEST_P(ReadBack, EverythingThatATableShows) {
  for (int hero = 1; hero <= kSeats; ++hero) {
    if (!table.HasSeat(hero)) continue;
    table.heroSeat = hero;
    for (int card = 0; card <= kCardCount; ++card) {
      table.buttonSeat = table.HasSeat(card % 11) ? card % 11 : 0;
      std::vector<modCardRead::CardPosition> places;
      std::vector<Card> cards;
      const auto place = [&](int seat, int number, int steps) {
        places.push_back({seat, number});
        cards.push_back(card == 0 ? kNoCard : static_cast<Card>((card + steps) % kCardCount + 1));
        return cards.back();
      };
      for (int i = 0; i < 2; ++i) table.hole[i] = place(hero, i + 1, 5 * hero * i);
      for (int i = 0; i < 5; ++i) table.board[i] = place(kBoardSeat, i + 1, 9 * i + hero);
      std::array<bool, kSeats + 1> holding{};
      for (int seat = 1; seat <= kSeats; ++seat) {
        table.looks[seat] = static_cast<SeatLook>(shown.random() % 3);
        holding[seat] = table.looks[seat] == SeatLook::In && table.HasSeat(seat);
        for (int i = 1; card == 0 && i <= 2; ++i) place(seat, i, 0);
      }
      shown.picture = table_client::DrawTable(table);
      for (const int noise : {0, 4}) {
        SCOPED_TRACE(testing::Message() << "user " << hero << ", card " << card << ", " << noise);
        shown.noise = noise;
        autoRead.CaptionAdjust = noise == 0 ? 0 : 7;
        EXPECT_EQ(modCardRead::ReadCards(places), cards);
        EXPECT_EQ(modCardRead::FindDealerSeat(), table.buttonSeat);
        auto read = modCardRead::SeatsHoldingCards();
        (*read)[hero] = holding[hero];  // never asked for
        EXPECT_EQ(read, holding);
        EXPECT_EQ(modCardRead::HasLayout3Marker(7), table.layout == 3);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Layouts, ReadBack, testing::Range(1, kLayouts + 1));

}  // namespace
}  // namespace holdem
