// The advice meter: a bar from red to blue, cut into the zones of the advice, with a pointer at the
// score. Drawn from state by the main window, at whatever size the surface has.
#pragma once

#include "platform/canvas.h"

namespace holdem {

// All but the pointer; the zones are labelled for the current street. REQUIRES a surface that is
// not empty.
void DrawMeterScale(Canvas& surface);

// At advice.MeterScore, over the scale.
void DrawMeterPointer(Canvas& surface);

}  // namespace holdem
