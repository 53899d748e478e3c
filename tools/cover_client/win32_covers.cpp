#include <windows.h>

#include "cover_windows.h"

namespace holdem::cover_client {
namespace {

class Win32Covers : public CoverWindows {
 public:
  Win32Covers() {
    WNDCLASSA wanted{};
    wanted.lpfnWndProc = OnMessage;
    wanted.lpszClassName = kClass;
    RegisterClassA(&wanted);
  }
  ~Win32Covers() override { Close(); }

  void Show(const Covers& covers, WindowHandle table) override {
    Close();
    for (const Cover& cover : covers) windows_.push_back(Open(cover, table));
    Pump();
    // Reading the screen waits until they have reached it.
    const HDC screen = GetDC(nullptr);
    GetPixel(screen, 0, 0);
    ReleaseDC(nullptr, screen);
  }

 private:
  static constexpr const char* kClass = "Cover";

  static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wide, LPARAM lengthy) {
    if (message != WM_ERASEBKGND) return DefWindowProcA(window, message, wide, lengthy);
    const auto color = static_cast<COLORREF>(GetWindowLongPtrA(window, GWLP_USERDATA));
    const HBRUSH brush = CreateSolidBrush(color);
    RECT inside;
    GetClientRect(window, &inside);
    FillRect(reinterpret_cast<HDC>(wide), &inside, brush);
    DeleteObject(brush);
    return 1;
  }

  static HWND Open(const Cover& cover, WindowHandle table) {
    const DWORD style = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE |
                        (cover.takesMouse ? 0 : WS_EX_LAYERED | WS_EX_TRANSPARENT);
    const HWND owner = cover.owned ? reinterpret_cast<HWND>(table) : nullptr;
    const HWND window =
        CreateWindowExA(style, kClass, "", WS_POPUP, cover.area.left, cover.area.top,
                        cover.area.Width(), cover.area.Height(), owner, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(window, GWLP_USERDATA, static_cast<LONG_PTR>(cover.color));
    if (!cover.takesMouse) SetLayeredWindowAttributes(window, 0, 255, LWA_ALPHA);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    UpdateWindow(window);
    GdiFlush();
    return window;
  }

  void Close() {
    for (const HWND window : windows_) DestroyWindow(window);
    windows_.clear();
    Pump();
  }

  static void Pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
  }

  std::vector<HWND> windows_;
};

}  // namespace

std::unique_ptr<CoverWindows> MakeCoverWindows() { return std::make_unique<Win32Covers>(); }

}  // namespace holdem::cover_client
