// Opening the help files, which lie beside the program.
#pragma once

#include <string>

namespace holdem {

inline constexpr const char* kInstructions = "instruct.html";
inline constexpr const char* kReadMe = "readme.txt";

// Opens a file of the program's own folder, or says that it is missing.
void OpenHelpFile(const std::string& name);

}  // namespace holdem
