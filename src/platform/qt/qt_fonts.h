// The fonts of the program, each with its stand-in where the system does not have it.
#pragma once

#include <QFont>

#include "platform/canvas.h"

namespace holdem {

QFont QtFont(const Font& font);

}  // namespace holdem
