#include "table_picture.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "glyphs.h"
#include "table_places.h"

namespace holdem::table_client {
namespace {

constexpr Size kCard = {46, 62};
constexpr Size kBack = {26, 32};
constexpr int kBackStep = 5;  // from the front one of the two backs to the other
constexpr int kButtonRadius = 8;
constexpr Size kPlate = {80, 22};
constexpr int kPanelTop = 446;  // of the chat and the buttons to act with
constexpr Point kGreenTablePoint = {398, 366};
constexpr Point kMarker = {373, 417};                 // the first stripe of layout 3's marker
constexpr const char* kMarkerStripes = "#...#..#.#";  // of one colour and the other
constexpr std::array<const char*, kSeatCount> kNames = {"ANNA",  "BORIS", "CARLO", "DORIS", "ELIAS",
                                                        "FIONA", "INES",  "LEO",   "NORA",  "OTTO"};

const LayoutPlaces& PlacesOf(int layout) { return kPlaces[layout - 1]; }
const LayoutLook& LookOf(int layout) { return kLooks[layout - 1]; }
const SeatPlaces& PlacesOf(int layout, int seat) {
  return PlacesOf(layout).seats[static_cast<std::size_t>(seat - 1)];
}

Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }

struct Box {
  Point corner;
  Size size;

  bool Meets(const Box& other) const {
    return corner.x < other.corner.x + other.size.width && other.corner.x < corner.x + size.width &&
           corner.y < other.corner.y + other.size.height && other.corner.y < corner.y + size.height;
  }
};

void Fill(Picture& picture, const Box& box, Rgb colour) {
  for (int y = box.corner.y; y < box.corner.y + box.size.height; ++y) {
    for (int x = box.corner.x; x < box.corner.x + box.size.width; ++x) picture.Set(x, y, colour);
  }
}

Box Inside(const Box& box, int margin) {
  return {box.corner + Point{margin, margin},
          {box.size.width - 2 * margin, box.size.height - 2 * margin}};
}

// One pixel is missing at each corner.
void FillRounded(Picture& picture, const Box& box, Rgb colour) {
  Fill(picture, {box.corner + Point{1, 0}, {box.size.width - 2, box.size.height}}, colour);
  Fill(picture, {box.corner + Point{0, 1}, {box.size.width, box.size.height - 2}}, colour);
}

void FillEllipse(Picture& picture, Point centre, int radiusX, int radiusY, Rgb colour) {
  const auto square = [](long long value) { return value * value; };
  for (int y = -radiusY; y <= radiusY; ++y) {
    for (int x = -radiusX; x <= radiusX; ++x) {
      if (square(1LL * x * radiusY) + square(1LL * y * radiusX) <=
          square(1LL * radiusX * radiusY)) {
        picture.Set(centre.x + x, centre.y + y, colour);
      }
    }
  }
}

void DrawBitmap(Picture& picture, Point corner, const Bitmap& bitmap, Rgb colour, int scale = 1) {
  Point at = corner;
  for (const std::string& row : bitmap) {
    at.x = corner.x;
    for (const char cell : row) {
      if (cell == '#') Fill(picture, {at, {scale, scale}}, colour);
      at.x += scale;
    }
    at.y += scale;
  }
}

void DrawText(Picture& picture, Point corner, const std::string& text, Rgb colour) {
  for (const char letter : text) {
    if (const Bitmap* const bitmap = LetterGlyph(letter)) {
      DrawBitmap(picture, corner, *bitmap, colour);
    }
    corner.x += 6;
  }
}

Box CardBox(int layout, int seat, int card) {
  const Point first = PlacesOf(layout, seat).cards;
  return {card == 1 ? first : first + PlacesOf(layout).secondCard, kCard};
}

Box BoardBox(int layout, int card) {
  const LayoutPlaces& places = PlacesOf(layout);
  return {places.board + Point{(card - 1) * places.boardStep, 0}, kCard};
}

Box BackBox(int layout, int seat) {
  return {PlacesOf(layout, seat).backs - LookOf(layout).onBack, kBack};
}

void DrawCard(Picture& picture, int layout, const Box& box, Card card) {
  const LayoutLook& look = LookOf(layout);
  const Rgb ink = look.inks[static_cast<std::size_t>(SuitOf(card) - 1)];
  FillRounded(picture, box, kBlack);
  Fill(picture, Inside(box, 1), kWhite);
  DrawBitmap(picture, box.corner + look.rankPlace, RankGlyph(look.ranks, RankOf(card)), ink);
  DrawBitmap(picture, box.corner + look.suitPlace, SuitGlyph(look.suits, SuitOf(card)), ink);
  // To the right of all that the readers look at.
  DrawBitmap(picture, box.corner + Point{19, 27}, SuitGlyph(SuitStyle::Large, SuitOf(card)), ink,
             2);
}

void DrawBack(Picture& picture, const Box& box) {
  FillRounded(picture, box, kBlack);
  Fill(picture, Inside(box, 1), kWhite);
  const Box pattern = Inside(box, 3);
  Fill(picture, pattern, 0xA01E32);
  for (int y = 0; y < pattern.size.height; ++y) {
    for (int x = 0; x < pattern.size.width; ++x) {
      if ((x + y) % 6 == 0 || (x - y + 60) % 6 == 0) {
        picture.Set(pattern.corner.x + x, pattern.corner.y + y, 0xC85064);
      }
    }
  }
}

void DrawButton(Picture& picture, int layout, int seat) {
  const Point centre = PlacesOf(layout, seat).button;
  FillEllipse(picture, centre, kButtonRadius, kButtonRadius, kBlack);
  FillEllipse(picture, centre, kButtonRadius - 1, kButtonRadius - 1, LookOf(layout).button);
  // The letter is open in the middle, where the button is looked for.
  DrawText(picture, centre - Point{2, 3}, "D", kBlack);
}

// Where cards, backs, buttons or marks may come, so no decoration may.
std::vector<Box> ReservedBoxes(int layout) {
  std::vector<Box> boxes = {{kMarker - Point{2, 6}, {14, 12}},
                            {kGreenTablePoint - Point{1, 1}, {3, 3}}};
  for (int card = 1; card <= 5; ++card) boxes.push_back(BoardBox(layout, card));
  const Table table{.layout = layout};
  for (int seat = 1; seat <= kSeatCount; ++seat) {
    if (!table.HasSeat(seat)) continue;
    boxes.push_back(CardBox(layout, seat, 1));
    boxes.push_back(CardBox(layout, seat, 2));
    boxes.push_back({BackBox(layout, seat).corner, {kBack.width + kBackStep, kBack.height}});
    boxes.push_back({PlacesOf(layout, seat).button - Point{kButtonRadius, kButtonRadius},
                     {2 * kButtonRadius + 1, 2 * kButtonRadius + 1}});
  }
  return boxes;
}

// What never changes in a layout: the room with the bare table, and where the seats' name plates
// hang, each as near to its seat's cards as there is room.
struct Scene {
  Picture picture;
  std::array<Box, kSeatCount + 1> plates{};

