// The advice meter: the score between red and blue, drawn from state.
#pragma once

#include "platform/canvas.h"

namespace holdem {

void DrawAdviceMeter(Canvas& surface);

}  // namespace holdem
