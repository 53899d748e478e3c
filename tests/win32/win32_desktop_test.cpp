#include "platform/win32/win32_desktop.h"

#include <gtest/gtest.h>

#include <array>

#include "other_program.h"
#include "shown_window.h"

namespace holdem {
namespace {

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
  const ShownWindow table(kAfx, {100, 100, 500, 400});
  const ShownWindow cover(kAfx, {400, 300, 600, 500});
  const ShownWindow owned(kAfx, {100, 350, 150, 390}, "", table.get());
  const auto child = [](const char* type, int at, int size, WindowHandle parent) {
    return reinterpret_cast<WindowHandle>(CreateWindowA(type, "", WS_CHILD | WS_VISIBLE | SS_NOTIFY,
                                                        at, at, size, size, Native(parent), nullptr,
                                                        nullptr, nullptr));
  };
  const WindowHandle panel = child("STATIC", 50, 150, table.handle());
  const WindowHandle control = child("BUTTON", 0, 50, panel);
  RECT at;
  GetWindowRect(Native(control), &at);
  const int x = at.left, y = at.top, right = at.right;

  const std::vector<PixelPoint> points = {{100, 100}, {399, 299}, {400, 300}, {x, y},
                                          {right, y}, {120, 370}, {-5, 100}};
  const WindowHandle a = table.handle(), b = cover.handle(), c = owned.handle();
  EXPECT_EQ(desktop.WindowsAt(points, a),
            (std::vector<WindowHandle>{a, a, b, control, panel, c, 0}));
  std::vector<WindowHandle> ours;
  for (const WindowHandle window : desktop.TopLevelWindows()) {
    if (desktop.ProcessId(window) == GetCurrentProcessId() && desktop.ClassName(window) == kAfx) {
      ours.push_back(window);
    }
  }
  EXPECT_EQ(ours, (std::vector{c, b, a}));
  EXPECT_EQ(desktop.Parent(control), panel);
  EXPECT_EQ(desktop.Parent(panel), a);
  EXPECT_EQ(desktop.Parent(c), a) << "its owner";
  EXPECT_EQ(desktop.Parent(a), 0);
}

TEST_F(Win32DesktopTest, ReadsEveryPixelThatIsOnTheScreen) {
  const int right = GetSystemMetrics(SM_CXSCREEN);
  const int bottom = GetSystemMetrics(SM_CYSCREEN);
  const PixelArea places[] = {{40, 30, 840, 592},
                              {-300, -20, 500, 542},
                              {right, 0, right + 300, 300},
                              {right - 200, bottom - 100, right + 600, bottom + 480}};
  for (const PixelArea& place : places) {
    const ShownWindow window(kAfx, place);
    const int width = place.Width(), height = place.Height();
    const std::vector<PixelArea> areas = {
        {-3, -3, width + 3, height + 3}, {310, 110, 350, 120}, {width, 0, width + 9, 9}};
    const unsigned objects = GraphicsObjects();
    for (int i = 0; i < 100; ++i) desktop.Read(window.handle(), {&areas[1], 1});
    EXPECT_LT(GraphicsObjects(), objects + 50);
    const auto read = desktop.Read(window.handle(), areas).value();
    int wrong = 0;
    for (std::size_t i = 0; i < areas.size(); ++i) {
      for (int y = areas[i].top; y < areas[i].bottom; ++y) {
        for (int x = areas[i].left; x < areas[i].right; ++x) {
          const int onX = place.left + x, onY = place.top + y;  // the screen
          const bool seen = x >= 0 && y >= 0 && x < width && y < height && onX >= 0 && onY >= 0 &&
                            onX < right && onY < bottom;
          wrong += read.at(i).At(x, y) != (seen ? PatternAt(x, y) : kUnreadable);
        }
      }
    }
    EXPECT_EQ(wrong, 0) << place.left << ' ' << place.top;
  }
}

TEST_F(Win32DesktopTest, AWindowOutOfSightIsGone) {
  std::string caption = "Table - NL  Hold'em\xFF\n\x01";
  ShownWindow window(kAfx, {100, 100, 400, 300}, caption);
  EXPECT_EQ(desktop.Caption(window.handle()), caption);
  caption.resize(2000, 'x');
  SetWindowTextA(window.get(), caption.c_str());
  EXPECT_EQ(desktop.Caption(window.handle()), caption.substr(0, 259));
  for (const int show : {SW_HIDE, SW_MINIMIZE}) {
    ShowWindow(window.get(), show);
    EXPECT_EQ(desktop.OuterRectangle(window.handle()), std::nullopt) << show;
    EXPECT_EQ(desktop.Read(window.handle(), {}), std::nullopt) << show;
  }
  ShowWindow(window.get(), SW_RESTORE);
  EXPECT_TRUE(desktop.Read(window.handle(), {}));
  DestroyWindow(window.get());
  for (const WindowHandle gone : {window.handle(), WindowHandle{0}, WindowHandle{0x7FFFFFFF}}) {
    EXPECT_EQ(desktop.ClassName(gone) + desktop.Caption(gone), "");
    EXPECT_EQ(desktop.ProcessId(gone), 0u);
    EXPECT_EQ(desktop.OuterRectangle(gone), std::nullopt);
    EXPECT_EQ(desktop.Read(gone, {}), std::nullopt);
    EXPECT_EQ(desktop.Parent(gone), 0);
  }
}

// The same tables on a screen scaled by a half, read by a program that knows of the scale.
TEST_F(Win32DesktopTest, TablesAreReadOnAScaledScreen) {
  constexpr const char* kKey = "Control Panel\\Desktop";
  constexpr const char* kValue = "LogPixels";  // read by every program as it starts
  const DWORD dpi = 144;
  std::array<char, MAX_PATH> path;  // of this program
  GetModuleFileNameA(nullptr, path.data(), MAX_PATH);
  RegSetKeyValueA(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &dpi, sizeof dpi);
  OtherProgram tests(path.data(), "--scaled --gtest_brief=1 --gtest_filter=*EveryLayout*");
  std::string all, last;
  while (const auto line = tests.ReadLine()) all += '\n' + (last = *line);
  EXPECT_EQ(last, "[  PASSED  ] 10 tests.") << all;
  RegDeleteKeyValueA(HKEY_CURRENT_USER, kKey, kValue);
}

}  // namespace
}  // namespace holdem

int main(int argc, char** argv) {
  if (argc > 1 && argv[1] == std::string_view("--scaled")) {
    SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE);
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
