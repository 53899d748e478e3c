// Covers on the tests' made-up desktop.
#pragma once

#include "cover_client/random_covers.h"
#include "fakes/fake_desktop.h"

namespace holdem::cover_client {

// Shows covers over the desktop's lowest window, a table. The desktop must outlive it.
inline std::function<void(const Covers&)> Over(FakeDesktop& desktop) {
  return [&desktop](const Covers& covers) {
    std::vector<FakeWindow>& windows = desktop.windows;
    windows.erase(windows.begin(), windows.end() - 1);
    const WindowHandle table = windows[0].handle;
    for (const Cover& cover : covers) {
      windows.insert(windows.begin(),
                     {.handle = table + windows.size(),
                      .outer = cover.area,
                      .parent = cover.owned ? table : 0,
                      .takesMouse = cover.takesMouse,
                      .painted = [color = cover.color](int, int) { return color; }});
    }
  };
}

}  // namespace holdem::cover_client
