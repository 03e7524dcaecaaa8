// The window as a person uses it, on a private X server: keys typed by
// xdotool into the real window, the window's pixels read back from X.
#include "window/window.hpp"

#include <SDL.h>
#include <X11/Xatom.h>
#include <X11/keysym.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <thread>

#include "ferlan/kysaisie.hpp"
#include "platform/window/x_display.hpp"
#include "raster/form_picture.hpp"
#include "raster/pixel_words.hpp"

namespace ferlan::testing {
namespace {

using WindowTest = XvfbTest;

// Lets the window map and show its first frames.
void Settle(window::Window& window, int ms = 300) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
  while (std::chrono::steady_clock::now() < end) window.Loop().DoEvents();
}

// A timer of the session's loop: its first tick runs `once` inside the
// wait under way, so that what it starts finds the field waiting.
TimerRef Once(headless::Session& session, Long after_ms, std::function<void()> once) {
  auto done = std::make_shared<bool>(false);
  TimerRef timer = session.Global().CreateTimer([done, once = std::move(once)] {
    if (!*done) once();
    *done = true;
  });
  timer->SetEnabled(true);
  timer->SetInterval(after_ms);
  return timer;
}

std::string ReadFile(const std::string& path) {
  std::ifstream in(path);
  return {std::istreambuf_iterator<char>(in), {}};
}

// The window's session, with a form of 12 lines of 60 columns shown.
std::unique_ptr<headless::Session> Open(window::Window& window) {
  auto session = window.OpenSession();
  KySaisie{}.InitKyF();
  KySaisie{}.DimensionFeuille(12, 60);
  Settle(window);
  return session;
}

int Ink(std::uint32_t pixel, std::uint32_t ground) {
  int d = 0;
  for (int shift : {0, 8, 16}) {
    d += std::abs(static_cast<int>((pixel >> shift) & 0xFF) -
                  static_cast<int>((ground >> shift) & 0xFF));
  }
  return d;
}

// The pixels of the window's screenshot that differ from the form's picture
// as the PNG composes it; -1 when the sizes differ.
int DifferingPixels(const std::vector<std::uint32_t>& shot, int width, int height,
                    const forms::Bitmap& composed) {
  if (width != composed.PixelWidth() || height != composed.PixelHeight()) return -1;
  int differing = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const forms::Rgb p = composed.Pixel(x, y);
      const std::uint32_t want = (p.r << 16) | (p.g << 8) | p.b;
      differing += shot[static_cast<std::size_t>(y) * width + x] != want;
    }
  }
  return differing;
}

