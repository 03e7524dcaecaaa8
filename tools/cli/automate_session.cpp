#include "cli/automate_session.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

#include "ferlan/method_table.hpp"
#include "cli/picture_objects.hpp"
#include "cli/property_path.hpp"
#include "cli/record_table_get.hpp"
#include "cli/request_reader.hpp"
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

// The kinds of request, each with the one other key it may carry.
struct KindName {
  AutomateSession::Kind kind;
  const char* key;
  const char* extra;  // nullptr: the kind's key alone
};
constexpr KindName kKinds[] = {
    {AutomateSession::Kind::Call, "call", "args"}, {AutomateSession::Kind::Keys, "keys", nullptr},
    {AutomateSession::Kind::Set, "set", nullptr},  {AutomateSession::Kind::Get, "get", nullptr},
    {AutomateSession::Kind::New, "new", nullptr},  {AutomateSession::Kind::Log, "log", nullptr},
    {AutomateSession::Kind::Png, "png", nullptr},  {AutomateSession::Kind::Reset, "reset", nullptr},
};

// A file name as the system takes it: no NUL, which would cut it short.
std::string FileName(const Json& value, const std::string& what) {
  if (!value.is_string()) throw BadRequest(what + ": the file name is a string");
  std::string name = value.get<std::string>();
  if (name.empty()) throw BadRequest(what + ": the file name is empty");
  if (name.find('\0') != std::string::npos) {
    throw BadRequest(what + ": a file name holds no NUL character");
  }
  return name;
}

// The session's own objects, by the names that get, set and {"obj":...}
// take ("Form" is another name of KyF); an answer names an object by the
// first of them that is it.
constexpr std::array<std::string_view, 7> kSessionObjects = {
    "KyF", "ZoneAff", "Env", "BarreOutils", "Caret", "zoneMessage", "ClavierKY"};

// Names that get, set and {"obj":...} take for the session's own objects
// and values, whatever `new` made: an object of one of these names could not
// be reached (Rub.1.Width is the record table, Clipboard its text, ZoneAff
// the surface also when Env.ZoneAff is Nothing).
bool IsSessionName(std::string_view name) {
  return name == "Form" || name == "Clipboard" || name == "NbRub" || name == "Rub" ||
         std::ranges::find(kSessionObjects, name) != kSessionObjects.end();
}

// `log` and `reset` take true alone: {"reset":false} must not wipe the session.
void RequireTrue(const Json& request, const char* key) {
  if (request[key] != true) throw BadRequest(std::string(key) + ": the value is true");
}

