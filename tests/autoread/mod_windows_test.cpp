#include "autoread/mod_windows.h"

#include "autoread/layouts.h"
#include "fakes/fake_ports.h"

namespace holdem::modWindows {
namespace {

class ModWindowsTest : public ProgramTest {
 protected:
  ModWindowsTest() { LoadTableLayouts(); }

  static FakeWindow Window(WindowHandle handle, const char* className, const char* caption,
                           PixelArea outer) {
    return {.handle = handle, .className = className, .caption = caption, .outer = outer};
  }
};

TEST_F(ModWindowsTest, Patterns) {
  const struct {
    const char* text;
    const char* pattern;
    bool matches;
  } kCases[] = {
      {"Table 4 -  Hold'em - 1/2", "*-  Hold'em -*", true},
      {"Table 4 - Hold'em - 1/2", "*-  Hold'em -*", false},  // a single blank
      {"Table 4 -  Hold'em -", "*-  Hold'em -*", true},
      {"-  Hold'em - x", "*-  Hold'em -*", true},
      {"Table -  hold'em - x", "*-  Hold'em -*", false},
      {"T - NL  Hold'em", "*- NL  Hold'em*", true},
      {"T - NL Hold'em", "*- NL  Hold'em*", false},
      {"Afx:400000:8", "Afx*", true},
      {"Afx", "Afx*", true},
      {"xAfx", "Afx*", false},
      {"afx:1", "Afx*", false},
      {"", "Afx*", false},
      {"", "*", true},
      {"hold'hold'em", "*hold'em*", true},
  };
  for (const auto& c : kCases) EXPECT_EQ(Matches(c.text, c.pattern), c.matches) << c.text;
}

TEST_F(ModWindowsTest, Classification) {
  const struct {
    const char* className;
    const char* caption;
    int width, height, captionAdjust, layout;
  } kCases[] = {
      {"#32770", "", 800, 571, 0, 3},
      {"#32770", "T - NL  Hold'em x", 800, 571, 0, 3},  // the size comes first
      {"#32770", "T -  Hold'em - x", 300, 200, 0, 2},
      {"#32770", "T - NL  Hold'em x", 1, 1, 0, 2},
      {"#32770", "T - PL  Hold'em x", 800, 562, 0, 2},
      {"#32770", "T - PL Hold'em x", 800, 562, 0, 1},
      {"#32770", "", 795, 581, 0, 2},
      {"#32770", "", 908, 708, 0, 2},
      {"#32770", "", 800, 562, 0, 1},
      {"#32770", "", 800, 561, 0, 0},
      {"#32770", "", 800, 580, 0, 0},
      // A caption bar of 18 pixels: only some of the sizes are corrected.
      {"#32770", "", 795, 573, 8, 2},
      {"#32770", "", 795, 581, 8, 0},
      {"#32770", "", 908, 700, 8, 2},
      {"#32770", "", 800, 571, 8, 3},
      {"#32770", "", 800, 562, 8, 1},
      {"Afx:1", "", 800, 572, 8, 4},
      {"Afx:1", "", 800, 580, 8, 0},
      {"Afx:1", "T - NL  Hold'em x", 801, 580, 0, 0},
      {"Afx:1", "", 800, 580, 0, 4},
      {"Notepad", "T - NL  Hold'em x", 800, 571, 0, 0},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(testing::Message() << c.className << " " << c.caption << " " << c.width << "x"
                                    << c.height << " " << c.captionAdjust);
    autoRead.CaptionAdjust = c.captionAdjust;
    desktop.windows = {Window(7, c.className, c.caption, {0, 0, c.width, c.height})};
    FindTableWindows();
    ASSERT_EQ(autoRead.TableCandidates.size(), c.layout == 0 ? 0U : 1U);
    EXPECT_TRUE(c.layout == 0 || autoRead.TableCandidates[0].layout == c.layout);
  }
}

TEST_F(ModWindowsTest, OnePixelTellsLayoutFiveFromFour) {
  for (const int captionAdjust : {0, 8}) {
    autoRead.CaptionAdjust = captionAdjust;
    desktop.windows = {Window(7, "Afx:1", "", {10, 20, 810, 600 - captionAdjust})};
    PixelColor& pixel = desktop.windows[0].At(398, 366 - captionAdjust);
    for (const auto& [color, layout] : {std::pair<PixelColor, int>{0x00004B00, 5},
                                        {0x00004A00, 4},
                                        {0x00324B00, 4},
                                        {0x00FFFFFF, 4}}) {
      pixel = color;
      FindTableWindows();
      ASSERT_EQ(autoRead.TableCandidates.size(), 1U);
      EXPECT_EQ(autoRead.TableCandidates[0].layout, layout) << std::hex << color;
    }
  }
}

TEST_F(ModWindowsTest, CandidatesKeepTheOrderOfTheScreen) {
  desktop.windows = {Window(3, "#32770", "below", {0, 0, 800, 562}),
                     Window(4, "#32770", "no table", {0, 0, 100, 100}),
                     Window(5, "Afx:9", "above", {50, 50, 850, 630})};
  FindTableWindows();
  ASSERT_EQ(autoRead.TableCandidates.size(), 2U);
  const WindowRecord& first = autoRead.TableCandidates[0];
  EXPECT_EQ(first.windowHandle, 3U);
  EXPECT_EQ(first.className, "#32770");
  EXPECT_EQ(first.caption, "below");
  EXPECT_EQ(first.width, 800);
  EXPECT_EQ(first.height, 562);
  EXPECT_EQ(first.processId, 1003U);
  EXPECT_EQ(autoRead.TableCandidates[1].windowHandle, 5U);
  desktop.windows.clear();
  FindTableWindows();
  EXPECT_TRUE(autoRead.TableCandidates.empty());
}

TEST_F(ModWindowsTest, AWindowMayDieBetweenAnyTwoCalls) {
  for (int calls = 0; calls < 12; ++calls) {
    desktop.windows = {Window(5, "Afx:9", "", {0, 0, 800, 580})};
    int turns = 0;
    desktop.beforeCall = [&] {
      if (turns++ == calls) desktop.windows.clear();
    };
    FindTableWindows();
    IsTableObscured(5, Points::WholeWindow);
  }
}

TEST_F(ModWindowsTest, WholeWindowVisibility) {
  const PixelArea table{100, 200, 900, 762};
  // A cover one pixel in size: on a point of the grid, which begins 100 inside and steps by 50.
  const struct {
    int x, y;
    bool obscured;
  } kCases[] = {
      {200, 300, true},  {250, 300, true},  {200, 350, true},  {800, 650, true},  {199, 300, false},
      {200, 299, false}, {225, 300, false}, {850, 300, false}, {800, 700, false}, {150, 250, false},
  };
  for (const auto& c : kCases) {
    desktop.windows = {Window(9, "x", "", {c.x, c.y, c.x + 1, c.y + 1}),
                       Window(5, "#32770", "", table)};
    EXPECT_EQ(IsTableObscured(5, Points::WholeWindow), c.obscured) << c.x << "," << c.y;
    std::swap(desktop.windows[0], desktop.windows[1]);  // behind the table
    EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
  }
  EXPECT_TRUE(IsTableObscured(6, Points::WholeWindow));  // no such window
  // A control of the table counts as the table, one of another window does not.
  desktop.windows = {Window(9, "x", "", {200, 300, 201, 301}), Window(5, "#32770", "", table)};
  desktop.windows[0].parent = 5;
  EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
  desktop.windows[0].parent = 6;
  EXPECT_TRUE(IsTableObscured(5, Points::WholeWindow));
  // Too small to have a grid.
  desktop.windows = {Window(9, "x", "", {0, 0, 900, 900}), Window(5, "x", "", {0, 0, 199, 400})};
  EXPECT_FALSE(IsTableObscured(5, Points::WholeWindow));
}

TEST_F(ModWindowsTest, SeatVisibility) {
  autoRead.CaptionAdjust = 8;  // makes no difference here
  for (int layout = 1; layout <= kLayouts; ++layout) {
    autoRead.TableLayout = layout;
    const auto obscuredAt = [&](PixelPoint point) {
      const int x = 100 + point.x;
      const int y = 50 + point.y;
      desktop.windows = {Window(9, "x", "", {x, y, x + 1, y + 1}),
                         Window(5, "x", "", {100, 50, 1000, 750})};
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
