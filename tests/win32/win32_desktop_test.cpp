#include "platform/win32/win32_desktop.h"

#include <windows.h>
#undef Yield  // an empty macro, but a name of ours

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "autoread/watcher.h"
#include "fakes/fake_ports.h"

namespace holdem {
namespace {

using Handles = std::vector<WindowHandle>;

struct ShownWindow {
  explicit ShownWindow(const PixelArea& at, HWND parent = nullptr,
                       DWORD style = WS_OVERLAPPEDWINDOW)
      : window(CreateWindowA("STATIC", "", style | WS_VISIBLE | SS_NOTIFY, at.left, at.top,
                             at.Width(), at.Height(), parent, nullptr, nullptr, nullptr)) {}
  ~ShownWindow() { DestroyWindow(window); }

  const HWND window;
  const WindowHandle handle = reinterpret_cast<WindowHandle>(window);
};

struct Win32DesktopTest : testing::Test {
  Win32Desktop desktop;
};

// The objects of the graphics system that this process holds. Wine doesn't tell, but its next
// object takes the lowest free handles.
unsigned GraphicsObjects() {
  const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  if (count > 0) return count;
  const HPEN pen = CreatePen(PS_SOLID, 1, 0);
  DeleteObject(pen);
  return static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(pen) & 0xFFFF);
}

TEST_F(Win32DesktopTest, HitsWhatIsOnTop) {
  const ShownWindow table({100, 100, 500, 400}), cover({400, 300, 600, 500});
  const ShownWindow owned({100, 350, 250, 390}, table.window);
  const ShownWindow panel({50, 50, 200, 200}, table.window, WS_CHILD);
  const ShownWindow control({0, 0, 50, 50}, panel.window, WS_CHILD);
  RECT at;
  GetWindowRect(control.window, &at);
  const WindowHandle a = table.handle, b = cover.handle, c = owned.handle;
  const PixelPoint points[] = {{100, 100},         {399, 299}, {400, 300}, {at.left, at.top},
                               {at.right, at.top}, {120, 370}, {-5, 100}};
  EXPECT_EQ(desktop.WindowsAt(points, a), (Handles{a, a, b, control.handle, panel.handle, c, 0}));
  Handles ours = desktop.TopLevelWindows();
  std::erase_if(ours, [&](WindowHandle window) {
    return desktop.ProcessId(window) != GetCurrentProcessId() ||
           desktop.ClassName(window) != "Static";
  });
  EXPECT_EQ(ours, (Handles{c, b, a}));
  SetWindowRgn(owned.window, CreateRectRgn(0, 0, 9, 8), FALSE);
  ShowWindow(cover.window, SW_HIDE);
  EXPECT_EQ(desktop.Covers(a), (std::vector<PixelArea>{{0, 250, 9, 258}}));
  EXPECT_EQ(desktop.Parent(control.handle), panel.handle);
  EXPECT_EQ(desktop.Parent(panel.handle), a);
  EXPECT_EQ(desktop.Parent(c), a) << "its owner";
  EXPECT_EQ(desktop.Parent(a), 0);
}

// What it reads there, the followed tables show.
TEST_F(Win32DesktopTest, ReadsWhatIsOnTheScreen) {
  const PixelArea whole{0, 0, 300, 120}, around{-3, -3, 303, 123};
  const PixelArea screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  for (const auto& [x, y] :
       {PixelPoint{40, 30}, {-200, -20}, {screen.right, 0}, {900, screen.bottom - 40}}) {
    const ShownWindow window(whole.Moved({x, y}));
    const unsigned objects = GraphicsObjects();
    for (int i = 0; i < 100; ++i) desktop.Read(window.handle, {&whole, 1});
    EXPECT_LT(GraphicsObjects(), objects + 50);
    const auto read = desktop.Read(window.handle, std::array{around, PixelArea{300, 0, 309, 9}});
    const PixelArea seen = whole.Intersected(screen.Moved({-x, -y}));
    EXPECT_EQ(read.value()[1].pixels, std::vector(81, kUnreadable));
    int wrong = 0;
    for (int row = around.top; row < around.bottom; ++row) {
      for (int column = around.left; column < around.right; ++column)
        wrong += (read->front().At(column, row) != kUnreadable) != seen.Contains({column, row});
    }
    EXPECT_EQ(wrong, 0) << x << ' ' << y;
  }
}

TEST_F(Win32DesktopTest, AWindowOutOfSightIsGone) {
  const ShownWindow shown({100, 100, 400, 300});
  const WindowHandle window = shown.handle;
  for (const std::string& caption :
       {"Table - NL  Hold'em\xFF\n\x01" + std::string(), std::string(2000, 'x')}) {
    SetWindowTextA(shown.window, caption.c_str());
    EXPECT_EQ(desktop.GetWindowCaption(window), caption.substr(0, 259));
  }
  for (const int show : {SW_HIDE, SW_MINIMIZE}) {
    ShowWindow(shown.window, show);
    EXPECT_EQ(desktop.OuterRectangle(window), std::nullopt) << show;
    EXPECT_EQ(desktop.Read(window, {}), std::nullopt) << show;
    EXPECT_EQ(std::ranges::count(desktop.MinimisedWindows(), window), show == SW_MINIMIZE);
  }
  ShowWindow(shown.window, SW_RESTORE);
  EXPECT_TRUE(desktop.Read(window, {}));
  DestroyWindow(shown.window);
  for (const WindowHandle gone : {window, WindowHandle{0}, WindowHandle{0x7FFFFFFF}}) {
    EXPECT_EQ(desktop.ClassName(gone) + desktop.GetWindowCaption(gone), "");
    EXPECT_EQ(desktop.ProcessId(gone), 0u);
    EXPECT_EQ(desktop.OuterRectangle(gone), std::nullopt);
    EXPECT_EQ(desktop.Read(gone, {}), std::nullopt);
    EXPECT_EQ(desktop.Covers(gone), std::nullopt);
    EXPECT_EQ(desktop.Parent(gone), 0);
  }
}

// The stand-in poker client's real windows, followed by the watcher; on a scaled screen too.
// By layout, and whether the client counts the screen's own pixels.
struct EveryLayout : ProgramTest, testing::WithParamInterface<std::tuple<int, bool>> {
  // Ticks go by; what is drawn reaches the screen a moment later.
  static bool Becomes(bool (*condition)()) {
    for (int tries = 0; tries < 300 && !condition(); ++tries) {
      Sleep(20);
      WatchTable();
    }
    return condition();
  }
};

TEST_P(EveryLayout, IsFollowedUntilItEnds) {
  const auto [layout, aware] = GetParam();
  Win32Desktop screen;
  ports.desktop = &screen;
  display.atAskSeat = [] {
    // It answers once it has painted.
    SendMessageA(reinterpret_cast<HWND>(autoRead.WatchedWindow), WM_NULL, 0, 0);
    ClickWizardSeat(3);
  };
  const auto script = std::filesystem::temp_directory_path() / "hand.txt";
  std::ofstream(script) << "hand hero=3 cards=AS,KD button=7 seats=1,2,5\nflop 2C 7D TH\nturn QS\n";
  FILE* const client =
      _popen((Path("\"Z:" TABLE_CLIENT "\"") + " --wait-for-go --position 90,60 --layout " +
              std::to_string(layout) + " --script " + script.string() + (aware ? " --aware" : ""))
                 .c_str(),
             "w");
  std::fputs("\n\n\n", client);
  std::fflush(client);

  EXPECT_TRUE(Becomes([] { return slots.IsFilled(9); }));
  EXPECT_EQ(autoRead.TableLayout, layout);
  EXPECT_EQ(Seating() + ": " + Cards(), "iii.i..... 3 7: AS KD 2C 7D TH QS --");

  _pclose(client);  // it ends with its input
  EXPECT_TRUE(Becomes([] { return !autoRead.Following(); }));
  EXPECT_EQ(slots.picHand[9], 12);
}

INSTANTIATE_TEST_SUITE_P(, EveryLayout,
                         testing::Combine(testing::Range(1, kLayouts + 1), testing::Bool()));

}  // namespace
}  // namespace holdem

// With --aware it is a program that knows of scaled screens.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const bool aware = argc > 1 && argv[1] == std::string_view("--aware");
  if (aware) SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE);
  return RUN_ALL_TESTS();
}
