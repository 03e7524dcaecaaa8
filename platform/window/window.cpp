#include "window/window.hpp"

#include <SDL.h>
#include <SDL_syswm.h>
#if FERLAN_WINDOW_XLIB && defined(SDL_VIDEO_DRIVER_X11)
#include <X11/Xatom.h>
#endif

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include "forms/control.hpp"
#include "forms/form.hpp"
#include "forms/picture_box.hpp"
#include "kit/kit.hpp"
#include "raster/form_picture.hpp"
#include "raster/picture_files.hpp"
#include "raster/pixel_words.hpp"
#include "raster/raster_canvas.hpp"
#include "window/system_clipboard.hpp"

namespace ferlan::window {

namespace {

constexpr Single kTwips = raster::kTwipsPerPixel;
constexpr Uint32 kButtonFace = 0x00F0F0F0;  // what shows beyond a smaller frame
// The rectangles a frame redraws at most; more are joined.
constexpr std::size_t kMostRects = 6;
// The largest side of the window and of its frame, in pixels: beyond any
// screen's, far below X's 32767, and a frame of 256 MB at most. A larger
// form shows its top left part.
constexpr int kLargestSide = 8192;

raster::PixelSize ShownSize(forms::Form& f) {
  const raster::PixelSize size = raster::FormPixelSize(f);
  return {std::min(size.width, kLargestSide), std::min(size.height, kLargestSide)};
}

// What a control shows of itself; a frame is due when it changes.
struct Look {
  std::uint64_t drawn = 0;  // changes of its canvas
  Single left = 0, top = 0, width = 0, height = 0, scale_width = 0, scale_height = 0;
  Boolean visible = false;
  Long back = 0;
  const Picture* picture = nullptr;
  friend bool operator==(const Look&, const Look&) = default;
};

struct Scene {
  Single scale_width = 0, scale_height = 0;
  const void* surface = nullptr;
  Look surface_look, toolbar, zone, caret;
  std::vector<Look> children;  // the host's picture controls on the surface
  friend bool operator==(const Scene&, const Scene&) = default;

  // Whether the two differ only by what was drawn on the canvases and by
  // the caret: then a frame redraws only those rectangles.
  bool SameLayout(const Scene& other) const {
    Scene a = *this, b = other;
    for (Scene* s : {&a, &b}) {
      s->surface_look.drawn = s->zone.drawn = 0;
      s->caret = {};
      for (Look& child : s->children) child.drawn = 0;
    }
    return a == b;
  }
};

Look LookOf(Control* control) {
  Look look;
  if (control == nullptr) return look;
  look.left = control->Left();
  look.top = control->Top();
  look.width = control->Width();
  look.height = control->Height();
  look.visible = control->Visible();
  if (auto* box = dynamic_cast<PictureBox*>(control)) {
    look.scale_width = box->ScaleWidth();
    look.scale_height = box->ScaleHeight();
    look.back = box->BackColor();
    look.picture = box->Picture().get();
  }
  if (auto* own = dynamic_cast<forms::PictureBox*>(control)) {
    if (auto* canvas = dynamic_cast<const raster::RasterCanvas*>(&own->GetCanvas())) {
      look.drawn = canvas->Changes();
    }
  }
  return look;
}

// The form's member of that name, or null when it has none of that kind;
// the form keeps it.
template <typename T>
T* MemberOf(forms::Form& form, std::string_view name) {
  try {
    return dynamic_cast<T*>(form.Member(name).get());
  } catch (const PlatformError&) {
    return nullptr;
  }
}

// Adds the changes drawn on the control's canvas since the last frame to
// `damage`, where they show on the form.
void TakeDamage(PictureBox* box, std::vector<raster::PixelRect>& damage) {
  auto* own = dynamic_cast<forms::PictureBox*>(box);
  if (own == nullptr) return;
  auto* canvas = dynamic_cast<raster::RasterCanvas*>(&own->GetCanvas());
  if (canvas == nullptr) return;
  for (const raster::PixelRect& r : canvas->TakeDamage()) {
    raster::AddRect(damage, raster::CanvasDamageOnForm(*box, r), kMostRects);
  }
}

// Adds the processor time of this thread over its life to `total`.
class ThreadTimeMeter {
 public:
  explicit ThreadTimeMeter(std::atomic<std::int64_t>& total) : total_(total), start_(Now()) {}
  ~ThreadTimeMeter() { total_ += Now() - start_; }
  ThreadTimeMeter(const ThreadTimeMeter&) = delete;
  ThreadTimeMeter& operator=(const ThreadTimeMeter&) = delete;

