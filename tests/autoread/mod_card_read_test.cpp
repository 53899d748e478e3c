#include "autoread/mod_card_read.h"

#include <random>

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
    LoadTableLayouts();
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
  std::minstd_rand random;
  const std::vector<bool> exact = table_client::ExactPixels(table.layout);
  for (int round = 0; round < kSeats * (kCardCount + 1); ++round) {
    const int hero = 1 + round % kSeats, card = round / kSeats;
    if (!table.HasSeat(hero)) continue;
    SCOPED_TRACE(testing::Message() << "user " << hero << ", card " << card);
    table.heroSeat = hero;
    table.buttonSeat = table.HasSeat(card % 11) ? card % 11 : 0;
    std::vector<CardPosition> places;
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
      table.looks[seat] = static_cast<table_client::SeatLook>(random() % 3);
      holding[seat] = table.looks[seat] == table_client::SeatLook::In && table.HasSeat(seat);
      for (int i = 1; card == 0 && i <= 2; ++i) place(seat, i, 0);
    }
    Show();
    FakeWindow& window = desktop.windows[0];
    window.painted = [&, drawn = window.painted](int x, int y) {
      const PixelColor color = drawn(x, y += autoRead.CaptionAdjust);
      const auto noise = static_cast<std::uint32_t>(random());
      return exact.at(y * window.outer.Width() + x) ? color : table_client::Noisy(color, 4, noise);
    };
    EXPECT_EQ(ReadCards(places), cards);
    EXPECT_EQ(FindDealerSeat(), table.buttonSeat);
    auto read = SeatsHoldingCards();
    (*read)[hero] = holding[hero];  // never asked for
    EXPECT_EQ(read, holding);
    EXPECT_EQ(HasLayout3Marker(77), table.layout == 3);
  }
}

TEST(Layouts, HaveTheirPlaces) {
  LoadTableLayouts();
  std::ostringstream places;
  const auto add = [&](const char* what, PixelPoint at) { places << what << at.x << "," << at.y; };
  for (int layout = 1; layout <= kLayouts; ++layout) {
    places << "layout " << layout << ", board:";
    for (int card = 1; card <= 5; ++card) add(" ", CardPoints[layout][kBoardSeat][card]);
    for (int seat = 1; seat <= kSeats; ++seat) {
      places << "\nlayout " << layout << ", seat " << seat;
      add(": cards ", CardPoints[layout][seat][1]);
      add(" ", CardPoints[layout][seat][2]);
      add(", button ", ButtonPoints[layout][seat]);
      add(", backs ", HoldingPoints[layout][seat]);
    }
    places << "\n";
  }
  ExpectApproved("layout_places", places.str());
}

int LeastOf(PixelColor color) {
  return static_cast<int>(std::min({color & 0xFF, color >> 8 & 0xFF, color >> 16}));
}
// How much more red (0) or green (8) there is than of the two others.
int MoreOf(int shift, PixelColor color) {
  int most = 0;
  for (const int other : {0, 8, 16})
    if (other != shift) most = std::max(most, static_cast<int>(color >> other & 0xFF));
  return static_cast<int>(color >> shift & 0xFF) - most;
}

// The colours around every border that a pixel's colour is held against.
std::vector<PixelColor> ColorsAroundBorders() {
  std::vector<PixelColor> colors = {0,        0xFFFFFF, 0x63FFFF, 0xFF63FF, 0x404241, 0x404242,
                                    0x201F85, 0x1F2084, 0x1A10E2, 0x1A10E1, 0x101A9C, 0x101A9B,
                                    0x203310, 0x103320, 0x203410, 0x103420, 0x006010};
  for (const int least : {1, 29, 39, 99, 100, 119, 149, 169, 199, 200, 250, 254}) {
    for (const int measure : {least, least + 1}) colors.push_back(0xFFFFFF - (255 - measure));
  }
  return colors;
}

// Which of the colours make another card of it, in words.
std::string InWords(const std::map<PixelColor, bool>& others, PixelColor drawn) {
  const auto isSo = [&](auto rule) {
    return std::ranges::all_of(others, [&](auto& each) { return each.second == rule(each.first); });
  };
  if (isSo([&](PixelColor color) { return color != drawn; })) return "any other colour";
  for (int border = 1; border < 256; ++border) {
    if (isSo([&](PixelColor color) { return LeastOf(color) < border; }))
      return "below " + std::to_string(border);
    if (isSo([&](PixelColor color) { return LeastOf(color) >= border; }))
      return "from " + std::to_string(border);
  }
  const auto times = std::ranges::count_if(others, [](auto& each) { return each.second; });
  const bool few = times * 2 < std::ssize(others);
  std::ostringstream list;
  list << (few ? "at" : "at all but") << std::hex;
  for (const auto& [color, other] : others)
    if (other == few) list << " " << color;
  return list.str();
}

