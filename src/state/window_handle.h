// Another program's window, as the window system names it.
#pragma once

#include <cstdint>

namespace holdem {

using WindowHandle = std::uintptr_t;  // 0 for none

}  // namespace holdem
