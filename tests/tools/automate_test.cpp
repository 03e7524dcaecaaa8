// `ferlan automate`: the answer to each kind of request, what it refuses
// (with no change made), how a run reads lines and ends, pictures made from
// files, and positions far off the surface on every surface.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <streambuf>
#include <string>

#include "cli/automate_session.hpp"
#include "cli/request_reader.hpp"
#include "support/automate_fixture.hpp"

namespace ferlan::tool {
namespace {

class AutomateTest : public AutomateFixture {
 protected:
  // The error number of a request that must be refused.
  Json Refused(std::string_view line) {
    const Json answer = Ask(line);
    EXPECT_EQ(answer["ok"], false) << line;
    return answer["error"]["number"];
  }
  std::string Description(std::string_view line) {
    return Ask(line)["error"]["description"].get<std::string>();
  }
};

TEST_F(AutomateTest, CallAnswersResultAndArgumentsAfterTheCall) {
  EXPECT_EQ(session.Handle(R"({"call":"WinLigne","args":[2.5]})"),
            R"({"ok":true,"result":780,"args":[2.5],"reports":[],"boxes":[],"help":[]})");
  EXPECT_EQ(Ask(R"({"call":"Couleur","args":["x"]})")["reports"],
            Json::parse(R"([{"source":"Couleur","text":"x Code Couleur Inconnu"}])"));
  // A call that fails still writes back the change made before its error.
  const Json failed = Ask(R"({"call":"FormatDate","args":["abcde","D"]})");
  EXPECT_EQ(failed["error"]["number"], 5);
  EXPECT_EQ(failed["args"][0], "ab/de");
}

TEST_F(AutomateTest, BadRequestsAreRefusedWithTheirNumberAndTheSessionGoesOn) {
  const std::string nul_path = std::string(R"({"png":"a)") + "\\u0000" + R"(b.png"})";
  const std::pair<std::string, int> cases[] = {
      {"{broken", 5}, {R"({"call":"Nope"})", 438}, {R"({"call":"WinLigne","args":["x"]})", 13},
      {R"({"call":"WinLigne","args":[1,2]})", 450}, {R"({"call":"Dorvi"})", 449},
      {R"({"call":"WinLigne","args":[{"obj":"nobody"}]})", 13},
      {R"({"get":["Nobody.Width"]})", 438}, {R"({"keys":"{NoSuchKey}"})", 5}, {R"([1,2])", 5},
      {R"({"frobnicate":1})", 5}, {R"({"png":"x.png"})", 5},
      {R"({"call":"FormatDate","args":[{"u16":[4294967361]},"D"]})", 13},
      {R"({"call":"FormatDate","args":[{"u16":[-1]},"D"]})", 13}, {nul_path, 5},
      {std::string(R"({"call":"NbCol"})") + '\0' + "x", 5},
      {R"({"reset":true,"call":"NbCol"})", 5}, {R"({"call":"NbCol","call":"NbLigne"})", 5},
      {R"({"reset":false})", 5}, {R"({"log":0})", 5},
      {R"({"get":["Env.CourantX"],"args":[]})", 5},
      {R"({"call":"WinLigne","args":[{"obj":"KyF","obj":"x"}]})", 5},
      {R"({"new":{"name":"a\u0000b"}})", 5},
      {R"({"new":{"name":"p","kind":"Picture","file":"a\u0000b.bmp"}})", 5},
      {R"({"new":{"name":"Env"}})", 5}, {R"({"new":{"name":"Rub"}})", 5},
      // The record table: read-only, by record number and field name.
      {R"({"get":["Rub.41.L"]})", 9}, {R"({"get":["Rub.-1.L"]})", 9},
      {R"({"get":["Rub.1.Nope"]})", 438}, {R"({"get":["Rub.1"]})", 438},
      {R"({"get":["Rub.x.L"]})", 5}, {R"({"set":{"Rub.1.L":3}})", 5}, {R"({"set":{"NbRub":3}})", 5}};
  for (const auto& [line, number] : cases) EXPECT_EQ(Refused(line), number) << line;
  EXPECT_EQ(Ask(R"({"call":"WinLigne","args":[1]})")["result"], 312);
  // Nesting is bounded while parsing: ten million levels stop at the limit.
  const std::string deep(kMaxRequestDepth + 1, '[');
  EXPECT_NE(Description(deep).find("nests at most"), std::string::npos);
  const std::string shallow = std::string(kMaxRequestDepth, '[') + std::string(kMaxRequestDepth, ']');
  EXPECT_NE(Description(shallow).find("a JSON object"), std::string::npos);
  Refused(std::string(10'000'000, '['));
}

TEST_F(AutomateTest, KeysReachAWaitAndAnEmptyScriptStarvesForOneCall) {
  EXPECT_EQ(Ask(R"({"keys":"ab{Left}{Ctrl+End}{Enter}"})")["queued"], 5);
  EXPECT_EQ(Ask(R"({"call":"Saisie","args":["",0]})")["args"], Json::parse(R"(["a",0])"));
  Ask(R"({"reset":true})");  // an empty script
  const Json starved = Ask(R"({"call":"Saisie","args":["",0]})");
  EXPECT_EQ(starved["args"][1], 0);
  EXPECT_EQ(starved.value("starved", false), true);
  EXPECT_FALSE(Ask(R"({"call":"WinLigne","args":[1]})").contains("starved"));
}

TEST_F(AutomateTest, GetSetNewLogAndResetAndAFailingSetChangesNothing) {
  Ok(R"({"set":{"Env.ToucheEntree":10,"Form.WindowState":2,"Clipboard":"hé"}})");
  EXPECT_EQ(Ask(R"({"get":["Env.ToucheEntree","Form.WindowState","Clipboard"]})")["values"],
            Json::parse(R"({"Env.ToucheEntree":10,"Form.WindowState":2,"Clipboard":"hé"})"));
  Ok(R"({"new":{"name":"pic","kind":"PictureBox","set":{"Width":600}}})");
  Ask(R"({"log":true})");
  Ask(R"({"call":"EffaceZoneSaisie","args":[312,105,1000,-1,{"obj":"pic"}]})");
  EXPECT_EQ(Log(), Json::parse(R"([["EffaceRect",107,312,1102,506,-1]])"));
  EXPECT_EQ(Log(), Json::array());
  Ask(R"({"reset":true})");
  EXPECT_EQ(Get("Env.ToucheEntree"), 13);
  EXPECT_EQ(Get("Env"), Json::parse(R"({"obj":"Env"})")) << "an object is answered by its name";
  Ask(R"({"set":{"Env.ZoneAff":null}})");
  Ok(R"({"set":{"Env.ZoneAff":{"obj":"ZoneAff"}}})");  // the surface given back by its name
  EXPECT_EQ(Get("Env.ZoneAff"), Json::parse(R"({"obj":"ZoneAff"})"));
  Refused(R"({"get":["pic.Width"]})");

  EXPECT_EQ(Refused(R"({"set":{"Env.ToucheEntree":10,"Clipboard":"new","Env.Nope":1}})"), 438);
  Refused(R"({"set":{"Env.ToucheEntree":10,"Env.ToucheVide":[1]}})");
  EXPECT_EQ(Get("Env.ToucheEntree"), 13);
  EXPECT_EQ(Get("Clipboard"), "");
  Ok(R"({"new":{"name":"pic","set":{"Width":600}}})");
  Refused(R"({"new":{"name":"pic","set":{"Width":900,"Nope":1}}})");
  EXPECT_EQ(Get("pic.Width"), 600) << "the earlier object keeps its name";
  Refused(R"({"new":{"name":"other","set":{"Nope":1}}})");
  EXPECT_EQ(Refused(R"({"get":["other.Width"]})"), 438);
}

TEST_F(AutomateTest, FontPropertiesAreReachedByNestedNames) {
  Ok(R"({"set":{"ZoneAff.Font.Size":12,"ZoneAff.Font.Bold":true}})");
  EXPECT_EQ(Ask(R"({"call":"HauteurTexte"})")["result"], 234);  // 19.5 x 12
  Ask(R"({"new":{"name":"pic","set":{"Width":600,"Font.Size":8}}})");
  EXPECT_EQ(Get("pic.Font.Size"), 8);
  for (const char* bad : {R"({"get":["ZoneAff.Font.Colour"]})", R"({"get":["ZoneAff.Width.Size"]})",
                          R"({"set":{"ZoneAff.Font.":1}})"}) {
    EXPECT_EQ(Refused(bad), 438) << bad;
  }
}

TEST_F(AutomateTest, TextsCarryEverySixteenBitUnitBothWays) {
  // U+0000 as a JSON escape, a lone surrogate as {"u16":[...]}.
  const Json answer = Ask(R"({"call":"FormatDate","args":[{"u16":[0,55296,65,66,67,68,69]},"D"]})");
  EXPECT_EQ(answer["args"][0], Json::parse(R"({"u16":[0,55296,47,66,67,47,69]})"));
  const Json nul = Ask(R"({"call":"FormatDate","args":["\u0000\u0001abcdef","D"]})");
  EXPECT_EQ(nul["args"][0], std::string("\0\x01/bc/ef", 8));
}

TEST_F(AutomateTest, RecordTableReadsBackAfterDorvi) {
  Ask(R"({"call":"AffPos","args":[4]})");
  Ask(R"({"set":{"ZoneAff.Width":8000}})");
  Ask(R"({"call":"Dorvi","args":["[[NOM,Nom du client,A,30],[CODE,Code,I0,5,ML]]"]})");
  EXPECT_EQ(Ask(R"({"get":["NbRub","Rub.2.Identif","Rub.2.TypeDon","Rub.2.Valeur","Rub.2.LzT",)"
                R"("Rub.2.L","Rub.0.Identif"]})")["values"],
            Json::parse(R"({"NbRub":2,"Rub.2.Identif":"CODE","Rub.2.TypeDon":"I0",
                "Rub.2.Valeur":"","Rub.2.LzT":735,"Rub.2.L":4,"Rub.0.Identif":""})"));
}

TEST_F(AutomateTest, RunAnswersEveryLineInOrderAndEndsWhenAnAnswerIsLost) {
  std::istringstream input("{\"call\":\"WinCol\",\"args\":[3]}\n\n{oops\n" +
                           std::string(kMaxRequestBytes + 1, ' ') + "\n{\"call\":\"NbCol\"}\n");
  std::ostringstream output;
  EXPECT_TRUE(session.Run(input, output));
  std::istringstream lines(output.str());
  std::vector<Json> answers;
  for (std::string line; std::getline(lines, line);) answers.push_back(Json::parse(line));
  ASSERT_EQ(answers.size(), 4u) << "a blank line gets no answer";
  EXPECT_EQ(answers[0]["result"], 315);
  EXPECT_EQ(answers[1]["ok"], false);
  EXPECT_NE(answers[2]["error"]["description"].get<std::string>().find("at most"),
            std::string::npos);
  EXPECT_EQ(answers[3]["ok"], true);

  // An output that refuses every byte, as a closed or full one does.
  struct BrokenOutput : std::streambuf {
    int_type overflow(int_type) override { return traits_type::eof(); }
    std::streamsize xsputn(const char*, std::streamsize) override { return 0; }
  } broken;
  std::ostream out(&broken);
  std::istringstream in("{\"call\":\"NbCol\"}\n{\"set\":{\"Env.ToucheEntree\":10}}\n");
  EXPECT_FALSE(session.Run(in, out));
  EXPECT_EQ(Get("Env.ToucheEntree"), 13) << "no request is evaluated after a lost answer";
}

class PictureObjectTest : public AutomateTest {
 protected:
  std::filesystem::path dir = std::filesystem::temp_directory_path() /
                              ("ferlan_pictures_" + std::to_string(::getpid()));
  void SetUp() override { std::filesystem::create_directories(dir); }
  void TearDown() override { std::filesystem::remove_all(dir); }
};

// The picture control takes the image's size, hidden, and is passed by name;
// ImageAD here paints it right of record 0 of an empty screen, after the report.
TEST_F(PictureObjectTest, AFileBecomesAPictureControlForImageAD) {
  const std::string file = FERLAN_SOURCE_DIR "/examples/logo.bmp";  // 48 x 24 pixels
  EXPECT_EQ(Ask(R"({"new":{"name":"logo","kind":"Picture","file":")" + file + "\"}}"),
            Json::parse(R"({"ok":true})"));
  EXPECT_EQ(Ask(R"({"get":["logo.Width","logo.Height","logo.Visible"]})")["values"],
            Json::parse(R"({"logo.Width":720,"logo.Height":360,"logo.Visible":false})"));
  const Json answer = Ok(R"({"call":"ImageAD","args":["LOGO",{"obj":"logo"}]})");
  EXPECT_EQ(answer["reports"][0]["source"], "RechRub");
}

TEST_F(PictureObjectTest, MissingOrBadFilesGiveClearErrors) {
  std::ofstream(dir / "text.bmp") << "not a picture";
  for (const std::string& file :
       {(dir / "none.bmp").string(), (dir / "text.bmp").string(), dir.string()}) {
    const std::string line = R"({"new":{"name":"p","kind":"Picture","file":")" + file + "\"}}";
    EXPECT_EQ(Refused(line), 5);
    EXPECT_NE(Description(line).find(file), std::string::npos) << line;
  }
  EXPECT_EQ(Refused(R"({"new":{"name":"p","kind":"Picture"}})"), 5);
  EXPECT_EQ(Refused(R"({"new":{"name":"p","file":"x.bmp"}})"), 5);
  EXPECT_EQ(Refused(R"({"call":"ImageSD","args":["X",null]})"), 91);
}

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

TEST(PngRequestTest, AFormTooLargeOrAFileNotRegularIsAnErrorAndTheSessionGoesOn) {
  const auto kind = SurfaceByName("raster");
  if (!kind) GTEST_SKIP() << "the raster back-end was not built";
  AutomateSession session{*kind};
  const auto ask = [&](const std::string& line) { return Json::parse(session.Handle(line)); };
  ask(R"({"set":{"Form.Width":1e9,"Form.Height":1e9}})");
  const Json answer = ask(R"({"png":"never-written.png"})");
  EXPECT_EQ(answer["ok"], false);
  EXPECT_EQ(answer["error"]["number"], 51);
  EXPECT_EQ(ask(R"({"call":"WinLigne","args":[1]})")["ok"], true);
  // A control whose image cannot grow keeps the size of the image it has.
  EXPECT_EQ(ask(R"({"set":{"ZoneAff.Height":1e9}})")["error"]["number"], 51);
  EXPECT_EQ(ask(R"({"get":["ZoneAff.Height"]})")["values"]["ZoneAff.Height"], 8550);
  // At the usual size, a picture goes to a regular file only.
  ask(R"({"reset":true})");
  for (const char* target : {"/dev/null", "/dev/stdout", "/tmp"}) {
    const Json refused = ask(Json{{"png", target}}.dump());
    EXPECT_EQ(refused["ok"], false) << target;
    EXPECT_EQ(refused["error"]["number"], 5) << target;
  }
  const std::string file = testing::TempDir() + "ferlan-png-request.png";
  std::remove(file.c_str());
  EXPECT_EQ(ask(Json{{"png", file}}.dump())["ok"], true);
  EXPECT_EQ(ask(Json{{"png", file}}.dump())["ok"], true);  // overwritten
  std::remove(file.c_str());
}

}  // namespace
}  // namespace ferlan::tool
