#include "headless/session.hpp"

#include "forms/control.hpp"
#include "headless/key_interception.hpp"
#include "kit/env.hpp"

namespace ferlan::headless {

namespace {
// The Session living on this thread: its apartment is the current one.
thread_local const Session* session_of_thread = nullptr;
}  // namespace

Session::Session(forms::CanvasFactory canvas_factory, Frontend frontend)
    : canvas_factory_(std::move(canvas_factory)),
      loop_(clock_, keys_),
      events_(frontend.loop ? frontend.loop : &loop_),
      events_alive_(events_->Alive()),
      env_(std::make_shared<kit::EnvState>()),
      records_(std::make_shared<kit::Records>()) {
  // Each makes its apartment current, and they would end out of order.
  if (session_of_thread != nullptr) {
    throw PlatformError::InvalidCall("another Session lives on this thread");
  }
  if (!canvas_factory_) canvas_factory_ = FixedCanvasFactory();
  const forms::Screen screen = frontend.screen.value_or(forms::Screen(kScreenWidth, kScreenHeight));
  global_ = std::make_shared<forms::Global>(*events_, screen, std::move(frontend.clipboard));

  const forms::Screen maximised = frontend.work_area.value_or(screen);
  form_ = std::make_shared<forms::Form>(kFormHandle, maximised.Width(), maximised.Height());
  form_->SetCaption(u"Ferlan");
  form_->SetWidth(kFormWidth);
  form_->SetHeight(kFormHeight);

  auto toolbar = std::make_shared<forms::Toolbar>();
  toolbar->SetHeight(kToolbarHeight);
  toolbar->SetVisible(false);
  form_->AddMember("BarreOutils", toolbar);

  // The caret is as high as its pictures, 5 pixels; the component sets the
  // rest.
  auto caret = NewPictureBox();
  caret->SetHeight(75);
  caret->SetVisible(false);
  form_->AddMember("Caret", caret);

  auto message_zone = NewPictureBox();
  message_zone->SetWidth(6000);
  message_zone->SetHeight(600);
  message_zone->SetVisible(false);
  form_->AddMember("zoneMessage", message_zone);

  form_->AddMember("ClavierKY", std::make_shared<KeyInterception>());

  surface_ = NewPictureBox();
  surface_->SetBorderStyle(1);
  surface_->SetWidth(form_->ScaleWidth());
  surface_->SetHeight(form_->ScaleHeight());
  form_->AddMember("ZoneAff", surface_);

  env_->form = form_;
  env_->surface = surface_;
  env_->active_window = form_->hWnd();

  // As a host's form does: its key events go to the component.
  form_->on_key_down = [](Integer& KeyCode, Integer Shift) {
    KySaisie{}.GestKeyDown(KeyCode, Shift);
  };
  form_->on_key_press = [](Integer& KeyAscii) { KySaisie{}.GestKeyPress(KeyAscii); };
  loop_.SetForm(form_);
  loop_.SetAbandonWriter([env = env_](Boolean v) { env->Abandon = v; });

  ClassRegistry registry;
  kit::RegisterKit(registry, env_, records_, global_);
  recorder_ = std::make_shared<RecordingDessin>(
      std::dynamic_pointer_cast<ferlan::Dessin>(registry.Create("Dessin")));
  registry.Register("Dessin", [recorder = recorder_] { return recorder; });
  registry.Register("Global", [global = global_] { return global; });
  apartment_.emplace(std::move(registry));
  session_of_thread = this;  // last: a constructor that throws leaves none
  events_->SetCallerIdle([this] { return apartment_ && !apartment_->VirtualKeysPending(); });
}

Session::~Session() {
  session_of_thread = nullptr;
  // A front-end's loop may outlive the session, or, wrongly but easily done,
  // end before it.
  if (!events_alive_.expired()) events_->ForgetSession();
  apartment_.reset();
  // The form's handlers call into the component, which has ended.
  form_->on_key_down = nullptr;
  form_->on_key_press = nullptr;
}

ObjectRef Session::EnvObject() { return std::make_shared<kit::Env>(env_); }

std::shared_ptr<forms::PictureBox> Session::NewPictureBox() {
  auto box = std::make_shared<forms::PictureBox>(canvas_factory_());
  form_->AddControl(box);
  return box;
}

}  // namespace ferlan::headless
