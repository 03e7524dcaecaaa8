// Aff and the calls built on it, by the Dessin calls they make. Of the 27
// lines the flow (AffLig, AffL, AffSL) writes on 1 to 26, then starts a page.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "display/display_fixture.hpp"

namespace ferlan::testing {
namespace {

using TextOutputTest = DisplayTest;

TEST_F(TextOutputTest, AffClearsThenPaintsTheBoxOfItsTextOnly) {
  UseMeasuredSurface().widths[u"Mille"] = 1000.4f;  // heights stay 195
  ASSERT_EQ(Env().MargeY, 1);
  ky.AffPos(1, 1);
  ky.Aff(u"I", u"Mille");  // W 1000; cleared MargeY short of the height, Pave twice
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 312 1105 506 -1\n"
            "Pave 105 312 1105 505 12582912\n"
            "Texte 105 312 \"Mille\" 65535\n");
  EXPECT_FLOAT_EQ(Env().CourantX, 1105.4f);  // the exact end of the text
  EXPECT_EQ(Env().CourantY, 312.0f);
}

TEST_F(TextOutputTest, RunsFollowOneAnotherInTheirColours) {
  ky.AfficheT(500, 52.5f, u"B", u"ab");
  ky.Aff(u"S", u"c");
  ky.Aff(u"Vert", u"");  // unknown: colour 0; empty: the position stays
  EXPECT_EQ(TakeLog(), Written(52.5, 500, 262.5, "ab", -1, Env().CouleurB) +
                           Written(262.5, 500, 367.5, "c", Env().CouleurB, Env().Jaune) +
                           Written(367.5, 500, 367.5, ""));
  EXPECT_EQ(Env().CourantX, 367.5f);
  EXPECT_EQ(session.Records().reports.size(), 1u);
}

TEST_F(TextOutputTest, TheSurfaceGrowsToHoldTheTextAndOnlyNearTheScreenWidthCutsIt) {
  ky.AfficheT(312, 11000, u"N", u"0123456789");  // past 11820: 12051 + 2 columns each side
  EXPECT_EQ(TakeLog(),
            "EffaceRect 11000 312 12050 506 -1\nHauteur 8424 False\nLargeur 12471 False\n"
            "Recadre\nPave 11000 312 12050 505 -1\nTexte 11000 312 \"0123456789\" 0\n");
  EXPECT_EQ(Form().ScaleWidth(), Zone().Width());
  ky.AfficheT(312, 12471 - 1050 - 1, u"N", u"0123456789");  // at the edge: no widening
  EXPECT_EQ(TakeLog(), Written(11420, 312, 12470, "0123456789"));
  const std::string text(120, 'x');  // 12600 wide: 1 + 12600 + 2 columns each side
  ky.AfficheCentre(2, u"N", FromUtf8(text), false);
  EXPECT_EQ(TakeLog(),
            "Hauteur 8424 False\nLargeur 13021 False\nRecadre\n" + Written(210, 624, 12810, text));
  Env().MargeX = -1000;  // a text wider than a surface past 0.9 x 28800: cut
  SetInnerSize(26000, 8490);
  ky.AfficheCentre(3, u"N", FromUtf8(std::string(250, 'y')), false);
  EXPECT_EQ(TakeLog(), Written(32, 936, 25967, std::string(247, 'y')));
}

TEST_F(TextOutputTest, AnOverflowKeepsWhatWasDoneBeforeIt) {
  SetInnerSize(11820, 40000 * 312.0f);  // NbLigne overflows an Integer
  ExpectPlatformError([&] { ky.AfficheT(312, 11000, u"N", u"0123456789"); }, 6);
  EXPECT_EQ(TakeLog(), "EffaceRect 11000 312 12050 506 -1\n");
  EXPECT_EQ(Env().CourantX, 11000.0f);
  ky.AffPos(3, 1);
  Long l = -5;
  ExpectPlatformError([&] { ky.AffLig(u"N", u"abc", &l); }, 6);  // at the page test
  EXPECT_EQ(l, 3);                                               // PosAff had written it
  ExpectPlatformError([&] { ky.AfficheCentre(40000, u"N", u"abc"); }, 6);
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(TextOutputTest, AfficheCentreCentresOnTheLineAndGivesTheEnd) {
  Long fin = 0;
  ky.AfficheCentre(5, u"N", u"abcd", true, &fin);  // (11820 - 420) / 2
  EXPECT_EQ(TakeLog(), Cleared(1560) + Written(5700, 1560, 6120, "abcd"));
  EXPECT_EQ(fin, 6120);
  ky.AfficheCentre(6, u"N", u"abcde", false, &fin);  // 11295 halved, remainder dropped
  EXPECT_EQ(TakeLog(), Written(5647, 1872, 6172, "abcde"));
  ky.AfficheCentre(5, u"N", u"", true, &fin);  // an empty message only clears
  EXPECT_EQ(TakeLog(), Cleared(1560));
  EXPECT_EQ(fin, 6172);
  ky.AffPosT(1000, 200);  // MesBasEcran, on line 25, returns to line 3 column 2
  ky.MesBasEcran(u"N", u"Fin");
  EXPECT_EQ(TakeLog(), Cleared(7800) + Written(5752, 7800, 6067, "Fin"));
  ExpectAt(3, 2);
  EXPECT_EQ(Env().CourantX, 210.0f);
}

TEST_F(TextOutputTest, TheLineFlowClearsTheNextLineAndPagesBeyondNbLigneLessOne) {
  ky.AffPos(3, 1);
  Long l = -5;  // ignored on entry
  ky.AffLig(u"N", u"abc", &l);
  EXPECT_EQ(TakeLog(), Cleared(936) + Written(105, 936, 420, "abc"));
  EXPECT_EQ(l, 4);
  ky.AffPosT(936, 420);  // in the middle of line 3
  ky.AffL(u"def");
  EXPECT_EQ(TakeLog(), Cleared(1248) + Written(420, 936, 735, "def"));
  ky.AffSL(0);
  ky.AffSL(2);  // blank lines
  EXPECT_EQ(TakeLog(), Cleared(1248) + Written(105, 1248, 105, "") + Cleared(1560) +
                           Written(105, 1560, 105, ""));
  ExpectAt(6, 1);

  ky.AffPos(26, 1);  // beyond NbLigne - 1 a new page starts
  ky.AffL(u"x");
  EXPECT_EQ(TakeLog(), Cleared(8112) + Written(105, 8112, 210, "x"));
  for (Long column : {1, 5}) {  // at the start of line 27, in the middle of line 26
    if (column == 5) ky.AffPos(26, 5);
    ky.AffLig(u"N", u"y", &l);
    EXPECT_EQ(TakeLog(), "Efface\n" + Cleared(312) + Written(105, 312, 210, "y")) << column;
    EXPECT_EQ(l, 2);
  }
}

// The kit's palette is all distinct, so each code is seen to read its own
// member of Env, at the call.
TEST_F(TextOutputTest, EachCodeGivesItsColoursAndAnUnknownOneIsReportedByCouleurOnly) {
  const kit::EnvState& e = Env();
  // clang-format off
  for (auto [code, text, back] : std::vector<std::tuple<String, Long, Long>>{
           {u"N", e.Noir, -1}, {u"B", e.CouleurB, -1}, {u"I", e.Jaune, e.Bleu},
           {u"S", e.Jaune, e.CouleurB}, {u"R", e.Blanc, e.Bleu}, {u"Blanc", e.Blanc, -1},
           {u"GrisTresClair", e.GrisTresClair, -1}, {u"GrisClair", e.GrisClair, -1},
           {u"Gris", e.Gris, -1}, {u"GrisFoncé", e.GrisFonce, -1}, {u"Bleu", e.Bleu, -1},
           {u"Rouge", e.Rouge, -1}, {u"Marron", e.Marron, -1}, {u"Jaune", e.Jaune, -1}}) {
    // clang-format on
    EXPECT_EQ(std::pair(ky.Couleur(code), ky.CouleurFond(code)), std::pair(text, back))
        << ToUtf8(code);
  }
  Env().Bleu = 77;
  EXPECT_EQ(ky.CouleurFond(u"R"), 77);

  // Compared exactly: no accent, lower case, a trailing blank, empty.
  for (const char16_t* code : {u"GrisFonce", u"n", u"B ", u""}) {
    SCOPED_TRACE(ToUtf8(code));
    EXPECT_EQ(ky.CouleurFond(code), -1);
    EXPECT_EQ(ky.Couleur(code), 0);
    // One report a Couleur of an unknown code, none else.
    EXPECT_EQ(TakeReports(),
              std::vector<std::string>{"Couleur: " + ToUtf8(code) + " Code Couleur Inconnu"});
  }
}

}  // namespace
}  // namespace ferlan::testing
