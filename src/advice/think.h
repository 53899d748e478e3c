// The advice meter's score: recorded here, painted from state by the main window.
#pragma once

namespace holdem {

// Shows the score on the meter; kNoScore shows the meter without a pointer.
void Think(double score);

}  // namespace holdem
