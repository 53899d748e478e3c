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

// Asks the window system to report a key that is held as pressed again and again, with no release
// in between. False where it does not; there Qt can tell which presses and releases are repeats.
// `display` is the program's own connection to the window system; null where there is none.
bool TellWhatIsHeld(void* display);

// What a key that gives no Latin letter counts as, by its position on the keyboard. A key of the
// number row counts as its digit. A key where keyboards for English have a letter counts as that
// letter, a capital, unless another key of the user's own layout gives it. 0 for every other key.
char LatinOfKey(const NativeKey& key, void* display);

}  // namespace holdem
