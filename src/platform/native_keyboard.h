// The keyboard of the window system that the program is built for. Its back end, which the build
// chooses, defines these; the windows' keyboard calls them.
#pragma once

#include <cstdint>

namespace holdem {

// A key as the window system tells of it.
struct NativeKey {
  std::uint32_t scanCode = 0;
  std::uint32_t virtualKey = 0;
  std::uint32_t modifiers = 0;
};

// From now on a key that is held is not said to be released each time that it repeats, whatever
// else is said of it. False where only the window system itself tells repeats. `display` is the
// program's own connection to it; null where there is none.
bool TellWhatIsHeld(void* display);

// What a key that gives no Latin letter counts as, by its position on the keyboard: the digit on a
// key of the number row, the Latin letter, a capital, where no other key of its layout gives that.
// 0 for any other.
char LatinOfKey(const NativeKey& key, void* display);

}  // namespace holdem
