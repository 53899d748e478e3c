#include "painting/advice_meter.h"

namespace holdem {

void DrawAdviceMeter(Canvas& surface) { surface.Clear(); }

}  // namespace holdem
