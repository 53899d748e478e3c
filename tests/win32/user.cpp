#include "native/user.h"

#include <windows.h>

#include <vector>

namespace holdem::user {
namespace {

HWND Native(WindowHandle window) { return reinterpret_cast<HWND>(window); }

void Send(std::vector<INPUT> inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// Where it happens comes with what happens: a place set before may have changed until then.
INPUT Mouse(PixelPoint at, DWORD what = 0) {
  const auto share = [](int pixels, int of) { return (pixels * 0x10000 + of - 1) / of; };
  INPUT input{.type = INPUT_MOUSE};
  input.mi.dx = share(at.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = share(at.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | what;
  return input;
}

INPUT Key(WORD code, DWORD how = 0) {
  INPUT input{.type = INPUT_KEYBOARD};
  input.ki.wVk = code;
  input.ki.dwFlags = how;
  return input;
}

// By its menu: the windows that it owns then go and come with it.
void Command(WindowHandle window, WPARAM what) {
  PostMessageA(Native(window), WM_SYSCOMMAND, what, 0);
}

}  // namespace

void Click(PixelPoint at) {
  Send({Mouse(at, MOUSEEVENTF_LEFTDOWN), Mouse(at, MOUSEEVENTF_LEFTUP)});
}
void Drag(PixelPoint from, PixelPoint to) {
  const PixelPoint halfway{(from.x + to.x) / 2, (from.y + to.y) / 2};
  Send({Mouse(from, MOUSEEVENTF_LEFTDOWN), Mouse(halfway), Mouse(to, MOUSEEVENTF_LEFTUP)});
}
void PressAltF4() {
  Send({Key(VK_MENU), Key(VK_F4), Key(VK_F4, KEYEVENTF_KEYUP), Key(VK_MENU, KEYEVENTF_KEYUP)});
}

void Activate(WindowHandle window) {
  if (IsIconic(Native(window))) Command(window, SC_RESTORE);
  Send({INPUT{}});  // nothing; but Windows lets only the maker of the last input do the next
  SetForegroundWindow(Native(window));
  BringWindowToTop(Native(window));
}
void Minimise(WindowHandle window) { Command(window, SC_MINIMIZE); }

}  // namespace holdem::user
