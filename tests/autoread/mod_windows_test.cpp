#include "autoread/mod_windows.h"

#include "autoread/layouts.h"
#include "fakes/fake_ports.h"

namespace holdem::modWindows {
namespace {

struct ModWindowsTest : ProgramTest {
  ModWindowsTest() { LoadTableLayouts(); }

  int Classify(const char* className, const char* caption, int width, int height) {
    desktop.windows = {{7, className, caption, {10, 20, 10 + width, 20 + height}}};
    FindTableWindows();
    if (autoRead.TableCandidates.empty()) return 0;
    EXPECT_EQ(autoRead.TableCandidates[0].processId, 1007U);
    return autoRead.TableCandidates[0].layout;
  }
};

TEST_F(ModWindowsTest, Classification) {
  const std::tuple<const char*, int, int, int> captions[] = {
      {"T - NL  Hold'em x", 800, 571, 3},  // the size comes first
      {"T - NL  Hold'em x", 1, 1, 2},     {"T - PL  Hold'em x", 800, 562, 2},
      {"T - PL Hold'em x", 800, 562, 1},  {"T - Hold'em - x", 800, 562, 1},  // a single blank
      {"T -  hold'em - x", 800, 562, 1},  {"-  Hold'em -", 300, 200, 2}};
  for (const auto& [caption, width, height, layout] : captions) {
    EXPECT_EQ(Classify("#32770", caption, width, height), layout) << caption;
    EXPECT_EQ(Classify("Notepad", caption, width, height), 0);
  }
  // What the measured caption bar lacks of 26 pixels, the size, the layout by either class. Only
  // some of the sizes are corrected.
  const int sizes[][5] = {{0, 800, 571, 3, 0}, {0, 795, 581, 2, 0}, {0, 908, 708, 2, 0},
                          {0, 800, 562, 1, 0}, {0, 800, 561, 0, 0}, {0, 800, 580, 0, 4},
                          {0, 801, 580, 0, 0}, {8, 795, 573, 2, 0}, {8, 795, 581, 0, 0},
                          {8, 908, 700, 2, 0}, {8, 800, 571, 3, 0}, {8, 800, 562, 1, 0},
                          {8, 800, 572, 0, 4}, {8, 800, 580, 0, 0}, {0, 799, 580, 0, 0}};
  for (const auto& [captionAdjust, width, height, dialog, afx] : sizes) {
    desktop.captionBarHeight = 26 - captionAdjust;
    EXPECT_EQ(Classify("#32770", "", width, height), dialog) << width << "x" << height;
    EXPECT_EQ(Classify("Afx:1", "T - NL  Hold'em x", width, height), afx) << width << "x" << height;
    EXPECT_EQ(Classify("xAfx", "", width, height), 0);
  }
}

TEST_F(ModWindowsTest, OnePixelTellsLayoutFiveFromFour) {
  desktop.captionBarHeight = 18;
  for (const PixelColor color : {0x004B00, 0x004A00, 0x324B00, 0xFFFFFF}) {
    Classify("Afx:1", "", 800, 572);
    desktop.windows[0].changed[{398, 358}] = color;
    FindTableWindows();
    EXPECT_EQ(autoRead.TableCandidates.at(0).layout, color == 0x004B00 ? 5 : 4) << color;
  }
}

// The grid begins 100 pixels inside and steps by 50; a cover is one pixel in size.
TEST_F(ModWindowsTest, AWindowIsHiddenByWhatCoversAPointOfTheGrid) {
  const auto hides = [&](int x, int y, WindowHandle parent = 0) {
    const FakeWindow table{5, "", "", {100, 200, 350, 450}};
    const FakeWindow cover{9, "", "", {x, y, x + 1, y + 1}, parent};
    desktop.windows = {table, cover};
    EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
    desktop.windows = {cover, table};
    return IsTableObscured(5, Points::WholeWindow);
  };
  std::string hidden;
  for (int y = 200; y < 450; y += 5) {
    for (int x = 100; x < 350; x += 5) {
      if (hides(x, y)) hidden += std::to_string(x) + "," + std::to_string(y) + " ";
    }
  }
  EXPECT_EQ(hidden, "200,300 250,300 200,350 250,350 ");
  EXPECT_TRUE(hides(200, 300, 6) && !hides(200, 300, 5));  // a control of the table counts as it
  EXPECT_TRUE(IsTableObscured(6, Points::WholeWindow));    // no such window
  // A control in its own pop-up counts too; its own owner is another window.
  desktop.windows = {{9, "", "", {200, 300, 201, 301}, 7},
                     {7, "", "", {190, 290, 210, 310}, 5},
                     {5, "", "", {100, 200, 350, 450}, 8},
                     {8, "", "", {0, 0, 900, 900}}};
  EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
}

TEST_F(ModWindowsTest, ATableIsHiddenByWhatCoversAButtonOrCards) {
  autoRead.CaptionAdjust = 8;  // makes no difference here
  for (int layout = 1; layout <= kLayouts; ++layout) {
    autoRead.TableLayout = layout;
    const auto hiddenAt = [&](PixelPoint point) {
      const int x = 100 + point.x, y = 50 + point.y;
      desktop.windows = {{9, "", "", {x, y, x + 1, y + 1}}, {5, "", "", {100, 50, 1000, 750}}};
      return IsTableObscured(5, Points::SeatsOfTable);
    };
    for (int seat = 1; seat <= kSeats; ++seat) {
      SCOPED_TRACE(testing::Message() << "layout " << layout << " seat " << seat);
      const bool there = layout != 4 || seat != 6;
      EXPECT_EQ(hiddenAt(ButtonPoints[layout][seat]), there);
      for (const bool mine : {true, false}) {
        seats.MySeat = mine ? seat : seat % kSeats + 1;
        EXPECT_EQ(hiddenAt(CardPoints[layout][seat][1]), there && mine);
        EXPECT_EQ(hiddenAt(HoldingPoints[layout][seat]), there && !mine);
      }
    }
  }
}

}  // namespace
}  // namespace holdem::modWindows
