// Entry by identifier through real keys: the record gives the geometry and
// the type, the value comes back in stored form, in the caller's variable
// and in the record's Valeur. TR 13 is Enter.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "entry/entry_fixture.hpp"
#include "forms/form.hpp"
#include "headless/key_interception.hpp"
#include "screens/screens_fixture.hpp"

namespace ferlan::testing {
namespace {

using EntryByIdentifierTest = FieldTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Entry hands ModD whole numbers, ties to even: CT 1732.5 is 1732 and its
// column 1732 \ 105 = 16, CzT 1627.5 is 1628, LzT 3360.5 is 3360. Display
// by identifier draws at the record's own 1732.5.
TEST_F(EntryByIdentifierTest, EntryRoundsTheRecordAndDisplayDoesNot) {
  AddField(u"NOM", u"A", 3, 105, 1627.5F, 3360.5F, 1732.5F, 30);
  String c = u"Durand";
  Integer tr = -1;
  Type("{Ctrl+End}Dupont{Enter}");
  KySaisie{}.Sai(u"NOM", c, tr);
  EXPECT_EQ(std::tuple(c, tr), std::tuple(u"Dupont", 13));
  EXPECT_EQ(Record(1).Valeur.Text(), u"Dupont" + String(94, u' '));
  const std::string entry_log = TakeLog();
  EXPECT_THAT(entry_log, HasSubstr("EffaceRect 1630 936 4985 1130 -1\n"));
  EXPECT_THAT(entry_log, HasSubstr("Texte 1732 936 \"Dupont"));

  KySaisie{}.ConsDon(u"NOM", u"abc");
  const std::string display_log = TakeLog();
  EXPECT_THAT(display_log, ::testing::StartsWith("EffaceRect 1629.5 936 4985 1130 -1\n"));
  EXPECT_THAT(display_log, HasSubstr("Texte 1732.5 936 \"abc\""));
  EXPECT_EQ(Record(1).Valeur.Trimmed(), u"Dupont");  // display leaves Valeur alone
  EXPECT_THAT(TakeReports(), IsEmpty());
}

// A number goes through the calculator, a date gives its sort number, and
// Valeur holds the stored form: two characters for an "I0", padded. SaiD on
// a field that is no date gives O 0.
TEST_F(EntryByIdentifierTest, NumbersAndDatesComeBackInStoredForm) {
  AddField(u"QTE", u"I0", 5, 105, 1785, 735, 1800, 5);
  AddField(u"DATEFAC", u"D", 7, 105, 1785, 1260, 1800, 10);
  String qte = StoredInteger(0), date = u"01/02/2003";
  Integer tr = -1;
  Long o = -1;
  Type("12*3{Enter}{Enter}");
  KySaisie{}.Sai(u"QTE", qte, tr);
  EXPECT_EQ(Record(1).Valeur.Text(), StoredInteger(36) + String(98, u' '));
  Type("{Esc}15081999{PgDn}");
  KySaisie{}.SaiD(u"DATEFAC", date, tr, o);
  EXPECT_EQ(std::tuple(date, tr, o), std::tuple(u"15/08/1999", 34, 19990815));
  EXPECT_EQ(Record(2).Valeur.Trimmed(), u"15/08/1999");
  Type("7{Enter}");
  KySaisie{}.SaiD(u"QTE", qte, tr, o);
  EXPECT_EQ(o, 0);
  EXPECT_THAT(TakeReports(), IsEmpty());
}

// P "F" puts the caret behind the value; an unknown P enters nothing.
TEST_F(EntryByIdentifierTest, EntryKindsSetTheEditorMode) {
  AddField(u"NOM", u"A", 3, 105, 1785, 3360, 1800, 30);
  String c = u"Du";
  Integer tr = -1;
  Type("pont{Enter}");
  KySaisie{}.SaiF(u"NOM", c, tr);
  EXPECT_EQ(c, u"Dupont");
  TakeLog();

  Long o = 5;
  c = u"keep";
  tr = 77;
  KySaisie{}.SaisDonnee(u"X", u"NOM", c, tr, &o);
  EXPECT_EQ(std::tuple(c, tr, o), std::tuple(u"keep", 77, 5));
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(Record(1).Valeur.Trimmed(), u"Dupont");
}

// Sai turns key interception off at its end, whether or not it was asked.
TEST_F(EntryByIdentifierTest, SaiEndsWithKeyInterceptionOff) {
  AddField(u"NOM", u"A", 3, 105, 1785, 3360, 1800, 30);
  auto interception = std::dynamic_pointer_cast<headless::KeyInterception>(
      Form().Member("ClavierKY"));
  ASSERT_TRUE(interception);
  interception->SetInterception(true);
  String c;
  Integer tr = -1;
  Type("a{Enter}");
  KySaisie{}.Sai(u"NOM", c, tr, false);
  EXPECT_FALSE(interception->Interception());
}

// The first record of an identifier wins; case and trailing blanks count.
// An unknown one is reported, and the entry goes on with record 0, blank and
// zero, whose empty type code DecodeType reports in its turn.
TEST_F(EntryByIdentifierTest, UnknownIdentifiersAreReportedAndRecordZeroIsUsed) {
  AddField(u"CODE", u"A", 3, 105, 1785, 1260, 1800, 10);
  AddField(u"CODE", u"A", 5, 105, 1785, 1260, 1800, 10);
  Integer r = 9;
  KySaisie{}.RechRub(u"CODE", r);
  EXPECT_EQ(r, 1);
  for (String id : {u"code", u"CODE ", u"NOPE"}) {
    r = 9;
    KySaisie{}.RechRub(id, r);
    EXPECT_EQ(r, 9);
    EXPECT_THAT(TakeReports(),
                ElementsAre("RechRub: Code Rubrique Inconnu @<" + ToUtf8(id) + ">@"));
  }

  EXPECT_EQ(Record(0).TypeDon.Text(), u"   ");
  EXPECT_EQ(Record(0).L, 0);
  String c = u"x";
  Integer tr = -1;
  Type("{Enter}");
  KySaisie{}.Sai(u"NOPE", c, tr);
  EXPECT_THAT(TakeReports(), ElementsAre("RechRub: Code Rubrique Inconnu @<NOPE>@",
                                         "DecodeType: Le Type de Donnée <@@> est Inconnu"));
  EXPECT_EQ(Record(0).TypeDon.Text(), u"   ");
}

}  // namespace
}  // namespace ferlan::testing
