#include "autoread/mod_card_read.h"

#include <gtest/gtest.h>

#include <tuple>

#include "autoread/card_templates.h"
#include "autoread/layouts.h"
#include "fakes/fake_ports.h"

namespace holdem::modCardRead {
namespace {

constexpr PixelColor kFelt = 0x206010;  // green over the others by 64
constexpr PixelColor kWhite = 0xFFFFFF;

// A colour whose smallest component is the measure.
constexpr PixelColor Shade(int measure) { return kWhite - (255 - measure); }

struct Cell {
  int dx, dy;
  PixelColor colour;
};

// A card: white, its top and left edges black, which every layout takes for a face.
struct Picture : FakeDesktop {
  static constexpr int kWidth = 16;
  static constexpr int kHeight = 39;

  std::vector<PixelColor> pixels = std::vector<PixelColor>(kWidth * kHeight, kWhite);

  explicit Picture(const std::vector<Cell>& cells = {}) {
    for (int dx = 0; dx < kWidth; ++dx) At(dx, 0) = 0;
    for (int dy = 0; dy < kHeight; ++dy) At(0, dy) = 0;
    for (const auto& [dx, dy, colour] : cells) At(dx, dy) = colour;
  }
  PixelColor& At(int dx, int dy) { return pixels.at(dy * kWidth + dx); }

