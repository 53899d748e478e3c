#include "autoread/mod_card_read.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "autoread/card_templates.h"
#include "autoread/layouts.h"
#include "fakes/fake_ports.h"
#include "reference/card_text.h"

namespace holdem::modCardRead {
namespace {

constexpr PixelColor kFelt = 0x206010;  // green over the others by 64
constexpr PixelColor kWhite = 0xFFFFFF;

// A colour whose smallest component, in any of the three places, is the measure.
constexpr PixelColor Shade(int measure, int place = 0) {
  return kWhite - (static_cast<PixelColor>(255 - measure) << 8 * place);
}

struct Cell {
  int dx, dy;
  PixelColor colour;
};

// A card in a capture: white, its top and left edges black, which every layout takes for a face.
struct Picture {
  static constexpr int kWidth = 16;
  static constexpr int kHeight = 39;

  Capture capture{.area = {30, 70, 30 + kWidth, 70 + kHeight},
                  .pixels = std::vector<PixelColor>(kWidth * kHeight, kWhite)};

  Picture(std::initializer_list<Cell> cells = {}) {
    for (int dx = 0; dx < kWidth; ++dx) At(dx, 0) = 0;
    for (int dy = 0; dy < kHeight; ++dy) At(0, dy) = 0;
    for (const Cell& cell : cells) At(cell.dx, cell.dy) = cell.colour;
  }
  PixelColor& At(int dx, int dy) { return capture.pixels.at(dy * kWidth + dx); }

