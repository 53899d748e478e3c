#include "engine/run_protocol.h"

#include "platform/clock.h"
#include "platform/ports.h"
#include "state/run.h"

namespace holdem {

void MarkTableChanged() {
  const std::int32_t now = ports.clock->Milliseconds();
  const auto following =
      static_cast<std::int32_t>(static_cast<std::uint32_t>(run.LastChangeTicks) + 1);
  run.LastChangeTicks = IsLater(now, following) ? now : following;
  run.RecalcNeeded = true;
  if (run.Calculating) run.AbortRequested = true;
}

}  // namespace holdem