  // Rank and suit as they are read where the layout shows a card; "??" for none.
  std::string Text(int layout) {
    ports.desktop = this;
    autoRead = {.TableLayout = layout};
    const CardPosition position[] = {{kBoardSeat, 1}};
    const Card card = ReadCards(position)->at(0);
    if (card == kNoCard) return "??";
    return {std::string_view("A23456789TJQK").at(RankOf(card) - 1),
            std::string_view("SDCH").at(SuitOf(card) - 1)};
  }
  std::optional<std::vector<Capture>> Read(WindowHandle,
                                           std::span<const PixelArea> areas) override {
    Capture seen{.area = areas[0]};
    for (int dy = 0; dy < seen.area.Height(); ++dy) {
      for (int dx = 0; dx < seen.area.Width(); ++dx) seen.pixels.push_back(At(dx, dy));
    }
    return {{seen}};
  }
};

// A recogniser's signs, its threshold, and what it reads when none holds.
struct Chain {
  int layout, place;  // of the sign in the card's text
  const char* signs;
  char otherwise;
  int threshold, top;
  std::span<const CardTemplate> templates;
};

const Chain kChains[] = {
    {1, 1, "HDS", 'C', 40, kLayout1Suits.top, kLayout1Suits.templates},
    {1, 0, "2534678JKAQT", '9', 120, kLayout1Ranks.top, kLayout1Ranks.templates},
    {2, 0, "7T2345689JKA", 'Q', 30, kLayout2Ranks.top, kLayout2Ranks.templates},
    {3, 0, "T823AJQ4K7", '5', 120, kLayout3Ranks.top, kLayout3Ranks.templates},
    {3, 0, "69", '5', 150, kLayout3LateRanks.top, kLayout3LateRanks.templates},
    {5, 0, "J74283569AKT", 'Q', 170, kLayout45Ranks.top, kLayout45Ranks.templates}};

using Recognition = ProgramTest;

TEST_F(Recognition, ASignIsReadByEachOfItsCells) {
  std::uint64_t hash = 0xcbf29ce484222325;  // of the drawings
  for (const Chain& chain : kChains) {
    const auto read = [&](const std::vector<Cell>& cells) {
      return Picture(cells).Text(chain.layout)[chain.place];
    };
    const PixelColor light = Shade(chain.threshold);
    const PixelColor dark = Shade(chain.threshold - 1);
    EXPECT_EQ(read({}), chain.otherwise);
    std::string signs;
    for (const CardTemplate& sign : chain.templates) {
      signs += sign.sign;
      std::vector<Cell> cells;
      for (int row = 0; row < std::ssize(sign.dark); ++row) {
        for (int dx = 0; dx < Picture::kWidth; ++dx) {
          const bool isDark = sign.dark[row] >> dx & 1;
          if (!isDark && !(sign.light[row] >> dx & 1)) continue;
          cells.push_back({dx, chain.top + row, isDark ? dark : light});
          for (const int value : {dx, chain.top + row, int{isDark}}) {
            hash = (hash ^ value) * 0x100000001b3;
          }
        }
      }
      EXPECT_EQ(read(cells), sign.sign) << "layout " << chain.layout;
      for (auto& [dx, dy, colour] : cells) {
        colour ^= dark ^ light;
        EXPECT_NE(read(cells), sign.sign) << chain.layout << ": " << dx << ", " << dy;
        colour ^= dark ^ light;
      }
    }
    EXPECT_EQ(signs, chain.signs);
  }
  // The drawings were compared with the clients' cards; a change of one must be meant.
  EXPECT_EQ(hash, 5323690617258653014U);
}

TEST_F(Recognition, Suits) {
  const PixelColor dark = Shade(119), light = Shade(120), green = 0x404241;
  const std::vector<Cell> diamond = {{8, 23, dark}, {2, 31, dark}, {13, 31, dark}, {8, 38, dark}};
  const std::tuple<int, char, std::vector<Cell>> cases[] = {
      {2, 'H', {{10, 23, Shade(201)}}},
      {2, 'C', {{10, 23, Shade(200)}, {10, 25, green}, {5, 25, Shade(251)}}},
      {2, 'S', {{10, 23, Shade(200)}, {10, 25, green}, {5, 25, Shade(250)}}},
      {2, 'D', {{10, 23, Shade(200)}, {10, 25, 0x404242}, {5, 25, Shade(251)}}},
      {3, 'D', diamond},
      {3, 'S', {{8, 34, light}, {8, 30, 0x0000FF}}},
      {3, 'H', {{8, 34, dark}, {8, 30, 0x201F85}}},
      {3, 'C', {{8, 34, dark}, {8, 30, 0x1F2084}}},
      {5, 'C', {{7, 28, Shade(251)}, {7, 29, 0}, {5, 22, 0}}},
      {5, 'S', {{7, 28, Shade(250)}, {7, 29, Shade(251)}, {5, 22, 0}}},
      {5, 'D', {{7, 28, Shade(250)}, {7, 29, Shade(250)}, {5, 22, Shade(251)}}},
      {5, 'H', {{7, 28, Shade(250)}, {7, 29, Shade(250)}, {5, 22, Shade(250)}}}};
  for (const auto& [layout, suit, cells] : cases) {
    EXPECT_EQ(Picture(cells).Text(layout)[1], suit) << layout;
  }
  for (std::size_t i = 0; i < diamond.size(); ++i) {
    std::vector<Cell> broken = diamond;
    broken[i].colour = light;
    EXPECT_EQ(Picture(broken).Text(3)[1], 'S');
  }
}

TEST_F(Recognition, AFaceNeedsEachPixelOfItsCorner) {
  const struct {
    int layout, first, last, beside[2];
    PixelColor edge, notEdge, face, notFace;
  } cases[] = {{1, 2, 6, {1, 7}, Shade(100), Shade(101), Shade(100), 0x63FFFF},
               {2, 6, 10, {5, 11}, Shade(100), Shade(101), Shade(100), 0xFF63FF},
               {3, 1, 5, {0, 6}, 0, 1, 1, 0},
               {5, 5, 7, {8, 8}, 0, 1, kWhite, Shade(254)}};
  for (const auto& c : cases) {
    const auto isFace = [&](const std::vector<Cell>& cells) {
      return Picture(cells).Text(c.layout) != "??";
    };
    for (int k = c.first; k <= c.last; ++k) {
      EXPECT_TRUE(isFace({{k, 0, c.edge}, {0, k, c.edge}, {k, 1, c.face}, {1, k, c.face}}));
      EXPECT_FALSE(isFace({{k, 0, c.notEdge}}) || isFace({{0, k, c.notEdge}})) << k;
      EXPECT_FALSE(isFace({{k, 1, c.notFace}}) || isFace({{1, k, c.notFace}})) << k;
    }
    for (const int k : c.beside) {
      EXPECT_TRUE(
          isFace({{k, 0, c.notEdge}, {0, k, c.notEdge}, {k, 1, c.notFace}, {1, k, c.notFace}}));
    }
    Picture blank;
    std::ranges::fill(blank.pixels, kWhite);
    EXPECT_EQ(blank.Text(c.layout), "??");
  }
  EXPECT_EQ(Picture({{4, 1, Shade(254)}}).Text(5), "??");  // the border where the felt is met
  // A back has a strip of one colour.
  std::vector<Cell> strip = {{5, 5, 1}};
  for (int dx = 10; dx <= 15; ++dx) strip.push_back({dx, 5, 1});
  for (const int layout : {4, 5}) {
    EXPECT_EQ(Picture(strip).Text(layout), "??");
    for (Cell& cell : strip) {
      cell.colour = 2;
      EXPECT_NE(Picture(strip).Text(layout), "??") << cell.dx;
      cell.colour = 1;
    }
  }
}

TEST(CardText, IsRankThenSuit) {
  const std::pair<const char*, Card> cases[] = {{"AS", 1},     {"1H", 40},      {"TD", 23},
                                                {"KC", 39},    {"?D", kNoCard}, {"A?", kNoCard},
                                                {"", kNoCard}, {"A", kNoCard},  {"ASS", kNoCard}};
  for (const auto& [text, code] : cases) EXPECT_EQ(CardTextToCode(text), code) << text;
}

class TableReading : public ProgramTest {
 protected:
  TableReading() { LoadTableLayouts(); }