  std::string Text(int layout) const {
    using Recogniser = std::string (*)(const Capture&);
    constexpr Recogniser recognisers[] = {RecogniseCardLayout1, RecogniseCardLayout2,
                                          RecogniseCardLayout3, RecogniseCardLayout45,
                                          RecogniseCardLayout45};
    return recognisers[layout - 1](capture);
  }
};

TEST(Colours, Measures) {
  const struct {
    PixelColor colour;
    int red, green, blue, min, greenExcess, redExcess;
  } cases[] = {{0x000000, 0, 0, 0, 0, 0, 0},        {0xFFFFFF, 255, 255, 255, 255, 0, 0},
               {0x030201, 1, 2, 3, 1, 0, 0},        {0x102030, 48, 32, 16, 16, 0, 16},
               {0x302010, 16, 32, 48, 16, 0, 0},    {0x206010, 16, 96, 32, 16, 64, 0},
               {0x60C0A0, 160, 192, 96, 96, 32, 0}, {0x8001FF, 255, 1, 128, 1, 0, 127},
               {0x50FFFF, 255, 255, 80, 80, 0, 0},  {0xFFFF00, 0, 255, 255, 0, 0, 0},
               {0xFF00FF, 255, 0, 255, 0, 0, 0},    {kUnreadable, -1, 0, 0, -1, 0, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << std::hex << c.colour);
    const auto [red, green, blue] = SplitColour(c.colour);
    EXPECT_EQ(std::tie(red, green, blue), std::tie(c.red, c.green, c.blue));
    EXPECT_EQ(MinComponent(c.colour), c.min);
    EXPECT_EQ(GreenExcess(c.colour), c.greenExcess);
    EXPECT_EQ(RedExcess(c.colour), c.redExcess);
  }
}

TEST(CardTexts, Codes) {
  const std::pair<const char*, Card> cases[] = {
      {"AS", 1}, {"2S", 2},  {"TD", 23}, {"QC", 38}, {"KH", 52}, {"JH", 50}, {"??", 0}, {"A", 0},
      {"", 0},   {"ASS", 0}, {"AX", 0},  {"XS", 0},  {"0S", 0},  {"1D", 14}, {"as", 0}, {"SA", 0}};
  for (const auto& [text, code] : cases) EXPECT_EQ(CardTextToCode(text), code) << text;
}

// A recogniser's signs, its threshold, and what it reads when none holds.
struct Chain {
  int layout;
  int place;  // of the sign in the card's text
  const char* signs;
  char otherwise;
  int threshold;
  int top;
  std::span<const CardTemplate> templates;
};

const Chain kChains[] = {
    {1, 1, "HDS", 'C', 40, kLayout1Suits.top, kLayout1Suits.templates},
    {1, 0, "2534678JKAQT", '9', 120, kLayout1Ranks.top, kLayout1Ranks.templates},
    {2, 0, "7T2345689JKA", 'Q', 30, kLayout2Ranks.top, kLayout2Ranks.templates},
    {3, 0, "T823AJQ4K7", '5', 120, kLayout3Ranks.top, kLayout3Ranks.templates},
    {3, 0, "69", '5', 150, kLayout3LateRanks.top, kLayout3LateRanks.templates},
    {5, 0, "J74283569AKT", 'Q', 170, kLayout45Ranks.top, kLayout45Ranks.templates}};

// The drawings were compared with the clients' cards; a change of one must be meant.
TEST(CardTemplates, StayAsTheyAre) {
  std::uint64_t hash = 0xcbf29ce484222325;
  const auto add = [&](int value) { hash = (hash ^ value) * 0x100000001b3; };
  for (const Chain& chain : kChains) {
    std::string signs;
    add(chain.top);
    for (const CardTemplate& sign : chain.templates) {
      signs += sign.sign;
      for (const auto& rows : {sign.dark, sign.light}) {
        for (const int row : rows) add(row);
      }
    }
    EXPECT_EQ(signs, chain.signs);
  }
  EXPECT_EQ(hash, 0xdfbd9c14d19903a5U);
}

TEST(Recognition, ASignIsReadByEachOfItsCells) {
  for (const Chain& chain : kChains) {
    const auto read = [&](const Picture& picture) {
      return picture.Text(chain.layout)[chain.place];
    };
    const PixelColor light = Shade(chain.threshold, 1);
    EXPECT_EQ(read(Picture()), chain.otherwise);
    for (const CardTemplate& sign : chain.templates) {
      SCOPED_TRACE(testing::Message() << "layout " << chain.layout << ", " << sign.sign);
      Picture picture;
      std::vector<std::pair<Cell, PixelColor>> broken;
      for (std::size_t row = 0; row < sign.dark.size(); ++row) {
        const int dy = chain.top + static_cast<int>(row);
        for (int dx = 0; dx < Picture::kWidth; ++dx) {
          const PixelColor dark = Shade(chain.threshold - 1, dx % 3);
          if (sign.dark[row] >> dx & 1) {
            picture.At(dx, dy) = dark;
            broken.push_back({{dx, dy, dark}, light});
          } else if (sign.light[row] >> dx & 1) {
            picture.At(dx, dy) = light;
            broken.push_back({{dx, dy, light}, dark});
          }
        }
      }
      EXPECT_EQ(read(picture), sign.sign);
      for (const auto& [cell, other] : broken) {
        picture.At(cell.dx, cell.dy) = other;
        EXPECT_NE(read(picture), sign.sign) << cell.dx << ", " << cell.dy;
        picture.At(cell.dx, cell.dy) = cell.colour;
      }
    }
  }
}

TEST(Recognition, TheFirstSignOfAChainIsTaken) {
  for (const int layout : {1, 2, 3, 5}) {
    Picture picture;
    for (int dy = 3; dy < Picture::kHeight; ++dy) {
      for (int dx = 2; dx < Picture::kWidth; ++dx) picture.At(dx, dy) = Shade(20);
    }
    picture.At(5, 5) = kWhite;  // not a card's back
    const char* const expected[] = {"2H", "7D", "TD", "", "JH"};
    if (layout == 5) picture.At(15, 5) = kFelt;
    EXPECT_EQ(picture.Text(layout), expected[layout - 1]);
  }
}

TEST(Recognition, Suits) {
  const PixelColor dark = Shade(119);
  const Cell diamond[] = {{8, 23, dark}, {2, 31, dark}, {13, 31, dark}, {8, 38, dark}};
  const struct {
    int layout;
    std::vector<Cell> cells;
    char suit;
  } cases[] = {{2, {{10, 23, Shade(201)}}, 'H'},
               {2, {{10, 23, Shade(200)}, {10, 25, 0x40'42'41}, {5, 25, Shade(251)}}, 'C'},
               {2, {{10, 23, Shade(200)}, {10, 25, 0x40'42'41}, {5, 25, Shade(250)}}, 'S'},
               {2, {{10, 23, Shade(200)}, {10, 25, 0x40'42'42}, {5, 25, Shade(251)}}, 'D'},
               {2, {{10, 23, Shade(200)}, {10, 25, 0x42'42'41}, {5, 25, Shade(250)}}, 'D'},
               {3, {diamond[0], diamond[1], diamond[2], diamond[3]}, 'D'},
               {3, {diamond[1], diamond[2], diamond[3]}, 'S'},
               {3, {{8, 23, Shade(120)}, diamond[1], diamond[2], diamond[3]}, 'S'},
               {3, {diamond[0], {2, 31, Shade(120)}, diamond[2], diamond[3]}, 'S'},
               {3, {diamond[0], diamond[1], {13, 31, Shade(120)}, diamond[3]}, 'S'},
               {3, {diamond[0], diamond[1], diamond[2], {8, 38, Shade(120)}}, 'S'},
               {3, {{8, 34, Shade(120)}, {8, 30, 0x0000FF}}, 'S'},
               {3, {{8, 34, dark}, {8, 30, 0x20'1F'85}}, 'H'},
               {3, {{8, 34, dark}, {8, 30, 0x1F'20'84}}, 'C'},
               {5, {{7, 28, Shade(251)}, {7, 29, 0}, {5, 22, 0}}, 'C'},
               {5, {{7, 28, Shade(250)}, {7, 29, Shade(251)}, {5, 22, 0}}, 'S'},
               {5, {{7, 28, Shade(250)}, {7, 29, Shade(250)}, {5, 22, Shade(251)}}, 'D'},
               {5, {{7, 28, Shade(250)}, {7, 29, Shade(250)}, {5, 22, Shade(250)}}, 'H'}};
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    Picture picture;
    for (const Cell& cell : cases[i].cells) picture.At(cell.dx, cell.dy) = cell.colour;
    EXPECT_EQ(picture.Text(cases[i].layout)[1], cases[i].suit) << "case " << i;
  }
}

// Which pixels make a face unreadable when they have this colour.
using Places = std::set<std::pair<int, int>>;

Places Breaking(int layout, PixelColor colour) {
  Places places;
  for (int dy = 0; dy < Picture::kHeight; ++dy) {
    for (int dx = 0; dx < Picture::kWidth; ++dx) {
      if (Picture({{dx, dy, colour}}).Text(layout) == "??") places.insert({dx, dy});
    }
  }
  return places;
}

TEST(Recognition, AFaceNeedsEachPixelOfItsCorner) {
  enum Lines { Neither, Outer, Inner, Both };
  const struct {
    int layout;
    PixelColor colour;
    Lines lines;
    int first, last;
  } cases[] = {{1, Shade(101), Outer, 2, 6},   {1, Shade(100), Neither, 2, 6},
               {1, Shade(99), Inner, 2, 6},    {1, kUnreadable, Inner, 2, 6},
               {2, Shade(101), Outer, 6, 10},  {2, Shade(100), Neither, 6, 10},
               {2, Shade(99), Inner, 6, 10},   {2, kUnreadable, Inner, 6, 10},
               {3, 0x000001, Outer, 1, 5},     {3, 0x000000, Inner, 1, 5},
               {3, kUnreadable, Outer, 1, 5},  {5, Shade(254), Both, 5, 7},
               {5, Shade(254, 2), Both, 5, 7}, {5, kUnreadable, Both, 5, 7}};
  for (const auto& c : cases) {
    Places expected;
    for (int k = c.first; k <= c.last; ++k) {
      if (c.lines & Outer) expected.insert({{k, 0}, {0, k}});
      if (c.lines & Inner) expected.insert({{k, 1}, {1, k}});
    }
    if (c.layout == 5) expected.insert({{4, 0}, {4, 1}});  // where felt and border are met
    EXPECT_EQ(Breaking(c.layout, c.colour), expected)
        << "layout " << c.layout << std::hex << ", colour " << c.colour;
  }
}

TEST(Recognition, NoCard) {
  const auto filled = [](PixelColor colour) {
    Picture picture;
    for (PixelColor& pixel : picture.capture.pixels) pixel = colour;
    return picture;
  };
  Picture nothing;
  nothing.capture = {};
  for (int layout = 1; layout <= kLayouts; ++layout) {
    for (const PixelColor colour : {kUnreadable, kWhite, kFelt, PixelColor{0}}) {
      EXPECT_EQ(filled(colour).Text(layout), "??") << layout << " " << colour;
    }
    EXPECT_EQ(nothing.Text(layout), "??") << layout;
  }
}

TEST(Recognition, ACardsBackInLayouts4And5) {
  Picture back({{5, 5, kFelt}});
  for (int dx = 10; dx <= 15; ++dx) back.At(dx, 5) = kFelt;
  EXPECT_EQ(back.Text(5), "??");
  for (const int dx : {5, 10, 11, 12, 13, 14, 15}) {
    Picture face = back;
    face.At(dx, 5) = kFelt + 1;
    EXPECT_EQ(face.Text(5), "QC") << dx;
  }
  for (const int dx : {4, 6, 9}) back.At(dx, 5) = kFelt + 1;
  EXPECT_EQ(back.Text(5), "??");
}

// A table whose window is all felt, for every layout and several caption bars.
class RecordingDesktop : public FakeDesktop {
 public:
  std::vector<std::size_t> areasRead;  // of each call