 private:
  static std::int64_t Now() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<std::int64_t>(t.tv_sec) * 1'000'000'000 + t.tv_nsec;
  }
  std::atomic<std::int64_t>& total_;
  std::int64_t start_;
};

#if FERLAN_WINDOW_XLIB && defined(SDL_VIDEO_DRIVER_X11)
// Xlib's own handler ends the process on any protocol error, such as a
// request that races with a window already destroyed while it closes. That
// must not end a person's session: say it once on standard error and go on.
int ReportXError(Display* display, XErrorEvent* error) {
  static std::atomic<bool> said{false};
  if (!said.exchange(true)) {
    char text[256] = {};
    XGetErrorText(display, error->error_code, text, sizeof text);
    std::fprintf(stderr, "ferlan: X error ignored: %s (request %d)\n", text,
                 static_cast<int>(error->request_code));
  }
  return 0;
}

// SDL writes the title through Xlib's locale conversions, which in the C
// locale this process keeps turn WM_NAME's accents into pairs of Latin-1
// characters and leave _NET_WM_NAME as it was for a dash "—". Both are
// written again here: _NET_WM_NAME in UTF-8, WM_NAME in Latin-1 ("?" for
// what it lacks), as window managers read them.
void WriteX11Title(SDL_Window* window, const String& caption) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (SDL_GetWindowWMInfo(window, &info) != SDL_TRUE || info.subsystem != SDL_SYSWM_X11) return;
  Display* display = info.info.x11.display;
  const ::Window id = info.info.x11.window;
  const std::string utf8 = ToUtf8(caption);
  std::string latin1;
  for (const char16_t c : caption) latin1 += c < 0x100 ? static_cast<char>(c) : '?';
  const auto put = [&](Atom property, Atom type, const std::string& bytes) {
    XChangeProperty(display, id, property, type, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
  };
  put(XInternAtom(display, "_NET_WM_NAME", False), XInternAtom(display, "UTF8_STRING", False),
      utf8);
  put(XA_WM_NAME, XA_STRING, latin1);
  XFlush(display);
}

// Whether `event` tells that another client destroyed `window`: a person
// then has nothing left to type into nor to close.
bool DestroyedByX11(SDL_Window* window, const SDL_Event& event) {
  const SDL_SysWMmsg* msg = event.syswm.msg;
  if (msg == nullptr || msg->subsystem != SDL_SYSWM_X11) return false;
  const XEvent& x = msg->msg.x11.event;
  if (x.type != DestroyNotify) return false;
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  return SDL_GetWindowWMInfo(window, &info) == SDL_TRUE && info.subsystem == SDL_SYSWM_X11 &&
         x.xdestroywindow.window == info.info.x11.window;
}
#endif

// Starts SDL's video on a windowing system; gives why not when it can't.
// SDL falls back to drivers without windows (the console's KMS/DRM, an
// off-screen buffer) where no display is: those are no place for a form.
std::optional<std::string> StartVideo() {
  const char* x11 = std::getenv("DISPLAY");
  const char* wayland = std::getenv("WAYLAND_DISPLAY");
  if ((x11 == nullptr || *x11 == 0) && (wayland == nullptr || *wayland == 0)) {
    return std::string("neither DISPLAY nor WAYLAND_DISPLAY is set");
  }
  // Only the windowing system whose address is given: SDL would otherwise try
  // the others, whose libraries print errors of their own. A default only: a
  // host's hint or SDL_VIDEODRIVER still rules.
  if (wayland == nullptr || *wayland == 0) {
    SDL_SetHintWithPriority(SDL_HINT_VIDEODRIVER, "x11", SDL_HINT_DEFAULT);
  } else if (x11 == nullptr || *x11 == 0) {
    SDL_SetHintWithPriority(SDL_HINT_VIDEODRIVER, "wayland", SDL_HINT_DEFAULT);
  }
#if FERLAN_WINDOW_XLIB && defined(SDL_VIDEO_DRIVER_X11)
  // Before SDL starts, so that SDL's handler falls back on this one.
  XSetErrorHandler(&ReportXError);
#endif
  if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) return std::string(SDL_GetError());
  const std::string driver = SDL_GetCurrentVideoDriver() ? SDL_GetCurrentVideoDriver() : "";
  if (driver == "x11" || driver == "wayland") return std::nullopt;
  SDL_QuitSubSystem(SDL_INIT_VIDEO);
  return "no windowing system; SDL offers only \"" + driver + "\"";
}

}  // namespace