// Which pixels count and where the borders of their colours lie was found on the clients' own
// cards. Each pixel of a card of each rank takes the colours, one at a time; the text says at which
// ones another card, or none, is read: "3:5a" are the pixels 5 and 10 of line 3. The frame is the
// same on every card, and the suit with every rank.
TEST_F(NoTable, EachPixelOfACardCounts) {
  if (kSanitized) GTEST_SKIP() << "a million cards take too long under a sanitizer";
  LoadTableLayouts();
  std::string text;
  for (const int layout : {1, 2, 3, 4}) {
    const auto recognise = LayoutOf(layout).recogniseCard;
    for (int rank = 1; rank <= kRankCount; ++rank) {
      const Card shown = CardOf(1 + rank % 4, rank);
      table_client::Table table{.layout = layout};
      table.board = {shown};
      desktop.windows = {TableWindow(table, 77)};
      const PixelArea area = PixelArea{0, 0, 16, 39}.Moved(CardPoints[layout][kBoardSeat][1]);
      Capture card = desktop.Read(77, {&area, 1})->at(0);
      const std::string read = recognise(card);
      std::map<std::string, std::map<int, std::string>> counting;  // by part and colours, by line
      for (int place = 0; place < 16 * 39; ++place) {
        const int x = place % 16, y = place / 16;
        const bool frame = x < 2 || y < 2, suit = !frame && y > 21;
        if ((frame && rank > 1) || (suit && rank > 4)) continue;
        PixelColor& pixel = card.pixels[place];
        const PixelColor drawn = pixel;
        std::map<PixelColor, bool> others;
        for (const PixelColor color : ColorsAroundBorders()) {
          pixel = color;
          others[color] = recognise(card) != read;
        }
        pixel = drawn;
        if (std::ranges::none_of(others, [](auto& each) { return each.second; })) continue;
        const char* const part = frame ? "frame" : suit ? "suit" : "rank";
        counting[part + (" " + InWords(others, drawn))][y] += "0123456789abcdef"[x];
      }
      for (const auto& [what, lines] : counting) {
        text += "layout " + std::to_string(layout) + ", " + read + ", " + what + ":";
        for (const auto& [y, columns] : lines) text += " " + std::to_string(y) + ":" + columns;
        text += "\n";
      }
    }
  }
  EXPECT_EQ(LayoutOf(5).recogniseCard, LayoutOf(4).recogniseCard);
  ExpectApproved("card_pixels", text);
}

// The rules of the button, of face-down cards and of the marker, told plainly.
bool IsButton(int layout, PixelColor color) {
  if (layout == 1) return LeastOf(color) >= 200;
  if (layout == 2) return MoreOf(0, color) >= 200;
  if (layout == 3) return LeastOf(color) >= 150;
  return MoreOf(0, color) >= 130;
}

bool AreBacks(int layout, const std::function<PixelColor(int, int)>& at) {
  const auto isBlack = [&](int x, int y) { return at(x, y) == 0; };
  if (layout == 1) return MoreOf(8, at(0, 0)) < 20 && MoreOf(8, at(0, 26)) < 20;
  if (layout == 2) return isBlack(0, 13) && isBlack(15, 0) && isBlack(10, 0);
  if (layout == 3) return isBlack(24, 0) && isBlack(12, 0);
  const PixelColor felt = at(2, 0);
  if (felt == 0xFFFFFF || at(2, 1) != 0xFFFFFF) return false;
  for (const int k : {3, 4}) {
    if (at(k, 0) != felt || at(0, k) != felt) return false;
    if (at(k, 1) != 0xFFFFFF || at(1, k) != 0xFFFFFF) return false;
  }
  return true;
}

bool IsMarker(const std::function<PixelColor(int, int)>& at) {
  const PixelColor a = at(0, 0), b = at(1, 0);
  return a != b && at(4, 0) == a && at(7, 0) == a && at(9, 0) == a && at(3, 0) == b &&
         at(6, 0) == b && at(8, 0) == b;
}

