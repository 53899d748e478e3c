// The door by which libFuzzer comes to the session.
#include "fuzz/session.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  holdem::fuzz::Session(size % 4 != 0, {data, size}).Play();
  return 0;
}
