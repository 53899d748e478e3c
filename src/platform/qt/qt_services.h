// The settings store, the shell and the clock over Qt.
#pragma once

#include <QElapsedTimer>
#include <QSettings>
#include <memory>

#include "platform/clock.h"
#include "platform/settings_store.h"
#include "platform/shell.h"

namespace holdem {

class QtSettingsStore : public SettingsStore {
 public:
  QtSettingsStore();

  std::string Read(const std::string& key) override;
  void Write(const std::string& key, const std::string& text) override;

 private:
  std::unique_ptr<QSettings> settings_;  // null where they cannot be kept
};

class QtShell : public Shell {
 public:
  std::string ProgramFolder() override;
  bool Exists(const std::string& path) override;
  void Open(const std::string& path) override;
};

class QtClock : public Clock {
 public:
  QtClock() { timer_.start(); }

  std::int32_t Milliseconds() override { return static_cast<std::int32_t>(timer_.elapsed()); }

 private:
  QElapsedTimer timer_;
};

}  // namespace holdem