  void Follow(int layout) {
    desktop.windows = {{.handle = 7, .outer = {0, 0, 800, 600}}};
    desktop.windows[0].pixels.assign(800 * 600, kFelt);
    autoRead = {.WatchedWindow = 7, .TableLayout = layout};
    autoRead.CurrentTable.windowHandle = 7;
  }
  void Put(PixelPoint corner, int dx, int dy, PixelColor colour) {
    desktop.windows[0].At(corner.x + dx, corner.y + dy) = colour;
  }
  void Put(PixelPoint corner, Picture picture) {
    for (int dy = 0; dy < Picture::kHeight; ++dy) {
      for (int dx = 0; dx < Picture::kWidth; ++dx) Put(corner, dx, dy, picture.At(dx, dy));
    }
  }
};

TEST_F(TableReading, ALayout1CardIsTakenWhenTwoReadsAgree) {
  const struct {
    int layout;
    const char* shown;  // by read: blank card (9), Queen (Q), nothing (-)
    Card card;
    int reads;
  } cases[] = {{1, "99", 35, 2},  {1, "9QQ", 38, 3},   {1, "9Q9Q99", 35, 6}, {1, "9Q9Q9QQQ", 0, 6},
               {1, "-999", 0, 1}, {1, "9Q-999", 0, 3}, {5, "9Q", 38, 1}};
  const Picture queen({{4, 10, 0}, {4, 11, 0}, {11, 14, 0}, {10, 15, 0}, {11, 15, 0}});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.shown);
    Follow(c.layout);
    int reads = 0;
    desktop.beforeCall = [&] {
      const char shown = c.shown[reads++];
      Put(CardPoints[c.layout][kBoardSeat][2], shown == 'Q' ? queen : Picture());
      if (shown == '-') Put(CardPoints[c.layout][kBoardSeat][2], 3, 0, kWhite);
    };
    const CardPosition positions[] = {{kBoardSeat, 1}, {kBoardSeat, 2}};
    EXPECT_EQ(ReadCards(positions), (std::vector<Card>{kNoCard, c.card}));
    EXPECT_EQ(reads, c.reads);
  }
}

