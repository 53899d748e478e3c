// The desktop of Windows, for Auto Read. Made by main, used by the one user-interface thread.
#pragma once

#include "platform/desktop.h"

namespace holdem {

// Measures a window as its own program does: for a program that knows nothing of scaled screens,
// sizes and pixels are those of an unscaled screen. No call sends a message to another program, so
// a program that hangs holds nothing up.
class Win32Desktop : public Desktop {
 public:
  std::vector<WindowHandle> TopLevelWindows() override;
  std::string ClassName(WindowHandle window) override;
  std::string GetWindowCaption(WindowHandle window) override;
  std::uint32_t ProcessId(WindowHandle window) override;
  // A hidden or minimised window counts as gone.
  std::optional<PixelArea> OuterRectangle(WindowHandle window) override;
  std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> points,
                                      WindowHandle measuredBy) override;
  WindowHandle Parent(WindowHandle window) override;
  // A window that cannot be read, as on a locked screen, counts as gone.
  std::optional<std::vector<Capture>> Read(WindowHandle window,
                                           std::span<const PixelArea> areas) override;
  std::optional<std::vector<PixelArea>> Covers(WindowHandle window) override;
  std::vector<WindowHandle> MinimisedWindows() override;
  int CaptionBarHeight(WindowHandle window) override;
  PixelArea FreeArea(const PixelArea& screen) override;
};

}  // namespace holdem
