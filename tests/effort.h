// How hard the heavy tests work: under a sanitizer, which slows everything, a twentieth will do.
#pragma once

namespace holdem {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif

constexpr int Effort(int count) { return kSanitized ? count / 20 : count; }

}  // namespace holdem
