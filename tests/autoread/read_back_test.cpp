// The readers against the stand-in client's pictures, which know nothing of the readers' tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "autoread/mod_windows.h"
#include "fakes/fake_ports.h"
#include "table_client/table_picture.h"

namespace holdem {
namespace {

using table_client::DrawTable;
using table_client::SeatLook;
using table_client::Table;

// One window that shows a picture, in fresh noise at every read.
class PictureDesktop : public FakeDesktop {
 public:
  table_client::Picture picture;
  int noise = 0;   // levels
  int adjust = 0;  // rows by which the window's caption bar is lower than the drawn one

  void Show(const Table& table) {
    if (windows.empty()) windows = {{.handle = 7}};
    if (exactFor_ != table.layout) exact_ = table_client::ExactPixels(table.layout);
    exactFor_ = table.layout;
    picture = DrawTable(table);
  }
  std::optional<std::vector<Capture>> Read(WindowHandle,
                                           std::span<const PixelArea> areas) override {
    std::vector<Capture> captures;
    for (const PixelArea& area : areas) {
      Capture capture{.area = area};
      for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) capture.pixels.push_back(Pixel(x, y + adjust));
      }
      captures.push_back(std::move(capture));
    }
    return captures;
  }

 private:
  PixelColor Pixel(int x, int y) {
    table_client::Rgb colour = picture.At(x, y);
    if (noise > 0 && picture.Has(x, y) && !exact_[picture.Index(x, y)]) {
      colour = table_client::Noisy(colour, noise, static_cast<std::uint32_t>(random_()));
    }
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | colour >> 16;
  }

  std::vector<bool> exact_;
  int exactFor_ = 0;
  std::minstd_rand random_;
};

struct ReadBack : testing::TestWithParam<int> {
  ReadBack() {
    LoadTableLayouts();
    ports.desktop = &desktop;
    autoRead = {.WatchedWindow = 7, .TableLayout = table.layout};
    autoRead.CurrentTable.windowHandle = 7;
  }
  ~ReadBack() override {
    ports = {};
    autoRead = {};
  }

  // Every look at the table twice: as drawn, and in noise under a lower caption bar.
  template <typename Look>
  void InBothLights(Look look) {
    desktop.Show(table);
    for (const bool noisy : {false, true}) {
      desktop.noise = noisy ? 4 : 0;
      desktop.adjust = autoRead.CaptionAdjust = noisy ? 7 : 0;
      SCOPED_TRACE(noisy ? "in noise" : "as drawn");
      look();
    }
  }

  PictureDesktop desktop;
  Table table{.layout = GetParam()};
  std::minstd_rand random;
};

Card Later(int card, int steps) { return static_cast<Card>((card - 1 + steps) % kCardCount + 1); }

// At every seat and on the board, every card stands at every place; the partners change with the
// seat.
TEST_P(ReadBack, EveryCardAtEveryPlace) {
  std::vector<modCardRead::CardPosition> places;
  for (int card = 1; card <= 5; ++card) places.push_back({kBoardSeat, card});
  places.resize(7);
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!table.HasSeat(seat)) continue;
    table.heroSeat = seat;
    table.buttonSeat = seat;
    table.looks.fill(seat % 2 == 0 ? SeatLook::In : SeatLook::Folded);
    places[5] = {seat, 1};
    places[6] = {seat, 2};
    for (int card = 1; card <= kCardCount; ++card) {
      table.hole = {Later(card, 0), Later(card, 5 * seat)};
      for (int i = 0; i < 5; ++i) table.board[i] = Later(card, 9 * i + seat);
      std::vector<Card> shown(table.board.begin(), table.board.end());
      shown.insert(shown.end(), table.hole.begin(), table.hole.end());
      InBothLights([&] {
        EXPECT_EQ(modCardRead::ReadCards(places), shown) << "seat " << seat << ", card " << card;
      });
    }
  }
}

TEST_P(ReadBack, NoCardsOnABareTable) {
  std::vector<modCardRead::CardPosition> places;
  for (int card = 1; card <= 5; ++card) places.push_back({kBoardSeat, card});
  for (int seat = 1; seat <= kSeats; ++seat) places.insert(places.end(), {{seat, 1}, {seat, 2}});
  for (const SeatLook look : {SeatLook::Empty, SeatLook::In, SeatLook::Folded}) {
    table.looks.fill(look);
    InBothLights([&] {
      const auto cards = modCardRead::ReadCards(places);
      EXPECT_EQ(std::count(cards->begin(), cards->end(), kNoCard), std::ssize(places));
    });
  }
}

// Wherever the user sits, and whoever else holds cards.
TEST_P(ReadBack, ButtonAndHoldingSeats) {
  const auto below = [&](int limit) { return static_cast<int>(random() % limit); };
  for (int round = 0; round < 15 * kSeats; ++round) {
    table.buttonSeat = round % (kSeats + 1);
    if (!table.HasSeat(table.buttonSeat)) table.buttonSeat = 0;
    table.heroSeat = 1 + round % kSeats;
    table.hole = {Later(1, round), Later(1, 2 * round + 1)};
    std::array<bool, kSeats + 1> holding{};
    for (int seat = 1; seat <= kSeats; ++seat) {
      table.looks[seat] = static_cast<SeatLook>(below(3));
      holding[seat] = table.looks[seat] == SeatLook::In && table.HasSeat(seat);
    }
    InBothLights([&] {
      SCOPED_TRACE(testing::Message() << "round " << round);
      EXPECT_EQ(modCardRead::FindDealerSeat(), table.buttonSeat);
      auto read = modCardRead::SeatsHoldingCards();
      (*read)[table.heroSeat] = holding[table.heroSeat];  // never asked for
      EXPECT_EQ(read, holding);
    });
  }
}

TEST_P(ReadBack, MarkerOnlyInLayout3) {
  InBothLights([&] { EXPECT_EQ(modCardRead::HasLayout3Marker(7), table.layout == 3); });
}

// By its class, caption and size, and by its felt.
TEST_P(ReadBack, IsClassified) {
  for (const int captionHeight : {0, 19, 26, 40}) {
    desktop.Show(table);
    desktop.adjust = autoRead.CaptionAdjust = 26 - captionHeight;
    const auto [width, height] = table_client::OuterSize(table.layout, captionHeight);
    EXPECT_EQ(modWindows::ClassifyTable({.windowHandle = 7,
                                         .className = table_client::WindowClass(table.layout),
                                         .caption = table_client::DefaultCaption(table.layout),
                                         .width = width,
                                         .height = height}),
              table.layout)
        << captionHeight;
  }
}

INSTANTIATE_TEST_SUITE_P(Layouts, ReadBack, testing::Range(1, kLayouts + 1));

}  // namespace
}  // namespace holdem
