// Scriptable stand-ins for everything outside the core, and the world that every test of
// process-wide state begins in.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "cards/deck.h"
#include "cards/random.h"
#include "fakes/fake_desktop.h"
#include "fakes/still_display.h"
#include "platform/clock.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/auto_read.h"
#include "state/results.h"
#include "state/run.h"
#include "state/screen.h"
#include "state/seats.h"
#include "state/settings.h"
#include "state/slots.h"
#include "state/wizard.h"

namespace holdem {

class FakeDisplay : public StillDisplay {
 public:
  void ShowSeats() override { ++seatsShown; }
  void ShowSlot(int slot) override { slotsShown.push_back(slot); }
  void ShowDeck() override { ++decksShown; }
  void ShowResults() override { ++resultsShown; }
  void ShowMeter() override { scoreShown = advice.MeterScore; }
  void ShowAutoRead() override { ++autoReadShown; }
  void ShowSettings() override { ++settingsShown; }
  void Yield() override {
    ++yields;
    if (atYield) atYield(yields);
  }
  bool IsMainWindowMinimised() override { return minimised; }
  void AskSeat() override {
    ++seatAsked;
    if (atAskSeat) atAskSeat();
  }
  void ShowMessage(const std::string& text) override { messages.push_back(text); }

  int seatsShown = 0;
  std::vector<int> slotsShown;
  int decksShown = 0;
  int resultsShown = 0;
  double scoreShown = kNoScore;
  int autoReadShown = 0;
  int settingsShown = 0;
  int yields = 0;
  std::function<void(int yield)> atYield;  // the user's hand in the middle of a run; yields from 1
  bool minimised = false;
  int seatAsked = 0;
  std::function<void()> atAskSeat;  // the user's hand in the wizard
  std::vector<std::string> messages;
};

class FakeSettingsStore : public SettingsStore {
 public:
  std::string Read(const std::string& key) override {
    const auto found = texts.find(key);
    return found == texts.end() ? std::string() : found->second;
  }
  void Write(const std::string& key, const std::string& text) override {
    writes.push_back(key + "=" + text);
    texts[key] = text;
  }

  std::map<std::string, std::string> texts;
  std::vector<std::string> writes;
};

// With the separators of the system.
inline std::string Path(std::filesystem::path path) { return path.make_preferred().string(); }

class FakeShell : public Shell {
 public:
  std::string ProgramFolder() override { return folder; }
  bool Exists(const std::string& path) override { return existing.contains(path); }
  void Open(const std::string& path) override { opened.push_back(path); }

  std::string folder = Path("/opt/pellucor");
  std::set<std::string> existing;
  std::vector<std::string> opened;
};

class FakeClock : public Clock {
 public:
  std::int32_t Milliseconds() override { return now; }

  std::int32_t now = 1000;  // cranked by hand
};

// The state of a program whose windows have just been shown - user on seat 2, button on seat 1, ten
// seats in, no cards - and the fakes around it.
class FakeWorld {
 public:
  FakeWorld() {
    seats = {};
    seats.MySeat = 2;
    seats.DealerSeat = 1;
    slots = {};
    slots.DeckShown = true;
    run = {};
    analysis = {};
    advice = {};
    results = {};
    settings = {};
    autoRead = {};
    screenState = {};
    wizard = {};
    deck = {};
    generator.Seed(1);
    ports = {.display = &display,
             .settingsStore = &store,
             .shell = &shell,
             .clock = &clock,
             .desktop = &desktop};
  }
  ~FakeWorld() { ports = {}; }
  FakeWorld(const FakeWorld&) = delete;  // the ports point into it
  FakeWorld& operator=(const FakeWorld&) = delete;

  // A table of layout 1, followed; its window is 77.
  void FollowATable() {
    desktop.windows = {{.handle = 77, .caption = "Table", .outer = {0, 0, 800, 562}}};
    autoRead.CurrentTable = {.windowHandle = 77,
                             .className = "#32770",
                             .caption = "Table",
                             .width = 800,
                             .height = 562,
                             .layout = 1};
    autoRead.WatchedWindow = 77;
    autoRead.TableLayout = 1;
  }

  FakeDisplay display;
  FakeSettingsStore store;
  FakeShell shell;
  FakeClock clock;
  FakeDesktop desktop;
};

class ProgramTest : public testing::Test, protected FakeWorld {};

}  // namespace holdem