bool DisplayAvailable(std::string* why) {
  if (auto error = StartVideo()) {
    if (why) *why = *error;
    return false;
  }
  SDL_QuitSubSystem(SDL_INIT_VIDEO);
  return true;
}

struct Window::Impl {
  SDL_Window* window = nullptr;
  EventLoop loop;
  std::weak_ptr<forms::Form> form;
  std::weak_ptr<kit::EnvState> env;
  // What the window shows now, so that the form's changes are told apart
  // from the window manager's.
  raster::PixelSize shown_size;
  Single shown_left = 0, shown_top = 0;
  Integer shown_state = 0;
  String shown_caption;
  // The title the window opened with: the caption of each session's form.
  String title;
  std::optional<Scene> scene;    // of the frame presented last
  raster::PixelRect caret_rect;  // where the caret shows in that frame
  bool expose = false;
  // The last frame, kept whole: a new one redraws only what changed.
  std::vector<std::uint32_t> frame;
  raster::PixelSize frame_size;
  // The window's pixels the last frame went to; another (the window was
  // resized) takes the whole frame.
  const SDL_Surface* shown_target = nullptr;
  raster::PixelSize shown_target_size;
  // Read by benchmarks from another thread.
  std::atomic<std::uint64_t> frames{0};
  std::atomic<std::chrono::steady_clock::time_point> last_frame{};
  std::atomic<std::int64_t> frame_cpu_ns{0};

  void OnWindowEvent(const SDL_Event& event);
  // What the form shows now, as the frame check compares it.
  Scene Current(forms::Form& form, kit::EnvState& env) const;
  void Sync(forms::Form& form);
  // Redraws the frame, only inside `damage` when given.
  void Compose(forms::Form& form, PictureBox* surface,
               const std::vector<raster::PixelRect>* damage);
  // Copies the frame to the window, only `damage` when given.
  void Show(const std::vector<raster::PixelRect>* damage);
};

Window::Window(const std::string& title) : impl_(std::make_unique<Impl>()) {
  // Frames go to the window as plain images (X11 shared memory), not
  // through an OpenGL texture: a software GL would cost threads and time.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  if (auto error = StartVideo()) throw PlatformError::Host("SDL", *error);
  impl_->window = SDL_CreateWindow(title.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                   640, 480, SDL_WINDOW_RESIZABLE);
  if (impl_->window == nullptr) {
    const std::string error = SDL_GetError();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    throw PlatformError::Host("SDL", error);
  }
  impl_->shown_size = {640, 480};
  impl_->shown_caption = FromUtf8(title);
  impl_->title = impl_->shown_caption;
  SDL_StartTextInput();
#if FERLAN_WINDOW_XLIB && defined(SDL_VIDEO_DRIVER_X11)
  // For the window destroyed by another client; and the first title.
  SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE);
  WriteX11Title(impl_->window, impl_->title);
#endif
  impl_->loop.SetWindowEventHandler(
      [impl = impl_.get()](const SDL_Event& e) { impl->OnWindowEvent(e); });
  impl_->loop.SetFrameHook([this] { return Present(); });
  impl_->loop.SetChangeCheck([impl = impl_.get()] {
    const std::shared_ptr<forms::Form> form = impl->form.lock();
    const std::shared_ptr<kit::EnvState> env = impl->env.lock();
    return form && env && !impl->loop.Closed() &&
           (impl->expose || impl->scene != impl->Current(*form, *env));
  });
}

