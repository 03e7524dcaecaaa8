// A whole screen as a host runs it: a definition, Dorvi, then each field
// entered by identifier with real keys through the event loop, the values
// coming back in stored form in the caller's variables and in Valeur.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "entry/entry_fixture.hpp"
#include "screens/field_fixture.hpp"

namespace ferlan::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class EntryScreenTest : public FieldTest {
 protected:
  void SetUp() override {
    String definition =
        u"[@COL10,[NOM,Nom du client,A,30],[CODE,Code,I0,5,ML],@COULR,"
        u"[DATEFAC,Date de facture,D,,S3],[TOTAL,Total,D2,12,,C,20,S],[PAYE,Payé,B]]";
    KySaisie{}.AffPos(4);
    KySaisie{}.Dorvi(definition);
    ASSERT_EQ(State().NbRub, 5);
    TakeLog();
  }
  // Where a record's text is drawn during its entry: CT and line, rounded.
  std::string TextAt(Integer n) {
    return "Texte " + ToUtf8(NumberText(CLng(Record(n).CT))) + " " +
           ToUtf8(NumberText(KySaisie{}.WinLigne(Record(n).L))) + " \"";
  }
};

TEST_F(EntryScreenTest, EachFieldIsEnteredByIdentifierAndStoredBack) {
  Integer tr = -1;
  String nom = u"Durand";
  Type("Dupont{Enter}");
  KySaisie{}.Sai(u"NOM", nom, tr);
  EXPECT_EQ(nom, u"Dupont");
  EXPECT_EQ(tr, 13);
  EXPECT_THAT(TakeLog(), HasSubstr(TextAt(1) + "Dupont"));

  // A number: the expression goes to the calculator, Enter confirms 36.
  String code = StoredInteger(0);
  Type("12*3{Enter}{Enter}");
  KySaisie{}.Sai(u"CODE", code, tr);
  EXPECT_EQ(code, StoredInteger(36));
  EXPECT_THAT(TakeLog(), HasSubstr(TextAt(2) + "36"));

  String date;
  Long ordre = -1;
  Type("15081999{Down}");
  KySaisie{}.SaiD(u"DATEFAC", date, tr, ordre);
  EXPECT_EQ(date, u"15/08/1999");
  EXPECT_EQ(ordre, 19990815);
  EXPECT_EQ(tr, 40);

  String total = StoredDouble(0);
  Type("1234.5{Enter}");
  KySaisie{}.Sai(u"TOTAL", total, tr);
  EXPECT_EQ(total, StoredDouble(1234.5));

  Boolean paye = false;
  Type("o");
  KySaisie{}.SaisL(u"PAYE", paye, tr);
  EXPECT_TRUE(paye);

  EXPECT_EQ(Record(1).Valeur.Trimmed(), u"Dupont");
  EXPECT_EQ(Left(Record(2).Valeur.Text(), 2), StoredInteger(36));
  EXPECT_EQ(Record(3).Valeur.Trimmed(), u"15/08/1999");
  EXPECT_EQ(Left(Record(4).Valeur.Text(), 8), StoredDouble(1234.5));
  EXPECT_EQ(Record(5).Valeur.Trimmed(), u"O");
  EXPECT_THAT(TakeReports(), IsEmpty());

  // Shown again without editing: the display forms.
  KySaisie{}.ConsDon(u"TOTAL", total);
  EXPECT_THAT(TakeLog(), HasSubstr("\"1234.50\""));
  KySaisie{}.ConsDon(u"PAYE", u"O");
  EXPECT_THAT(TakeLog(), HasSubstr("\"OUI\""));
}

// Errors keep their texts and sources; the screen goes on working.
TEST_F(EntryScreenTest, AnUnknownFieldIsReportedAndTheScreenGoesOn) {
  Integer tr = -1;
  String value = u"x";
  Type("{Enter}");
  KySaisie{}.Sai(u"Nom", value, tr);
  EXPECT_THAT(TakeReports(), ElementsAre("RechRub: Code Rubrique Inconnu @<Nom>@",
                                         "DecodeType: Le Type de Donnée <@@> est Inconnu"));
  KySaisie{}.MesAD(u"NOM", u"R", u"Client inconnu");
  const std::string log = TakeLog();
  Single y = 0, x = 0;
  KySaisie{}.PosAD(u"NOM", y, x);
  EXPECT_THAT(log, HasSubstr("Texte " + ToUtf8(NumberText(x)) + " " + ToUtf8(NumberText(y)) +
                             " \"Client inconnu\""));
  EXPECT_THAT(TakeReports(), IsEmpty());
}

}  // namespace
}  // namespace ferlan::testing