TEST_F(WindowTest, APersonTypesAFieldAndTheWindowShowsIt) {
  window::Window window("Ferlan test");
  auto session = Open(window);
  KySaisie k;
  k.Affiche(3, 2, u"I", u"Nom");
  const unsigned long id = window.NativeHandle();
  ASSERT_NE(id, 0u);

  // A key of its own for é, as a French keyboard has: xdotool would
  // otherwise map one for the keystroke and take it back at once, racing
  // the window's reading of the key.
  int low = 0, high = 0;
  XDisplayKeycodes(display_, &low, &high);
  int per_key = 0;
  KeySym* map = XGetKeyboardMapping(display_, static_cast<KeyCode>(low), high - low + 1, &per_key);
  for (int code = high; code >= low && map != nullptr; --code) {
    if (map[(code - low) * per_key] == NoSymbol) {
      KeySym e_acute = XK_eacute;
      XChangeKeyboardMapping(display_, code, 1, &e_acute, 1);
      break;
    }
  }
  XFree(map);
  XSync(display_, False);
  Settle(window, 100);

  // Typed as a person does, in the real window: an accented letter, a
  // Ctrl+arrow back to the start of a word, Alt+C (a chord: X still sends
  // its letter, which must not be typed), the keypad's 7 with Num Lock off
  // (Home), and F2 to leave.
  std::thread typist;
  TimerRef start = Once(*session, 50, [&] {
    typist = std::thread([w = std::to_string(id)] {
      const std::string keys[] = {"mousemove --window " + w + " 30 30", "windowfocus --sync " + w,
                                  "type --delay 30 'Zoé Durand'", "key --delay 30 ctrl+Left",
                                  "type --delay 30 'M '", "key --delay 30 alt+c KP_Home",
                                  "type --delay 30 X", "key F2"};
      for (const std::string& key : keys) Xdotool(key);
    });
  });
  TimerRef guard = Once(*session, 20000, [&] { session->Env().Abandon = true; });
  String m;
  Integer tr = 0;
  const Single ct = k.WinCol(12);
  k.ModD(m, u"A", 3, 12, ct, 30, tr);
  typist.join();
  ASSERT_FALSE(session->Env().Abandon) << "the keys did not reach the field within 20 s";
  EXPECT_EQ(tr, 113);
  // Typed over from the word's start, the editor's default mode.
  EXPECT_EQ(m, u"Xoé M rand");

  Settle(window);
  int width = 0, height = 0;
  const std::vector<std::uint32_t> shot = Screenshot(id, width, height);
  PictureBox& surface = *session->Env().surface;
  const auto composed = raster::ComposeForm(session->Form(), &surface);

  // The window shows, pixel for pixel, the picture the PNG of this session
  // holds.
  EXPECT_EQ(DifferingPixels(shot, width, height, *composed), 0);

  // The text stands where the field is: ink from the field's left edge to
  // about the width of what was typed, on the field's line.
  const int border = raster::PixelOfTwips((surface.Width() - surface.ScaleWidth()) / 2);
  const int left = raster::PixelOfTwips(surface.Left()) + border + raster::PixelOfTwips(ct);
  const int top =
      raster::PixelOfTwips(surface.Top()) + border + raster::PixelOfTwips(k.WinLigne(3));
  const int text_height = raster::PixelsOfSize(k.HauteurTexte());
  const int text_width = raster::PixelsOfSize(surface.TextWidth(m));
  const std::uint32_t ground =
      shot[static_cast<std::size_t>(top + text_height / 2) * width + left + text_width + 20];
  int ink_left = width, ink_right = -1, ink = 0;
  for (int y = top; y < top + text_height; ++y) {
    for (int x = left - 10; x < left + text_width + 20; ++x) {
      if (Ink(shot[static_cast<std::size_t>(y) * width + x], ground) > 200) {
        ++ink;
        ink_left = std::min(ink_left, x);
        ink_right = std::max(ink_right, x);
      }
    }
  }
  EXPECT_GT(ink, 40);
  EXPECT_NEAR(ink_left, left, 3);
  EXPECT_NEAR(ink_right, left + text_width, 4);
}

TEST_F(WindowTest, ClosingTheWindowAbandonsTheWaitAndTheSession) {
  window::Window window("Ferlan test");
  auto session = Open(window);
  KySaisie k;
  const unsigned long id = window.NativeHandle();
  TimerRef close = Once(*session, 50, [&] { AskToClose(id); });
  TimerRef guard = Once(*session, 20000, [&] { session->Env().Abandon = true; });
  String m = u"abc";
  Integer tr = -1;
  k.ModD(m, u"A", 3, 12, k.WinCol(12), 30, tr);
  EXPECT_TRUE(window.Closed());
  EXPECT_TRUE(session->Env().Abandon);
  // Every later wait ends at once too.
  k.ModD(m, u"A", 4, 12, k.WinCol(12), 30, tr);
  EXPECT_TRUE(session->Env().Abandon);
}

// The virtual keyboard's keys are read one a DoEvents, outside a field too,
// and the loop never sleeps while some wait.
TEST_F(WindowTest, VirtualKeysAreNeverHeldBackByASleep) {
  window::Window window("Ferlan test");
  auto session = Open(window);
  KySaisie k;
  k.ClavierVirtuel(u"ab", 13);
  const std::uint64_t sleeps = window.Loop().Sleeps();
  String typed;
  Integer code = 0;
  for (int pair = 0; pair < 5; ++pair) {
    String r;
    k.Saisie(r, &code);
    if (code == 0) typed += r;
  }
  EXPECT_EQ(typed, u"ab");
  EXPECT_EQ(code, 13);
  EXPECT_EQ(window.Loop().Sleeps(), sleeps);
}