Window::~Window() {
  impl_->loop.SetFrameHook(nullptr);
  impl_->loop.SetChangeCheck(nullptr);
  SDL_DestroyWindow(impl_->window);
  SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

std::unique_ptr<headless::Session> Window::OpenSession() {
  headless::Frontend frontend;
  frontend.loop = &impl_->loop;
  frontend.screen = Screen();
  frontend.work_area = WorkArea();
  frontend.clipboard = SystemClipboard();
  auto session =
      std::make_unique<headless::Session>(raster::RasterCanvasFactory(), std::move(frontend));
  session->Global().SetPngDecoder(raster::DecodePng);
  impl_->form = session->FormRef();
  session->Form().SetCaption(impl_->title);
  // The window stays where it opened until the form is moved.
  int x = 0, y = 0;
  SDL_GetWindowPosition(impl_->window, &x, &y);
  session->Form().SetLeft(static_cast<Single>(x) * kTwips);
  session->Form().SetTop(static_cast<Single>(y) * kTwips);
  impl_->shown_left = session->Form().Left();
  impl_->shown_top = session->Form().Top();
  impl_->env = session->EnvRef();
  impl_->scene.reset();
  impl_->loop.SetForm(session->FormRef());
  impl_->loop.SetScript(&session->Keys());
  impl_->loop.SetAbandonWriter([env = session->EnvRef()](Boolean v) { env->Abandon = v; });
  if (Closed()) session->Env().Abandon = true;
  SDL_ShowWindow(impl_->window);
  Present();
  return session;
}

EventLoop& Window::Loop() { return impl_->loop; }

forms::Screen Window::WorkArea() const {
  SDL_Rect usable;
  const int display = std::max(0, SDL_GetWindowDisplayIndex(impl_->window));
  if (SDL_GetDisplayUsableBounds(display, &usable) != 0 || usable.w <= 0 || usable.h <= 0) {
    return Screen();
  }
  return forms::Screen(static_cast<Single>(usable.w) * kTwips,
                       static_cast<Single>(usable.h) * kTwips);
}

forms::Screen Window::Screen() const {
  SDL_DisplayMode mode;
  const int display = std::max(0, SDL_GetWindowDisplayIndex(impl_->window));
  if (SDL_GetDesktopDisplayMode(display, &mode) != 0) {
    return forms::Screen(headless::Session::kScreenWidth, headless::Session::kScreenHeight);
  }
  return forms::Screen(static_cast<Single>(mode.w) * kTwips, static_cast<Single>(mode.h) * kTwips);
}

bool Window::Closed() const { return impl_->loop.Closed(); }

unsigned long Window::NativeHandle() const {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (SDL_GetWindowWMInfo(impl_->window, &info) != SDL_TRUE) return 0;
#if defined(SDL_VIDEO_DRIVER_X11)
  if (info.subsystem == SDL_SYSWM_X11) return static_cast<unsigned long>(info.info.x11.window);
#endif
  return 0;
}

std::uint64_t Window::Frames() const { return impl_->frames; }

std::chrono::nanoseconds Window::FrameProcessorTime() const {
  return std::chrono::nanoseconds(impl_->frame_cpu_ns.load());
}

std::chrono::steady_clock::time_point Window::LastFrameTime() const { return impl_->last_frame; }

bool Window::Present() {
  Impl& impl = *impl_;
  const std::shared_ptr<forms::Form> form = impl.form.lock();
  const std::shared_ptr<kit::EnvState> env = impl.env.lock();
  if (!form || !env || Closed()) return false;
  impl.Sync(*form);
  PictureBox* surface = env->surface.get();
  auto* zone = MemberOf<PictureBox>(*form, "zoneMessage");
  auto* caret = MemberOf<PictureBox>(*form, "Caret");
  const Scene scene = impl.Current(*form, *env);
  if (impl.scene == scene && !impl.expose) return false;
  const ThreadTimeMeter meter(impl.frame_cpu_ns);
  if (impl.scene != scene) {
    if (surface == nullptr) return false;
    // Taken at every frame, so that each holds what was drawn since the
    // frame before.
    std::vector<raster::PixelRect> damage;
    TakeDamage(surface, damage);
    TakeDamage(zone, damage);
    const raster::PixelRect caret_rect =
        caret ? raster::CaretRect(*caret, *surface) : raster::PixelRect{};
    if (impl.scene && impl.scene->SameLayout(scene) && !impl.frame.empty()) {
      const std::vector<PictureBox*> children = raster::SurfaceChildren(*form, surface);
      for (std::size_t i = 0; i < children.size(); ++i) {
        if (impl.scene->children[i].drawn != scene.children[i].drawn) {
          raster::AddRect(damage, raster::ChildRect(*children[i], *surface), kMostRects);
        }
      }
      if (impl.scene->caret != scene.caret) {
        // The caret's old place shows again what lies under it.
        raster::AddRect(damage, impl.caret_rect, kMostRects);
        raster::AddRect(damage, caret_rect, kMostRects);
      }
      impl.scene = scene;
      impl.caret_rect = caret_rect;
      if (damage.empty() && !impl.expose) return false;
      impl.Compose(*form, surface, &damage);
      if (!impl.expose) {
        impl.Show(&damage);
        return true;
      }
    } else {
      impl.Compose(*form, surface, nullptr);
      impl.scene = scene;
      impl.caret_rect = caret_rect;
    }
  }
  impl.expose = false;
  impl.Show(nullptr);
  return true;
}

Scene Window::Impl::Current(forms::Form& f, kit::EnvState& e) const {
  Scene now;
  now.scale_width = f.ScaleWidth();
  now.scale_height = f.ScaleHeight();
  now.surface = e.surface.get();
  now.surface_look = LookOf(e.surface.get());
  now.toolbar = LookOf(MemberOf<Control>(f, "BarreOutils"));
  now.zone = LookOf(MemberOf<PictureBox>(f, "zoneMessage"));
  now.caret = LookOf(MemberOf<PictureBox>(f, "Caret"));
  for (PictureBox* child : raster::SurfaceChildren(f, e.surface.get())) {
    now.children.push_back(LookOf(child));
  }
  return now;
}

void Window::Impl::Sync(forms::Form& f) {
  if (f.Caption() != shown_caption) {
    shown_caption = f.Caption();
    SDL_SetWindowTitle(window, ToUtf8(shown_caption).c_str());
#if FERLAN_WINDOW_XLIB && defined(SDL_VIDEO_DRIVER_X11)
    WriteX11Title(window, shown_caption);
#endif
  }
  if (f.WindowState() != shown_state) {
    shown_state = f.WindowState();
    if (shown_state == 2) {
      SDL_MaximizeWindow(window);
    } else if (shown_state == 1) {
      SDL_MinimizeWindow(window);
    } else {
      SDL_RestoreWindow(window);
    }
  }
  if (f.Left() != shown_left || f.Top() != shown_top) {
    shown_left = f.Left();
    shown_top = f.Top();
    SDL_SetWindowPosition(window, raster::PixelOfTwips(shown_left),
                          raster::PixelOfTwips(shown_top));
  }
  const raster::PixelSize wanted = ShownSize(f);
  if (shown_state == 0 && wanted != shown_size && wanted.width > 0 && wanted.height > 0) {
    shown_size = wanted;
    SDL_SetWindowSize(window, wanted.width, wanted.height);
  }
}

void Window::Impl::OnWindowEvent(const SDL_Event& event) {
  if (event.type == SDL_SYSWMEVENT) {
#if FERLAN_WINDOW_XLIB && defined(SDL_VIDEO_DRIVER_X11)
    if (DestroyedByX11(window, event)) loop.Close();
#endif
    return;
  }
  const std::shared_ptr<forms::Form> f = form.lock();
  switch (event.window.event) {
    case SDL_WINDOWEVENT_EXPOSED:
      expose = true;
      return;
    case SDL_WINDOWEVENT_SIZE_CHANGED: {
      expose = true;
      const raster::PixelSize now{event.window.data1, event.window.data2};
      if (!f || now == shown_size || shown_state != 0) return;
      // The person resized the window: the form takes its new inner size.
      shown_size = now;
      f->SetWidth(static_cast<Single>(now.width) * kTwips + forms::Form::kBorderX);
      f->SetHeight(static_cast<Single>(now.height) * kTwips + forms::Form::kBorderY);
      return;
    }
    case SDL_WINDOWEVENT_MAXIMIZED:
    case SDL_WINDOWEVENT_MINIMIZED:
    case SDL_WINDOWEVENT_RESTORED: {
      expose = true;
      const Integer state = event.window.event == SDL_WINDOWEVENT_MAXIMIZED   ? 2
                            : event.window.event == SDL_WINDOWEVENT_MINIMIZED ? 1
                                                                              : 0;
      if (!f || state == shown_state) return;
      shown_state = state;
      f->SetWindowState(state);
      return;
    }
    case SDL_WINDOWEVENT_MOVED:
      // The person moved the window: the form's place follows.
      if (!f || shown_state != 0) return;
      shown_left = static_cast<Single>(event.window.data1) * kTwips;
      shown_top = static_cast<Single>(event.window.data2) * kTwips;
      f->SetLeft(shown_left);
      f->SetTop(shown_top);
      return;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
      if (auto e = env.lock(); e && f) e->active_window = f->hWnd();
      return;
    case SDL_WINDOWEVENT_FOCUS_LOST:
      if (auto e = env.lock()) e->active_window = 0;
      return;
    default:
      return;
  }
}

void Window::Impl::Compose(forms::Form& f, PictureBox* surface,
                           const std::vector<raster::PixelRect>* damage) {
  if (damage == nullptr) {
    frame_size = ShownSize(f);
    frame.assign(static_cast<std::size_t>(std::max(frame_size.width, 0)) *
                     static_cast<std::size_t>(std::max(frame_size.height, 0)),
                 0);
    // A window made small again gives back the room of its largest frame.
    if (frame.capacity() / 2 > frame.size()) frame.shrink_to_fit();
  }
  raster::ComposeFormOnto(f, surface, reinterpret_cast<unsigned char*>(frame.data()), frame_size,
                          frame_size.width * 4, damage);
}

void Window::Impl::Show(const std::vector<raster::PixelRect>* damage) {
  SDL_Surface* target = SDL_GetWindowSurface(window);
  if (target == nullptr) return;
  if (target != shown_target || target->w != shown_target_size.width ||
      target->h != shown_target_size.height) {
    damage = nullptr;
    shown_target = target;
    shown_target_size = {target->w, target->h};
  }
  if (damage == nullptr && (target->w > frame_size.width || target->h > frame_size.height)) {
    SDL_FillRect(target, nullptr,
                 SDL_MapRGB(target->format, (kButtonFace >> 16) & 0xFF, (kButtonFace >> 8) & 0xFF,
                            kButtonFace & 0xFF));
  }
  std::vector<SDL_Rect> rects;
  if (!frame.empty()) {
    SDL_Surface* source =
        SDL_CreateRGBSurfaceWithFormatFrom(frame.data(), frame_size.width, frame_size.height, 32,
                                           frame_size.width * 4, SDL_PIXELFORMAT_RGB888);
    if (source != nullptr) {
      if (damage == nullptr) {
        SDL_BlitSurface(source, nullptr, target, nullptr);
      } else {
        const raster::PixelRect bounds{0, 0, std::min(target->w, frame_size.width),
                                       std::min(target->h, frame_size.height)};
        for (const raster::PixelRect& r : *damage) {
          const raster::PixelRect in = r.Intersection(bounds);
          if (in.Empty()) continue;
          SDL_Rect rect{in.x, in.y, in.w, in.h};
          SDL_Rect to = rect;
          SDL_BlitSurface(source, &rect, target, &to);
          rects.push_back(rect);
        }
      }
      SDL_FreeSurface(source);
    }
  }
  if (damage == nullptr) {
    SDL_UpdateWindowSurface(window);
  } else if (!rects.empty()) {
    SDL_UpdateWindowSurfaceRects(window, rects.data(), static_cast<int>(rects.size()));
  }
  last_frame = std::chrono::steady_clock::now();
  ++frames;
}

}  // namespace ferlan::window
