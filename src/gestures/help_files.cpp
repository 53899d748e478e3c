#include "gestures/help_files.h"

#include <filesystem>

#include "platform/display.h"
#include "platform/ports.h"
#include "platform/shell.h"

namespace holdem {

void OpenHelpFile(const std::string& name) {
  constexpr auto kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);
  std::string path = ports.shell->ProgramFolder();
  if (!path.ends_with(kSeparator)) path += kSeparator;
  path += name;
  if (ports.shell->Exists(path)) return ports.shell->Open(path);
  ports.display->ShowMessage("Error opening file \"" + path + "\"");
}

}  // namespace holdem
