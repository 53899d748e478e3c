#include "gestures/settings_gestures.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "engine/analysis_pass.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "platform/settings_store.h"
#include "state/seats.h"
#include "state/settings.h"
#include "table/refresh.h"

namespace holdem {
namespace {

constexpr const char* kLevelPreKey = "LevelPre";
constexpr const char* kLevelPostKey = "LevelPost";
constexpr const char* kSpeedKey = "Speed";
constexpr const char* kFoldLevelsKey = "FoldLevels";

int ReadNumber(const char* key, int otherwise) {
  return SettingNumber(ports.settingsStore->Read(key), otherwise);
}

bool ChooseLevel(int& current, int level, const char* key) {
  if (level == current) return false;
  current = level;
  ports.display->ShowSettings();
  ports.settingsStore->Write(key, std::to_string(level));
  return true;
}

}  // namespace

int SettingNumber(std::string_view text, int otherwise) {
  if (text.empty()) return otherwise;
  std::string digits(text);
  std::erase_if(digits, [](char c) { return c == ' ' || c == '\t'; });
  const auto isNumeric = [](char c) { return c == '.' || (c >= '0' && c <= '9'); };
  const bool hasSign = digits.starts_with('+') || digits.starts_with('-');
  if (digits.size() <= hasSign || !isNumeric(digits[hasSign])) return 0;

  const char* const begin = digits.data() + digits.starts_with('+');
  const char* const end = digits.data() + digits.size();
  double number = 0;
  const auto [stop, error] = std::from_chars(begin, end, number);
  if (error == std::errc::invalid_argument) return 0;
  const double whole = std::nearbyint(number);
  using Limits = std::numeric_limits<std::int16_t>;
  const bool fits = error == std::errc() && whole >= Limits::min() && whole <= Limits::max();
  return fits ? static_cast<int>(whole) : otherwise;
}

void LoadLevels() {
  settings.LevelPre = ReadNumber(kLevelPreKey, Avg);
  settings.LevelPost = ReadNumber(kLevelPostKey, Avg);
  ports.display->ShowSettings();
}

void LoadSpeed() {
  const int stored = ReadNumber(kSpeedKey, 0);
  ChooseSpeed(stored >= 0 && stored < static_cast<int>(kSpeedChoices.size()) ? stored : 0);
}

void LoadFoldDepth() {
  if (ports.settingsStore->Read(kFoldLevelsKey) == "Yes") SetWatchFoldDepth(true);
}

void ChooseLevelPre(int level) {
  // Only the advice before the flop depends on it, which takes no run.
  if (ChooseLevel(settings.LevelPre, level, kLevelPreKey)) RunAnalysis();
}

void ChooseLevelPost(int level) {
  if (ChooseLevel(settings.LevelPost, level, kLevelPostKey)) Recalculate();
}

void ChooseSpeed(int speed) {
  if (speed == settings.Speed) return;
  settings.Speed = speed;
  settings.DealsPerRun = kSpeedChoices[speed].deals;
  ports.display->ShowSettings();
  ports.settingsStore->Write(kSpeedKey, std::to_string(speed));
}

void SetWatchFoldDepth(bool watch) {
  seats.WatchFoldDepth = watch;
  ports.settingsStore->Write(kFoldLevelsKey, watch ? "Yes" : "No");
  ports.display->ShowSettings();
  SeatsChanged();
}

}  // namespace holdem