  explicit Scene(int layout) {
    const Size outer = PlacesOf(layout).outer;
    const LayoutLook& look = LookOf(layout);
    picture.size = {outer.width, outer.height + kDrawnCaption};
    picture.pixels.assign(picture.Index(0, picture.size.height), look.room);
    Fill(picture, {{0, 0}, {outer.width, kDrawnCaption}}, 0x0A3C96);
    const Point centre = {outer.width / 2, 232};
    FillEllipse(picture, centre, 340, 177, look.rail);
    FillEllipse(picture, centre, 328, 165, look.felt);
    if (layout == 3) {
      for (int i = 0; kMarkerStripes[i] != '\0'; ++i) {
        const Rgb colour = kMarkerStripes[i] == '#' ? 0xD0D4D8 : 0x50545C;
        Fill(picture, {{kMarker.x + i, kMarker.y - 5}, {1, 10}}, colour);
      }
    }
    Fill(picture, {{8, kPanelTop}, {400, 96}}, 0xD8D8D0);
    Fill(picture, {{9, kPanelTop + 1}, {398, 94}}, 0xF4F4EE);
    int x = 440;
    for (const char* const text : {"FOLD", "CALL", "RAISE"}) {
      FillRounded(picture, {{x, kPanelTop + 20}, {100, 40}}, 0xA03C28);
      DrawText(picture, {x + 36, kPanelTop + 37}, text, kWhite);
      x += 115;
    }
    HangPlates(layout);
  }

 private:
  void HangPlates(int layout) {
    std::vector<Box> taken = ReservedBoxes(layout);
    for (int seat = 1; seat <= kSeatCount; ++seat) {
      const Table table{.layout = layout};
      if (!table.HasSeat(seat)) continue;
      const Point target = PlacesOf(layout, seat).cards + Point{-10, 20};
      int nearest = std::numeric_limits<int>::max();
      Box& plate = plates[static_cast<std::size_t>(seat)];
      for (int y = kDrawnCaption + 4; y + kPlate.height < kPanelTop; y += 2) {
        for (int x = 4; x + kPlate.width < picture.size.width - 4; x += 2) {
          const Box here = {{x, y}, kPlate};
          const Point off = here.corner - target;
          const int distance = off.x * off.x + off.y * off.y;
          if (distance < nearest && std::none_of(taken.begin(), taken.end(),
                                                 [&](const Box& box) { return box.Meets(here); })) {
            nearest = distance;
            plate = here;
          }
        }
      }
      taken.push_back(plate);
    }
  }
};

const Scene& SceneOf(int layout) {
  static std::array<std::optional<Scene>, std::size(kPlaces)> scenes;
  std::optional<Scene>& scene = scenes[static_cast<std::size_t>(layout - 1)];
  if (!scene) scene.emplace(layout);
  return *scene;
}

void DrawPlate(Picture& picture, const Box& box, int seat, SeatLook look) {
  const bool in = look == SeatLook::In;
  FillRounded(picture, box, 0x101216);
  FillRounded(picture, Inside(box, 1), in ? 0x3A4250 : 0x262A32);
  if (look == SeatLook::Empty) return;
  const std::string name = kNames[static_cast<std::size_t>(seat - 1)];
  DrawText(picture, box.corner + Point{8, 7}, name, in ? 0xF0E6B4 : 0x7A7E86);
  if (!in) DrawText(picture, box.corner + Point{48, 7}, "FOLD", 0x7A7E86);
}

}  // namespace

