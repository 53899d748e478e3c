// The per-user settings store, section "Settings" of the application's store.
#pragma once

#include <string>

namespace holdem {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  virtual std::string Read(const std::string& key) = 0;  // empty when absent or unreadable
  virtual void Write(const std::string& key, const std::string& text) = 0;  // lost when unwritable
};

}  // namespace holdem
