#include "autoread/mod_card_read.h"

#include <random>
#include <tuple>

#include "autoread/card_templates.h"
#include "autoread/layouts.h"
#include "fakes/fake_ports.h"
#include "table_client/table_picture.h"

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

using Cells = std::vector<Cell>;

class CardReading : public ProgramTest {
 protected:
  CardReading() { LoadTableLayouts(); }

  // Felt everywhere.
  void Follow(int layout) {
    desktop.windows = {{.handle = 7, .outer = {0, 0, 800, 600}}};
    desktop.windows[0].painted = [](int, int) { return kFelt; };
    autoRead = {.WatchedWindow = 7, .TableLayout = layout};
    autoRead.CurrentTable.windowHandle = 7;
  }
  void Paint(PixelPoint corner, const Cells& cells) {
    for (const auto& [dx, dy, colour] : cells) {
      desktop.windows[0].changed[{corner.x + dx, corner.y + dy}] = colour;
    }
  }
  // White, its top and left edges black, which every layout takes for a face; then the cells.
  void PaintCard(PixelPoint corner, const Cells& cells) {
    for (int dy = 0; dy < 39; ++dy) {
      for (int dx = 0; dx < 16; ++dx) Paint(corner, {{dx, dy, dx == 0 || dy == 0 ? 0 : kWhite}});
    }
    Paint(corner, cells);
  }
  // Rank and suit as they are read where the layout shows a card; "--" for none.
  std::string Text(int layout, const Cells& cells) {
    Follow(layout);
    PaintCard(CardPoints[layout][kBoardSeat][1], cells);
    const CardPosition position[] = {{kBoardSeat, 1}};
    return TextOf(ReadCards(position)->at(0));
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

TEST_F(CardReading, ASignIsReadByEachOfItsCells) {
  Fingerprint drawings;
  for (const Chain& chain : kChains) {
    const auto read = [&](const Cells& cells) { return Text(chain.layout, cells)[chain.place]; };
    const PixelColor light = Shade(chain.threshold);
    const PixelColor dark = Shade(chain.threshold - 1);
    EXPECT_EQ(read({}), chain.otherwise);
    std::string signs;
    for (const CardTemplate& sign : chain.templates) {
      signs += sign.sign;
      Cells cells;
      for (int row = 0; row < std::ssize(sign.dark); ++row) {
        for (int dx = 0; dx < 16; ++dx) {
          const int isDark = sign.dark[row] >> dx & 1;
          if (isDark == 0 && (sign.light[row] >> dx & 1) == 0) continue;
          cells.push_back({dx, chain.top + row, isDark != 0 ? dark : light});
          for (const int value : {dx, chain.top + row, isDark}) drawings.Add(value);
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
  EXPECT_EQ(drawings.value, 5323690617258653014U);
}

TEST_F(CardReading, ThePlacesStayAsTheyAre) {
  CardPoints = {};
  ButtonPoints = HoldingPoints = {};
  LoadTableLayouts();
  Fingerprint places;
  const auto add = [&](const PixelPoint& point) {
    places.Add(point.x);
    places.Add(point.y);
  };
  for (int layout = 0; layout <= kLayouts; ++layout) {
    for (int seat = 0; seat <= kSeats; ++seat) {
      std::ranges::for_each(CardPoints[layout][seat], add);
      add(ButtonPoints[layout][seat]);
      add(HoldingPoints[layout][seat]);
    }
  }
  EXPECT_EQ(places.value, 0x99325fceeef4bcfU);
}

TEST_F(CardReading, Suits) {
  const PixelColor dark = Shade(119), light = Shade(120), green = 0x404241;
  const Cells diamond = {{8, 23, dark}, {2, 31, dark}, {13, 31, dark}, {8, 38, dark}};
  const std::tuple<int, char, Cells> cases[] = {
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
    EXPECT_EQ(Text(layout, cells)[1], suit) << layout;
  }
  for (std::size_t i = 0; i < diamond.size(); ++i) {
    Cells broken = diamond;
    broken[i].colour = light;
    EXPECT_EQ(Text(3, broken)[1], 'S');
  }
}

TEST_F(CardReading, AFaceNeedsEachPixelOfItsCorner) {
  const struct {
    int layout, first, last, beside[2];
    PixelColor edge, notEdge, face, notFace;
  } cases[] = {{1, 2, 6, {1, 7}, Shade(100), Shade(101), Shade(100), 0x63FFFF},
               {2, 6, 10, {5, 11}, Shade(100), Shade(101), Shade(100), 0xFF63FF},
               {3, 1, 5, {0, 6}, 0, 1, 1, 0},
               {5, 5, 7, {8, 8}, 0, 1, kWhite, Shade(254)}};
  for (const auto& c : cases) {
    const auto isFace = [&](const Cells& cells) { return Text(c.layout, cells) != "--"; };
    for (int k = c.first; k <= c.last; ++k) {
      EXPECT_TRUE(isFace({{k, 0, c.edge}, {0, k, c.edge}, {k, 1, c.face}, {1, k, c.face}}));
      EXPECT_FALSE(isFace({{k, 0, c.notEdge}}) || isFace({{0, k, c.notEdge}})) << k;
      EXPECT_FALSE(isFace({{k, 1, c.notFace}}) || isFace({{1, k, c.notFace}})) << k;
    }
    for (const int k : c.beside) {
      EXPECT_TRUE(
          isFace({{k, 0, c.notEdge}, {0, k, c.notEdge}, {k, 1, c.notFace}, {1, k, c.notFace}}));
    }
    Cells white;
    for (int k = 0; k < 16; ++k) white.insert(white.end(), {{k, 0, kWhite}, {0, k, kWhite}});
    EXPECT_FALSE(isFace(white));
  }
  EXPECT_EQ(Text(5, {{4, 1, Shade(254)}}), "--");  // the border where the felt is met
  // A back has a strip of one colour.
  Cells strip = {{5, 5, 1}};
  for (int dx = 10; dx <= 15; ++dx) strip.push_back({dx, 5, 1});
  for (const int layout : {4, 5}) {
    EXPECT_EQ(Text(layout, strip), "--");
    for (Cell& cell : strip) {
      cell.colour = 2;
      EXPECT_NE(Text(layout, strip), "--") << cell.dx;
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

TEST_F(CardReading, ALayout1CardIsTakenWhenTwoReadsAgree) {
  const struct {
    int layout;
    const char* shown;  // by read: blank card (9), Queen (Q), nothing (-)
    Card card;
    int reads;
  } cases[] = {{1, "99", 35, 2},  {1, "9QQ", 38, 3},   {1, "9Q9Q99", 35, 6}, {1, "9Q9Q9QQQ", 0, 6},
               {1, "-999", 0, 1}, {1, "9Q-999", 0, 3}, {5, "9Q", 38, 1}};
  const Cells queen = {{4, 10, 0}, {4, 11, 0}, {11, 14, 0}, {10, 15, 0}, {11, 15, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.shown);
    Follow(c.layout);
    int reads = 0;
    desktop.beforeCall = [&] {
      const char shown = c.shown[reads++];
      const Cells nothing = {{3, 0, kWhite}};
      PaintCard(CardPoints[c.layout][kBoardSeat][2], shown == 'Q'   ? queen
                                                     : shown == '-' ? nothing
                                                                    : Cells());
    };
    const CardPosition positions[] = {{kBoardSeat, 1}, {kBoardSeat, 2}};
    EXPECT_EQ(ReadCards(positions), (std::vector<Card>{kNoCard, c.card}));
    EXPECT_EQ(reads, c.reads);
  }
}

TEST_F(CardReading, DealerButton) {
  const PixelColor buttons[] = {Shade(200), 0x1A10E2, Shade(150), 0x101A9C, 0x101A9C};
  for (int layout = 1; layout <= kLayouts; ++layout) {
    const PixelColor button = buttons[layout - 1];
    Follow(layout);
    Paint(ButtonPoints[layout][3], {{0, 0, button - 1}});  // a little less red
    Paint(ButtonPoints[layout][8], {{0, 0, button}});
    EXPECT_EQ(FindDealerSeat(), 8);
    Paint(ButtonPoints[layout][3], {{0, 0, button}});
    EXPECT_EQ(FindDealerSeat(), 3);
    autoRead.WatchedWindow = 0;
    EXPECT_EQ(FindDealerSeat(), 0);
  }
}

TEST_F(CardReading, FaceDownCards) {
  const PixelColor felt = kFelt, white = kWhite;
  const Cells border = {{2, 0, felt},  {3, 0, felt},  {4, 0, felt},  {0, 3, felt},  {0, 4, felt},
                        {2, 1, white}, {3, 1, white}, {4, 1, white}, {1, 3, white}, {1, 4, white}};
  const Cells marks[] = {{{0, 0, 0x203310}, {0, 26, 0x103320}},
                         {{0, 13, 0}, {15, 0, 0}, {10, 0, 0}},
                         {{24, 0, 0}, {12, 0, 0}},
                         border,
                         border};
  for (int layout = 1; layout <= kLayouts; ++layout) {
    Follow(layout);
    const PixelPoint point = HoldingPoints[layout][9];
    Paint(point, marks[layout - 1]);
    EXPECT_TRUE(SeatsHoldingCards()->at(9));
    for (const auto& [dx, dy, colour] : marks[layout - 1]) {
      Paint(point, {{dx, dy, colour ^ 0x000700}});  // one more green in layout 1
      EXPECT_FALSE(SeatsHoldingCards()->at(9)) << layout << ": " << dx << ", " << dy;
      Paint(point, {{dx, dy, colour}});
    }
  }
}

TEST_F(CardReading, Layout3Marker) {
  const std::string row = "ab.ba.baba";
  const auto put = [&](int i) { Paint({373, 417}, {{i, 0, row[i] == 'a' ? kFelt : kFelt + 1}}); };
  Follow(2);
  EXPECT_FALSE(HasLayout3Marker(7));  // a row of one colour
  for (int i = 0; i < 10; ++i) put(i);
  EXPECT_TRUE(HasLayout3Marker(7));
  for (int i = 0; i < 10; ++i) {
    Paint({373, 417}, {{i, 0, kFelt + 2}});
    EXPECT_EQ(HasLayout3Marker(7), row[i] == '.') << i;
    put(i);
  }
}

TEST_F(CardReading, NothingIsReadWithoutATable) {
  const auto expectNothing = [] {
    const CardPosition position[] = {{6, 1}};
    EXPECT_EQ(ReadCards(position), std::vector{kNoCard});
    EXPECT_EQ(FindDealerSeat(), 0);
    EXPECT_EQ(SeatsHoldingCards(), (std::array<bool, kSeats + 1>{}));
  };
  // The places of seat 6 in layout 4 are in the window's corner, where anything may stand.
  Follow(4);
  PaintCard({0, 0}, {{0, 0, 0x0000FF}});
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

// The readers against the stand-in client's pictures, which know nothing of the readers' tables.
struct ReadBack : ProgramTest, testing::WithParamInterface<int> {
  ReadBack() {
    LoadTableLayouts();
    autoRead = {.WatchedWindow = 7, .TableLayout = table.layout};
    autoRead.CurrentTable.windowHandle = 7;
    desktop.windows = {{.handle = 7, .outer = {0, 0, 1000, 800}}};
  }

  // In fresh noise at every read, but for what is compared exactly.
  void Show(int noise) {
    desktop.windows[0].painted = [this, noise, picture = DrawTable(table)](int x, int y) {
      y += autoRead.CaptionAdjust;  // by so much is the caption bar lower than the drawn one
      table_client::Rgb color = picture.At(x, y);
      if (noise > 0 && picture.Has(x, y) && !exact[picture.Index(x, y)]) {
        color = table_client::Noisy(color, noise, static_cast<std::uint32_t>(random()));
      }
      return (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
    };
  }

  table_client::Table table{.layout = GetParam()};
  const std::vector<bool> exact = table_client::ExactPixels(GetParam());
  std::minstd_rand random;
};

// Wherever the user sits, every card stands at each of the user's and the board's places; button
// and opponents change all the time. First no cards are shown, and no place shows a face.
TEST_P(ReadBack, EverythingThatATableShows) {
  for (int hero = 1; hero <= kSeats; ++hero) {
    if (!table.HasSeat(hero)) continue;
    table.heroSeat = hero;
    for (int card = 0; card <= kCardCount; ++card) {
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
      for (const int noise : {0, 4}) {
        SCOPED_TRACE(testing::Message() << "user " << hero << ", card " << card << ", " << noise);
        Show(noise);
        autoRead.CaptionAdjust = noise == 0 ? 0 : 7;
        EXPECT_EQ(ReadCards(places), cards);
        EXPECT_EQ(FindDealerSeat(), table.buttonSeat);
        auto read = SeatsHoldingCards();
        (*read)[hero] = holding[hero];  // never asked for
        EXPECT_EQ(read, holding);
        EXPECT_EQ(HasLayout3Marker(7), table.layout == 3);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Layouts, ReadBack, testing::Range(1, kLayouts + 1));

}  // namespace
}  // namespace holdem::modCardRead
