// Where the surface's font comes from, and what happens when it is missing.
#include "raster/font_source.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "ferlan/runtime.hpp"

namespace ferlan::raster {
namespace {

TEST(FontSourceTest, DejaVuSansIsFoundInBothWeights) {
  const FontFiles& files = DejaVuSansFiles();
  EXPECT_NE(files.regular.find("DejaVuSans"), std::string::npos) << files.regular;
  EXPECT_NE(files.bold.find("Bold"), std::string::npos) << files.bold;
  EXPECT_TRUE(std::filesystem::exists(files.regular));
  EXPECT_TRUE(std::filesystem::exists(files.bold));
}

TEST(FontSourceTest, NoDejaVuSansIsAClearFontconfigError) {
  // A configuration that knows no font at all: fontconfig would answer with
  // nothing or a stand-in, and either must be refused by name.
  const auto dir = std::filesystem::temp_directory_path() /
                   ("ferlan_fonts_" + std::to_string(::getpid()));
  std::filesystem::create_directories(dir / "empty");
  const std::string config = (dir / "fonts.conf").string();
  std::ofstream(config) << "<?xml version=\"1.0\"?>\n<fontconfig><dir>" << (dir / "empty").string()
                        << "</dir><cachedir>" << (dir / "cache").string()
                        << "</cachedir></fontconfig>\n";
  try {
    FindDejaVuSans(config);
    ADD_FAILURE() << "no error";
  } catch (const PlatformError& error) {
    const std::string text = error.Description();
    EXPECT_EQ(text.rfind("fontconfig: ", 0), 0u) << text;
    EXPECT_NE(text.find("DejaVu Sans"), std::string::npos) << text;
    EXPECT_NE(text.find("fonts-dejavu-core"), std::string::npos) << text;
  }
  std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace ferlan::raster
