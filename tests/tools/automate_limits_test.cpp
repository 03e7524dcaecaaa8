// What `ferlan automate` refuses and how it ends: bad requests answered with
// an error and no change, answers that cannot be written, limits on lines
// and nesting, and outputs written back by a call that fails.
#include <gtest/gtest.h>

#include <sstream>
#include <streambuf>

#include "cli/request_reader.hpp"
#include "support/automate_fixture.hpp"

namespace ferlan::tool {
namespace {

class AutomateLimitsTest : public AutomateFixture {
 protected:
  Json Value(const std::string& path) {
    return Ask(R"({"get":[")" + path + R"("]})")["values"][path];
  }
};

// Refuses every byte, as a closed or full output does.
class BrokenOutput : public std::streambuf {
 protected:
  int_type overflow(int_type) override { return traits_type::eof(); }
  std::streamsize xsputn(const char*, std::streamsize) override { return 0; }
};

TEST_F(AutomateLimitsTest, CallThatFailsStillWritesItsOutputsBack) {
  const Json answer = Ask(R"({"call":"FormatDate","args":["abcde","D"]})");
  EXPECT_EQ(answer["ok"], false);
  EXPECT_EQ(answer["error"]["number"], 5);
  EXPECT_EQ(answer["args"][0], "ab/de") << "the change made before the error";
}

TEST_F(AutomateLimitsTest, BadRequestsAreRefusedWithAnError) {
  const std::string nul_path = std::string(R"({"png":"a)") + "\\u0000" + R"(b.png"})";
  struct Case {
    std::string line;
    int number;
  };
  for (const Case& c : {Case{R"({"call":"FormatDate","args":[{"u16":[4294967361]},"D"]})", 13},
                        Case{R"({"call":"FormatDate","args":[{"u16":[-1]},"D"]})", 13},
                        Case{nul_path, 5},
                        Case{R"({"reset":true,"call":"NbCol"})", 5},
                        Case{R"({"call":"NbCol","call":"NbLigne"})", 5},
                        Case{R"({"get":["Env.CourantX"],"args":[]})", 5},
                        Case{R"({"call":"WinLigne","args":[{"obj":"KyF","obj":"x"}]})", 5},
                        Case{R"({"new":{"name":"a\u0000b"}})", 5},
                        Case{R"({"new":{"name":"p","kind":"Picture","file":"a\u0000b.bmp"}})", 5},
                        Case{R"({"new":{"name":"Env"}})", 5}}) {
    const Json answer = Ask(c.line);
    EXPECT_EQ(answer["ok"], false) << c.line;
    EXPECT_EQ(answer["error"]["number"], c.number) << c.line;
  }
}

TEST_F(AutomateLimitsTest, NestingIsBoundedWhileParsing) {
  const std::string deep(kMaxRequestDepth + 1, '[');
  EXPECT_NE(Ask(deep)["error"]["description"].get<std::string>().find("nests at most"),
            std::string::npos);
  const std::string shallow = std::string(kMaxRequestDepth, '[') + std::string(kMaxRequestDepth, ']');
  EXPECT_NE(Ask(shallow)["error"]["description"].get<std::string>().find("a JSON object"),
            std::string::npos);
  // Ten million levels stop at the limit: nothing deeper is built.
  EXPECT_EQ(Ask(std::string(10'000'000, '['))["ok"], false);
}

TEST_F(AutomateLimitsTest, FailingSetOrNewChangesNothing) {
  const Json failed = Ask(R"({"set":{"Env.ToucheEntree":10,"Clipboard":"new","Env.Nope":1}})");
  EXPECT_EQ(failed["error"]["number"], 438);
  EXPECT_EQ(Value("Env.ToucheEntree"), 13);
  EXPECT_EQ(Value("Clipboard"), "");
  const Json bad_value = Ask(R"({"set":{"Env.ToucheEntree":10,"Env.ToucheVide":[1]}})");
  EXPECT_EQ(bad_value["ok"], false);
  EXPECT_EQ(Value("Env.ToucheEntree"), 13);

  ASSERT_EQ(Ask(R"({"new":{"name":"pic","set":{"Width":600}}})")["ok"], true);
  EXPECT_EQ(Ask(R"({"new":{"name":"pic","set":{"Width":900,"Nope":1}}})")["ok"], false);
  EXPECT_EQ(Value("pic.Width"), 600) << "the earlier object keeps its name";
  EXPECT_EQ(Ask(R"({"new":{"name":"other","set":{"Nope":1}}})")["ok"], false);
  EXPECT_EQ(Ask(R"({"get":["other.Width"]})")["error"]["number"], 438);
}

TEST_F(AutomateLimitsTest, RunEndsWhenAnAnswerCannotBeWritten) {
  BrokenOutput broken;
  std::ostream out(&broken);
  std::istringstream in("{\"call\":\"NbCol\"}\n{\"set\":{\"Env.ToucheEntree\":10}}\n");
  EXPECT_FALSE(session.Run(in, out));
  EXPECT_EQ(Value("Env.ToucheEntree"), 13) << "no request is evaluated after a lost answer";
}

TEST_F(AutomateLimitsTest, OverlongLineIsAnsweredWithoutBeingKept) {
  std::istringstream in(std::string(kMaxRequestBytes + 1, ' ') + "\n\n{\"call\":\"NbCol\"}\n");
  std::ostringstream out;
  ASSERT_TRUE(session.Run(in, out));
  std::istringstream lines(out.str());
  std::string first, second, third;
  std::getline(lines, first);
  std::getline(lines, second);
  EXPECT_NE(Json::parse(first)["error"]["description"].get<std::string>().find("at most"),
            std::string::npos);
  EXPECT_EQ(Json::parse(second)["ok"], true);
  EXPECT_FALSE(std::getline(lines, third)) << "a blank line gets no answer";
}

}  // namespace
}  // namespace ferlan::tool
