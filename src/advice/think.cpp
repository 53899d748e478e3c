#include "advice/think.h"

#include "platform/display.h"
#include "platform/ports.h"
#include "state/advice_values.h"

namespace holdem {

void Think(double score) {
  advice.MeterScore = score;
  ports.display->ShowMeter();
}

}  // namespace holdem
