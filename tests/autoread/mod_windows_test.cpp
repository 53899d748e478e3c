#include "autoread/mod_windows.h"

#include <tuple>

#include "autoread/layouts.h"
#include "fakes/fake_ports.h"

namespace holdem::modWindows {
namespace {

struct ModWindowsTest : ProgramTest {
  ModWindowsTest() { LoadTableLayouts(); }
};

TEST_F(ModWindowsTest, Patterns) {
  for (const auto* text : {"Table 4 -  Hold'em - 1/2", "-  Hold'em -"}) {
    EXPECT_TRUE(Matches(text, "*-  Hold'em -*")) << text;
  }
  for (const auto* text : {"T - Hold'em - 1/2" /* a single blank */, "T -  hold'em - x"}) {
    EXPECT_FALSE(Matches(text, "*-  Hold'em -*")) << text;
  }
  EXPECT_TRUE(Matches("Afx", "Afx*"));
  for (const auto* text : {"xAfx", "afx:1", ""}) EXPECT_FALSE(Matches(text, "Afx*")) << text;
  EXPECT_TRUE(Matches("hold'hold'em", "*hold'em*"));
  EXPECT_FALSE(Matches("hold'em x", "*hold'em"));
}

TEST_F(ModWindowsTest, Classification) {
  const auto classify = [&](const char* className, const char* caption, int width, int height) {
    desktop.windows = {{7, className, caption, {0, 0, width, height}}};
    FindTableWindows();
    return autoRead.TableCandidates.empty() ? 0 : autoRead.TableCandidates[0].layout;
  };
  const std::tuple<const char*, int, int, int> captions[] = {
      {"T - NL  Hold'em x", 800, 571, 3},  // the size comes first
      {"T - NL  Hold'em x", 1, 1, 2},
      {"T - PL  Hold'em x", 800, 562, 2},
      {"T - PL Hold'em x", 800, 562, 1},
      {"T -  Hold'em - x", 300, 200, 2}};
  for (const auto& [caption, width, height, layout] : captions) {
    EXPECT_EQ(classify("#32770", caption, width, height), layout) << caption;
    EXPECT_EQ(classify("Notepad", caption, width, height), 0);
  }
  // What the measured caption bar lacks of 26 pixels, the size, the layout by either class. Only
  // some of the sizes are corrected.
  const int sizes[][5] = {{0, 800, 571, 3, 0}, {0, 795, 581, 2, 0}, {0, 908, 708, 2, 0},
                          {0, 800, 562, 1, 0}, {0, 800, 561, 0, 0}, {0, 800, 580, 0, 4},
                          {0, 801, 580, 0, 0}, {8, 795, 573, 2, 0}, {8, 795, 581, 0, 0},
                          {8, 908, 700, 2, 0}, {8, 800, 571, 3, 0}, {8, 800, 562, 1, 0},
                          {8, 800, 572, 0, 4}, {8, 800, 580, 0, 0}, {0, 799, 580, 0, 0}};
  for (const auto& [captionAdjust, width, height, dialog, afx] : sizes) {
    autoRead.CaptionAdjust = captionAdjust;
    EXPECT_EQ(classify("#32770", "", width, height), dialog) << width << "x" << height;
    EXPECT_EQ(classify("Afx:1", "T - NL  Hold'em x", width, height), afx) << width << "x" << height;
  }
}

TEST_F(ModWindowsTest, OnePixelTellsLayoutFiveFromFour) {
  autoRead.CaptionAdjust = 8;
  desktop.windows = {{7, "Afx:1", "", {10, 20, 810, 592}}};
  for (const PixelColor color : {0x004B00, 0x004A00, 0x324B00, 0xFFFFFF}) {
    desktop.windows[0].changed[{398, 358}] = color;
    FindTableWindows();
    EXPECT_EQ(autoRead.TableCandidates.at(0).layout, color == 0x004B00 ? 5 : 4) << color;
  }
}

TEST_F(ModWindowsTest, CandidatesKeepTheOrderOfTheScreen) {
  desktop.windows = {{3, "#32770", "on top", {0, 0, 800, 562}},
                     {4, "#32770", "no table", {0, 0, 100, 100}},
                     {5, "Afx:9", "below", {50, 50, 850, 630}}};
  FindTableWindows();
  ASSERT_EQ(autoRead.TableCandidates.size(), 2U);
  const WindowRecord& first = autoRead.TableCandidates[0];
  EXPECT_EQ(std::tie(first.windowHandle, first.className, first.caption, first.width, first.height,
                     first.processId),
            std::tuple(3U, "#32770", "on top", 800, 562, 1003U));
  EXPECT_EQ(autoRead.TableCandidates[1].windowHandle, 5U);
}

TEST_F(ModWindowsTest, WholeWindowVisibility) {
  // Whether a cover one pixel in size hides the window, and when it lies behind it.
  const auto hides = [&](int x, int y, WindowHandle parent = 0) {
    const FakeWindow table{5, "", "", {100, 200, 900, 750}};
    const FakeWindow cover{9, "", "", {x, y, x + 1, y + 1}, parent};
    desktop.windows = {table, cover};
    EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
    desktop.windows = {cover, table};
    return IsTableObscured(5, Points::WholeWindow);
  };
  // The grid begins 100 inside and steps by 50.
  const int onGrid[][2] = {{200, 300}, {250, 300}, {200, 350}, {800, 650}};
  for (const auto& [x, y] : onGrid) EXPECT_TRUE(hides(x, y)) << x << "," << y;
  const int beside[][2] = {{199, 300}, {200, 299}, {225, 300}, {850, 300}, {800, 700}, {150, 250}};
  for (const auto& [x, y] : beside) EXPECT_FALSE(hides(x, y)) << x << "," << y;
  EXPECT_FALSE(hides(200, 300, 5));  // a control of the table counts as the table
  EXPECT_TRUE(hides(200, 300, 6));
  EXPECT_TRUE(IsTableObscured(6, Points::WholeWindow));  // no such window
  // Too small to have a grid.
  desktop.windows = {{9, "", "", {0, 0, 900, 900}}, {5, "", "", {0, 0, 199, 400}}};
  EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
}

TEST_F(ModWindowsTest, SeatVisibility) {
  autoRead.CaptionAdjust = 8;  // makes no difference here
  for (int layout = 1; layout <= kLayouts; ++layout) {
    autoRead.TableLayout = layout;
    const auto obscuredAt = [&](PixelPoint point) {
      const int x = 100 + point.x, y = 50 + point.y;
      desktop.windows = {{9, "", "", {x, y, x + 1, y + 1}}, {5, "", "", {100, 50, 1000, 750}}};
      return IsTableObscured(5, Points::SeatsOfTable);
    };
    for (int seat = 1; seat <= kSeats; ++seat) {
      SCOPED_TRACE(testing::Message() << "layout " << layout << " seat " << seat);
      const bool there = layout != 4 || seat != 6;
      EXPECT_EQ(obscuredAt(ButtonPoints[layout][seat]), there);
      seats.MySeat = seat;
      EXPECT_EQ(obscuredAt(CardPoints[layout][seat][1]), there);
      EXPECT_FALSE(obscuredAt(HoldingPoints[layout][seat]));
      seats.MySeat = seat % kSeats + 1;
      EXPECT_EQ(obscuredAt(HoldingPoints[layout][seat]), there);
      EXPECT_FALSE(obscuredAt(CardPoints[layout][seat][1]));
    }
  }
}

}  // namespace
}  // namespace holdem::modWindows