TEST_F(WindowTest, TheFormAndTheWindowFollowEachOther) {
  // A panel of 24 pixels at the display's foot, as a desktop would keep.
  const long work_area[4] = {0, 0, 1280, 1000};
  XChangeProperty(display_, DefaultRootWindow(display_),
                  XInternAtom(display_, "_NET_WORKAREA", False), XA_CARDINAL, 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(work_area), 4);
  XSync(display_, False);
  window::Window window("Ferlan test");
  auto session = window.OpenSession();
  forms::Form& form = session->Form();
  int resized = 0;
  form.on_resize = [&] { ++resized; };
  const unsigned long id = window.NativeHandle();

  // The display's size, the window's title as the first caption and the
  // caption as the title from then on, Width and Height as the window's size.
  EXPECT_EQ(form.Caption(), u"Ferlan test");
  EXPECT_EQ(session->Global().Screen().Width(), 1280 * 15);
  EXPECT_EQ(session->Global().Screen().Height(), 1024 * 15);
  form.SetCaption(u"Fiche client");
  form.SetWidth(9000);
  form.SetHeight(6450);
  Settle(window);
  char* name = nullptr;
  XFetchName(display_, id, &name);
  ASSERT_NE(name, nullptr);
  EXPECT_STREQ(name, "Fiche client");
  XFree(name);
  // Out of ASCII: the UTF-8 title in full, the Latin-1 one as far as it goes.
  form.SetCaption(u"Échéance — 2026");
  Settle(window, 100);
  const auto property = [&](const char* atom) {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0, after = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(display_, id, XInternAtom(display_, atom, False), 0, 1024, False,
                       AnyPropertyType, &type, &format, &count, &after, &bytes);
    std::string value(reinterpret_cast<char*>(bytes), count);
    XFree(bytes);
    return value;
  };
  EXPECT_EQ(property("_NET_WM_NAME"), reinterpret_cast<const char*>(u8"Échéance — 2026"));
  EXPECT_EQ(property("WM_NAME"), "\xC9" "ch\xE9" "ance ? 2026");
  XWindowAttributes attributes;
  XGetWindowAttributes(display_, id, &attributes);
  EXPECT_EQ(std::pair(attributes.width, attributes.height),
            std::pair((9000 - 120) / 15, (6450 - 450) / 15));

  // Left and Top place the window.
  form.SetLeft(1500);
  form.SetTop(3000);
  Settle(window);
  int x = 0, y = 0;
  Window child = 0;
  XTranslateCoordinates(display_, id, DefaultRootWindow(display_), 0, 0, &x, &y, &child);
  EXPECT_EQ(std::pair(x, y), std::pair(100, 200));

  // The window manager's doings reach the form; maximised, it has the work
  // area.
  const int before = resized;
  const auto manager = [&](Uint8 what, int width = 0, int height = 0) {
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.event = what;
    event.window.data1 = width;
    event.window.data2 = height;
    SDL_PushEvent(&event);
    window.Loop().DoEvents();
  };
  manager(SDL_WINDOWEVENT_MAXIMIZED);
  EXPECT_EQ(form.WindowState(), 2);
  EXPECT_EQ(std::pair(form.Width(), form.Height()), std::pair(1280.0F * 15, 1000.0F * 15));
  manager(SDL_WINDOWEVENT_RESTORED);
  EXPECT_EQ(form.WindowState(), 0);
  manager(SDL_WINDOWEVENT_SIZE_CHANGED, 700, 500);
  EXPECT_EQ(std::pair(form.ScaleWidth(), form.ScaleHeight()), std::pair(700.0F * 15, 500 * 15.0F));
  EXPECT_GE(resized - before, 3);

  // The system's clipboard, both ways.
  session->Global().Clipboard().SetText(u"Prix 10 €");
  EXPECT_EQ(session->Global().Clipboard().GetText(), u"Prix 10 €");
  char* text = SDL_GetClipboardText();
  EXPECT_STREQ(text, "Prix 10 \xE2\x82\xAC");
  SDL_free(text);
  {
    // A large text another program sends in increments, which SDL alone reads as empty.
    const std::string large = "D\xC3\xA9" + std::string(9997, 'x');
    IncrementalOwner owner(display_name_, large);
    EXPECT_EQ(session->Global().Clipboard().GetText(), u"Dé" + String(9997, u'x'));
  }

  // The window outlives its session: its loop runs on with nothing of it.
  session->Keys().Append("abc");
  session.reset();
  window.Loop().DoEvents();
}

// Another client may destroy the window outright (no close box is then
// left to click): as after a close, the wait ends and every later one at once.
// And a form far larger than any screen shows its top left part, in a window
// and frame of bounded size.
TEST_F(WindowTest, AWindowDestroyedOrTooLargeLeavesNoSessionStuck) {
  window::Window window("Ferlan test");
  auto session = Open(window);
  forms::Form& form = session->Form();
  form.SetWidth(2e9F);
  form.SetHeight(2e9F);
  Settle(window, 100);
  XWindowAttributes attributes;
  XGetWindowAttributes(display_, window.NativeHandle(), &attributes);
  EXPECT_EQ(std::pair(attributes.width, attributes.height), std::pair(8192, 8192));

  KySaisie k;
  TimerRef destroy = Once(*session, 50, [&] {
    XDestroyWindow(display_, window.NativeHandle());
    XFlush(display_);
  });
  TimerRef guard = Once(*session, 20000, [&] { session->Env().Abandon = true; });
  String m = u"abc";
  Integer tr = -1;
  k.ModD(m, u"A", 3, 12, k.WinCol(12), 30, tr);
  EXPECT_TRUE(window.Closed());
  k.ModD(m, u"A", 4, 12, k.WinCol(12), 30, tr);
  EXPECT_TRUE(session->Env().Abandon);
}

