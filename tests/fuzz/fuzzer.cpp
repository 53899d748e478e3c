// The door by which libFuzzer comes to one target.
#include <cstdio>
#include <cstdlib>

#include "fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    holdem::fuzz::TARGET({data, size});
  } catch (const holdem::fuzz::Broken& broken) {
    std::fprintf(stderr, "%s\n", broken.what());
    std::abort();
  }
  return 0;
}
