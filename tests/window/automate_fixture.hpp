// Window tests that drive the component as a host does over `ferlan
// automate`: one JSON request, one answer. The headless session behind it is
// the same as SessionTest's: a 12000 x 9000 form (11880 x 8550 inside) with a
// hidden toolbar, and a surface that fills it with a border of 60.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "cli/automate_session.hpp"

namespace ferlan::testing {

class AutomateWindowTest : public ::testing::Test {
 protected:
  // The answer to one request; a request the tool refuses fails the test.
  tool::Json Ask(std::string_view line) {
    tool::Json answer = tool::Json::parse(automate.Handle(line));
    EXPECT_TRUE(answer.value("ok", false)) << line << "\n" << answer.dump();
    return answer;
  }
  tool::Json Call(std::string_view method, const tool::Json& args = tool::Json::array()) {
    return Ask(tool::Json{{"call", method}, {"args", args}}.dump());
  }
  // One property by its request name ("ZoneAff.Top").
  tool::Json Get(const std::string& path) {
    return Ask(tool::Json{{"get", {path}}}.dump())["values"][path];
  }
  void Set(const tool::Json& values) { Ask(tool::Json{{"set", values}}.dump()); }
  // The drawing calls since the last look.
  tool::Json Log() { return Ask(R"({"log":true})")["ops"]; }

  tool::AutomateSession automate{tool::SurfaceKind::Fixed};
};

}  // namespace ferlan::testing