  std::optional<std::vector<Capture>> Read(WindowHandle window,
                                           std::span<const PixelArea> areas) override {
    areasRead.push_back(areas.size());
    return FakeDesktop::Read(window, areas);
  }
};

class TableReading : public ProgramTest {
 protected:
  TableReading() {
    LoadTableLayouts();
    ports.desktop = &table_;
  }

  void Follow(int layout, int captionAdjust) {
    table_ = {};
    table_.windows = {{.handle = 7, .outer = {0, 0, 800, 600}}};
    table_.windows[0].pixels.assign(800 * 600, kFelt);
    autoRead = {.WatchedWindow = 7, .TableLayout = layout, .CaptionAdjust = captionAdjust};
    autoRead.CurrentTable.windowHandle = 7;
  }
  template <typename Check>
  void InEveryLayout(Check check) {
    for (int layout = 1; layout <= kLayouts; ++layout) {
      for (const int adjust : {0, 8, -5}) {
        SCOPED_TRACE(testing::Message() << "layout " << layout << ", adjust " << adjust);
        Follow(layout, adjust);
        check(layout);
      }
    }
  }
  void Put(PixelPoint corner, int dx, int dy, PixelColor colour) {
    const int y = corner.y + dy - autoRead.CaptionAdjust;
    if (y >= 0) table_.windows[0].At(corner.x + dx, y) = colour;
  }
  void Put(PixelPoint corner, Picture picture) {
    for (int dy = 0; dy < Picture::kHeight; ++dy) {
      for (int dx = 0; dx < Picture::kWidth; ++dx) Put(corner, dx, dy, picture.At(dx, dy));
    }
  }

