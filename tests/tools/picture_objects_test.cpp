// `new` of kind "Picture": an image file as a picture control passed by name.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

#include "support/automate_fixture.hpp"

namespace ferlan::tool {
namespace {

class PictureObjectTest : public AutomateFixture {
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
  for (const std::string& file : {(dir / "none.bmp").string(), (dir / "text.bmp").string()}) {
    const Json answer = Ask(R"({"new":{"name":"p","kind":"Picture","file":")" + file + "\"}}");
    EXPECT_EQ(answer["ok"], false);
    EXPECT_EQ(answer["error"]["number"], 5);
    EXPECT_NE(answer["error"]["description"].get<std::string>().find(file), std::string::npos)
        << answer.dump();
  }
  EXPECT_EQ(Ask(R"({"new":{"name":"p","kind":"Picture"}})")["error"]["number"], 5);
  EXPECT_EQ(Ask(R"({"call":"ImageSD","args":["X",null]})")["error"]["number"], 91);
}

}  // namespace
}  // namespace ferlan::tool
