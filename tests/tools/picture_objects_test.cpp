// `new` of kind "Picture": an image file as a picture control passed by name.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

#include "support/automate_fixture.hpp"

namespace ferlan::tool {
namespace {

// A 24-bit BMP of one colour, `w` x `h` pixels.
void WriteBmp(const std::filesystem::path& path, int w, int h) {
  const int row = (w * 3 + 3) / 4 * 4;
  const std::uint32_t size = 54 + static_cast<std::uint32_t>(row * h);
  std::vector<std::uint8_t> b(size, 0);
  auto put = [&](std::size_t at, std::uint32_t v, int n) {
    for (int i = 0; i < n; ++i) b[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
  };
  b[0] = 'B';
  b[1] = 'M';
  put(2, size, 4);
  put(10, 54, 4);
  put(14, 40, 4);
  put(18, static_cast<std::uint32_t>(w), 4);
  put(22, static_cast<std::uint32_t>(h), 4);
  put(26, 1, 2);
  put(28, 24, 2);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) b[54 + y * row + x * 3 + 2] = 0xC0;  // red
  std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(b.data()), size);
}

class PictureObjectTest : public AutomateFixture {
 protected:
  std::filesystem::path dir = std::filesystem::temp_directory_path() /
                              ("ferlan_pictures_" + std::to_string(::getpid()));
  void SetUp() override { std::filesystem::create_directories(dir); }
  void TearDown() override { std::filesystem::remove_all(dir); }
};

// The picture control takes the image's size; ImageAD paints it right of the
// field (here record 0 of an empty screen, at X 105, after the report) and the
// surface grows to hold it.
TEST_F(PictureObjectTest, AFileBecomesAPictureControlForImageAD) {
  WriteBmp(dir / "wide.bmp", 900, 2);
  const std::string file = (dir / "wide.bmp").string();
  EXPECT_EQ(Ask(R"({"new":{"name":"logo","kind":"Picture","file":")" + file + "\"}}"),
            Json::parse(R"({"ok":true})"));
  EXPECT_EQ(Ask(R"({"get":["logo.Width","logo.Height","logo.Visible"]})")["values"],
            Json::parse(R"({"logo.Width":13500,"logo.Height":30,"logo.Visible":false})"));
  const Json answer = Ask(R"({"call":"ImageAD","args":["LOGO",{"obj":"logo"}]})");
  EXPECT_EQ(answer["ok"], true) << answer.dump();
  EXPECT_EQ(answer["reports"][0]["source"], "RechRub");
  EXPECT_GE(Ask(R"({"get":["ZoneAff.ScaleWidth"]})")["values"]["ZoneAff.ScaleWidth"], 13606);
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
