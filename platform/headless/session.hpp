// A whole headless host in one object: what every test and `ferlan automate`
// run the component against.
//
// Implemented:
//  [X] a fresh kit environment (EnvState, Records) and every kit class, with
//      "Dessin" recorded (RecordingDessin) and "Global" over the headless
//      event loop
//  [X] the form "KyF": 12000 x 9000 twips, normal state, with the members
//      "BarreOutils" (a hidden toolbar 420 high), "Caret" and "zoneMessage"
//      (hidden picture controls), "ClavierKY" (Interception) and "ZoneAff"
//  [X] the surface: Env.ZoneAff, a picture control with a fixed single border
//  [X] keys: the form's KeyDown and KeyPress call GestKeyDown and
//      GestKeyPress, as a host does; the key script feeds them
//  [X] an Apartment current on this thread while the Session lives
// Missing:
//  [ ] a foreground window other than the form: Fenetres.Active is the
//      form's hWnd unless a test writes Env().active_window
#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "ferlan/kysaisie.hpp"
#include "forms/canvas.hpp"
#include "forms/form.hpp"
#include "forms/global.hpp"
#include "forms/picture_box.hpp"
#include "forms/screen.hpp"
#include "headless/event_loop.hpp"
#include "headless/fixed_canvas.hpp"
#include "headless/key_script.hpp"
#include "headless/recording_dessin.hpp"
#include "headless/virtual_clock.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

// What another front-end brings to a session in place of the headless
// one's: its event loop (null: the headless loop on the virtual clock), its
// screen, the size a maximised form takes (none: the screen's), and its
// clipboard (null: the in-process one).
struct Frontend {
  forms::EventLoop* loop = nullptr;
  std::optional<forms::Screen> screen;
  std::optional<forms::Screen> work_area;
  std::unique_ptr<ferlan::Clipboard> clipboard;
};

class Session {
 public:
  static constexpr Long kFormHandle = 0x00010010;  // the form's hWnd
  // A screen of 1920 x 1080 pixels.
  static constexpr Single kScreenWidth = 28800;
  static constexpr Single kScreenHeight = 16200;
  static constexpr Single kFormWidth = 12000;
  static constexpr Single kFormHeight = 9000;
  static constexpr Single kToolbarHeight = 420;

  // One Session a thread at a time (each makes its apartment current; a new
  // one may follow when the last has gone): a second raises 5.
  // Pre: `frontend.loop`, when given, outlives the Session.
  explicit Session(forms::CanvasFactory canvas_factory = FixedCanvasFactory(),
                   Frontend frontend = {});
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The environment the component's Env objects show, and what Erreur,
  // Boite and Aide received.
  kit::EnvState& Env() { return *env_; }
  std::shared_ptr<kit::EnvState> EnvRef() const { return env_; }
  kit::Records& Records() { return *records_; }
  // An Env object over that state, for access by name ("ToucheEntree").
  ObjectRef EnvObject();

  forms::Form& Form() { return *form_; }
  std::shared_ptr<forms::Form> FormRef() const { return form_; }
  // The surface made at the start; Env().surface is the one in use now.
  forms::PictureBox& Surface() { return *surface_; }
  std::shared_ptr<forms::PictureBox> SurfaceRef() const { return surface_; }
  forms::Global& Global() { return *global_; }
  EventLoop& Loop() { return loop_; }
  VirtualClock& Clock() { return clock_; }
  KeyScript& Keys() { return keys_; }
  RecordingDessin& Recorder() { return *recorder_; }

  // A new picture control on the session's canvas kind, not a member of
  // the form: for objects a caller names and passes to the component. The
  // form counts it among its controls, which a picture of the form shows
  // on the surface while it is Visible.
  std::shared_ptr<forms::PictureBox> NewPictureBox();

  String ClipboardText() { return global_->Clipboard().GetText(); }
  void SetClipboardText(const String& text) { global_->Clipboard().SetText(text); }

  // Around one request to the component: BeginCall clears what starvation
  // left of the last one; EndCall says whether the key script ran dry.
  void BeginCall() { loop_.BeginCall(); }
  bool EndCall() const { return loop_.Starved(); }

 private:
  forms::CanvasFactory canvas_factory_;
  VirtualClock clock_;
  KeyScript keys_;
  EventLoop loop_;
  // The loop DoEvents runs: loop_, or the front-end's.
  forms::EventLoop* events_;
  std::weak_ptr<const void> events_alive_;
  std::shared_ptr<kit::EnvState> env_;
  std::shared_ptr<kit::Records> records_;
  std::shared_ptr<forms::Global> global_;
  std::shared_ptr<forms::Form> form_;
  std::shared_ptr<forms::PictureBox> surface_;
  std::shared_ptr<RecordingDessin> recorder_;
  // Last, so that it ends first: the component's objects go before the
  // host objects they may use.
  std::optional<Apartment> apartment_;
};

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
