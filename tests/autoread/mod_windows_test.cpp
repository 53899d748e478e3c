#include "autoread/mod_windows.h"

#include "fakes/fake_ports.h"

namespace holdem::modWindows {
namespace {

struct ModWindowsTest : ProgramTest {
  int Classify(const char* className, const char* caption, int width, int height,
               PixelColor felt = 0) {
    desktop.windows = {{7, className, caption, {10, 20, 10 + width, 20 + height}}};
    desktop.windows[0].changed[{398, 340 + desktop.captionBarHeight}] = felt;
    FindTableWindows();
    if (autoRead.TableCandidates.empty()) return 0;
    EXPECT_EQ(autoRead.TableCandidates[0].processId, 1007U);
    return autoRead.TableCandidates[0].layout;
  }
  // Under a window one pixel in size.
  bool IsObscuredAt(int x, int y, WindowHandle parent = 0) {
    desktop.windows = {{9, "", "", {x, y, x + 1, y + 1}, parent}, {5, "", "", kTable}};
    return IsTableObscured(5, Points::WholeWindow);
  }

  static constexpr PixelArea kTable{100, 50, 900, 750};
};

TEST_F(ModWindowsTest, Classification) {
  const std::tuple<const char*, int, int, int> captions[] = {
      {"T - NL  Hold'em x", 800, 571, 3},  // the size comes first
      {"T - NL  Hold'em x", 1, 1, 2},     {"T - PL  Hold'em x", 800, 562, 2},
      {"T - PL Hold'em x", 800, 562, 1},  {"T - Hold'em - x", 800, 562, 1},  // a single blank
      {"T -  hold'em - x", 800, 562, 1},  {"-  Hold'em -", 300, 200, 2}};
  for (const auto& [caption, width, height, layout] : captions)
    EXPECT_EQ(Classify("#32770", caption, width, height), layout) << caption;
  // What the measured caption bar lacks of 26 pixels, the size, the layout by either class. Only
  // some of the sizes are corrected.
  const int sizes[][5] = {{0, 800, 571, 3, 0}, {0, 795, 581, 2, 0}, {0, 908, 708, 2, 0},
                          {0, 800, 562, 1, 0}, {0, 800, 561, 0, 0}, {0, 800, 580, 0, 4},
                          {0, 801, 580, 0, 0}, {8, 795, 573, 2, 0}, {8, 795, 581, 0, 0},
                          {8, 908, 700, 2, 0}, {8, 800, 571, 3, 0}, {8, 800, 562, 1, 0},
                          {0, 799, 580, 0, 0}, {8, 800, 580, 0, 0}, {8, 800, 572, 0, 4}};
  for (const auto& [captionAdjust, width, height, dialog, afx] : sizes) {
    desktop.captionBarHeight = 26 - captionAdjust;
    EXPECT_EQ(Classify("#32770", "", width, height), dialog) << width << "x" << height;
    EXPECT_EQ(Classify("Afx:1", "T - NL  Hold'em x", width, height), afx) << width << "x" << height;
    EXPECT_EQ(Classify("xAfx", "", width, height), 0);
  }
  for (const PixelColor felt : {0x004B00, 0x004A00, 0x324B00, 0xFFFFFF})
    EXPECT_EQ(Classify("Afx:1", "", 800, 572, felt), felt == 0x004B00 ? 5 : 4) << felt;
  desktop.windows.insert(desktop.windows.begin(), {.handle = 9, .outer = {0, 0, 900, 900}});
  FindTableWindows();
  EXPECT_TRUE(autoRead.TableCandidates.empty()) << "its felt is not in sight";
}

// The grid begins 100 pixels inside and steps by 50.
TEST_F(ModWindowsTest, AWindowIsHiddenByWhatCoversAPointOfTheGrid) {
  // Of a window larger than any screen no million points are asked for.
  desktop.windows = {{9, "", "", {60000, 60000, 65535, 65535}}, {5, "", "", {0, 0, 65535, 65535}}};
  EXPECT_TRUE(IsTableObscured(5, Points::WholeWindow));
  EXPECT_LE(desktop.pointsAsked, 4u);
  for (int y = 50; y < 750; y += 25) {
    for (int x = 100; x < 900; x += 25) {
      const bool inside = x >= 200 && x <= 800 && y >= 150 && y <= 650;
      EXPECT_EQ(IsObscuredAt(x, y), inside && x % 50 == 0 && y % 50 == 0) << x << ' ' << y;
    }
  }
  EXPECT_FALSE(IsObscuredAt(200, 150, 5));  // a control of the table
  EXPECT_TRUE(IsObscuredAt(200, 150, 6) && IsTableObscured(6, Points::WholeWindow));  // is gone
  // A control in its own pop-up counts as the table; what owns it is another window.
  desktop.windows = {{9, "", "", {200, 150, 201, 151}, 7},
                     {7, "", "", {190, 140, 210, 160}, 5},
                     {5, "", "", kTable, 8},
                     {8, "", "", {0, 0, 900, 900}}};
  EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
  desktop.windows.insert(desktop.windows.begin(), {8, "", "", {200, 150, 201, 151}});
  EXPECT_TRUE(IsTableObscured(5, Points::WholeWindow));
}

}  // namespace
}  // namespace holdem::modWindows
