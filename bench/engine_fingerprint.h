// Shows that a change of speed, or another processor, has not changed what the engine works out.
#pragma once

#include <cstdint>

namespace holdem::bench {

// One number for all that the engine works out in a fixed set of positions: FNV-1a of it as text.
// Writes to all state. REQUIRES: ports.display is set.
std::uint64_t EngineFingerprint();

}  // namespace holdem::bench
