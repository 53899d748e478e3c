// Auto Read beside programs whose windows are like no honest ones, and die at any moment. What it
// does with what they say is watched by the sanitizers.
#include <thread>

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "autoread/watcher.h"
#include "fakes/fake_ports.h"
#include "platform/x11/x11_desktop.h"
#include "x11/own_display.h"

namespace holdem {
namespace {

using namespace std::string_literals;

class HostileClientsTest : public ProgramTest {
 protected:
  HostileClientsTest() {
    ports.desktop = &x11;
    display.atAskSeat = [] { ClickWizardSeat(3); };
  }
  void BeHonest(xcb_window_t table) {
    screen.Set(table, "WM_CLASS", "table\0Afx:1\0"s);
    screen.Set(table, "_NET_WM_NAME", "NL Hold'em"s);
    screen.Set(table, "_NET_FRAME_EXTENTS", {0, 0, 26, 0});
    Resize(table, 800, 554);
  }
  void Resize(xcb_window_t table, int width, int height) {
    screen.Configure(table, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, {width, height});
  }
  // Whether a table is followed after all that is asked for.
  bool Watch() {
    for (int tick = 0; tick < 4; ++tick) WatchTable();
    x11.FreeArea({0, 0, 1280, 1024});
    return autoRead.Following();
  }

  OwnDisplay screen{"24", 1};
  X11Desktop x11{screen.name};
  const PixelArea place{100, 126, 900, 680};
};

TEST_F(HostileClientsTest, SayAnything) {
  const std::uint32_t numbers[] = {0, 1, 65535, 0x7FFFFFFF, 0xFFFFFFFF};
  std::vector texts = {""s, "\0"s, "a"s, "a\0Afx"s, std::string(65536, '\xE2')};
  texts[4].replace(0, 2, "a\0"s);
  const auto table = screen.Make(place);
  for (const char* const property :
       {"WM_CLASS", "WM_NAME", "_NET_WM_NAME", "_NET_WM_PID", "_NET_FRAME_EXTENTS", "WM_STATE",
        "_NET_WM_STATE", "_NET_CLIENT_LIST", "_NET_WORKAREA", "_NET_WM_STRUT_PARTIAL"}) {
    for (int kind = 0; kind < 15; ++kind) {
      BeHonest(table);
      for (const auto window : {table, screen.root}) {
        kind < 5
            ? screen.Set(window, property, texts[kind])
            : screen.Set(window, property, std::vector((kind - 5) * kind * 130, numbers[kind % 5]));
        autoRead = {};  // it is found anew
        Watch();
      }
    }
  }
  for (const int size : {1, 32767, 65535}) Resize(table, size, size), Watch();
  BeHonest(table);
  EXPECT_TRUE(Watch());
}

TEST_F(HostileClientsTest, DieBetweenAnyTwoCalls) {
  for (int death = 0; death < 200; ++death) {
    const auto table = screen.Make(place);
    BeHonest(table);
    EXPECT_TRUE(death % 2 == 1 || Watch());
    std::thread killer([&] {
      std::this_thread::sleep_for(std::chrono::microseconds(death * 20));
      screen.Do(xcb_destroy_window(screen.c, table));
    });
    Watch();
    killer.join();
    EXPECT_FALSE(Watch()) << death;
    EXPECT_EQ(Cards(), "-- -- -- -- -- -- --");
  }
}

}  // namespace
}  // namespace holdem
