// The values of the user's settings, kept from one start of the program to the next; a fourth one
// is seats.WatchFoldDepth.
// Written by: gestures/settings_gestures
#pragma once

#include <array>

namespace holdem {

enum Level : int { Tight, Avg, Loose };

struct SpeedChoice {
  const char* text;
  int deals;
};
inline constexpr std::array<SpeedChoice, 3> kSpeedChoices = {
    {{"Fast (less accurate)", 1500}, {"Medium", 3000}, {"Accurate (for fast CPUs)", 4500}}};

inline constexpr int kNoSpeed = -1;

struct Settings {
  int LevelPre = Avg;  // a stored level outside Tight..Loose is kept and advises as Avg
  int LevelPost = Avg;
  int Speed = kNoSpeed;  // the checked one of kSpeedChoices; none before the settings are loaded
  int DealsPerRun = kSpeedChoices[0].deals;

  bool operator==(const Settings&) const = default;
};

inline Settings settings;

}  // namespace holdem
