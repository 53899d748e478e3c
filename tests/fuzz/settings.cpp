#include <cerrno>
#include <cmath>
#include <cstdlib>

#include "fakes/fake_ports.h"
#include "fuzz/fuzz.h"
#include "gestures/settings_gestures.h"

namespace holdem::fuzz {
namespace {

// A text that may well be a number, or any text at all.
std::string AnyText(Script& script) {
  constexpr std::string_view kSigns = "0123456789012.,+-eE \tx";
  std::string text = script.Text(40);
  if (!script.Rarely(4)) {
    for (char& c : text) c = kSigns[static_cast<unsigned char>(c) % kSigns.size()];
  }
  return text;
}

// By the C library, which the program does not ask: it would follow the system's decimal point.
int NumberIn(const std::string& text, int otherwise) {
  if (text.empty()) return otherwise;
  std::string digits;
  for (const char c : text) {
    if (c != ' ' && c != '\t') digits += c;
  }
  digits = digits.substr(0, digits.find_first_not_of("0123456789.+-eE"));  // no hex, no infinity
  errno = 0;
  const double number = std::strtod(digits.c_str(), nullptr);
  const bool tooSmall = errno == ERANGE && number == 0;  // out of range like one that is too large
  const double whole = std::nearbyint(number);
  return !tooSmall && whole >= -32768 && whole <= 32767 ? static_cast<int>(whole) : otherwise;
}

}  // namespace

int FuzzSettings(Bytes bytes) {
  Script script(bytes);
  FakeWorld world;
  const std::string stored = AnyText(script);
  HOLDS(SettingNumber(stored, 777) == NumberIn(stored, 777));

  world.store.texts = {{"LevelPre", stored},
                       {"LevelPost", AnyText(script)},
                       {"Speed", AnyText(script)},
                       {"FoldLevels", script.Rarely(2) ? "Yes" : stored}};
  const auto texts = world.store.texts;
  LoadLevels();
  HOLDS(settings.LevelPre == NumberIn(stored, Avg));
  HOLDS(settings.LevelPost == NumberIn(texts.at("LevelPost"), Avg));
  LoadSpeed();
  const int speed = NumberIn(texts.at("Speed"), 0);
  HOLDS(settings.Speed == (speed >= 0 && speed <= 2 ? speed : 0));
  HOLDS(settings.DealsPerRun == 1500 * (settings.Speed + 1));
  LoadFoldDepth();
  HOLDS(seats.WatchFoldDepth == (texts.at("FoldLevels") == "Yes"));
  return 1;
}

}  // namespace holdem::fuzz
