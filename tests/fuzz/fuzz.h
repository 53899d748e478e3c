// What the world may throw at the program: each target takes any bytes, makes something of them and
// throws when a promise is broken. The fuzzing binaries search for such bytes; the core's tests run
// each target for a moment on bytes by chance.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace holdem::fuzz {

using Bytes = std::span<const std::uint8_t>;

// Each returns how much it has tried, for the tests to see that something was.
int FuzzSettings(Bytes bytes);     // stored settings
int FuzzProgram(Bytes bytes);  // everything that users, timers and other programs do, in any order

// Choices taken from bytes, one after the other; all 0 once they are used up.
class Script {
 public:
  explicit Script(Bytes bytes) : left_(bytes) {}

  bool Ended() const { return left_.empty(); }
  std::uint8_t Byte() {
    if (Ended()) return 0;
    const std::uint8_t byte = left_.front();
    left_ = left_.subspan(1);
    return byte;
  }
  int Any(int n) { return Byte() % n; }  // 0..n-1, n up to 256
  bool Rarely(int n) { return Any(n) == n - 1; }
  int Word() { return Byte() << 8 | Byte(); }
  std::string Text(int longest) {
    std::string text;
    for (int i = Any(longest + 1); i > 0; --i) text += static_cast<char>(Byte());
    return text;
  }

 private:
  Bytes left_;
};

class Broken : public std::runtime_error {
  using runtime_error::runtime_error;
};

inline void Hold(bool promise, const std::string& what) {
  if (!promise) throw Broken(what);
}
#define HOLDS(promise) \
  ::holdem::fuzz::Hold(promise, __FILE__ ":" + std::to_string(__LINE__) + ": " #promise)

}  // namespace holdem::fuzz
