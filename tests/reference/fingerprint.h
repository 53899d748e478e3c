// One number for all that the engine works out in a fixed set of positions, so that a change of
// behaviour cannot hide in a change of speed.
#pragma once

#include <cstdint>

namespace holdem {

// From any state, which it overwrites. REQUIRES: ports.display is set.
std::uint64_t EngineFingerprint();

}  // namespace holdem
