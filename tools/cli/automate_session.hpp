// `ferlan automate`: one JSON request a line in, one answer a line out,
// against a headless host session that `reset` replaces.
#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "cli/json_values.hpp"
#include "cli/surface_choice.hpp"

namespace ferlan::headless {
class Session;
}

namespace ferlan::tool {

class AutomateSession {
 public:
  // Makes the session that a request runs against, at the start and at each
  // `reset`: another front-end's (a window's) in place of the headless one.
  using SessionFactory = std::function<std::unique_ptr<headless::Session>()>;

  explicit AutomateSession(SurfaceKind surface, SessionFactory factory = nullptr);
  ~AutomateSession();

  enum class Kind { Call, Keys, Set, Get, New, Log, Png, Reset };

  // The answer to one request line, without its line end. Never throws.
  std::string Handle(std::string_view line);
  // Answers every line of `in` on `out` until the end of the input, or
  // until `after_answer` (called once each answer is written) gives false;
  // false as soon as an answer cannot be written (the session then ends).
  bool Run(std::istream& in, std::ostream& out,
           const std::function<bool()>& after_answer = nullptr);

 private:
  Json Call(const Json& request);
  Json Keys(const Json& request);
  Json Set(const Json& request);
  Json Get(const Json& request);
  Json New(const Json& request);
  Json Log();
  Json Png(const Json& request);
  void Reset();
  // The one kind of a request; raises for none, two, or a stray member.
  static Kind KindOf(const Json& request);

  // The object a name prefix stands for in get/set and {"obj":...}.
  ObjectRef ObjectNamed(const std::string& name);
  std::string NameOf(const ObjectRef& object);
  Variant GetValue(const std::string& path);
  void SetValue(const std::string& path, const Json& value);
  void SetVariant(const std::string& path, const Variant& value);
  // Sets every `prefix`+name of `values`, or, when one fails, none.
  void SetAll(const Json& values, const std::string& prefix);

  SurfaceKind surface_;
  SessionFactory factory_;
  std::unique_ptr<headless::Session> session_;
  ObjectRef env_object_;                    // what the name Env stands for
  std::map<std::string, ObjectRef> named_;  // objects made with `new`
};

}  // namespace ferlan::tool
