// The run protocol: how a change made while figures are being worked out stops the work and starts
// it anew. Ticks are milliseconds since the program's start; they may wrap and are compared by
// difference.
// Written by: engine/ ui/program
#pragma once

#include <cstdint>

namespace holdem {

constexpr bool IsLater(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b)) >
         0;
}

struct Run {
  bool RecalcNeeded = true;     // something changed since the last pass
  bool Calculating = false;     // a pass is running
  bool AbortRequested = false;  // the running simulation is to stop early
  bool Ending = false;          // the program is ending: nothing is written any more
  std::int32_t LastChangeTicks = 0;
  std::int32_t LastCalcTicks = 0;  // LastChangeTicks as the last pass found it at its start

  // No pass is running or due: the figures are those of the table.
  bool Settled() const { return !Calculating && !IsLater(LastChangeTicks, LastCalcTicks); }
};

inline Run run;

}  // namespace holdem
