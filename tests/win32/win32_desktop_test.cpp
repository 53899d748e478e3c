#include "platform/win32/win32_desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

#include "autoread/mod_windows.h"
#include "other_program.h"
#include "platform/ports.h"
#include "shown_window.h"

namespace holdem {
namespace {

class Win32DesktopTest : public testing::Test {
 protected:
  PixelColor PixelOf(WindowHandle window, int x, int y) {
    const PixelArea area{x, y, x + 1, y + 1};
    const auto read = desktop.Read(window, {&area, 1});
    return read ? read->front().At(x, y) : 0xDEAD0000;
  }

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

// Captions of every byte, and too long ones.
const std::vector<std::string>& OddCaptions() {
  static const std::vector<std::string> captions = [] {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    return std::vector{bytes, std::string(259, 'x'), std::string(2000, '\xFF'), std::string()};
  }();
  return captions;
}

// Shows windows with these captions, then answers no message.
[[noreturn]] void RunHungProgram() {
  std::vector<std::unique_ptr<ShownWindow>> windows;
  for (const std::string& caption : OddCaptions()) {
    windows.push_back(std::make_unique<ShownWindow>(kAfx, PixelArea{50, 50, 350, 250}, caption));
  }
  Sleep(INFINITE);
  std::abort();
}

// This program, for another task.
std::string OwnPath() {
  std::array<char, MAX_PATH> path;
  GetModuleFileNameA(nullptr, path.data(), MAX_PATH);
  return path.data();
}

TEST_F(Win32DesktopTest, FindsEveryKindOfTableFromTopToBottom) {
  const int adjust = 26 - desktop.CaptionBarHeight();
  const struct {
    const char* className;
    int width, height, layout;
    const char* caption;
  } tables[] = {
      {kDialog, 800, 562, 1, "Table - NL Hold'em - one"},
      {kDialog, 640, 480, 2, "Table - NL  Hold'em two"},
      {kDialog, 795, 581 - adjust, 2, "three"},
      {kDialog, 908, 708 - adjust, 2, "four"},
      {kDialog, 800, 571, 3, "five"},
      {kAfx, 800, 580 - adjust, 4, "six"},
      {kAfx, 801, 580 - adjust, 0, "no table"},
      {"Other", 800, 562, 0, "no table"},
  };
  std::vector<std::unique_ptr<ShownWindow>> shown;
  for (const auto& table : tables) {
    const int left = 10 * static_cast<int>(shown.size());
    shown.push_back(std::make_unique<ShownWindow>(
        table.className, PixelArea{left, left, left + table.width, left + table.height},
        table.caption));
  }
  // The third comes to the top, so that the order is not that of their making.
  SetWindowPos(shown[2]->get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);

  ports.desktop = &desktop;
  autoRead.CaptionAdjust = adjust;
  modWindows::FindTableWindows();

  std::vector<int> found;
  for (const WindowRecord& window : autoRead.TableCandidates) {
    for (int i = 0; i < std::ssize(shown); ++i) {
      if (shown[i]->handle() != window.windowHandle) continue;
      found.push_back(i);
      EXPECT_EQ(window.className, tables[i].className);
      EXPECT_EQ(window.caption, tables[i].caption);
      EXPECT_EQ(window.width, tables[i].width);
      EXPECT_EQ(window.height, tables[i].height);
      EXPECT_EQ(window.layout, tables[i].layout);
      EXPECT_EQ(window.processId, GetCurrentProcessId());
    }
  }
  EXPECT_EQ(found, (std::vector{2, 5, 4, 3, 1, 0}));
  EXPECT_GT(desktop.CaptionBarHeight(), 0);
}

TEST_F(Win32DesktopTest, HitsWhatIsOnTop) {
  const ShownWindow table(kDialog, {100, 100, 500, 400});
  const ShownWindow cover(kAfx, {400, 300, 600, 500});
  const ShownWindow owned(kDialog, {100, 350, 150, 390}, "", table.get());
  const HWND panel = CreateWindowA("STATIC", "", WS_CHILD | WS_VISIBLE | SS_NOTIFY, 50, 50, 200,
                                   100, table.get(), nullptr, nullptr, nullptr);
  const HWND control = CreateWindowA("BUTTON", "", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, panel,
                                     nullptr, nullptr, nullptr);
  RECT at;
  GetWindowRect(control, &at);

  const std::array<PixelPoint, 8> points = {{{100, 100},
                                             {399, 299},
                                             {400, 300},
                                             {599, 499},
                                             {static_cast<int>(at.left), static_cast<int>(at.top)},
                                             {static_cast<int>(at.right), static_cast<int>(at.top)},
                                             {120, 370},
                                             {-5, 100}}};
  const WindowHandle panelHandle = reinterpret_cast<WindowHandle>(panel);
  const WindowHandle controlHandle = reinterpret_cast<WindowHandle>(control);
  EXPECT_EQ(
      desktop.WindowsAt(points),
      (std::vector<WindowHandle>{table.handle(), table.handle(), cover.handle(), cover.handle(),
                                 controlHandle, panelHandle, owned.handle(), 0}));
  EXPECT_EQ(desktop.Parent(controlHandle), panelHandle);
  EXPECT_EQ(desktop.Parent(panelHandle), table.handle());
  EXPECT_EQ(desktop.Parent(table.handle()), 0);
  EXPECT_EQ(desktop.Parent(owned.handle()), 0) << "its owner is no parent";

  const PixelPoint bare{900, 900};
  const WindowHandle ground = desktop.WindowsAt({&bare, 1}).front();
  EXPECT_EQ(desktop.Parent(ground), 0);
}

TEST_F(Win32DesktopTest, ReadsEveryPixelThatIsOnTheScreen) {
  const int right = GetSystemMetrics(SM_CXSCREEN);
  const int bottom = GetSystemMetrics(SM_CYSCREEN);
  const PixelArea places[] = {{40, 30, 840, 592},
                              {-300, -20, 500, 542},
                              {right - 200, bottom - 100, right + 600, bottom + 480},
                              {-100, -100, right + 100, bottom + 100},
                              {right, 0, right + 300, 300}};
  for (const char* className : {kDialog, kAfx}) {
    for (const PixelArea& place : places) {
      const ShownWindow window(className, place);
      // Windows may hold the size of a window down.
      const PixelArea outer = desktop.OuterRectangle(window.handle()).value();
      const int width = outer.Width();
      const int height = outer.Height();
      SCOPED_TRACE(testing::Message() << className << " at " << outer.left << ", " << outer.top
                                      << ", " << width << " by " << height);
      const std::vector<PixelArea> areas = {{-3, -3, width + 3, height + 3},
                                            {width - 2, 5, width - 1, 6},
                                            {310, 110, 350, 120},
                                            {320, 115, 320, 130},
                                            {width, 0, width + 9, 9}};
      const auto read = desktop.Read(window.handle(), areas).value();
      ASSERT_EQ(read.size(), areas.size());
      int wrong = 0;
      for (std::size_t i = 0; i < areas.size(); ++i) {
        ASSERT_EQ(read[i].pixels.size(), areas[i].Width() * areas[i].Height());
        for (int y = areas[i].top; y < areas[i].bottom; ++y) {
          for (int x = areas[i].left; x < areas[i].right; ++x) {
            const int screenX = outer.left + x;
            const int screenY = outer.top + y;
            const bool readable = x >= 0 && y >= 0 && x < width && y < height && screenX >= 0 &&
                                  screenY >= 0 && screenX < right && screenY < bottom;
            if (read[i].At(x, y) != (readable ? PatternAt(x, y) : kUnreadable)) ++wrong;
          }
        }
      }
      EXPECT_EQ(wrong, 0);
      EXPECT_TRUE(desktop.Read(window.handle(), {}).value().empty());
    }
  }
}

TEST_F(Win32DesktopTest, AWindowOutOfSightIsGone) {
  ShownWindow window(kAfx, {100, 100, 400, 300});
  ASSERT_EQ(PixelOf(window.handle(), 9, 9), PatternAt(9, 9));
  for (const int show : {SW_HIDE, SW_MINIMIZE}) {
    ShowWindow(window.get(), show);
    EXPECT_EQ(desktop.OuterRectangle(window.handle()), std::nullopt) << show;
    EXPECT_EQ(desktop.Read(window.handle(), {}), std::nullopt) << show;
  }
  ShowWindow(window.get(), SW_RESTORE);
  Pump();
  EXPECT_EQ(PixelOf(window.handle(), 9, 9), PatternAt(9, 9));

  DestroyWindow(window.get());
  for (const WindowHandle gone : {window.handle(), WindowHandle{0}, WindowHandle{0x7FFFFFFF}}) {
    EXPECT_EQ(desktop.ClassName(gone), "");
    EXPECT_EQ(desktop.Caption(gone), "");
    EXPECT_EQ(desktop.ProcessId(gone), 0u);
    EXPECT_EQ(desktop.OuterRectangle(gone), std::nullopt);
    EXPECT_EQ(desktop.Read(gone, {}), std::nullopt);
    EXPECT_EQ(desktop.Parent(gone), 0);
  }
}

TEST_F(Win32DesktopTest, TakesAnyCaptionOfAHungProgram) {
  const OtherProgram program(OwnPath(), "--hung");
  std::vector<WindowHandle> windows;  // the one made last first
  const auto shown = [&] {
    windows.clear();
    for (const WindowHandle window : desktop.TopLevelWindows()) {
      if (desktop.ProcessId(window) == program.id() && desktop.ClassName(window) == kAfx) {
        windows.push_back(window);
      }
    }
    return windows.size() == OddCaptions().size() &&
           PixelOf(windows.front(), 20, 20) == PatternAt(20, 20);
  };
  for (int tries = 0; !shown() && tries < 500; ++tries) Sleep(20);
  Sleep(200);  // it has begun to hang
  ASSERT_EQ(windows.size(), OddCaptions().size());
  for (const std::string& caption : OddCaptions()) {
    EXPECT_EQ(desktop.Caption(windows.back()), caption.substr(0, 259));
    windows.pop_back();
  }
}

// Windows come and go in another thread while this one asks for them.
TEST_F(Win32DesktopTest, WindowsMayDieAtAnyMoment) {
  constexpr int kDeaths = 400;
  const ShownWindow steady(kAfx, {600, 100, 900, 350});
  std::atomic<WindowHandle> current = 0;
  std::atomic<int> deaths = 0;
  int reads = 0;
  const auto ask = [&](WindowHandle window) {
    const std::vector<PixelArea> areas = {{5, 5, 60, 40}, {100, 80, 101, 90}};
    desktop.ClassName(window);
    desktop.ProcessId(window);
    const std::optional<PixelArea> outer = desktop.OuterRectangle(window);
    if (desktop.Read(window, areas)) ++reads;
    if (!outer) return;
    const PixelPoint middle{outer->left + 50, outer->top + 50};
    for (const WindowHandle hit : desktop.WindowsAt({&middle, 1})) desktop.Parent(hit);
  };
  ask(steady.handle());
  const unsigned before = GraphicsObjects();
  std::thread other([&] {
    for (; deaths < kDeaths; ++deaths) {
      const ShownWindow window(deaths % 2 == 0 ? kDialog : kAfx, {100, 100, 300, 250});
      current = window.handle();
      Sleep(static_cast<DWORD>(deaths % 3));
    }
  });
  reads = 0;
  while (deaths < kDeaths) ask(current);
  other.join();
  EXPECT_GT(reads, 0);
  for (int i = 0; i < kDeaths; ++i) ask(steady.handle());
  EXPECT_LT(GraphicsObjects(), before + kDeaths / 2);
}

// On a screen scaled by a half, the desktop measures as on one that isn't, and the thread, which
// knows of the scale, keeps its own measure. Prints what is wrong.
int RunOnScaledScreen() {
  const DPI_AWARENESS_CONTEXT aware = DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE;
  SetThreadDpiAwarenessContext(aware);
  Win32Desktop desktop;
  const ShownWindow window(kAfx, {1200, 300, 1650, 750});  // over the right edge
  const auto expect = [&](bool right, const char* what) {
    if (!right || !AreDpiAwarenessContextsEqual(GetThreadDpiAwarenessContext(), aware)) {
      std::puts(what);
    }
  };
  expect(GetDpiForSystem() == 144, "the screen is scaled");
  const PixelArea outer = desktop.OuterRectangle(window.handle()).value_or(PixelArea{});
  expect(outer.left == 800 && outer.top == 200 && outer.Width() == 300 && outer.Height() == 300,
         "OuterRectangle");
  const PixelArea area{0, 0, 100, 1};
  const auto read = desktop.Read(window.handle(), {&area, 1});
  expect(read && read->front().At(52, 0) != kUnreadable && read->front().At(54, 0) == kUnreadable,
         "Read");
  expect(desktop.CaptionBarHeight() < GetSystemMetrics(SM_CYCAPTION), "CaptionBarHeight");
  expect(!desktop.TopLevelWindows().empty(), "TopLevelWindows");
  const PixelPoint inside{820, 300};
  expect(desktop.WindowsAt({&inside, 1}).size() == 1, "WindowsAt");  // Wine may hit another one
  std::puts("done");
  return 0;
}

TEST_F(Win32DesktopTest, MeasuresAsOnAnUnscaledScreen) {
  constexpr const char* kKey = "Control Panel\\Desktop";
  constexpr const char* kValue = "LogPixels";  // read by every program as it starts
  const DWORD dpi = 144;
  RegSetKeyValueA(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &dpi, sizeof dpi);
  EXPECT_EQ(OtherProgram(OwnPath(), "--scaled").ReadLine(), "done");
  RegDeleteKeyValueA(HKEY_CURRENT_USER, kKey, kValue);
}

}  // namespace
}  // namespace holdem

int main(int argc, char** argv) {
  const std::string_view task = argc > 1 ? argv[1] : "";
  if (task == "--hung") holdem::RunHungProgram();
  if (task == "--scaled") return holdem::RunOnScaledScreen();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
