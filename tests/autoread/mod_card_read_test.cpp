#include "autoread/mod_card_read.h"

#include "autoread/layouts.h"
#include "effort.h"
#include "fakes/approved.h"
#include "fakes/fake_ports.h"
#include "fakes/table_window.h"

namespace holdem::modCardRead {
namespace {

// The readers against the stand-in client's pictures, which know nothing of the readers' tables.
class EveryTable : public ProgramTest, public testing::WithParamInterface<int> {
 protected:
  EveryTable() {
    FollowATable();
    autoRead.TableLayout = table.layout;
  }
  void Show() { desktop.windows = {TableWindow(table, 77)}; }

  table_client::Table table{.layout = GetParam()};
};
using NoTable = ProgramTest;
INSTANTIATE_TEST_SUITE_P(Layouts, EveryTable, testing::Range(1, kLayouts + 1));

// Wherever the user sits, every card stands at each of the user's and the board's places; button
// and opponents change all the time. First no cards are shown, and no place shows a face. All under
// a lower caption bar than the drawn one, and in fresh noise at every read, but for what is
// compared exactly.
TEST_P(EveryTable, IsReadBack) {
  autoRead.CaptionAdjust = 7;
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

// The colours around every border that a pixel's colour is held against, in their order.
std::set<PixelColor> ColorsAroundBorders() {
  std::set<PixelColor> colors = {0,        0xFFFFFF, 0x63FFFF, 0xFF63FF, 0x404241,
                                 0x404242, 0x201F85, 0x1F2084, 0x1A10E2, 0x1A10E1,
                                 0x101A9C, 0x101A9B, 0x203310, 0x103320, 0x203410,
                                 0x103420, 0x006010, 0x1010D7, 0x1010D8};
  for (const int least : {1, 29, 39, 99, 100, 119, 149, 169, 199, 200, 250, 254})
    for (const int measure : {least, least + 1}) colors.insert(0xFFFFFF - (255 - measure));
  return colors;
}

// The pixels of a capture that make something else be read when they alone take one of the colours,
// a line for all that do so at the same ones: "3:5a" are the pixels 5 and 10 of row 3. `read` says
// what is read now, `part` what part of the picture a pixel is in, none when it is left out.
std::string WhichCount(Capture& capture, auto read, auto part) {
  const auto before = read();
  std::map<std::string, std::map<int, std::string>> counting;  // by part and colours, by row
  const int width = capture.area.Width();
  for (int place = 0; place < std::ssize(capture.pixels); ++place) {
    const int x = place % width, y = place / width;
    if (part(x, y).empty()) continue;
    const PixelColor drawn = capture.pixels[place];
    std::ostringstream colors;
    bool counted = false;
    for (const PixelColor color : ColorsAroundBorders()) {
      capture.pixels[place] = color;
      const bool counts = read() != before;
      if (counts != std::exchange(counted, counts))
        colors << (counts ? "from " : "below ") << std::hex << color << " ";
    }
    capture.pixels[place] = drawn;
    if (!colors.str().empty())
      counting[part(x, y) + colors.str()][y] += "0123456789abcdefghijklmnop"[x];
  }
  std::string text;
  for (const auto& [what, rows] : counting) {
    text += what + "at";
    for (const auto& [y, columns] : rows) text += " " + std::to_string(y) + ":" + columns;
    text += "\n";
  }
  return text;
}

// Which pixels count and where the borders of their colours lie was found on the clients' own
// cards. The frame is the same on every card, and a suit with every rank.
TEST_F(NoTable, EachPlaceAndPixelOfALayout) {
  if (kSanitized) GTEST_SKIP() << "a million cards take too long under a sanitizer";
  std::ostringstream text;
  const auto add = [&](const char* what, PixelPoint at) {
    if (at != PixelPoint()) text << what << at.x << "," << at.y;
  };
  for (int layout = 1; layout <= kLayouts; ++layout) {
    FollowATable();
    autoRead.TableLayout = layout;
    const std::string name = "layout " + std::to_string(layout) + ", ";
    for (int seat = kBoardSeat; seat <= kSeats; ++seat) {
      text << name << (seat == kBoardSeat ? "board" : "seat " + std::to_string(seat)) << ":";
      for (const PixelPoint card : CardPoints[layout][seat]) add(" card ", card);
      add(" button ", ButtonPoints[layout][seat]);
      add(" backs ", HoldingPoints[layout][seat]);
      text << "\n";
    }
    table_client::Table table{.layout = layout, .buttonSeat = 9};
    table.looks[9] = table_client::SeatLook::In;
    desktop.windows = {TableWindow(table, 77)};
    PartsOfTable<Capture> parts{desktop.Read(77, AreasOfTable().all).value()};
    const auto all = [&](const std::string& what) { return [=](int, int) { return name + what; }; };
    for (Capture& backs : parts.Backs().subspan(16, 2)) {
      const auto read = [&] { return SeatHasCards(9, parts.Backs()); };
      const auto [left, top] = backs.area.Corner();
      const std::string at = std::to_string(left) + "," + std::to_string(top);
      text << WhichCount(backs, read, all("backs at " + at + " "));
    }
    const auto dealer = [&] { return FindDealerSeat(parts.Buttons()); };
    text << WhichCount(parts.Buttons()[8], dealer, all("button "));
    if (layout == 3) {
      desktop.windows[0].painted = [&](int x, int) { return parts.Marker().pixels.at(x - 373); };
      text << WhichCount(
          parts.Marker(), [] { return HasLayout3Marker(77); }, all("marker "));
    }
    const auto recognise = LayoutOf(layout).recogniseCard;
    EXPECT_TRUE(layout < 5 || recognise == LayoutOf(4).recogniseCard);
    for (int rank = 1; rank <= (layout == 5 ? 0 : kRankCount); ++rank) {
      table.board = {CardOf(1 + rank % 4, rank)};
      desktop.windows = {TableWindow(table, 77)};
      const PixelArea area = PixelArea{0, 0, 16, 39}.Moved(CardPoints[layout][kBoardSeat][1]);
      Capture card = desktop.Read(77, {&area, 1})->at(0);
      const auto part = [&, read = recognise(card)](int x, int y) {
        const bool frame = x < 2 || y < 2, suit = !frame && y > 21;
        if ((frame && rank > 1) || (suit && rank > 4)) return std::string();
        return name + read + (frame ? " frame " : suit ? " suit " : " rank ");
      };
      text << WhichCount(
          card, [&] { return recognise(card); }, part);
    }
  }
  ExpectApproved("layouts", text.str());
}

TEST_F(NoTable, AwkwardTextsAndPlaces) {
  for (const char* text : {"?D", "A?", "", "A", "ASS"}) EXPECT_EQ(CardTextToCode(text), kNoCard);
  EXPECT_EQ(CardTextToCode("1D"), CardTextToCode("AD"));
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
