#include <gtest/gtest.h>

#include <sstream>

#include "support/automate_fixture.hpp"

namespace ferlan::tool {
namespace {

using AutomateTest = AutomateFixture;

TEST_F(AutomateTest, CallAnswersResultAndArgumentsAfterTheCall) {
  EXPECT_EQ(session.Handle(R"({"call":"WinLigne","args":[2.5]})"),
            R"({"ok":true,"result":780,"args":[2.5],"reports":[],"boxes":[],"help":[]})");
  const Json pos = Ask(R"({"call":"PosAff","args":[0,0]})");
  EXPECT_EQ(pos["args"], Json::parse("[0,0]"));
  const Json unknown_colour = Ask(R"({"call":"Couleur","args":["x"]})");
  EXPECT_EQ(unknown_colour["result"], 0);
  EXPECT_EQ(unknown_colour["reports"],
            Json::parse(R"([{"source":"Couleur","text":"x Code Couleur Inconnu"}])"));
}

TEST_F(AutomateTest, BadRequestsGetErrorAnswersAndTheSessionGoesOn) {
  struct Case {
    const char* line;
    int number;
  };
  for (const Case& c : {Case{"{broken", 5}, Case{R"({"call":"Nope"})", 5},
                        Case{R"({"call":"WinLigne","args":["x"]})", 13},
                        Case{R"({"call":"WinLigne","args":[1,2]})", 450},
                        Case{R"({"call":"WinLigne"})", 449},
                        Case{R"({"call":"Dorvi"})", 449},
                        Case{R"({"call":"WinLigne","args":[{"obj":"nobody"}]})", 13},
                        Case{R"({"get":["Nobody.Width"]})", 438},
                        Case{R"({"set":{"Env.NoSuchThing":1}})", 438},
                        Case{R"({"keys":"{NoSuchKey}"})", 5}, Case{R"([1,2])", 5},
                        Case{R"({"frobnicate":1})", 5}, Case{R"({"png":"x.png"})", 5}}) {
    const Json answer = Ask(c.line);
    EXPECT_EQ(answer["ok"], false) << c.line;
    EXPECT_EQ(answer["error"]["number"], c.number) << c.line;
  }
  EXPECT_EQ(Ask(R"({"call":"WinLigne","args":[1]})")["result"], 312);
}

TEST_F(AutomateTest, KeysReachAWaitAndAnEmptyScriptStarves) {
  EXPECT_EQ(Ask(R"({"keys":"ab{Left}{Ctrl+End}{Enter}"})")["queued"], 5);
  EXPECT_EQ(Ask(R"({"call":"Saisie","args":["",0]})")["args"], Json::parse(R"(["a",0])"));
  EXPECT_EQ(Ask(R"({"call":"Saisie","args":["",0]})")["args"], Json::parse(R"(["b",0])"));
  EXPECT_EQ(Ask(R"({"call":"Saisie","args":["",0]})")["args"], Json::parse(R"(["",37])"));
  Ask(R"({"reset":true})");  // an empty script
  const Json starved = Ask(R"({"call":"Saisie","args":["",0]})");
  EXPECT_EQ(starved["args"][1], 0);
  EXPECT_EQ(starved.value("starved", false), true);
  const Json next = Ask(R"({"call":"WinLigne","args":[1]})");
  EXPECT_FALSE(next.contains("starved")) << "starvation lasts for one call";
}

TEST_F(AutomateTest, ScriptedKeysReachSaisieThroughTheProtocol) {
  const std::pair<const char*, const char*> cases[] = {
      {"{Left}", R"(["R",37])"},          {"{Shift+Tab}", R"(["R",1009])"},
      {"{Ctrl+Shift+Left}", R"(["R",3037])"}, {"{Alt+R}", R"(["R",4082])"},
      {"{Shift+F1}", R"(["R",1112])"},    {"{Ctrl+B}", "[\"\\u0002\",0]"},
      {"{Shift+a}", R"(["A",0])"},       {"{Ctrl+R}", R"(["R",0])"},
      {"{CapsLock}x", R"(["x",0])"}};
  for (const auto& c : cases) {
    Ask(std::string(R"({"keys":")") + c.first + R"("})");
    const Json answer = Ask(R"({"call":"Saisie","args":["R",0]})");
    EXPECT_EQ(answer["args"], Json::parse(c.second)) << c.first;
  }
}

TEST_F(AutomateTest, StoredBinaryFormsTravelAndDecodeToTheSameValue) {
  for (const char* value : {"256", "-32767", "0"}) {
    const Json coded = Ask(std::string(R"({"call":"CodeType","args":[")") + value + R"(","I",-1]})");
    const Json stored = coded["args"][0];
    Json request = {{"call", "DecodeType"}, {"args", {stored, "I0", 0, 0}}};
    const Json decoded = Ask(request.dump());
    EXPECT_EQ(decoded["args"][0], value) << stored.dump();
    EXPECT_EQ(decoded["args"][1], "I");
  }
  const Json real = Ask(R"({"call":"CodeType","args":["1234.5","D",-1]})");
  Json request = {{"call", "DecodeType"}, {"args", {real["args"][0], "D2", 0, 0}}};
  EXPECT_EQ(Ask(request.dump())["args"][0], "1234.50");
}

TEST_F(AutomateTest, GetSetNewLogAndReset) {
  EXPECT_EQ(Ask(R"({"set":{"Env.ToucheEntree":10,"Form.WindowState":2,"Clipboard":"hé"}})")["ok"],
            true);
  const Json values = Ask(R"({"get":["Env.ToucheEntree","Form.WindowState","Clipboard"]})");
  EXPECT_EQ(values["values"], Json::parse(R"({"Env.ToucheEntree":10,"Form.WindowState":2,
                                               "Clipboard":"hé"})"));
  EXPECT_EQ(Ask(R"({"new":{"name":"pic","kind":"PictureBox","set":{"Width":600}}})")["ok"], true);
  EXPECT_EQ(Ask(R"({"get":["pic.Width"]})")["values"]["pic.Width"], 600);
  Ask(R"({"log":true})");
  Ask(R"({"call":"EffaceZoneSaisie","args":[312,105,1000,-1,{"obj":"pic"}]})");
  EXPECT_EQ(Ask(R"({"log":true})")["ops"], Json::parse(R"([["EffaceRect",107,312,1102,506,-1]])"));
  EXPECT_EQ(Ask(R"({"log":true})")["ops"], Json::array());
  Ask(R"({"reset":true})");
  EXPECT_EQ(Ask(R"({"get":["Env.ToucheEntree"]})")["values"]["Env.ToucheEntree"], 13);
  EXPECT_EQ(Ask(R"({"get":["pic.Width"]})")["ok"], false);
}

TEST_F(AutomateTest, TextsCarryEverySixteenBitUnitBothWays) {
  // U+0000 as a JSON escape, a lone surrogate as {"u16":[...]}.
  const Json answer = Ask(R"({"call":"FormatDate","args":[{"u16":[0,55296,65,66,67,68,69]},"D"]})");
  EXPECT_EQ(answer["args"][0], Json::parse(R"({"u16":[0,55296,47,66,67,47,69]})"));
  const Json nul = Ask(R"({"call":"FormatDate","args":["\u0000\u0001abcdef","D"]})");
  EXPECT_EQ(nul["args"][0], std::string("\0\x01/bc/ef", 8));
}

TEST_F(AutomateTest, RunAnswersEveryLineInOrder) {
  std::istringstream in("{\"call\":\"WinCol\",\"args\":[3]}\n\n{oops\n{\"call\":\"NbCol\"}\n");
  std::ostringstream out;
  session.Run(in, out);
  std::istringstream lines(out.str());
  std::string line;
  std::vector<Json> answers;
  while (std::getline(lines, line)) answers.push_back(Json::parse(line));
  ASSERT_EQ(answers.size(), 3u);
  EXPECT_EQ(answers[0]["result"], 315);
  EXPECT_EQ(answers[1]["ok"], false);
  EXPECT_EQ(answers[2]["ok"], true);
}

}  // namespace
}  // namespace ferlan::tool
