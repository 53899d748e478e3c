// Auto Read on a desktop of nonsense: windows of any class, caption, size and pixels come, change
// and die between any two looks at the screen.
#include <cstdlib>
#include <random>

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "autoread/watcher.h"
#include "engine/run_protocol.h"
#include "fakes/fake_ports.h"

namespace holdem {
namespace {

class FuzzTest : public ProgramTest {
 protected:
  int Any(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  PixelColor AnyColor() {
    constexpr std::array<PixelColor, 6> kLikely = {0,        0xFFFFFF, 0x0000FF,
                                                   0x008000, 0xC0C0C0, 0x0000C8};
    return Any(3) > 0 ? kLikely[Any(6)] : random_() & 0xFFFFFF;
  }

  FakeWindow AnyWindow() {
    constexpr std::array<const char*, 4> kClasses = {"#32770", "Afx:400000:8", "#32770", "Shell"};
    constexpr std::array<PixelArea, 6> kSizes = {{{0, 0, 800, 562},
                                                  {-300, -200, 500, 371},
                                                  {0, 0, 795, 581},
                                                  {700, 500, 1500, 1080},
                                                  {0, 0, 0, 0},
                                                  {0, 0, 1, 3000}}};
    constexpr std::array<const char*, 3> kCaptions = {"x - NL  Hold'em", "Hold'em", "Ruby hold'em"};
    FakeWindow window{.handle = static_cast<WindowHandle>(1 + Any(4)),
                      .className = kClasses[Any(4)],
                      .caption = kCaptions[Any(3)],
                      .outer = kSizes[Any(6)]};
    for (int bytes = Any(8) == 0 ? Any(400) : 0; bytes > 0; --bytes) {
      window.caption += static_cast<char>(Any(256));
    }
    window.pixels.resize(window.outer.Width() * window.outer.Height());
    const PixelColor ground = AnyColor();
    for (PixelColor& pixel : window.pixels) pixel = Any(8) == 0 ? AnyColor() : ground;
    return window;
  }

  void Change() {
    auto& windows = desktop.windows;
    switch (Any(4)) {
      case 0: windows.clear(); break;
      case 1:
        if (windows.size() < 4) windows.insert(windows.begin(), AnyWindow());
        break;
      case 2:
        if (!windows.empty()) windows.pop_back();
        break;
      default:
        if (!windows.empty()) windows.front() = AnyWindow();
    }
  }

 private:
  std::mt19937 random_{11};
};

TEST_F(FuzzTest, AnyDesktopIsSurvived) {
  LoadTableLayouts();
  settings.DealsPerRun = 12;
  display.atAskSeat = [&] {
    OpenWizard();
    if (!WatchWizard()) ClickWizardSeat(1 + Any(10));
    CloseWizard();
  };
  desktop.beforeCall = [&] {
    if (Any(100) == 0) Change();
  };
  const char* const wanted = std::getenv("FUZZ_TICKS");  // a longer run by hand
  const int ticks = wanted != nullptr ? std::atoi(wanted) : 3000;
  int followed = 0;
  for (int tick = 0; tick < ticks; ++tick) {
    if (Any(20) == 0) autoRead.CaptionAdjust = Any(3) > 0 ? 0 : Any(60) - 30;
    if (Any(autoRead.Following() ? 20 : 2) == 0) Change();
    WatchTable();
    CheckRefresh();
    followed += autoRead.Following();
    for (const int slot : kSlotOrder) ASSERT_LE(slots.picHand[slot], kCardCount);
    ASSERT_TRUE(seats.MySeat >= 1 && seats.MySeat <= kSeats);
    ASSERT_TRUE(seats.DealerSeat >= 0 && seats.DealerSeat <= kSeats);
  }
  EXPECT_GT(followed, ticks / 20);  // it did look at some of them
}

}  // namespace
}  // namespace holdem
