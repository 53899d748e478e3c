#include <map>

#include "autoread/card_recognisers.h"
#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "fakes/fake_ports.h"
#include "fuzz/fuzz.h"

namespace holdem::fuzz {
namespace {

using namespace modCardRead;

constexpr int kWidth = 16;  // as far as any recogniser looks
constexpr int kHeight = 39;

PixelColor AnyColor(Script& script) {
  constexpr std::array<PixelColor, 7> kLikely = {0,        0xFFFFFF, 0x0000FF,   0x008000,
                                                 0xC0C0C0, 0x0000C8, kUnreadable};
  if (!script.Rarely(4)) return kLikely[script.Any(7)];
  return static_cast<PixelColor>(script.Byte() << 16 | script.Word());
}

// A light face in a dark outline, or nothing of the kind, with any pixels on it, at a corner.
Capture AnyCard(Script& script, PixelPoint corner) {
  Capture card{.area = {corner.x, corner.y, corner.x + kWidth, corner.y + kHeight}};
  const PixelColor edge = script.Any(2) == 0 ? 0 : AnyColor(script);
  const PixelColor border = script.Any(2) == 0 ? 0xFFFFFF : AnyColor(script);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) card.pixels.push_back(x == 0 || y == 0 ? edge : border);
  }
  const int pixels = script.Any(200);
  for (int i = 0; i < pixels && !script.Ended(); ++i) {
    card.pixels[static_cast<std::size_t>(script.Word()) % card.pixels.size()] = AnyColor(script);
  }
  return card;
}

using Recogniser = std::string (*)(const Capture&);
constexpr std::array<Recogniser, 4> kRecognisers = {RecogniseCardLayout1, RecogniseCardLayout2,
                                                    RecogniseCardLayout3, RecogniseCardLayout45};

void TryCard(Script& script) {
  const PixelPoint corner = {script.Any(256) - 128, script.Any(256) - 128};
  const Capture card = AnyCard(script, corner);
  Capture elsewhere = card;
  elsewhere.area = {0, 0, kWidth, kHeight};
  // The same card in a larger capture, which shows something else around it.
  Capture larger{.area = {corner.x, corner.y, corner.x + kWidth + 3, corner.y + kHeight + 3}};
  const PixelColor around = AnyColor(script);
  for (int y = corner.y; y < larger.area.bottom; ++y) {
    for (int x = corner.x; x < larger.area.right; ++x) {
      const bool inside = x < card.area.right && y < card.area.bottom;
      larger.pixels.push_back(inside ? card.At(x, y) : around);
    }
  }
  Capture cut = card;  // only the upper rows were readable
  cut.area.bottom = corner.y + script.Any(kHeight + 1);
  cut.pixels.resize(static_cast<std::size_t>(kWidth * cut.area.Height()));
  for (const Recogniser recognise : kRecognisers) {
    const std::string text = recognise(card);
    HOLDS(text == "??" || IsRealCard(CardTextToCode(text)));
    HOLDS(recognise(elsewhere) == text);
    HOLDS(recognise(larger) == text);
    const std::string textOfCut = recognise(cut);
    HOLDS(textOfCut == "??" || IsRealCard(CardTextToCode(textOfCut)));
  }
}

// One window that may die, of one colour but for some pixels.
struct PaintedDesktop : FakeDesktop {
  bool gone = false;
  PixelPoint size;
  PixelColor ground = 0;
  std::map<std::pair<int, int>, PixelColor> painted;

  std::optional<std::vector<Capture>> Read(WindowHandle,
                                           std::span<const PixelArea> areas) override {
    if (gone) return std::nullopt;
    return CaptureAll(areas, [&](int x, int y) { return Pixel(x, y); });
  }
  PixelColor Pixel(int x, int y) const {
    if (x < 0 || x >= size.x || y < 0 || y >= size.y) return kUnreadable;
    const auto found = painted.find({x, y});
    return found == painted.end() ? ground : found->second;
  }
};

// Any pixels at the points of a table, whose window may be too small for them.
void TryTable(Script& script) {
  FakeWorld world;
  PaintedDesktop desktop;
  ports.desktop = &desktop;
  const int layout = 1 + script.Any(kLayouts);
  desktop.size = {script.Rarely(3) ? 400 : 800, script.Rarely(3) ? 0 : 580};
  desktop.ground = AnyColor(script);
  desktop.gone = script.Rarely(8);
  autoRead.WatchedWindow = autoRead.CurrentTable.windowHandle = 7;
  autoRead.TableLayout = layout;
  autoRead.CaptionAdjust = script.Rarely(3) ? script.Any(256) - 128 : 0;
  const auto paint = [&](PixelPoint at, int spread) {
    const int x = at.x + script.Any(spread);
    const int y = at.y - autoRead.CaptionAdjust + script.Any(spread);
    desktop.painted[{x, y}] = AnyColor(script);
  };
  std::vector<CardPosition> positions;
  for (int seat = kBoardSeat; seat <= kSeats; ++seat) {
    for (int card = 1; card <= (seat == kBoardSeat ? 5 : 2); ++card)
      positions.push_back({seat, card});
    if (script.Ended()) continue;
    paint(ButtonPoints[layout][seat], 1);
    for (int i = script.Any(6); i > 0; --i) paint(HoldingPoints[layout][seat], 16);
    for (int i = script.Any(40); i > 0; --i) paint(CardPoints[layout][seat][1], 39);
  }
  const auto cards = ReadCards(positions);
  const auto dealer = FindDealerSeat();
  const auto holding = SeatsHoldingCards();
  HasLayout3Marker(7);
  HOLDS(cards.has_value() != desktop.gone && dealer.has_value() != desktop.gone);
  HOLDS(holding.has_value() != desktop.gone);
  if (desktop.gone) return;
  HOLDS(cards->size() == positions.size());
  for (std::size_t i = 0; i < positions.size(); ++i) {
    const bool real = IsRealCard((*cards)[i]) && LayoutHasSeat(layout, positions[i].seat);
    HOLDS((*cards)[i] == kNoCard || real);
  }
  HOLDS(*dealer >= 0 && *dealer <= kSeats && LayoutHasSeat(layout, *dealer));
  HOLDS(!(*holding)[0] && (LayoutHasSeat(layout, 6) || !(*holding)[6]));
}

}  // namespace

int FuzzRecognisers(Bytes bytes) {
  Script script(bytes);
  LoadTableLayouts();
  if (script.Rarely(4)) {
    TryTable(script);
  } else {
    TryCard(script);
  }
  return 1;
}

}  // namespace holdem::fuzz
