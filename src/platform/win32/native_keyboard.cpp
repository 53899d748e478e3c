#include "platform/native_keyboard.h"

#include <windows.h>

#include <cctype>

namespace holdem {

bool TellWhatIsHeld(void*) { return false; }  // Windows says itself what is a repeat

// Windows itself numbers letters and digits by what stands on keyboards for English.
char LatinOfKey(const NativeKey& key, void*) {
  const auto sign = static_cast<unsigned char>(key.virtualKey < 0x80 ? key.virtualKey : 0);
  const bool letter =
      std::isupper(sign) && VkKeyScanW(static_cast<WCHAR>(std::tolower(sign))) == -1;
  return letter || std::isdigit(sign) ? static_cast<char>(sign) : '\0';
}

}  // namespace holdem
