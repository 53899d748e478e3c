#include "native/user.h"

#include <windows.h>

#include <map>
#include <sstream>
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
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = share(at.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = share(at.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | what;
  return input;
}

INPUT Key(WORD code, DWORD how = 0) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
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
void DoubleClick(PixelPoint at) {
  Click(at);
  Click(at);
}
void RightClick(PixelPoint at) {
  Send({Mouse(at, MOUSEEVENTF_RIGHTDOWN), Mouse(at, MOUSEEVENTF_RIGHTUP)});
}
void Drag(PixelPoint from, PixelPoint to) {
  const PixelPoint halfway{(from.x + to.x) / 2, (from.y + to.y) / 2};
  Send({Mouse(from, MOUSEEVENTF_LEFTDOWN), Mouse(halfway), Mouse(to, MOUSEEVENTF_LEFTUP)});
}

void PressKey(const std::string& chord) {
  static const std::map<std::string, WORD> kCodes = {
      {"alt", VK_MENU}, {"F4", VK_F4}, {"Return", VK_RETURN}, {"Up", VK_UP}};
  std::vector<INPUT> downs, ups;
  std::istringstream names(chord);
  for (std::string name; std::getline(names, name, '+');) {
    downs.push_back(Key(kCodes.at(name)));
    ups.insert(ups.begin(), Key(kCodes.at(name), KEYEVENTF_KEYUP));
  }
  Send(downs);
  Send(ups);
}

void Activate(WindowHandle window) {
  if (IsIconic(Native(window))) Command(window, SC_RESTORE);
  Send({INPUT{}});  // nothing; but Windows lets only the maker of the last input do the next
  SetForegroundWindow(Native(window));
  BringWindowToTop(Native(window));
}
void Minimise(WindowHandle window) { Command(window, SC_MINIMIZE); }
void Move(WindowHandle window, PixelPoint corner) {
  SetWindowPos(Native(window), nullptr, corner.x, corner.y, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
void Rename(WindowHandle window, const std::string& caption) {
  SendMessageA(Native(window), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(caption.c_str()));
}

}  // namespace holdem::user
