// Other programs' windows on an X display, over a connection of its own; main makes it and sets
// ports.desktop to it. Each call sends its requests together and waits once for their replies; it
// asks the display anew every time, so nothing it says can be out of date.
#pragma once

#include <xcb/xcb.h>

#include <initializer_list>

#include "platform/desktop.h"
#include "platform/x11/xcb_reply.h"

namespace holdem {

// A handle is that of an application's own window, not of the frame that a window manager puts
// around it; a window that no window manager looks after (a menu, a tooltip) stands for itself.
// Windows that are not shown have no rectangle and no pixels, as if they were gone; pixels of the
// frame are not read. Without a display, and once the connection is lost, there are no windows.
class X11Desktop : public Desktop {
 public:
  explicit X11Desktop(const char* display = nullptr);  // nullptr: the one that $DISPLAY names
  ~X11Desktop() override;
  X11Desktop(const X11Desktop&) = delete;
  X11Desktop& operator=(const X11Desktop&) = delete;

  std::vector<WindowHandle> TopLevelWindows() override;
  std::string ClassName(WindowHandle window) override;  // the class part of WM_CLASS
  std::string GetWindowCaption(WindowHandle window) override;
  std::uint32_t ProcessId(WindowHandle window) override;
  std::optional<PixelArea> OuterRectangle(WindowHandle window) override;
  std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> points,
                                      WindowHandle measuredBy) override;
  // Only top-level windows have handles; and what covers a table shows in its pixels, so that it
  // must not count as the table, whoever owns it.
  WindowHandle Parent(WindowHandle) override { return 0; }
  std::optional<std::vector<Capture>> Read(WindowHandle window,
                                           std::span<const PixelArea> areas) override;
  std::optional<std::vector<PixelArea>> Covers(WindowHandle window) override;
  // As window managers that list their windows tell.
  std::vector<WindowHandle> MinimisedWindows() override;
  int CaptionBarHeight(WindowHandle window) override;
  // By the struts that panels set. The work area that window managers tell of is one for all
  // monitors, so it counts only where there is one.
  PixelArea FreeArea(const PixelArea& screen) override;

  // The cost so far.
  std::int64_t roundTrips = 0;
  std::int64_t bytesCaptured = 0;  // of pixels

 private:
  // A window as it stood when it was asked.
  struct View {
    bool shown = false;    // with all windows it lies in; false when it is gone
    bool managed = false;  // carries WM_STATE: the application's own window, in a frame or not
    xcb_window_t parent = 0;
    std::vector<xcb_window_t> children;  // from bottom to top
    PixelArea outer;                     // border included, on its parent
  };
  // A shown window on the screen.
  struct Measured {
    PixelArea outer;  // with the frame that is to be seen
    PixelArea inner;  // without its border
    xcb_window_t parent = 0;

    bool operator==(const Measured&) const = default;
  };
  // Waits for a reply; nullptr when the request failed.
  template <typename Reply, typename Cookie>
  Owned<Reply> Await(Reply* (*wait)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                     Cookie cookie) {
    return Owned<Reply>(wait(connection_, cookie, nullptr));
  }
  void CountRoundTrip();

  std::vector<View> Ask(std::span<const xcb_window_t> windows);
  std::vector<Owned<xcb_get_property_reply_t>> Properties(WindowHandle window,
                                                          std::initializer_list<xcb_atom_t> atoms);
  // By frame: the shown application window in it, else itself; 0 when it is not shown.
  std::vector<xcb_window_t> ClientsIn(std::span<const xcb_window_t> frames);
  // The outermost window around one that lies in `parent`.
  std::optional<PixelArea> FrameAround(xcb_window_t parent);
  std::optional<Measured> Measure(WindowHandle handle);
  // Those that take pixels from this one: its siblings above, and those of the windows that it lies
  // in, up to the one that is kept apart. Nothing when it is gone.
  std::optional<std::vector<xcb_window_t>> WindowsOver(xcb_window_t window, xcb_window_t parent);
  // Whether the window's pixels are kept apart, as a compositor has them: whether they can be
  // named.
  bool IsKeptApart(xcb_void_cookie_t naming);
  // The parts of the screen that they draw on.
  std::vector<PixelArea> Drawn(std::span<const xcb_window_t> windows);
  struct Image {
    PixelArea area;                   // from the outer top-left corner
    xcb_get_image_cookie_t cookie{};  // none when the area is empty
  };
  std::optional<std::vector<Capture>> Collect(std::span<const PixelArea> areas,
                                              std::span<const Image> images);
  // The image lies in `area` of the capture. False when it cannot be read, or is too small for
  // that.
  bool Decode(const xcb_get_image_reply_t& image, const PixelArea& area, Capture& capture);

  xcb_connection_t* connection_;
  xcb_window_t root_ = 0;
  PixelArea screen_;  // as of the last Ask or Measure
  xcb_atom_t wmState_ = 0;
  xcb_atom_t netWmName_ = 0;
  xcb_atom_t netWmPid_ = 0;
  xcb_atom_t netFrameExtents_ = 0;
  xcb_atom_t netClientList_ = 0;
  xcb_atom_t netWmState_ = 0;
  xcb_atom_t netWmStateHidden_ = 0;
  xcb_atom_t netWorkArea_ = 0;
  xcb_atom_t netWmStrut_ = 0;
  xcb_atom_t netWmStrutPartial_ = 0;
  bool hasShapes_ = false;
  std::uint32_t pixelsName_ = 0;  // for a moment; 0 where no window is ever kept apart
};

}  // namespace holdem
