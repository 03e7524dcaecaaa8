// The window front-end: the form as a real window on the person's display,
// drawn by the raster surface and fed by the keyboard, through SDL.
//
// Implemented:
//  [X] the form as a window: what it shows is the form as the PNG of the
//      raster surface composes it (same composition, same pixels): back
//      colour, toolbar, surface at its place, caret, message zone
//  [X] a frame only when something was drawn or a control moved, showed,
//      hid or resized; never in a loop; it composes and copies only the
//      rectangles drawn on and the caret's old and new places when nothing
//      else changed; an uncovered window is re-shown from the last frame
//      without drawing it again
//  [X] keys as the platform raises them, one keystroke a DoEvents: KeyDown
//      with the virtual key and Shift mask, then KeyPress with the character
//      the system's text input typed (any layout, dead keys, AltGr) in
//      Windows-1252, Ctrl+letter 1 to 26, Enter 13, Backspace 8, Tab 9,
//      Escape 27 (key_map.hpp)
//  [X] timers on the monotonic clock, fired inside DoEvents only, 16 ms
//      resolution; a waiting DoEvents sleeps until the next event or
//      deadline (event_loop.hpp)
//  [X] the system clipboard (text), the display's size as Screen, Caption
//      as the window's title, Width/Height resizing the window, the window
//      manager's resize, maximise, minimise and restore reaching the form
//      (its size, WindowState and resize handler)
//  [X] Left/Top place the window (and follow the person moving it); a
//      maximised form takes the work area the window manager leaves
//  [X] Fenetres.Active follows the keyboard focus: the form's hWnd while the
//      window has it, 0 while another window does
//  [X] closing the window sets Env.Abandon, which ends every wait
// Missing:
//  [ ] the caption bar and frame are the window manager's: Form's fixed
//      border room (kBorderX, kBorderY) is kept, whatever the real one is
//  [ ] one window at a time: other forms are not shown (a substitute
//      surface, KyFSubst, is a picture control of this form and shows on
//      its surface)
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "forms/canvas.hpp"
#include "forms/screen.hpp"
#include "headless/session.hpp"
#include "window/event_loop.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::window {

// Whether a window can be opened (a display is there); when not, `why` gets
// the reason in one line.
bool DisplayAvailable(std::string* why = nullptr);

class Window {
 public:
  // Opens a window, shown at once, with `title` as the caption of every
  // session's form (Titre and the host change it later). Errors:
  // PlatformError::Host("SDL", ...) when there is no display to open it on.
  explicit Window(const std::string& title = "Ferlan");
  ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  // A host session whose form this window shows from now on, with the
  // window's event loop, screen, clipboard and canvases: keys typed in the
  // window go to its form, and its key script ({"keys": ...}) follows them.
  // Pre: the session is used only while the window lives (a session that
  // merely ends after it does no harm, and the window runs on after it).
  std::unique_ptr<headless::Session> OpenSession();

  EventLoop& Loop();
  // The display's size in twips.
  forms::Screen Screen() const;
  // The part of the display the window manager leaves to windows (its
  // panels left out), in twips: a maximised form's size.
  forms::Screen WorkArea() const;
  // Brings the window up to date with the form (title, size, state) and
  // presents a frame when something changed since the last. DoEvents does
  // this itself; a host calls it after drawing outside a wait. Gives
  // whether a frame was presented.
  bool Present();
  bool Closed() const;

  // The system's handle of the window (an X11 Window), for tests that look
  // at it from outside.
  unsigned long NativeHandle() const;
  // Frames presented so far, and when the last one was; these two may be
  // read from another thread.
  std::uint64_t Frames() const;
  std::chrono::steady_clock::time_point LastFrameTime() const;
  // The processor time spent composing frames and copying them to the
  // window so far, for benchmarks.
  std::chrono::nanoseconds FrameProcessorTime() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace ferlan::window

FERLAN_PUBLIC_END
