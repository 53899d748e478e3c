// From an advice score to what the user sees: the advice in words and the meter. The last action of
// the steps before and after the flop.
#pragma once

#include "state/seats.h"

namespace holdem {

// The zone of the advice that a score lies in, 0 for the weakest.
int ZoneOf(double score);

// The advice in words. The small blind's text applies when both blinds are set.
const char* AdviceText(double score, Street street, bool isSmallBlind, bool isBigBlind);

// Shows the text and the meter for a score; the street chooses the wording.
void ShowAdvice(double score, Street street);

}  // namespace holdem
