#include <windows.h>

#include <array>
#include <stdexcept>

#include "table_window.h"

namespace holdem::table_client {
namespace {

constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

class Win32Window final : public TableWindow {
 public:
  Win32Window(int layout, const std::string& caption, std::optional<Point> position) {
    const std::string className = WindowClass(layout);
    window_ = className == "#32770" ? MakeDialog() : MakeFrame(className);
    if (window_ == nullptr) throw std::runtime_error("the window could not be made");
    SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetCaption(caption);
    const Size outer = OuterSize(layout, GetSystemMetrics(SM_CYCAPTION));
    const Point at = position.value_or(Point{40, 40});
    SetWindowPos(window_, nullptr, at.x, at.y, outer.width, outer.height, SWP_NOZORDER);
    ShowWindow(window_, SW_SHOWNORMAL);
  }
  ~Win32Window() override {
    SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
  }

  std::uintptr_t Id() const override { return reinterpret_cast<std::uintptr_t>(window_); }

  void SetCaption(const std::string& caption) override { SetWindowTextA(window_, caption.c_str()); }

  void Show(const Picture& picture) override {
    picture_ = picture;
    InvalidateRect(window_, nullptr, FALSE);
    UpdateWindow(window_);
    GdiFlush();
    Pump();
    // Reading the screen waits until the picture has reached it.
    const HDC screen = GetDC(nullptr);
    GetPixel(screen, 0, 0);
    ReleaseDC(nullptr, screen);
  }

  bool Pump() override {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
    return !closed_;
  }

 private:
  // A dialog without controls: its class is the system's own.
  static HWND MakeDialog() {
    struct {
      DLGTEMPLATE head{};
      std::array<WORD, 3> noMenuNoClassNoTitle{};
    } dialog;
    dialog.head.style = kStyle;
    return CreateDialogIndirectParamA(GetModuleHandleA(nullptr), &dialog.head, nullptr, OnDialog,
                                      0);
  }

  static HWND MakeFrame(const std::string& className) {
    WNDCLASSA wanted{};
    wanted.lpfnWndProc = OnFrame;
    wanted.hInstance = GetModuleHandleA(nullptr);
    wanted.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    wanted.lpszClassName = className.c_str();
    RegisterClassA(&wanted);
    return CreateWindowExA(0, className.c_str(), "", kStyle, 0, 0, 100, 100, nullptr, nullptr,
                           wanted.hInstance, nullptr);
  }

  static INT_PTR CALLBACK OnDialog(HWND window, UINT message, WPARAM, LPARAM) {
    return Handle(window, message) ? TRUE : FALSE;
  }
  static LRESULT CALLBACK OnFrame(HWND window, UINT message, WPARAM wide, LPARAM lengthy) {
    return Handle(window, message) ? 1 : DefWindowProcA(window, message, wide, lengthy);
  }

  // Whether the message needs nothing more. The answer is 1, which for the background says that it
  // has been drawn: the picture covers all of it.
  static bool Handle(HWND window, UINT message) {
    auto* const self = reinterpret_cast<Win32Window*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self == nullptr) return false;
    switch (message) {
      case WM_PAINT: self->Paint(); return true;
      case WM_ERASEBKGND: return true;
      case WM_CLOSE: self->closed_ = true; return true;
      default: return false;
    }
  }

  void Paint() const {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window_, &paint);
    RECT outer, client;
    POINT corner{0, 0};
    GetWindowRect(window_, &outer);
    GetClientRect(window_, &client);
    ClientToScreen(window_, &corner);
    const int below = kDrawnCaption - GetSystemMetrics(SM_CYCAPTION);
    const Picture part = Part(picture_, {corner.x - outer.left, corner.y - outer.top + below},
                              {client.right, client.bottom});
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = part.size.width;
    info.bmiHeader.biHeight = -part.size.height;  // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    SetDIBitsToDevice(
        dc, 0, 0, static_cast<DWORD>(part.size.width), static_cast<DWORD>(part.size.height), 0, 0,
        0, static_cast<UINT>(part.size.height), part.pixels.data(), &info, DIB_RGB_COLORS);
    EndPaint(window_, &paint);
  }

  HWND window_ = nullptr;
  Picture picture_;
  bool closed_ = false;
};

}  // namespace

std::unique_ptr<TableWindow> OpenTableWindow(const WindowWanted& wanted) {
  SetThreadDpiAwarenessContext(wanted.aware ? DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE
                                            : DPI_AWARENESS_CONTEXT_UNAWARE);
  return std::make_unique<Win32Window>(wanted.layout, wanted.caption, wanted.position);
}

}  // namespace holdem::table_client
