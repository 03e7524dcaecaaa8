// A test that drives the component as a host does over `ferlan automate`: one
// session on the fixed surface, one JSON request, its answer parsed. The
// session is SessionTest's: a 12000 x 9000 form (11880 x 8550 inside) with a
// hidden toolbar, and a surface that fills it with a border of 60.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "cli/automate_session.hpp"

namespace ferlan::tool {

class AutomateFixture : public ::testing::Test {
 protected:
  Json Ask(std::string_view line) { return Json::parse(session.Handle(line)); }
  // The answer to a request that must succeed.
  Json Ok(std::string_view line) {
    Json answer = Ask(line);
    EXPECT_EQ(answer.value("ok", false), true) << line << "\n" << answer.dump();
    return answer;
  }
  Json Call(std::string_view method, const Json& args = Json::array()) {
    return Ok(Json{{"call", method}, {"args", args}}.dump());
  }
  // One value by its request name ("ZoneAff.Top").
  Json Get(const std::string& path) { return Ask(Json{{"get", {path}}}.dump())["values"][path]; }
  void Set(const Json& values) { Ok(Json{{"set", values}}.dump()); }
  // The drawing calls since the last look.
  Json Log() { return Ok(R"({"log":true})")["ops"]; }

  AutomateSession session{SurfaceKind::Fixed};
};

}  // namespace ferlan::tool
