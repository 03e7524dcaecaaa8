// Positions far off the surface, through `ferlan automate` on every surface:
// each request gets its answer and the session goes on.
#include <gtest/gtest.h>

#include <string>

#include "ferlan/automate_session.hpp"

namespace ferlan::tool {
namespace {

TEST(FarDrawingTest, TextBoxesAndFieldsFarOffAreAnsweredOnEverySurface) {
  for (const char* surface : {"fixed", "raster"}) {
    const auto kind = SurfaceByName(surface);
    if (!kind) continue;  // the raster back-end was not built
    AutomateSession session{*kind};
    const auto ask = [&](const std::string& line) {
      const Json answer = Json::parse(session.Handle(line));
      EXPECT_TRUE(answer.contains("ok")) << surface << " " << line;
      return answer;
    };
    for (const char* v : {"1e30", "-3e38", "3.4e38", "-3.4e38"}) {
      const std::string far(v);
      ask(R"({"call":"AfficheT","args":[1,)" + far + R"(,"I","x"]})");
      ask(R"({"call":"AfficheColT","args":[1,)" + far + R"(,"I","x"]})");
      ask(R"({"call":"EffaceZoneSaisie","args":[)" + far + "," + far + "," + far + ",255]}");
      ask(R"({"call":"EffaceZoneSaisie","args":[100,)" + far + ",2e9,255]}");
      ask(R"({"keys":"ab{Enter}"})");
      ask(R"({"call":"Modif","args":[100,1,)" + far + R"(,5,)" + far + "," + far +
          R"(,"","",0,"P"]})");
      ask(R"({"set":{"Env.CourantX":)" + far + R"(,"Env.CourantY":)" + far + "}}");
      ask(R"({"call":"Aff","args":["I","xyz"]})");
      ask(R"({"reset":true})");
    }
    EXPECT_EQ(ask(R"({"call":"WinLigne","args":[1]})")["ok"], true) << surface;
  }
}

TEST(FarDrawingTest, AFormTooLargeForAPictureIsAnErrorAndTheSessionGoesOn) {
  const auto kind = SurfaceByName("raster");
  if (!kind) GTEST_SKIP() << "the raster back-end was not built";
  AutomateSession session{*kind};
  session.Handle(R"({"set":{"Form.Width":1e9,"Form.Height":1e9}})");
  const Json answer = Json::parse(session.Handle(R"({"png":"never-written.png"})"));
  EXPECT_EQ(answer["ok"], false);
  EXPECT_EQ(answer["error"]["number"], 51);
  EXPECT_EQ(Json::parse(session.Handle(R"({"call":"WinLigne","args":[1]})"))["ok"], true);
}

}  // namespace
}  // namespace ferlan::tool
