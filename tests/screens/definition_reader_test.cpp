// Reading a screen definition: commands, the positions of a field, and the
// limits of the record table. Each definition is laid out as Dorvi does, so
// positions are checked on the records that EcrSais completed.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "screens/screens_fixture.hpp"

namespace ferlan::testing {
namespace {

class ReaderTest : public ScreenTest {
 protected:
  // Identifiers and colours of records 1 to NbRub, "A:I B:R ...".
  std::string Colours() {
    std::string out;
    for (int i = 1; i <= NbRub(); ++i) {
      out += ToUtf8(Rub(i).Identif.Trimmed()) + ":" + ToUtf8(Rub(i).Coul.Text()) + " ";
    }
    return out;
  }
};

TEST_F(ReaderTest, CommandsAreCaseSensitiveButNReDimAndUnknownOnesAreReported) {
  Env().RubCourante = 7;
  const String rest =
      Read(u"[@col8,[A,a,A],@coulR,[B,b,A],@COL8,@COLONNE,[C,c,A],@NReDi,@,@nredimXYZ,[D,d,A]]");
  EXPECT_EQ(rest, u"[]");
  EXPECT_EQ(Env().RubCourante, 0);
  EXPECT_EQ(TakeReports(),
            (std::vector<std::string>{
                "DORVI: Commande @col8@ Inconnue @", "DORVI: Commande @coulR@ Inconnue @",
                "DORVI: Commande @NReDi@ Inconnue @", "DORVI: Commande @@ Inconnue @"}));
  // Reading went on after each: four fields, automatic columns all ("COL"
  // is tested first, so "@COLONNE" sets 0), default colour, and no resizing.
  ASSERT_EQ(NbRub(), 4);
  EXPECT_EQ(Colours(), "A:I B:I C:I D:I ");
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(Rub(i).ClT, 105) << i;
  EXPECT_TRUE(TakeLog().starts_with("Hauteur 1872 True\n"));
}

TEST_F(ReaderTest, EmptyAndMissingColumnsDifferAndOnlyMLResetsTheColumn) {
  ky.AffPos(2);
  Read(
      u"[@COL8,[A,a,A,5],[B,b,A,5,ML],[C,c,A,5,0],[D,d,A,5,ML,3],[E,e,A,5,\"\",\"\"],"
      u"[F,f,A,5]]");
  ASSERT_EQ(NbRub(), 6);
  // B follows A even under @COL8; line 0 keeps the column; a column after
  // ML wins; an empty one is automatic, a missing one @COL's.
  const Single columns[] = {840, Rub(1).CzT + Rub(1).LzT + 105, 840, 315, 105, 840};
  const Integer lines[] = {2, 2, 2, 2, 4, 6};
  for (int i = 1; i <= 6; ++i) {
    EXPECT_EQ(std::tuple(Rub(i).ClT, Rub(i).L), std::tuple(columns[i - 1], lines[i - 1])) << i;
  }
}

TEST_F(ReaderTest, LinesAreRelativeAbsoluteOrTwoBelow) {
  ky.AffPos(2);
  Read(
      u"[[A,a,A,5,S3],[B,b,A,5,S3],[C,c,A,5,\"\"],[D,d,A,5,S],[E,e,A,5,12],[F,f,A,5,s2],"
      u"[G,g,A,5,\" \"]]");
  // S3 on the first field has no effect, it takes the display line; an empty or blank line is -2
  // like a missing one; "S" alone and "s2" (not "S") are the same line.
  const Integer lines[] = {2, 5, 7, 7, 12, 12, 14};
  ASSERT_EQ(NbRub(), 7);
  for (int i = 1; i <= 7; ++i) EXPECT_EQ(Rub(i).L, lines[i - 1]) << i;
  // An absolute line on the first field wins over the display line.
  ky.AffPos(6);
  Read(u"[[A,a,A,5,3],[B,b,A,5]]");
  EXPECT_EQ(std::tuple(Rub(1).L, Rub(2).L), std::tuple(3, 5));
}

TEST_F(ReaderTest, ColoursComeFromCommandsOrPositionEightAndKeepOneCharacter) {
  Read(
      u"[@COULR,[A,a,A],[B,b,A,5,,,,\"\"],[C,c,A,5,,,,S],[D,d,A],@COUL,[E,e,A],"
      u"@COULBleu,[F,f,A],[G,g,A,5,,,,Rouge,N]]");
  // An empty colour ends as "I", a missing one keeps the current colour;
  // "@COULBleu" leaves "B"; an element after the eighth is not read.
  EXPECT_EQ(Colours(), "A:R B:I C:S D:R E:I F:B G:R ");
  EXPECT_TRUE(session.Records().reports.empty());
}

TEST_F(ReaderTest, FixedTextsAreCutAndPaddedAndBareTextsAreFields) {
  Read(u"[[ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789,Nom,ABCD],bare]");
  ASSERT_EQ(NbRub(), 2);
  EXPECT_EQ(Rub(1).Identif.Text(), u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123");
  EXPECT_EQ(Rub(1).Libelle.Text(), u"Nom" + String(77, u' '));
  EXPECT_EQ(Rub(1).TypeDon.Text(), u"ABC");
  EXPECT_EQ(Rub(1).Valeur.Text(), String(100, u' '));
  // A bare text is the identifier of a field with nothing else.
  EXPECT_EQ(std::tuple(Rub(2).Identif.Trimmed(), Rub(2).Libelle.Trimmed(), Rub(2).LC, Rub(2).L),
            std::tuple(u"bare", u"", 0, Rub(1).L + 2));
  // Element 0 is never filled.
  EXPECT_EQ(std::tuple(Rub(0).Identif.Text(), Rub(0).L, Rub(0).ClT),
            std::tuple(String(30, u' '), 0, 0.0F));
}

TEST_F(ReaderTest, FortyFieldsFitAndAFortyFirstRaisesNineKeepingTheTable) {
  String forty = u"[";
  for (int i = 1; i <= 40; ++i) forty += u"[F" + FromUtf8(std::to_string(i)) + u",f,A],";
  EXPECT_EQ(Read(forty + u"]"), u"[]");
  EXPECT_EQ(NbRub(), 40);
  TakeLog();

  String list = forty + u"[F41,f,A],[F42,f,A]]";
  ExpectPlatformError([&] { ky.Dorvi(list); }, 9);
  EXPECT_EQ(NbRub(), 40);
  EXPECT_EQ(Rub(40).Identif.Trimmed(), u"F40");
  EXPECT_EQ(Rub(40).L, -2) << "EcrSais did not run";
  EXPECT_EQ(TakeLog(), "");
  // The definition holds what was not read.
  EXPECT_TRUE(list.find(u"F41") == String::npos && list.find(u"F42") != String::npos);
}

TEST_F(ReaderTest, NumbersBeyondIntegerRaiseOverflow) {
  for (const String definition :
       {u"[[A,a,A,40000]]", u"[@COL40000]", u"[[A,a,A,5,S-32768]]", u"[[A,a,A,5,1e10]]"}) {
    ExpectPlatformError([&] { Read(definition); }, 6);
  }
}

}  // namespace
}  // namespace ferlan::testing
