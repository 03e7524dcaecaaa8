// A test that drives the component as a host does over `ferlan automate`: one
// session on the fixed surface, one JSON request, its answer parsed.
#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "cli/automate_session.hpp"

namespace ferlan::tool {

class AutomateFixture : public ::testing::Test {
 protected:
  Json Ask(std::string_view line) { return Json::parse(session.Handle(line)); }
  AutomateSession session{SurfaceKind::Fixed};
};

}  // namespace ferlan::tool
