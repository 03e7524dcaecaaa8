// Numbers read and written the same way whatever C locale the host sets: a
// French host calls setlocale(LC_ALL, "fr_FR.UTF-8"), whose decimal mark is a
// comma.
#include <gtest/gtest.h>

#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "cli/automate_session.hpp"
#include "kit/calcul.hpp"
#include "kit/conv.hpp"
#include "kit/dates.hpp"
#include "kit/decimal_text.hpp"

namespace ferlan::tool {
namespace {

// Makes a comma-decimal locale current, compiling fr_FR into a private
// folder when the machine has none; restores "C" at the end.
class CommaLocale {
 public:
  CommaLocale() {
    if (Try()) return;
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("ferlan-locale-" + std::to_string(getuid()));
    std::filesystem::create_directories(dir);
    const std::string command = "localedef -i fr_FR -f UTF-8 '" + (dir / "fr_FR.UTF-8").string() +
                                "' >/dev/null 2>&1";
    if (std::system("command -v localedef >/dev/null 2>&1") != 0) {
      why_not_ = "localedef is missing (install the locales package)";
      return;
    }
    if (!std::filesystem::exists(dir / "fr_FR.UTF-8") && std::system(command.c_str()) != 0) {
      why_not_ = "localedef could not build fr_FR.UTF-8";
      return;
    }
    setenv("LOCPATH", dir.c_str(), 1);
    if (!Try()) why_not_ = "fr_FR.UTF-8 built but setlocale refuses it";
  }
  ~CommaLocale() { std::setlocale(LC_ALL, "C"); }

  // Empty when the comma locale is current.
  const std::string& WhyNot() const { return why_not_; }

 private:
  static bool Try() {
    return std::setlocale(LC_ALL, "fr_FR.UTF-8") != nullptr &&
           std::string(std::localeconv()->decimal_point) == ",";
  }
  std::string why_not_;
};

TEST(LocaleTest, EveryConversionIgnoresACommaDecimalLocale) {
  CommaLocale locale;
  if (!locale.WhyNot().empty()) GTEST_SKIP() << locale.WhyNot();

  EXPECT_EQ(Val(u"12.5"), 12.5);
  EXPECT_EQ(Val(u" -1.25E+2x"), -125);
  EXPECT_EQ(Val(u"12,5"), 12);
  EXPECT_EQ(NumberText(2.5), u"2.5");
  EXPECT_EQ(NumberText(1.0 / 3), u"0.333333333333333");
  EXPECT_EQ(NumberText(1.5e300), u"1.5e+300");

  EXPECT_EQ(kit::FixedText(1234.5678, 2), u"1234.57");
  EXPECT_EQ(kit::ShortText(0.001, 15), u"0.001");
  kit::Conv conv;
  EXPECT_EQ(conv.FormatReel(2.675, 2), u"2.68");
  EXPECT_TRUE(conv.NombreValide(u"3.5", 1));
  kit::Calcul calcul;
  String forme, result;
  ASSERT_TRUE(calcul.Analyse(u"100/6.55957", forme));
  ASSERT_TRUE(calcul.Evalue(forme, result));
  EXPECT_EQ(result, u"15.244901723741");
  kit::Dates dates;
  Long order = 0;
  EXPECT_TRUE(dates.Valide(u"29/02/2024", order));
  EXPECT_EQ(order, 20240229);

  AutomateSession session{SurfaceKind::Fixed};
  const Json answer = Json::parse(session.Handle(R"({"call":"WinLigne","args":[2.5]})"));
  EXPECT_EQ(answer["args"][0], 2.5);
  EXPECT_NE(session.Handle(R"({"get":["Env.MargeX"]})").find("\"Env.MargeX\":1"),
            std::string::npos);
}

}  // namespace
}  // namespace ferlan::tool
