// The desktop shell: looking for a file and opening it with the program that the system associates.
#pragma once

#include <string>

namespace holdem {

class Shell {
 public:
  virtual ~Shell() = default;

  virtual std::string ProgramFolder() = 0;           // absolute; of the resolved executable
  virtual bool Exists(const std::string& path) = 0;  // a folder counts too
  virtual void Open(const std::string& path) = 0;    // the outcome is not told
};

}  // namespace holdem