Json ReportsOf(const kit::Records& records) {
  Json out = Json::array();
  for (std::size_t i = 0; i < records.reports.size(); ++i) {
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
Json BoxesOf(const kit::Records& records) {
  Json out = Json::array();
  for (std::size_t i = 0; i < records.boxes.size(); ++i) {
    const auto& b = records.boxes[i];
    out.push_back({{"style", TextToJson(b.style)},
                   {"title", TextToJson(b.title)},
                   {"text", TextToJson(b.text)}});
  }
  for (std::size_t i = 0; i < records.blocs.size(); ++i) {
    out.push_back({{"bloc", TextToJson(records.blocs[i].message)},
                   {"line", records.blocs[i].line}});
  }
  return out;
}

// Whether `file` is the very file of one of the tool's standard streams:
// a picture written there would overwrite the requests being read or the
// answers being written, even when that file is a regular one.
bool IsStandardStream(const std::string& file) {
  struct stat target {};
  if (::stat(file.c_str(), &target) != 0) return false;
  for (int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    struct stat stream {};
    if (::fstat(fd, &stream) == 0 && stream.st_dev == target.st_dev &&
        stream.st_ino == target.st_ino) {
      return true;
    }
  }
  return false;
}

Json HelpOf(const kit::Records& records) {
  Json out = Json::array();
  for (std::size_t i = 0; i < records.help.size(); ++i) {
    out.push_back(TextToJson(records.help[i]));
  }
  return out;
}

}  // namespace

AutomateSession::Kind AutomateSession::KindOf(const Json& request) {
  const KindName* found = nullptr;
  for (const KindName& k : kKinds) {
    if (!request.contains(k.key)) continue;
    if (found) {
      throw BadRequest(std::string("a request has one kind: both \"") + found->key +
                       "\" and \"" + k.key + "\"");
    }
    found = &k;
  }
  if (!found) throw BadRequest("unknown request: expected call, keys, set, get, new, log, png or reset");
  for (const auto& [key, value] : request.items()) {
    if (key != found->key && !(found->extra && key == found->extra)) {
      throw BadRequest(std::string(found->key) + ": unknown member \"" + key + "\"");
    }
  }
  return found->kind;
}

AutomateSession::AutomateSession(SurfaceKind surface, SessionFactory factory)
    : surface_(surface), factory_(std::move(factory)) {
  Reset();
}

AutomateSession::~AutomateSession() = default;

void AutomateSession::Reset() {
  named_.clear();
  env_object_.reset();
  session_.reset();  // the old apartment ends before the new one begins
  if (factory_) {
    session_ = factory_();
  } else {
    session_ = std::make_unique<headless::Session>(CanvasFor(surface_));
#if FERLAN_HAVE_RASTER
    // PNG decoding is the raster back-end's; BMP the forms runtime reads itself.
    if (surface_ == SurfaceKind::Raster) session_->Global().SetPngDecoder(raster::DecodePng);
#endif
  }
  // One object for the session, so that an answer names it as it was given.
  env_object_ = session_->EnvObject();
}

bool AutomateSession::Run(std::istream& in, std::ostream& out,
                          const std::function<bool()>& after_answer) {
  std::string line;
  for (;;) {
    const LineRead read = ReadRequestLine(in, line);
    if (read == LineRead::End) break;
    std::string answer;
    if (read == LineRead::TooLong) {
      answer = ErrorAnswer(BadRequest("a request line holds at most " +
                                      std::to_string(kMaxRequestBytes) + " bytes"))
                   .dump();
    } else if (line.find_first_not_of(" \t\r") == std::string::npos) {
      continue;  // blank lines are skipped, without an answer
    } else {
      answer = Handle(line);
    }
    // An answer that cannot be written ends the session: nobody reads on.
    out << answer << '\n' << std::flush;
    if (!out) return false;
    if (after_answer && !after_answer()) break;
  }
  return true;
}

std::string AutomateSession::Handle(std::string_view line) {
  Json answer;
  try {
    const Json request = ParseRequest(line);
    if (!request.is_object()) throw BadRequest("a request is a JSON object");
    switch (KindOf(request)) {
      case Kind::Call:
        answer = Call(request);
        break;
      case Kind::Keys:
        answer = Keys(request);
        break;
      case Kind::Set:
        answer = Set(request);
        break;
      case Kind::Get:
        answer = Get(request);
        break;
      case Kind::New:
        answer = New(request);
        break;
      case Kind::Log:
        RequireTrue(request, "log");
        answer = Log();
        break;
      case Kind::Png:
        answer = Png(request);
        break;
      case Kind::Reset:
        RequireTrue(request, "reset");
        Reset();
        answer = Json{{"ok", true}};
        break;
    }
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
  // As late binding answers a name the class lacks.
  if (!method) throw PlatformError::MemberNotSupported("call: unknown method \"" + name + "\"");

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

  // The records hold what this call received and are emptied once answered:
  // nothing can ask for them later.
  kit::Records& records = session_->Records();
  records.Clear();
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
  answer["reports"] = ReportsOf(records);
  answer["boxes"] = BoxesOf(records);
  answer["help"] = HelpOf(records);
  if (records.dropped > 0) answer["dropped"] = records.dropped;
  records.Clear();
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
  SetAll(request["set"], {});
  return Json{{"ok", true}};
}

void AutomateSession::SetAll(const Json& values, const std::string& prefix) {
  // Each old value is read before its new one is written; when a write
  // fails, those already written are put back, last first, so a failing
  // request changes nothing.
  std::vector<std::pair<std::string, Variant>> done;
  try {
    for (const auto& [name, value] : values.items()) {
      const std::string path = prefix + name;
      Variant old = GetValue(path);
      SetValue(path, value);
      done.emplace_back(path, std::move(old));
    }
  } catch (...) {
    for (auto it = done.rbegin(); it != done.rend(); ++it) {
      try {
        SetVariant(it->first, it->second);
      } catch (const PlatformError&) {
        // the value read cannot be written back; the others still are
      }
    }
    throw;
  }
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
  for (const auto& [key, value] : order.items()) {
    if (key != "name" && key != "kind" && key != "file" && key != "set") {
      throw BadRequest("new: unknown member \"" + key + "\"");
    }
  }
  if (order.contains("kind") && !order["kind"].is_string()) {
    throw BadRequest("new: the kind is a string");
  }
  const std::string kind = order.value("kind", std::string("PictureBox"));
  if (kind != "PictureBox" && kind != "Picture") {
    throw BadRequest("new: unknown kind \"" + kind + "\"");
  }
  const std::string name = order["name"].get<std::string>();
  if (name.empty() || name.find_first_of(std::string(".\0", 2)) != std::string::npos) {
    throw BadRequest("new: a name is not empty and holds no point and no NUL");
  }
  if (IsSessionName(name)) {
    throw BadRequest("new: \"" + name + "\" names an object of the session");
  }
  if (order.contains("set") && !order["set"].is_object()) throw BadRequest("new: set is an object");
  if (order.contains("file")) {
    FileName(order["file"], "new");
    if (kind != "Picture") throw BadRequest("new: only a Picture is read from a file");
  }
  // The object gets its name only once every property is set, so a failing
  // request leaves the name as it was.
  const ObjectRef previous = named_.contains(name) ? named_[name] : nullptr;
  named_[name] = kind == "Picture" ? LoadPictureControl(*session_, name, order)
                                   : session_->NewPictureBox();
  try {
    if (order.contains("set")) SetAll(order["set"], name + ".");
  } catch (...) {
    if (previous) {
      named_[name] = previous;
    } else {
      named_.erase(name);
    }
    throw;
  }
  return Json{{"ok", true}};
}

Json AutomateSession::Log() {
  const std::size_t dropped = session_->Recorder().Dropped();
  Json ops = Json::array();
  for (const auto& call : session_->Recorder().TakeLog()) {
    Json op = Json::array({call.name});
    for (const Variant& a : call.args) {
      op.push_back(VariantToJson(a, [this](const ObjectRef& o) { return NameOf(o); }));
    }
    ops.push_back(op);
  }
  Json answer{{"ok", true}, {"ops", ops}};
  if (dropped > 0) answer["dropped"] = dropped;
  return answer;
}

Json AutomateSession::Png(const Json& request) {
  const std::string file = FileName(request["png"], "png");
  // A device or a pipe (/dev/stdout above all) would mix the picture into
  // the answers or wait for a reader: only a file, new or regular, is written.
  std::error_code error;
  if (std::filesystem::exists(file, error) && !std::filesystem::is_regular_file(file, error)) {
    throw BadRequest("png: \"" + file + "\" is not a regular file");
  }
  if (IsStandardStream(file)) {
    throw BadRequest("png: \"" + file + "\" is a standard stream of this tool");
  }
#if FERLAN_HAVE_RASTER
  if (surface_ == SurfaceKind::Raster) {
    raster::WriteFormPng(session_->Form(), file,
                        session_->Env().surface.get());
    return Json{{"ok", true}};
  }
#endif
  throw BadRequest("png: pictures need --surface raster");
}

ObjectRef AutomateSession::ObjectNamed(const std::string& name) {
  if (name == "KyF" || name == "Form") return session_->FormRef();
  // With Env.ZoneAff set to Nothing, the name still gives the session's own
  // surface, so that it can be given back.
  if (name == "ZoneAff") {
    if (session_->Env().surface) return session_->Env().surface;
    return session_->Form().Member("ZoneAff");
  }
  if (name == "Env") return env_object_;
  if (auto it = named_.find(name); it != named_.end()) return it->second;
  if (name == "BarreOutils" || name == "Caret" || name == "zoneMessage" || name == "ClavierKY") {
    return session_->Form().Member(name);
  }
  return nullptr;
}

std::string AutomateSession::NameOf(const ObjectRef& object) {
  if (!object) return {};
  for (const std::string_view n : kSessionObjects) {
    try {
      if (ObjectNamed(std::string(n)) == object) return std::string(n);
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
  if (auto record_value = RecordTableValue(path)) return *record_value;
  const auto [head, member] = SplitPath(path);
  ObjectRef object = ObjectNamed(head);
  if (!object) throw PlatformError::MemberNotSupported(path);
  if (member.empty()) return object;
  const auto [holder, last] = ResolveMember(object, member, path);
  return holder->GetProperty(last);
}

void AutomateSession::SetValue(const std::string& path, const Json& value) {
  SetVariant(path, JsonToVariant(value, [this](const std::string& n) { return ObjectNamed(n); }));
}

void AutomateSession::SetVariant(const std::string& path, const Variant& value) {
  if (path == "Clipboard") {
    session_->SetClipboardText(VariantToString(value));
    return;
  }
  if (IsRecordTablePath(path)) throw BadRequest("set: " + path + " is read-only");
  const auto [head, member] = SplitPath(path);
  ObjectRef object = ObjectNamed(head);
  if (!object || member.empty()) throw PlatformError::MemberNotSupported(path);
  const auto [holder, last] = ResolveMember(object, member, path);
  holder->SetProperty(last, value);
}

}  // namespace ferlan::tool
