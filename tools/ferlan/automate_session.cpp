#include "ferlan/automate_session.hpp"

#include <istream>
#include <ostream>
#include <string>

#include "ferlan/method_table.hpp"
#include "ferlan/picture_objects.hpp"
#include "ferlan/property_path.hpp"
#include "headless/session.hpp"
#if FERLAN_HAVE_RASTER
#include "raster/form_picture.hpp"
#include "raster/picture_files.hpp"
#endif

namespace ferlan::tool {

namespace {

// Errors of the request itself: the platform's "invalid call" with the
// request named.
PlatformError BadRequest(const std::string& text) { return PlatformError::InvalidCall(text); }

Json ErrorAnswer(const PlatformError& e) {
  return Json{{"ok", false},
              {"error", {{"number", e.Number()}, {"description", e.Description()}}}};
}

// Splits "Env.ToucheEntree" into "Env" and "ToucheEntree".
std::pair<std::string, std::string> SplitPath(const std::string& path) {
  const auto dot = path.find('.');
  if (dot == std::string::npos) return {path, {}};
  return {path.substr(0, dot), path.substr(dot + 1)};
}

Json ReportsOf(const kit::Records& records, std::size_t from) {
  Json out = Json::array();
  for (std::size_t i = from; i < records.reports.size(); ++i) {
    const auto& r = records.reports[i];
    if (r.code) {
      out.push_back({{"code", *r.code}});
    } else {
      out.push_back({{"source", TextToJson(r.source)}, {"text", TextToJson(r.text)}});
    }
  }
  return out;
}

// Message boxes, then the block messages given to Boite.BlocMes.
Json BoxesOf(const kit::Records& records, std::size_t from, std::size_t blocs_from) {
  Json out = Json::array();
  for (std::size_t i = from; i < records.boxes.size(); ++i) {
    const auto& b = records.boxes[i];
    out.push_back({{"style", TextToJson(b.style)},
                   {"title", TextToJson(b.title)},
                   {"text", TextToJson(b.text)}});
  }
  for (std::size_t i = blocs_from; i < records.blocs.size(); ++i) {
    out.push_back({{"bloc", TextToJson(records.blocs[i].message)},
                   {"line", records.blocs[i].line}});
  }
  return out;
}

Json HelpOf(const kit::Records& records, std::size_t from) {
  Json out = Json::array();
  for (std::size_t i = from; i < records.help.size(); ++i) {
    out.push_back(TextToJson(records.help[i]));
  }
  return out;
}

}  // namespace

AutomateSession::AutomateSession(SurfaceKind surface, SessionFactory factory)
    : surface_(surface), factory_(std::move(factory)) {
  Reset();
}

AutomateSession::~AutomateSession() = default;

void AutomateSession::Reset() {
  named_.clear();
  session_.reset();  // the old apartment ends before the new one begins
  if (factory_) {
    session_ = factory_();
    return;
  }
  session_ = std::make_unique<headless::Session>(CanvasFor(surface_));
#if FERLAN_HAVE_RASTER
  // PNG decoding is the raster back-end's; BMP the forms runtime reads itself.
  if (surface_ == SurfaceKind::Raster) session_->Global().SetPngDecoder(raster::DecodePng);
#endif
}

void AutomateSession::Run(std::istream& in, std::ostream& out) {
  std::string line;
  while (std::getline(in, line)) {
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    out << Handle(line) << '\n' << std::flush;
  }
}

std::string AutomateSession::Handle(std::string_view line) {
  Json answer;
  try {
    const Json request = Json::parse(line);
    if (!request.is_object()) throw BadRequest("a request is a JSON object");
    if (request.contains("call")) {
      answer = Call(request);
    } else if (request.contains("keys")) {
      answer = Keys(request);
    } else if (request.contains("set")) {
      answer = Set(request);
    } else if (request.contains("get")) {
      answer = Get(request);
    } else if (request.contains("new")) {
      answer = New(request);
    } else if (request.contains("log")) {
      answer = Log();
    } else if (request.contains("png")) {
      answer = Png(request);
    } else if (request.contains("reset")) {
      Reset();
      answer = Json{{"ok", true}};
    } else {
      throw BadRequest("unknown request: expected call, keys, set, get, new, log, png or reset");
    }
  } catch (const Json::exception& e) {
    answer = ErrorAnswer(BadRequest(std::string("broken JSON: ") + e.what()));
  } catch (const PlatformError& e) {
    answer = ErrorAnswer(e);
  } catch (const std::exception& e) {
    answer = ErrorAnswer(BadRequest(e.what()));
  }
  return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json AutomateSession::Call(const Json& request) {
  if (!request["call"].is_string()) throw BadRequest("call: the method name is a string");
  const std::string name = request["call"].get<std::string>();
  const MethodInfo* method = FindMethod(name);
  if (!method) throw BadRequest("call: unknown method \"" + name + "\"");

  std::vector<Variant> args;
  if (request.contains("args")) {
    if (!request["args"].is_array()) throw BadRequest("call " + name + ": args is an array");
    auto lookup = [this](const std::string& n) { return ObjectNamed(n); };
    for (std::size_t i = 0; i < request["args"].size(); ++i) {
      try {
        args.push_back(JsonToVariant(request["args"][i], lookup));
      } catch (const PlatformError& e) {
        throw PlatformError(e.Number(), e.Description() + " (argument " + std::to_string(i + 1) +
                                            " of " + name + ")");
      }
    }
  }

  kit::Records& records = session_->Records();
  const std::size_t reports = records.reports.size();
  const std::size_t boxes = records.boxes.size();
  const std::size_t blocs = records.blocs.size();
  const std::size_t help = records.help.size();
  session_->BeginCall();

  Json answer;
  KySaisie component;
  try {
    const Variant result = method->invoke(component, args);
    answer = Json{{"ok", true}, {"result", VariantToJson(result, [this](const ObjectRef& o) {
                                   return NameOf(o);
                                 })}};
  } catch (const PlatformError& e) {
    answer = ErrorAnswer(e);
  }
  Json out_args = Json::array();
  for (const Variant& a : args) {
    out_args.push_back(VariantToJson(a, [this](const ObjectRef& o) { return NameOf(o); }));
  }
  answer["args"] = out_args;
  answer["reports"] = ReportsOf(records, reports);
  answer["boxes"] = BoxesOf(records, boxes, blocs);
  answer["help"] = HelpOf(records, help);
  if (session_->EndCall()) answer["starved"] = true;
  return answer;
}

Json AutomateSession::Keys(const Json& request) {
  if (!request["keys"].is_string()) throw BadRequest("keys: the script is a string");
  const std::size_t queued = session_->Keys().Append(request["keys"].get<std::string>());
  return Json{{"ok", true}, {"queued", queued}};
}

Json AutomateSession::Set(const Json& request) {
  if (!request["set"].is_object()) throw BadRequest("set: an object of names and values");
  for (const auto& [path, value] : request["set"].items()) SetValue(path, value);
  return Json{{"ok", true}};
}

Json AutomateSession::Get(const Json& request) {
  if (!request["get"].is_array()) throw BadRequest("get: an array of names");
  Json values = Json::object();
  for (const Json& path : request["get"]) {
    if (!path.is_string()) throw BadRequest("get: names are strings");
    const std::string p = path.get<std::string>();
    values[p] = VariantToJson(GetValue(p), [this](const ObjectRef& o) { return NameOf(o); });
  }
  return Json{{"ok", true}, {"values", values}};
}

Json AutomateSession::New(const Json& request) {
  const Json& order = request["new"];
  if (!order.is_object() || !order.contains("name") || !order["name"].is_string()) {
    throw BadRequest("new: {\"name\":...,\"kind\":\"PictureBox\",\"set\":{...}}");
  }
  const std::string kind = order.value("kind", std::string("PictureBox"));
  if (kind != "PictureBox" && kind != "Picture") {
    throw BadRequest("new: unknown kind \"" + kind + "\"");
  }
  const std::string name = order["name"].get<std::string>();
  if (name.find('.') != std::string::npos) throw BadRequest("new: a name holds no point");
  named_[name] = kind == "Picture" ? LoadPictureControl(*session_, name, order)
                                   : session_->NewPictureBox();
  if (order.contains("set")) {
    if (!order["set"].is_object()) throw BadRequest("new: set is an object");
    for (const auto& [property, value] : order["set"].items()) {
      SetValue(name + "." + property, value);
    }
  }
  return Json{{"ok", true}};
}

Json AutomateSession::Log() {
  Json ops = Json::array();
  for (const auto& call : session_->Recorder().TakeLog()) {
    Json op = Json::array({call.name});
    for (const Variant& a : call.args) {
      op.push_back(VariantToJson(a, [this](const ObjectRef& o) { return NameOf(o); }));
    }
    ops.push_back(op);
  }
  return Json{{"ok", true}, {"ops", ops}};
}

Json AutomateSession::Png(const Json& request) {
  if (!request["png"].is_string()) throw BadRequest("png: the file name is a string");
#if FERLAN_HAVE_RASTER
  if (surface_ == SurfaceKind::Raster) {
    raster::WriteFormPng(session_->Form(), request["png"].get<std::string>(),
                        session_->Env().surface.get());
    return Json{{"ok", true}};
  }
#endif
  throw BadRequest("png: pictures need --surface raster");
}

ObjectRef AutomateSession::ObjectNamed(const std::string& name) {
  if (name == "KyF" || name == "Form") return session_->FormRef();
  if (name == "ZoneAff") return session_->Env().surface;
  if (name == "Env") return session_->EnvObject();
  if (auto it = named_.find(name); it != named_.end()) return it->second;
  if (name == "BarreOutils" || name == "Caret" || name == "zoneMessage" || name == "ClavierKY") {
    return session_->Form().Member(name);
  }
  return nullptr;
}

std::string AutomateSession::NameOf(const ObjectRef& object) {
  if (!object) return {};
  for (const char* n : {"KyF", "ZoneAff", "BarreOutils", "Caret", "zoneMessage", "ClavierKY"}) {
    try {
      if (ObjectNamed(n) == object) return n;
    } catch (const PlatformError&) {
      // the host removed that member: not this object
    }
  }
  for (const auto& [name, o] : named_) {
    if (o == object) return name;
  }
  return {};
}

Variant AutomateSession::GetValue(const std::string& path) {
  if (path == "Clipboard") return session_->ClipboardText();
  const auto [head, member] = SplitPath(path);
  ObjectRef object = ObjectNamed(head);
  if (!object) throw PlatformError::MemberNotSupported(path);
  if (member.empty()) return object;
  const auto [holder, last] = ResolveMember(object, member, path);
  return holder->GetProperty(last);
}

void AutomateSession::SetValue(const std::string& path, const Json& value) {
  auto lookup = [this](const std::string& n) { return ObjectNamed(n); };
  if (path == "Clipboard") {
    session_->SetClipboardText(VariantToString(JsonToVariant(value, lookup)));
    return;
  }
  const auto [head, member] = SplitPath(path);
  ObjectRef object = ObjectNamed(head);
  if (!object || member.empty()) throw PlatformError::MemberNotSupported(path);
  const auto [holder, last] = ResolveMember(object, member, path);
  holder->SetProperty(last, JsonToVariant(value, lookup));
}

}  // namespace ferlan::tool
