// The outside world as the program reaches it: set once by main, and by every test to its fakes.
// Written by: main ui/program
#pragma once

namespace holdem {

class Clock;
class Desktop;
class Display;
class SettingsStore;
class Shell;

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
