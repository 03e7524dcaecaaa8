// A private X server for the window tests, and what a person's hands and
// eyes do on it: xdotool types real key events, XGetImage reads back what
// the window shows.
#pragma once

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace ferlan::testing {

// Starts Xvfb on a free display for the test and points DISPLAY at it;
// stops it after. Skips the test when no Xvfb is installed.
class XvfbTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (std::system("command -v Xvfb >/dev/null 2>&1") != 0) {
      GTEST_SKIP() << "no X server binary (Xvfb) on this machine: the window tests need "
                      "Debian's xvfb, which scripts/setup.sh installs";
    }
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    xvfb_ = fork();
    ASSERT_GE(xvfb_, 0);
    if (xvfb_ == 0) {
      close(fds[0]);
      const int null = open("/dev/null", O_WRONLY);
      dup2(null, 2);
      const std::string fd = std::to_string(fds[1]);
      execlp("Xvfb", "Xvfb", "-displayfd", fd.c_str(), "-screen", "0", "1280x1024x24",
             "-nolisten", "tcp", static_cast<char*>(nullptr));
      _exit(127);
    }
    close(fds[1]);
    std::string number;
    char c = 0;
    while (read(fds[0], &c, 1) == 1 && c != '\n') number += c;
    close(fds[0]);
    ASSERT_FALSE(number.empty()) << "Xvfb did not start";
    display_name_ = ":" + number;
    setenv("DISPLAY", display_name_.c_str(), 1);
    display_ = XOpenDisplay(display_name_.c_str());
    ASSERT_NE(display_, nullptr);
  }

  void TearDown() override {
    if (display_ != nullptr) XCloseDisplay(display_);
    if (xvfb_ > 0) {
      kill(xvfb_, SIGTERM);
      waitpid(xvfb_, nullptr, 0);
    }
  }

  // Runs xdotool with `args`; gives whether it succeeded.
  static bool Xdotool(const std::string& args) {
    return std::system(("xdotool " + args + " >/dev/null 2>&1").c_str()) == 0;
  }

  // The window's pixels as 0x00RRGGBB, rows top first.
  std::vector<std::uint32_t> Screenshot(unsigned long window, int& width, int& height) {
    XWindowAttributes attributes;
    XGetWindowAttributes(display_, window, &attributes);
    width = attributes.width;
    height = attributes.height;
    XImage* image = XGetImage(display_, window, 0, 0, static_cast<unsigned>(width),
                              static_cast<unsigned>(height), ~0UL, ZPixmap);
    std::vector<std::uint32_t> pixels;
    if (image == nullptr) return pixels;
    pixels.reserve(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        pixels.push_back(static_cast<std::uint32_t>(XGetPixel(image, x, y)) & 0xFFFFFFu);
      }
    }
    XDestroyImage(image);
    return pixels;
  }

  // What the window manager sends when the person clicks the close box;
  // on a connection of its own, so that any thread may ask.
  void AskToClose(unsigned long window) {
    Display* display = XOpenDisplay(display_name_.c_str());
    ASSERT_NE(display, nullptr);
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(display, window, False, NoEventMask, &event);
    XCloseDisplay(display);
  }

  pid_t xvfb_ = 0;
  std::string display_name_;
  Display* display_ = nullptr;
};

// Another program holding CLIPBOARD with `text` in UTF-8, which it sends in
// increments of 4,000 bytes (INCR), as toolkits send large texts; it answers
// from a thread and a connection of its own until it goes.
class IncrementalOwner {
 public:
  IncrementalOwner(const std::string& display_name, std::string text)
      : display_(XOpenDisplay(display_name.c_str())), text_(std::move(text)) {
    window_ = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0);
    XSetSelectionOwner(display_, Atom("CLIPBOARD"), window_, CurrentTime);
    XSync(display_, False);
    thread_ = std::thread([this] { Serve(); });
  }
  ~IncrementalOwner() {
    stop_ = true;
    thread_.join();
    XCloseDisplay(display_);
  }
  IncrementalOwner(const IncrementalOwner&) = delete;
  IncrementalOwner& operator=(const IncrementalOwner&) = delete;

 private:
  struct Transfer {
    ::Window requestor;
    ::Atom property;
    std::size_t sent;
  };

  ::Atom Atom(const char* name) { return XInternAtom(display_, name, False); }

  void Serve() {
    std::vector<Transfer> transfers;
    while (!stop_) {
      while (XPending(display_) > 0) {
        XEvent event;
        XNextEvent(display_, &event);
        if (event.type == SelectionRequest) {
          const XSelectionRequestEvent& request = event.xselectionrequest;
          XEvent reply{};
          reply.xselection.type = SelectionNotify;
          reply.xselection.requestor = request.requestor;
          reply.xselection.selection = request.selection;
          reply.xselection.target = request.target;
          reply.xselection.time = request.time;
          reply.xselection.property = None;
          if (request.target == Atom("UTF8_STRING")) {
            // The size, then a piece each time the requestor deletes the property.
            XSelectInput(display_, request.requestor, PropertyChangeMask);
            const long size = static_cast<long>(text_.size());
            XChangeProperty(display_, request.requestor, request.property, Atom("INCR"), 32,
                            PropModeReplace, reinterpret_cast<const unsigned char*>(&size), 1);
            transfers.push_back({request.requestor, request.property, 0});
            reply.xselection.property = request.property;
          }
          XSendEvent(display_, request.requestor, False, NoEventMask, &reply);
        } else if (event.type == PropertyNotify && event.xproperty.state == PropertyDelete) {
          for (Transfer& t : transfers) {
            if (t.requestor != event.xproperty.window || t.property != event.xproperty.atom ||
                t.sent > text_.size()) {
              continue;
            }
            const std::size_t piece = std::min<std::size_t>(4000, text_.size() - t.sent);
            XChangeProperty(display_, t.requestor, t.property, Atom("UTF8_STRING"), 8,
                            PropModeReplace,
                            reinterpret_cast<const unsigned char*>(text_.data() + t.sent),
                            static_cast<int>(piece));
            // The empty piece ends the transfer.
            t.sent += piece == 0 ? 1 : piece;
          }
        }
        XFlush(display_);
      }
      pollfd connection{ConnectionNumber(display_), POLLIN, 0};
      poll(&connection, 1, 10);
    }
  }

  Display* display_;
  ::Window window_ = None;
  std::string text_;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

}  // namespace ferlan::testing
