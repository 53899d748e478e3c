#include "platform/win32/win32_desktop.h"

#include <windows.h>

#include <algorithm>

namespace holdem {
namespace {

HWND Native(WindowHandle window) { return reinterpret_cast<HWND>(window); }
WindowHandle Handle(HWND window) { return reinterpret_cast<WindowHandle>(window); }

// A function that older versions of Windows lack; null there.
template <typename Function>
Function* Find(const char* name, const char* library = "user32.dll") {
  const auto found = GetProcAddress(LoadLibraryA(library), name);
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

// While an object of this class lives, the thread counts pixels as the window's program does; when
// made without a window, in the screen's own. Windows can do this from version 10 (1607) on; in
// older ones all programs count alike.
class MeasuredBy {
 public:
  explicit MeasuredBy(WindowHandle window) {
    if (!set_ || !of_) return;
    context_ = of_(Native(window));
    if (!context_) context_ = kUnaware;
    before_ = set_(context_);
  }
  MeasuredBy() {
    if (set_) before_ = set_(kOfTheScreen);
  }
  ~MeasuredBy() {
    if (before_) set_(before_);
  }
  // Whether the size of the window's frame follows the scale of its monitor, not that of the
  // system.
  bool IsByMonitor() const { return areEqual_ && areEqual_(context_, kByMonitor); }
  MeasuredBy(const MeasuredBy&) = delete;
  MeasuredBy& operator=(const MeasuredBy&) = delete;

 private:
  using Context = HANDLE;  // DPI_AWARENESS_CONTEXT, which older headers lack

  static inline const Context kUnaware = reinterpret_cast<Context>(-1);
  static inline const Context kOfTheScreen = reinterpret_cast<Context>(-3);
  static inline const Context kByMonitor = reinterpret_cast<Context>(-4);  // frames too
  static inline auto* const set_ = Find<Context WINAPI(Context)>("SetThreadDpiAwarenessContext");
  static inline auto* const of_ = Find<Context WINAPI(HWND)>("GetWindowDpiAwarenessContext");

  static inline auto* const areEqual_ =
      Find<BOOL WINAPI(Context, Context)>("AreDpiAwarenessContextsEqual");

  Context context_ = nullptr;
  Context before_ = nullptr;
};

// A copy of this part of a window, frame included; without pixels when that failed. REQUIRES a part
// that is not empty.
Capture Copied(HWND window, const PixelArea& part) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = part.Width();
  info.bmiHeader.biHeight = -part.Height();  // the top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  const HDC source = GetWindowDC(window);
  const HDC target = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap = CreateDIBSection(target, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = bitmap ? SelectObject(target, bitmap) : nullptr;
  Capture copy{.area = part};
  if (source && before &&
      BitBlt(target, 0, 0, part.Width(), part.Height(), source, part.left, part.top, SRCCOPY) &&
      GdiFlush()) {  // the pixels are there only then
    copy.pixels.resize(part.PixelCount());
    const auto turned = [](std::uint32_t pixel) {  // 0x00RRGGBB
      return (pixel & 0xFF) << 16 | (pixel & 0xFF00) | (pixel >> 16 & 0xFF);
    };
    std::transform(static_cast<const std::uint32_t*>(bits),
                   static_cast<const std::uint32_t*>(bits) + part.PixelCount(), copy.pixels.begin(),
                   turned);
  }
  if (before) SelectObject(target, before);
  if (bitmap) DeleteObject(bitmap);
  if (target) DeleteDC(target);
  if (source) ReleaseDC(window, source);
  return copy;
}

// Whether Windows keeps a picture of each window. Wine says that it does too, but draws all windows
// on one screen.
bool AreWindowsComposed() {
  static auto* const ask = Find<HRESULT WINAPI(BOOL*)>("DwmIsCompositionEnabled", "dwmapi.dll");
  static const bool isWine = Find<const char * CDECL()>("wine_get_version", "ntdll.dll") != nullptr;
  BOOL composed = FALSE;
  return !isWine && ask && SUCCEEDED(ask(&composed)) && composed;
}

PixelArea AreaOf(const RECT& area) { return {area.left, area.top, area.right, area.bottom}; }

// In the pixels that the thread counts in; empty when the window is gone.
PixelArea RectangleOf(HWND window) {
  RECT at{};
  GetWindowRect(window, &at);
  return AreaOf(at);
}

// The parts of the screen that the window covers. Where the thread counts in larger pixels than the
// screen's, every part grows by one, so that rounding leaves nothing out.
std::vector<PixelArea> PartsOf(HWND window) {
  const PixelArea whole = RectangleOf(window);
  std::vector<PixelArea> parts = {whole};
  const HRGN shape = CreateRectRgn(0, 0, 0, 0);
  const DWORD size = GetWindowRgn(window, shape) == ERROR ? 0 : GetRegionData(shape, 0, nullptr);
  if (size > 0) {
    std::vector<std::byte> bytes(size);
    auto* const data = reinterpret_cast<RGNDATA*>(bytes.data());
    GetRegionData(shape, size, data);
    const auto* const rectangles = reinterpret_cast<const RECT*>(data->Buffer);
    parts.clear();
    for (const RECT& part : std::span(rectangles, data->rdh.nCount)) {
      parts.push_back(AreaOf(part).Moved(whole.Corner()));
    }
  }
  DeleteObject(shape);
  const MeasuredBy screen;
  if (RectangleOf(window) == whole) return parts;
  for (auto& [left, top, right, bottom] : parts) --left, --top, ++right, ++bottom;
  return parts;
}

// A transparent window counts too, since Wine draws it all the same.
bool IsDrawn(HWND window) { return IsWindowVisible(window) && !IsIconic(window); }

BOOL CALLBACK ListWindow(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<WindowHandle>*>(list)->push_back(Handle(window));
  return TRUE;
}

// The part of a window that lies on the screen, from its outer top-left corner.
PixelArea Readable(const PixelArea& outer) {
  // Of all monitors together.
  const int left = GetSystemMetrics(SM_XVIRTUALSCREEN);
  const int top = GetSystemMetrics(SM_YVIRTUALSCREEN);
  return outer
      .Intersected({left, top, left + GetSystemMetrics(SM_CXVIRTUALSCREEN),
                    top + GetSystemMetrics(SM_CYVIRTUALSCREEN)})
      .Moved({-outer.left, -outer.top});
}

}  // namespace

std::vector<WindowHandle> Win32Desktop::TopLevelWindows() {
  std::vector<WindowHandle> windows;
  EnumWindows(ListWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<WindowHandle> Win32Desktop::MinimisedWindows() {
  std::vector<WindowHandle> windows = TopLevelWindows();
  std::erase_if(windows, [](WindowHandle window) {
    return !IsWindowVisible(Native(window)) || !IsIconic(Native(window));
  });
  return windows;
}

std::string Win32Desktop::ClassName(WindowHandle window) {
  char text[260];
  const int length = GetClassNameA(Native(window), text, sizeof text);
  return {text, static_cast<std::size_t>(std::max(length, 0))};
}

// The caption of another process's window is kept by the window system, which gives it without
// asking the window: WM_GETTEXT is sent only within a process. So a hung program does no harm.
std::string Win32Desktop::GetWindowCaption(WindowHandle window) {
  char text[260];
  const int length = GetWindowTextA(Native(window), text, sizeof text);
  if (!IsWindow(Native(window))) return {};  // Wine has given rubbish then
  return {text, static_cast<std::size_t>(std::max(length, 0))};
}

std::uint32_t Win32Desktop::ProcessId(WindowHandle window) {
  DWORD process = 0;
  GetWindowThreadProcessId(Native(window), &process);
  return process;
}

std::optional<PixelArea> Win32Desktop::OuterRectangle(WindowHandle window) {
  const MeasuredBy measured(window);
  if (!IsWindowVisible(Native(window)) || IsIconic(Native(window))) return std::nullopt;
  const PixelArea outer = RectangleOf(Native(window));
  return outer == PixelArea{} ? std::nullopt : std::optional(outer);
}

std::vector<WindowHandle> Win32Desktop::WindowsAt(std::span<const PixelPoint> points,
                                                  WindowHandle measuredBy) {
  const MeasuredBy measured(measuredBy);
  std::vector<WindowHandle> windows;
  for (const PixelPoint& point : points) {
    windows.push_back(Handle(WindowFromPoint({point.x, point.y})));
  }
  return windows;
}

WindowHandle Win32Desktop::Parent(WindowHandle window) {
  const HWND parent = GetAncestor(Native(window), GA_PARENT);
  return Handle(parent == GetDesktopWindow() ? GetWindow(Native(window), GW_OWNER) : parent);
}

std::optional<std::vector<Capture>> Win32Desktop::Read(WindowHandle window,
                                                       std::span<const PixelArea> areas) {
  const MeasuredBy measured(window);
  const std::optional<PixelArea> outer = OuterRectangle(window);
  if (!outer) return std::nullopt;
  const PixelArea readable = Readable(*outer);

  // One copy of all that is asked for, so that the areas show the same moment.
  PixelArea asked;
  for (const PixelArea& area : areas) {
    const PixelArea part = area.Intersected(readable);
    if (part.IsEmpty()) continue;
    if (asked.IsEmpty()) asked = part;
    asked = {std::min(asked.left, part.left), std::min(asked.top, part.top),
             std::max(asked.right, part.right), std::max(asked.bottom, part.bottom)};
  }
  Capture copy;
  if (!asked.IsEmpty()) {
    copy = Copied(Native(window), asked);
    // The copy of a window that has just died may show anything.
    if (copy.pixels.empty() || !OuterRectangle(window)) return std::nullopt;
  }

  std::vector<Capture> captures;
  for (const PixelArea& area : areas) {
    Capture capture{.area = area};
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) capture.pixels.push_back(copy.At(x, y));
    }
    captures.push_back(std::move(capture));
  }
  return captures;
}

std::optional<std::vector<PixelArea>> Win32Desktop::Covers(WindowHandle window) {
  const MeasuredBy measured(window);
  const std::optional<PixelArea> outer = OuterRectangle(window);
  std::vector<PixelArea> covers;
  if (!outer) return std::nullopt;
  if (AreWindowsComposed()) return covers;
  for (const WindowHandle above : TopLevelWindows()) {
    if (above == window) return covers;
    if (!IsDrawn(Native(above))) continue;
    for (const PixelArea& part : PartsOf(Native(above))) {
      covers.push_back(part.Moved({-outer->left, -outer->top}));
    }
  }
  return std::nullopt;  // it has just gone
}

int Win32Desktop::CaptionBarHeight(WindowHandle window) {
  static auto* const dpiOf = Find<UINT WINAPI(HWND)>("GetDpiForWindow");
  static auto* const metricAt = Find<int WINAPI(int, UINT)>("GetSystemMetricsForDpi");
  const MeasuredBy measured(window);
  if (!measured.IsByMonitor() || !dpiOf || !metricAt) return GetSystemMetrics(SM_CYCAPTION);
  return metricAt(SM_CYCAPTION, dpiOf(Native(window)));
}

PixelArea Win32Desktop::FreeArea(const PixelArea& screen) {
  const RECT rectangle{screen.left, screen.top, screen.right, screen.bottom};
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  if (!GetMonitorInfoW(MonitorFromRect(&rectangle, MONITOR_DEFAULTTOPRIMARY), &monitor)) {
    return screen;
  }
  const auto& [left, top, right, bottom] = monitor.rcWork;
  return PixelArea{left, top, right, bottom}.Intersected(screen);
}

}  // namespace holdem
