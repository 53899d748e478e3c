// Milliseconds since the program's start, never going back.
#pragma once

#include <cstdint>

namespace holdem {

class Clock {
 public:
  virtual ~Clock() = default;

  virtual std::int32_t Milliseconds() = 0;  // wraps around
};

}  // namespace holdem