Size OuterSize(int layout, int captionHeight) {
  const LayoutPlaces& places = PlacesOf(layout);
  const int grown = places.corrected ? captionHeight - kDrawnCaption : 0;
  return {places.outer.width, places.outer.height + grown};
}

std::string WindowClass(int layout) { return layout <= 3 ? "#32770" : "AfxFrameOrView42"; }

// Two blanks before the game's name are the mark of layout 2.
std::string DefaultCaption(int layout) {
  return layout == 2 ? "Ruby - NL  Hold'em - $1/$2" : "Ruby - NL Hold'em - $1/$2";
}

Picture DrawTable(const Table& table) {
  const int layout = table.layout;
  const Scene& scene = SceneOf(layout);
  Picture picture = scene.picture;
  for (int seat = 1; seat <= kSeatCount; ++seat) {
    if (!table.HasSeat(seat)) continue;
    const auto index = static_cast<std::size_t>(seat);
    DrawPlate(picture, scene.plates[index], seat, table.looks[index]);
    if (table.looks[index] != SeatLook::In || seat == table.heroSeat) continue;
    const Box back = BackBox(layout, seat);
    DrawBack(picture, {back.corner + Point{kBackStep, 0}, back.size});
    DrawBack(picture, back);
  }
  if (table.HasSeat(table.buttonSeat)) DrawButton(picture, layout, table.buttonSeat);
  for (int card = 1; card <= 5; ++card) {
    const Card shown = table.board[static_cast<std::size_t>(card - 1)];
    if (IsRealCard(shown)) DrawCard(picture, layout, BoardBox(layout, card), shown);
  }
  for (int card = 1; card <= 2 && table.HasSeat(table.heroSeat); ++card) {
    const Card shown = table.hole[static_cast<std::size_t>(card - 1)];
    if (IsRealCard(shown)) DrawCard(picture, layout, CardBox(layout, table.heroSeat, card), shown);
  }
  return picture;
}

Picture Part(const Picture& picture, Point corner, Size size) {
  Picture part{.size = size};
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      part.pixels.push_back(picture.At(corner.x + x, corner.y + y));
    }
  }
  return part;
}

std::vector<bool> ExactPixels(int layout) {
  const Picture& picture = SceneOf(layout).picture;
  std::vector<bool> exact(picture.pixels.size());
  const auto mark = [&](Point corner, int dx, int dy) {
    exact[picture.Index(corner.x + dx, corner.y + dy)] = true;
  };
  const auto markCard = [&](Point corner) {
    if (layout == 3) {
      for (int k = 1; k <= 5; ++k) mark(corner, k, 0), mark(corner, 0, k);
    } else if (layout >= 4) {
      for (int k = 4; k <= 7; ++k) mark(corner, k, 0), mark(corner, k, 1);
      for (int k = 5; k <= 7; ++k) mark(corner, 0, k), mark(corner, 1, k);
      mark(corner, 5, 5);
      for (int k = 10; k <= 15; ++k) mark(corner, k, 5);
    }
  };
  const auto markBacks = [&](Point point) {
    if (layout == 2) {
      mark(point, 0, 13), mark(point, 10, 0), mark(point, 15, 0);
    } else if (layout == 3) {
      mark(point, 12, 0), mark(point, 24, 0);
    } else if (layout >= 4) {
      for (int k = 2; k <= 4; ++k) mark(point, k, 0), mark(point, k, 1);
      for (int k = 3; k <= 4; ++k) mark(point, 0, k), mark(point, 1, k);
    }
  };
  for (int card = 1; card <= 5; ++card) markCard(BoardBox(layout, card).corner);
  const Table table{.layout = layout};
  for (int seat = 1; seat <= kSeatCount; ++seat) {
    if (!table.HasSeat(seat)) continue;
    markCard(CardBox(layout, seat, 1).corner);
    markCard(CardBox(layout, seat, 2).corner);
    markBacks(PlacesOf(layout, seat).backs);
  }
  for (int i = 0; kMarkerStripes[i] != '\0' && layout == 3; ++i) mark(kMarker, i, 0);
  return exact;
}

Rgb Noisy(Rgb colour, int levels, std::uint32_t random) {
  Rgb noisy = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const int off =
        static_cast<int>((random >> shift & 0xFF) % static_cast<unsigned>(2 * levels + 1));
    const int level = static_cast<int>(colour >> shift & 0xFF) + off - levels;
    noisy |= static_cast<Rgb>(std::clamp(level, 0, 255)) << shift;
  }
  return noisy;
}

}  // namespace holdem::table_client
