#include "table/blink.h"

#include "platform/display.h"
#include "platform/ports.h"
#include "state/results.h"
#include "table/card_slots.h"

namespace holdem {
namespace {

void BlinkAdvice(bool flashing) {
  if (results.lblAdvice.empty()) return;
  const bool steady = !flashing || results.lblAdvice == kThinking;
  results.lblAdviceLit = steady || !results.lblAdviceLit;
  ports.display->ShowResults();
}

}  // namespace

void Blink(bool flashing) {
  BlinkAdvice(flashing);
  BlinkMarker(flashing);
}

}  // namespace holdem
