// The stand-in poker client's real windows, followed by the watcher; on a scaled screen too.
#include <windows.h>
#undef Yield  // an empty macro, but a name of ours

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "autoread/setup_wizard.h"
#include "autoread/watcher.h"
#include "fakes/fake_ports.h"
#include "platform/win32/win32_desktop.h"

namespace holdem {
namespace {

// By layout, and whether the client counts the screen's own pixels.
class EveryLayout : public ProgramTest, public testing::WithParamInterface<std::tuple<int, bool>> {
 protected:
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

// On a screen scaled by a half, by a program that knows of it. Wine must not have shown any window
// on another one before.
int RunOnScaledScreen(const std::string& program) {
  constexpr const char* kKey = "Control Panel\\Desktop";
  constexpr const char* kValue = "LogPixels";  // read by every program as it starts
  const DWORD dpi = 144;
  RegSetKeyValueA(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &dpi, sizeof dpi);
  const int code = std::system(('"' + program + "\" --aware --gtest_filter=*EveryLayout*").c_str());
  RegDeleteKeyValueA(HKEY_CURRENT_USER, kKey, kValue);
  return code;
}

}  // namespace
}  // namespace holdem

int main(int argc, char** argv) {
  const std::string_view task = argc > 1 ? argv[1] : "";
  if (task == "--scaled") return holdem::RunOnScaledScreen(argv[0]);
  if (task == "--aware") SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
