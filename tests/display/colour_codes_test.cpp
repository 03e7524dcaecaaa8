// Colour codes against a palette of distinct small numbers, so that every
// code is seen to read its own member of Env.
#include <gtest/gtest.h>

#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class ColourCodesTest : public SessionTest {
 protected:
  void SetUp() override {
    Env().Noir = 1;
    Env().CouleurB = 2;
    Env().Jaune = 3;
    Env().Blanc = 4;
    Env().Bleu = 5;
    Env().GrisTresClair = 6;
    Env().GrisClair = 7;
    Env().Gris = 8;
    Env().GrisFonce = 9;
    Env().Rouge = 10;
    Env().Marron = 11;
  }
  KySaisie ky;
};

TEST_F(ColourCodesTest, EachCodeGivesItsTextAndBackgroundColour) {
  struct Case {
    const char16_t* code;
    Long text;
    Long background;
  };
  const Case cases[] = {
      {u"N", 1, -1},          {u"B", 2, -1},     {u"I", 3, 5},          {u"S", 3, 2},
      {u"R", 4, 5},           {u"Blanc", 4, -1}, {u"GrisTresClair", 6, -1},
      {u"GrisClair", 7, -1},  {u"Gris", 8, -1},  {u"GrisFoncé", 9, -1}, {u"Bleu", 5, -1},
      {u"Rouge", 10, -1},     {u"Marron", 11, -1}, {u"Jaune", 3, -1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(ToUtf8(c.code));
    EXPECT_EQ(ky.Couleur(c.code), c.text);
    EXPECT_EQ(ky.CouleurFond(c.code), c.background);
  }
  EXPECT_TRUE(session.Records().reports.empty());
}

TEST_F(ColourCodesTest, AnUnknownCodeIsReportedByCouleurOnly) {
  // Exact comparison: no accent, lower case, a trailing blank and the empty
  // code are all unknown.
  const char16_t* unknown[] = {u"GrisFonce", u"n", u"B ", u"", u"bleu"};
  for (const char16_t* code : unknown) {
    SCOPED_TRACE(ToUtf8(code));
    session.Records().Clear();
    EXPECT_EQ(ky.CouleurFond(code), -1);
    EXPECT_TRUE(session.Records().reports.empty());

    EXPECT_EQ(ky.Couleur(code), 0);
    ASSERT_EQ(session.Records().reports.size(), 1u);
    EXPECT_EQ(session.Records().reports[0].source, u"Couleur");
    EXPECT_EQ(session.Records().reports[0].text, String(code) + u" Code Couleur Inconnu");
  }
}

TEST_F(ColourCodesTest, ThePaletteIsReadAtEachCall) {
  EXPECT_EQ(ky.Couleur(u"Rouge"), 10);
  Env().Rouge = 0x0000FF;
  EXPECT_EQ(ky.Couleur(u"Rouge"), 0x0000FF);
  Env().Bleu = 77;
  EXPECT_EQ(ky.CouleurFond(u"R"), 77);
}

}  // namespace
}  // namespace ferlan::testing