// Declared before its window, a session ends after it: it must leave the
// window's loop and timers alone (the sanitizers see any touch), and the
// thread may open another.
TEST_F(WindowTest, ASessionMayEndAfterItsWindow) {
  std::unique_ptr<headless::Session> session;
  {
    window::Window window("Ferlan test");
    session = Open(window);
  }
  session.reset();
  window::Window window("Ferlan test");
  EXPECT_NO_THROW(session = Open(window));
}

// `ferlan run`: a session played in a window, keys queued for a demo, the
// answers on standard output, and closing the window ends it.
TEST_F(WindowTest, RunPlaysASessionInAWindow) {
  const std::string file = ::testing::TempDir() + "ferlan_run_test.jsonl";
  std::ofstream(file) << R"({"call":"InitKyF"}
{"call":"DimensionFeuille","args":[12,60]}
{"keys":"Caf\u00e9{Enter}"}
{"call":"ModD","args":["","A",3,12,1260,20,0]}
{"get":["Form.Caption"]}
)";
  const std::string out = ::testing::TempDir() + "ferlan_run_test.out";
  std::thread closer([&] {
    // The window stays up once the requests are played, until it closes.
    unsigned long id = 0;
    for (int i = 0; i < 100 && id == 0; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      FILE* p = popen("xdotool search --name '^Ferlan$' 2>/dev/null", "r");
      if (p != nullptr && std::fscanf(p, "%lu", &id) != 1) id = 0;
      if (p != nullptr) pclose(p);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    if (id != 0) AskToClose(id);
  });
  const int status = std::system((std::string(FERLAN_CLI) + " run " + file + " > " + out).c_str());
  closer.join();
  EXPECT_EQ(WEXITSTATUS(status), 0);
  const std::string answers = ReadFile(out);
  EXPECT_EQ(std::count(answers.begin(), answers.end(), '\n'), 5) << answers;
  EXPECT_NE(answers.find(R"("args":["Café","A",3,12,1260,20,13])"), std::string::npos) << answers;

  // Closed while the file keeps it busy drawing, between waits: the file
  // stops there.
  {
    std::ofstream busy(file);
    busy << "{\"call\":\"InitKyF\"}\n";
    for (int i = 0; i < 5000; ++i) {
      busy << R"({"call":"AffPos","args":[2,1]})" << '\n'
           << R"({"call":"AffTab","args":[30,"[[NOM,Nom du client,24],[VILLE,Ville,12]]"]})"
           << '\n';
    }
  }
  std::thread busy_closer([&] {
    for (int i = 0; i < 100; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      FILE* p = popen("xdotool search --name '^Ferlan$' 2>/dev/null", "r");
      unsigned long id = 0;
      const bool found = p != nullptr && std::fscanf(p, "%lu", &id) == 1;
      if (p != nullptr) pclose(p);
      if (found) {
        AskToClose(id);
        return;
      }
    }
  });
  const int busy_status =
      std::system((std::string(FERLAN_CLI) + " run " + file + " > " + out).c_str());
  busy_closer.join();
  EXPECT_EQ(WEXITSTATUS(busy_status), 0);
  const std::string played = ReadFile(out);
  const auto lines = std::count(played.begin(), played.end(), '\n');
  EXPECT_GT(lines, 0);
  EXPECT_LT(lines, 10001);

  // Without a display: one line, and status 2.
  const std::string err = ::testing::TempDir() + "ferlan_run_test.err";
  const int no_display =
      std::system(("env -u DISPLAY -u WAYLAND_DISPLAY " + std::string(FERLAN_CLI) + " run " + file +
                   " > " + out + " 2> " + err)
                      .c_str());
  EXPECT_EQ(WEXITSTATUS(no_display), 2);
  const std::string message = ReadFile(err);
  EXPECT_EQ(message.rfind("ferlan: no display", 0), 0u) << message;
  EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 1) << message;
}

}  // namespace
}  // namespace ferlan::testing