TEST_P(EveryTable, ButtonBacksAndMarkerAreToldByTheirPixels) {
  table.looks[9] = table_client::SeatLook::In;
  table.buttonSeat = 9;
  Show();
  const int layout = table.layout;
  const auto tryAll = [&](const char* what, PixelPoint corner, int width, int height, auto read,
                          auto told) {
    std::array<int, 2> times{};  // how often it was not so, and was so
    for (int pixel = 0; pixel < width * height; ++pixel) {
      for (const PixelColor color : ColorsAroundBorders()) {
        const std::pair place(corner.x + pixel % width, corner.y + pixel / width);
        desktop.windows[0].changed = {{place, color}};
        const bool wanted = told(
            [&](int x, int y) { return desktop.windows[0].Shown(corner.x + x, corner.y + y); });
        ++times[wanted];
        ASSERT_EQ(read(), wanted) << what << " with " << pixel % width << ',' << pixel / width
                                  << " in " << std::hex << color;
      }
    }
    EXPECT_TRUE(times[0] > 0 && (times[1] > 0 || (layout != 3 && width == 10))) << what;
  };
  tryAll(
      "backs", HoldingPoints[layout][9], 26, 28, [] { return SeatsHoldingCards()->at(9); },
      [&](auto at) { return AreBacks(layout, at); });
  tryAll(
      "button", ButtonPoints[layout][9], 1, 1, [] { return *FindDealerSeat() == 9; },
      [&](auto at) { return IsButton(layout, at(0, 0)); });
  tryAll(
      "marker", {373, 417}, 10, 1, [] { return HasLayout3Marker(77); }, IsMarker);
}

// A card of layout 1, where cards move, is taken when two reads agree.
TEST_P(EveryTable, AMovingCardIsReadUntilItIsSure) {
  // King, Queen or nothing, read by read; what is taken, there and elsewhere; the number of reads.
  const std::tuple<std::string, Card, Card, std::size_t> cases[] = {
      {"KK", 39, 39, 2},      {"KQQ", 38, 39, 3}, {"KQKQKK", 39, 39, 6},
      {"KQKQKQQQ", 0, 39, 6}, {"-KKK", 0, 0, 1},  {"KQ-KKK", 0, 39, 3}};
  for (const auto& [shown, moving, still, reads] : cases) {
    std::string left = shown;
    desktop.beforeCall = [&] {
      table.board[1] = left[0] == 'K' ? 39 : left[0] == 'Q' ? 38 : kNoCard;
      left.erase(0, 1);
      Show();
    };
    const CardPosition positions[] = {{kBoardSeat, 1}, {kBoardSeat, 2}};
    const bool moves = table.layout == 1;
    EXPECT_EQ(ReadCards(positions), (std::vector{kNoCard, moves ? moving : still})) << shown;
    EXPECT_EQ(shown.size() - left.size(), moves ? reads : 1) << shown;
  }
}

TEST_F(NoTable, ReadsAsNothing) {
  for (const char* text : {"?D", "A?", "", "A", "ASS"}) EXPECT_EQ(CardTextToCode(text), kNoCard);
  LoadTableLayouts();
  FollowATable();
  const CardPosition position[] = {{6, 1}};
  // The places of seat 6 in layout 4 are in the window's corner, where anything may stand.
  desktop.windows[0].painted = [](int x, int y) { return x * y == 0 ? 0x0000FF : 0xFFFFFF; };
  for (const int layout : {4, -1, 0, 6}) {
    autoRead.TableLayout = layout;
    EXPECT_EQ(ReadCards(position), std::vector{kNoCard});
    EXPECT_EQ(FindDealerSeat(), 0);
    EXPECT_EQ(SeatsHoldingCards(), (std::array<bool, kSeats + 1>{}));
    desktop.beforeCall = [] { FAIL() << "the screen was looked at"; };
  }
  autoRead = {.TableLayout = 1};
  EXPECT_EQ(FindDealerSeat(), 0);
  desktop.beforeCall = nullptr;
  EXPECT_FALSE(HasLayout3Marker(77));  // a row of one colour
  desktop.windows.clear();
  EXPECT_FALSE(ReadCards(position) || SeatsHoldingCards() || HasLayout3Marker(77));
}

}  // namespace
}  // namespace holdem::modCardRead
