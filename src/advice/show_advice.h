// From an advice score to what the user sees: the advice in words and the meter, which the main
// window paints from state. The last action of the steps before and after the flop.
#pragma once

#include "state/seats.h"

namespace holdem {

// The zone of the advice that a score lies in, 0 for the weakest.
int ZoneOf(double score);

// Shows the score on the meter; kNoScore shows the meter without a pointer.
void Think(double score);

// Shows the text and the meter for a score; the street chooses the wording.
void ShowAdvice(double score, Street street);

}  // namespace holdem
