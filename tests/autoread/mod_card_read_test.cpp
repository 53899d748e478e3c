#include "autoread/mod_card_read.h"

#include "autoread/colour_measures.h"
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
    const auto exact = table_client::ExactPixels(layout);
    window.painted = [&, drawn = window.painted](int x, int y) {
      const PixelColor color = drawn(x, y += autoRead.CaptionAdjust);
      if (exact.at(y * window.outer.Width() + x)) return color;
      return table_client::Noisy(color, 4, static_cast<std::uint32_t>(random()));
    };
    desktop.windows = {window};
    const TableReading read = LookAtTable().value();
    EXPECT_EQ(read.cards, cards);
    EXPECT_EQ(read.dealerSeat, table.buttonSeat);
    EXPECT_EQ(read.holding, holding);
  }
}

// The card in a part of which all that is darker than a grey, its ink, has become that grey, or all
// that is lighter, its paper.
Capture Faded(Capture card, int part, bool ink, int grey) {
  for (int i = 0; i < std::ssize(card.pixels); ++i) {
    const int x = i % card.area.Width(), y = i / card.area.Width();
    const int of = y < 2 ? 0 : x < 2 ? 1 : y < 22 ? 2 : 3;
    const int was = MinComponent(card.pixels[i]);
    if (of == part && (ink ? was < grey : was > grey)) card.pixels[i] = 0x10101 * grey;
  }
  return card;
}

// The borders between ink and paper were found on the clients' own cards: how many of thirteen, one
// of each rank, are still read when they are faded, from which grey on. Then, each by itself, the
// pixels that give a card another suit when inverted, or make it no face; and a back a face.
TEST_F(CardReadTest, CardsAreReadUpToTheBordersOfTheirColours) {
  std::ostringstream said;
  for (int layout = 1; layout < kLayouts; ++layout) {  // 5 is read as 4 is
    const auto recognise = LayoutOf(layout).recogniseCard;
    const PixelArea place = LayoutOf(layout).cardArea.Moved(CardPoints[layout][kBoardSeat][1]);
    const int width = place.Width();
    std::vector<Capture> cards;
    for (const Card card : CardsOf("AD 2C 3H 4S 5D 6C 7H 8S 9D TC JH QS KD")) {
      desktop.windows = {TableWindow({.layout = layout, .board = {card}}, 77)};
      cards.push_back(desktop.Read(77, {&place, 1})->front());
    }
    for (int kind = 0; kind < 8; ++kind) {
      const bool ink = kind % 2 == 0;
      said << "layout " << layout << (ink ? ", ink of the " : ", paper of the ")
           << std::array{"top", "left", "rank", "suit"}[kind / 2] << ":";
      for (std::ptrdiff_t grey = 0, before = 0; grey < 256; ++grey) {
        const auto read = std::ranges::count_if(cards, [&](const Capture& card) {
          return recognise(Faded(card, kind / 2, ink, grey)) == recognise(card);
        });
        if (read != std::exchange(before, read)) said << " " << read << " from " << grey << " on;";
      }
      said << "\n";
    }
    cards.resize(layout == 4 ? 5 : 4);  // one of each suit, and a back where a strip makes one
    if (layout == 4)
      for (const int x : {5, 10, 11, 12, 13, 14, 15}) cards[4].pixels[5 * width + x] = 0xFFFFFE;
    for (Capture& card : cards) {
      const std::string is = recognise(card);
      said << "layout " << layout << ", " << is << " by";
      for (int i = 0; i < std::ssize(card.pixels); ++i) {
        card.pixels[i] ^= 0xFFFFFF;
        if (recognise(card)[1] != is[1]) said << " " << i % width << "," << i / width;
        card.pixels[i] ^= 0xFFFFFF;
      }
      said << "\n";
    }
  }
  ExpectApproved("faded", said.str());
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

// The points were found on the clients' own tables. What is read of each, and where a user's cards
// are, seat by seat.
TEST_F(CardReadTest, WhereTablesAreLookedAt) {
  std::ostringstream said;
  for (int layout = 0; layout <= kLayouts + 1; ++layout) {
    autoRead.TableLayout = layout;
    for (int seat = 0; seat <= kSeats; ++seat) {
      seats.MySeat = seat;
      auto areas = AreasOfTable();
      if (seat < 2) said << "\nlayout " << layout << (seat == 0 ? ":" : ", the user's cards:");
      for (const PixelArea& area : seat == 0 ? std::span(areas.all) : areas.Cards().first(2)) {
        if (area.IsEmpty()) continue;
        said << " " << area.left << "," << area.top << " " << area.Width() << "x" << area.Height();
      }
    }
  }
  ExpectApproved("looked_at", said.str().substr(1) + "\n");
  EXPECT_FALSE(HasLayout3Marker(77)) << "there is no window";
}

}  // namespace
}  // namespace holdem::modCardRead