TEST_F(TableReading, DealerButton) {
  const PixelColor buttons[] = {Shade(200), 0x1A10E2, Shade(150), 0x101A9C, 0x101A9C};
  for (int layout = 1; layout <= kLayouts; ++layout) {
    const PixelColor button = buttons[layout - 1];
    Follow(layout);
    Put(ButtonPoints[layout][3], 0, 0, button - 1);  // a little less red
    Put(ButtonPoints[layout][8], 0, 0, button);
    EXPECT_EQ(FindDealerSeat(), 8);
    Put(ButtonPoints[layout][3], 0, 0, button);
    EXPECT_EQ(FindDealerSeat(), 3);
    autoRead.WatchedWindow = 0;
    EXPECT_EQ(FindDealerSeat(), 0);
  }
}

TEST_F(TableReading, FaceDownCards) {
  const PixelColor felt = kFelt, white = kWhite;
  const std::vector<Cell> border = {{2, 0, felt},  {3, 0, felt},  {4, 0, felt},  {0, 3, felt},
                                    {0, 4, felt},  {2, 1, white}, {3, 1, white}, {4, 1, white},
                                    {1, 3, white}, {1, 4, white}};
  const std::vector<Cell> marks[] = {{{0, 0, 0x203310}, {0, 26, 0x103320}},
                                     {{0, 13, 0}, {15, 0, 0}, {10, 0, 0}},
                                     {{24, 0, 0}, {12, 0, 0}},
                                     border,
                                     border};
  for (int layout = 1; layout <= kLayouts; ++layout) {
    Follow(layout);
    const PixelPoint point = HoldingPoints[layout][9];
    for (const auto& [dx, dy, colour] : marks[layout - 1]) Put(point, dx, dy, colour);
    EXPECT_TRUE(SeatsHoldingCards()->at(9));
    for (const auto& [dx, dy, colour] : marks[layout - 1]) {
      Put(point, dx, dy, colour ^ 0x000700);  // one more green in layout 1
      EXPECT_FALSE(SeatsHoldingCards()->at(9)) << layout << ": " << dx << ", " << dy;
      Put(point, dx, dy, colour);
    }
  }
}

TEST_F(TableReading, Layout3Marker) {
  const std::string row = "ab.ba.baba";
  const auto put = [&](int i) { Put({373, 417}, i, 0, row[i] == 'a' ? kFelt : kFelt + 1); };
  Follow(2);
  EXPECT_FALSE(HasLayout3Marker(7));  // a row of one colour
  for (int i = 0; i < 10; ++i) put(i);
  EXPECT_TRUE(HasLayout3Marker(7));
  for (int i = 0; i < 10; ++i) {
    Put({373, 417}, i, 0, kFelt + 2);
    EXPECT_EQ(HasLayout3Marker(7), row[i] == '.') << i;
    put(i);
  }
}

TEST_F(TableReading, NothingIsReadWithoutATable) {
  const auto expectNothing = [] {
    const CardPosition position[] = {{6, 1}};
    EXPECT_EQ(ReadCards(position), std::vector{kNoCard});
    EXPECT_EQ(FindDealerSeat(), 0);
    EXPECT_EQ(SeatsHoldingCards(), (std::array<bool, kSeats + 1>{}));
  };
  // The places of seat 6 in layout 4 are in the window's corner, where anything may stand.
  Follow(4);
  Put({0, 0}, Picture({{0, 0, 0x0000FF}}));
  expectNothing();
  desktop.windows.clear();
  const CardPosition position[] = {{5, 1}};
  EXPECT_FALSE(ReadCards(position) || FindDealerSeat() || SeatsHoldingCards() ||
               HasLayout3Marker(7));
  desktop.beforeCall = [] { FAIL() << "the screen was looked at"; };
  for (const int layout : {-1, 0, 6}) {
    autoRead.TableLayout = layout;
    expectNothing();
  }
}

}  // namespace
}  // namespace holdem::modCardRead
