// Prints the engine's fingerprint, for tools/other_processors.
#include <cstdio>

#include "engine_fingerprint.h"
#include "platform/ports.h"
#include "still_display.h"

int main() {
  holdem::StillDisplay display;
  holdem::ports.display = &display;
  std::printf("%016llx\n", static_cast<unsigned long long>(holdem::bench::EngineFingerprint()));
}
