#include "advice/hole_table.h"

namespace holdem::modHole {

void LoadHoleTable() {}

}  // namespace holdem::modHole
