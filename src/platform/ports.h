// The outside world as the program reaches it: set once by main, and by every test to its fakes.
#pragma once

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/display.h"
#include "platform/settings_store.h"
#include "platform/shell.h"

namespace holdem {

// None is owned, none may be null while the program runs.
struct Ports {
  Display* display = nullptr;
  SettingsStore* settingsStore = nullptr;
  Shell* shell = nullptr;
  Clock* clock = nullptr;
  Desktop* desktop = nullptr;
};

inline Ports ports;

}  // namespace holdem