  RecordingDesktop table_;
};

TEST_F(TableReading, EachCardAtItsPlace) {
  const std::string blank[] = {"9C", "QH", "5S", "QC", "QC"};
  InEveryLayout([&](int layout) {
    std::vector<CardPosition> positions;
    for (int card = 1; card <= 5; ++card) positions.push_back({kBoardSeat, card});
    for (int seat = 1; seat <= kSeats; ++seat) {
      for (const int card : {1, 2}) positions.push_back({seat, card});
    }
    const auto before = table_.windows[0].pixels;
    for (std::size_t i = 0; i < positions.size(); ++i) {
      const auto [seat, card] = positions[i];
      if (layout == 4 && seat == 6) continue;
      Put(CardPoints[layout][seat][card], Picture());
      std::vector<Card> expected(positions.size(), kNoCard);
      expected[i] = CardsOf(blank[layout - 1])[0];
      EXPECT_EQ(ReadCards(positions), expected) << seat << " " << card;
      table_.windows[0].pixels = before;
    }
  });
}

TEST_F(TableReading, AllThatARecogniserLooksAtIsCaptured) {
  const auto drawn = [](const CardTemplate& sign, int top, std::initializer_list<Cell> cells = {}) {
    Picture picture(cells);
    for (std::size_t row = 0; row < sign.dark.size(); ++row) {
      for (int dx = 0; dx < Picture::kWidth; ++dx) {
        if (sign.dark[row] >> dx & 1) picture.At(dx, top + static_cast<int>(row)) = 0;
      }
    }
    return picture;
  };
  Picture back({{5, 5, kFelt}});
  for (int dx = 10; dx <= 15; ++dx) back.At(dx, 5) = kFelt;
  const Picture spade({{7, 28, 0}});
  // By layout: cards on which the outermost of those pixels count.
  const std::vector<Picture> cards[] = {
      {drawn(kLayout1Suits.templates[1], kLayout1Suits.top),
       drawn(kLayout1Ranks.templates[11], kLayout1Ranks.top)},
      {drawn(kLayout2Ranks.templates[0], kLayout2Ranks.top, {{10, 23, 0}, {10, 25, kFelt}})},
      {{{8, 23, 0}, {2, 31, 0}, {13, 31, 0}, {8, 38, 0}}},
      {back, spade},
      {back, spade}};
  const CardPosition position[] = {{kBoardSeat, 1}};
  for (int layout = 1; layout <= kLayouts; ++layout) {
    Follow(layout, 0);
    for (Picture card : cards[layout - 1]) {
      for (PixelColor& pixel : card.capture.pixels) {
        const PixelColor before = std::exchange(pixel, pixel == kWhite ? 0 : kWhite);
        Put(CardPoints[layout][kBoardSeat][1], card);
        EXPECT_EQ(ReadCards(position), std::vector{CardTextToCode(card.Text(layout))})
            << "layout " << layout << ", pixel " << &pixel - card.capture.pixels.data();
        pixel = before;
      }
    }
  }
}

TEST_F(TableReading, ALayout1CardIsTakenWhenTwoReadsAgree) {
  const struct {
    int layout;
    const char* shown;  // by read: blank card (9), Queen (Q), nothing (-)
    const char* read;
    std::vector<std::size_t> areasRead;  // the first of the two cards stands still
  } cases[] = {{1, "99", "9C", {2, 2}},
               {1, "9QQ", "QC", {2, 2, 1}},
               {1, "9Q9Q99", "9C", {2, 2, 1, 1, 1, 1}},
               {1, "9Q9Q9QQQ", "", {2, 2, 1, 1, 1, 1}},
               {1, "-999", "", {2, 1}},
               {1, "9-999", "", {2, 2}},
               {1, "9Q-999", "", {2, 2, 1}},
               {5, "9Q", "QC", {2}}};
  Picture queen;
  for (const auto& [dx, dy] : {std::pair{4, 10}, {4, 11}, {11, 14}, {10, 15}, {11, 15}}) {
    queen.At(dx, dy) = 0;
  }
  for (const auto& c : cases) {
    SCOPED_TRACE(c.shown);
    Follow(c.layout, 0);
    Put(CardPoints[c.layout][kBoardSeat][1], Picture());
    table_.beforeCall = [&, shown = c.shown]() mutable {
      Put(CardPoints[c.layout][kBoardSeat][2], *shown == 'Q' ? queen : Picture());
      if (*shown == '-') Put(CardPoints[c.layout][kBoardSeat][2], 3, 0, kWhite);
      ++shown;
    };
    const CardPosition positions[] = {{kBoardSeat, 1}, {kBoardSeat, 2}};
    const auto cards = ReadCards(positions);
    ASSERT_TRUE(cards);
    EXPECT_EQ((*cards)[0], CardsOf(c.layout == 1 ? "9C" : "QC")[0]);
    EXPECT_EQ((*cards)[1], *c.read ? CardsOf(c.read)[0] : kNoCard);
    EXPECT_EQ(table_.areasRead, c.areasRead);
  }
}

TEST_F(TableReading, DealerButton) {
  const struct {
    PixelColor button, almost;
  } colours[] = {{Shade(200), Shade(199)},
                 {0x1A'10'E2, 0x1A'10'E1},
                 {Shade(150), Shade(149)},
                 {0x10'1A'9C, 0x10'1A'9B},
                 {0x10'1A'9C, 0x10'1A'9B}};
  InEveryLayout([&](int layout) {
    const auto [button, almost] = colours[layout - 1];
    EXPECT_EQ(FindDealerSeat(), 0);
    for (int seat = kSeats; seat >= 1; --seat) {  // those put before stay
      if (layout == 4 && seat == 6) continue;
      const PixelPoint point = ButtonPoints[layout][seat];
      const auto above = FindDealerSeat();
      Put(point, 0, 0, almost);
      EXPECT_EQ(FindDealerSeat(), above) << seat;
      Put(point, 0, 0, button);
      EXPECT_EQ(FindDealerSeat(), seat);
    }
    EXPECT_EQ(table_.areasRead, std::vector<std::size_t>(table_.areasRead.size(), kSeats));
  });
  for (const PixelColor colour : {PixelColor{0x0000FF}, kWhite}) {  // whatever stands in the corner
    Follow(4, 0);
    Put({0, 0}, 0, 0, colour);
    EXPECT_EQ(FindDealerSeat(), 0);
  }
}

TEST_F(TableReading, FaceDownCards) {
  constexpr PixelColor kEdge = 0x304050;
  constexpr PixelColor kAlmostWhite = 0xFFFEFF;
  struct Dot : Cell {
    PixelColor broken;
  };
  const std::vector<Dot> corner = {{2, 0, kEdge, kEdge + 1},     {3, 0, kEdge, kEdge + 1},
                                   {4, 0, kEdge, kEdge + 1},     {0, 3, kEdge, kEdge + 1},
                                   {0, 4, kEdge, kEdge + 1},     {2, 1, kWhite, kAlmostWhite},
                                   {3, 1, kWhite, kAlmostWhite}, {4, 1, kWhite, kAlmostWhite},
                                   {1, 3, kWhite, kAlmostWhite}, {1, 4, kWhite, kAlmostWhite}};
  const std::vector<Dot> dots[] = {
      {{0, 0, 0x20'33'10, 0x20'34'10}, {0, 26, 0x10'33'20, 0x10'34'20}},
      {{0, 13, 0, 1}, {15, 0, 0, 1}, {10, 0, 0, 1}},
      {{24, 0, 0, 1}, {12, 0, 0, 1}},
      corner,
      corner};
  InEveryLayout([&](int layout) {
    for (int seat = 1; seat <= kSeats; ++seat) {
      SCOPED_TRACE(seat);
      const PixelPoint point = HoldingPoints[layout][seat];
      std::array<bool, kSeats + 1> expected{};
      for (const Dot& dot : dots[layout - 1]) Put(point, dot.dx, dot.dy, dot.colour);
      expected[seat] = layout != 4 || seat != 6;
      EXPECT_EQ(SeatsHoldingCards(), expected);
      expected[seat] = false;
      for (const Dot& dot : dots[layout - 1]) {
        Put(point, dot.dx, dot.dy, dot.broken);
        EXPECT_EQ(SeatsHoldingCards(), expected) << dot.dx << ", " << dot.dy;
        Put(point, dot.dx, dot.dy, dot.colour);
      }
      for (const Dot& dot : dots[layout - 1]) Put(point, dot.dx, dot.dy, kFelt);
    }
  });
  Follow(5, 0);
  for (const Dot& dot : corner) Put(HoldingPoints[5][1], dot.dx, dot.dy, kWhite);
  EXPECT_EQ(SeatsHoldingCards(), (std::array<bool, kSeats + 1>{}));
}

TEST_F(TableReading, Layout3Marker) {
  const std::string row = "ab.ba.baba";
  for (const int adjust : {0, 8, -5}) {
    Follow(2, adjust);
    table_.windows.push_back({.handle = 8, .outer = {0, 0, 800, 600}});
    std::swap(table_.windows[0], table_.windows[1]);  // the marker's window is not followed
    EXPECT_FALSE(HasLayout3Marker(8));
    for (int i = 0; i < 10; ++i) {
      if (row[i] != '.') Put({373, 417}, i, 0, row[i] == 'a' ? kFelt : kFelt + 1);
    }
    EXPECT_TRUE(HasLayout3Marker(8));
    EXPECT_FALSE(HasLayout3Marker(7));
    for (int i = 0; i < 10; ++i) {
      Put({373, 417}, i, 0, kFelt + 2);
      EXPECT_EQ(HasLayout3Marker(8), row[i] == '.') << i;
      Put({373, 417}, i, 0, row[i] == 'a' ? kFelt : kFelt + 1);
    }
    for (int i = 0; i < 10; ++i) Put({373, 417}, i, 0, kFelt);
    EXPECT_FALSE(HasLayout3Marker(8));  // a row of one colour
    EXPECT_FALSE(HasLayout3Marker(9));
  }
}

TEST_F(TableReading, NothingIsReadWithoutATable) {
  const CardPosition position[] = {{kBoardSeat, 1}};
  const std::array<bool, kSeats + 1> nobody{};
  for (const int layout : {-1, 0, 6}) {
    Follow(layout, 0);
    table_.windows[0].pixels.assign(800 * 600, kWhite);
    EXPECT_EQ(ReadCards(position), std::vector<Card>{kNoCard});
    EXPECT_EQ(FindDealerSeat(), 0);
    EXPECT_EQ(SeatsHoldingCards(), nobody);
    EXPECT_TRUE(table_.areasRead.empty());
  }
  Follow(1, 0);
  table_.windows[0].pixels.assign(800 * 600, kWhite);
  EXPECT_EQ(FindDealerSeat(), 1);
  autoRead.WatchedWindow = 0;
  EXPECT_EQ(FindDealerSeat(), 0);
}

TEST_F(TableReading, SeatSixOfLayout4ShowsNoCards) {
  Follow(4, 0);
  const CardPosition positions[] = {{6, 1}, {6, 2}};
  for (const auto& [seat, card] : positions) Put(CardPoints[4][seat][card], Picture());
  EXPECT_EQ(ReadCards(positions), (std::vector<Card>{kNoCard, kNoCard}));
}

TEST_F(TableReading, AWindowThatDies) {
  const CardPosition position[] = {{kBoardSeat, 1}};
  InEveryLayout([&](int layout) {
    Put(CardPoints[layout][kBoardSeat][1], Picture());
    table_.beforeCall = [&] {
      if (table_.areasRead.size() == (layout == 1 ? 2 : 1)) table_.windows.clear();
    };
    EXPECT_EQ(ReadCards(position), std::nullopt);
    EXPECT_EQ(FindDealerSeat(), std::nullopt);
    EXPECT_EQ(SeatsHoldingCards(), std::nullopt);
  });
}

}  // namespace
}  // namespace holdem::modCardRead
