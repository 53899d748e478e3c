// Real windows for the tests of the desktop: windows of a class of the test's own,
// each of whose pixels, frame included, has a colour that tells where it lies.
#pragma once

#include <windows.h>
#undef Yield  // an empty macro, but a name of ours

#include <string>
#include <vector>

#include "platform/desktop.h"

namespace holdem {

inline constexpr const char* kAfx = "Afx:400000:8";

// 0x00BBGGRR, by the place in the window.
inline PixelColor PatternAt(int x, int y) {
  const int high = (x >> 8) << 4 | (y >> 8);
  return static_cast<PixelColor>((x & 0xFF) | (y & 0xFF) << 8 | high << 16);
}

inline HWND Native(WindowHandle window) { return reinterpret_cast<HWND>(window); }

inline void DrawPattern(HWND window) {
  RECT outer;
  GetWindowRect(window, &outer);
  const int width = outer.right - outer.left;
  const int height = outer.bottom - outer.top;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  std::vector<PixelColor> pixels;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const PixelColor color = PatternAt(x, y);
      pixels.push_back(RGB(GetBValue(color), GetGValue(color), GetRValue(color)));
    }
  }
  const HDC context = GetWindowDC(window);
  SetDIBitsToDevice(context, 0, 0, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                    static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
  ReleaseDC(window, context);
}

inline LRESULT CALLBACK PatternProcedure(HWND window, UINT message, WPARAM word, LPARAM longWord) {
  switch (message) {
    case WM_ERASEBKGND: return 1;
    case WM_NCACTIVATE: return TRUE;
    case WM_PAINT: ValidateRect(window, nullptr); [[fallthrough]];
    case WM_NCPAINT: DrawPattern(window); return 0;
    default: return DefWindowProcA(window, message, word, longWord);
  }
}

// Lets the windows of this thread paint themselves.
inline void Pump() {
  for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageA(&message);
  GdiFlush();
}

class ShownWindow {
 public:
  ShownWindow(const std::string& className, PixelArea outer, const std::string& caption = "",
              HWND owner = nullptr) {
    WNDCLASSA type{};
    type.lpfnWndProc = PatternProcedure;
    type.lpszClassName = className.c_str();
    RegisterClassA(&type);  // fails when it is there already
    window_ = CreateWindowA(className.c_str(), "", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, owner,
                            nullptr, nullptr, nullptr);
    SetWindowTextA(window_, caption.c_str());
    SetWindowPos(window_, HWND_TOP, outer.left, outer.top, outer.Width(), outer.Height(),
                 SWP_SHOWWINDOW);
    Pump();
  }
  ~ShownWindow() { DestroyWindow(window_); }

  HWND get() const { return window_; }
  WindowHandle handle() const { return reinterpret_cast<WindowHandle>(window_); }

 private:
  HWND window_;
};

}  // namespace holdem
