// Colour codes: the kit's palette is all distinct, so each code is seen to
// read its own member of Env, at the call.
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "display/display_fixture.hpp"

namespace ferlan::testing {
namespace {

using ColourCodesTest = DisplayTest;

TEST_F(ColourCodesTest, EachCodeGivesItsColoursAndAnUnknownOneIsReportedByCouleurOnly) {
  const kit::EnvState& e = Env();
  // clang-format off
  for (auto [code, text, back] : std::vector<std::tuple<String, Long, Long>>{
           {u"N", e.Noir, -1}, {u"B", e.CouleurB, -1}, {u"I", e.Jaune, e.Bleu},
           {u"S", e.Jaune, e.CouleurB}, {u"R", e.Blanc, e.Bleu}, {u"Blanc", e.Blanc, -1},
           {u"GrisTresClair", e.GrisTresClair, -1}, {u"GrisClair", e.GrisClair, -1},
           {u"Gris", e.Gris, -1}, {u"GrisFoncé", e.GrisFonce, -1}, {u"Bleu", e.Bleu, -1},
           {u"Rouge", e.Rouge, -1}, {u"Marron", e.Marron, -1}, {u"Jaune", e.Jaune, -1}}) {
    // clang-format on
    SCOPED_TRACE(ToUtf8(code));
    EXPECT_EQ(ky.Couleur(code), text);
    EXPECT_EQ(ky.CouleurFond(code), back);
  }
  Env().Bleu = 77;
  EXPECT_EQ(ky.CouleurFond(u"R"), 77);

  // Compared exactly: no accent, lower case, a trailing blank, empty.
  const auto& reports = session.Records().reports;
  for (const char16_t* code : {u"GrisFonce", u"n", u"B ", u""}) {
    SCOPED_TRACE(ToUtf8(code));
    EXPECT_EQ(ky.CouleurFond(code), -1);
    EXPECT_EQ(ky.Couleur(code), 0);
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports.back().source, u"Couleur");
    EXPECT_EQ(reports.back().text, String(code) + u" Code Couleur Inconnu");
  }
  EXPECT_EQ(reports.size(), 4u);  // one a Couleur of an unknown code, none else
}

}  // namespace
}  // namespace ferlan::testing
