// `get` of the record table through `ferlan automate`: the worked screen as
// a host sees it after Dorvi, read-only.
#include <gtest/gtest.h>

#include "support/automate_fixture.hpp"

namespace ferlan::tool {
namespace {

using RecordTableGetTest = AutomateFixture;

TEST_F(RecordTableGetTest, WorkedScreenReadsBackByRecordNumber) {
  Ask(R"({"call":"AffPos","args":[4]})");
  Ask(R"({"set":{"ZoneAff.Width":8000}})");
  const Json dorvi =
      Ask(R"({"call":"Dorvi","args":["[@COL10,[NOM,Nom du client,A,30],[CODE,Code,I0,5,ML],)"
          R"(@COULR,[DATEFAC,Date de facture,D,,S3],[TOTAL,Total,D2,12,,C,20,S]]"]})");
  EXPECT_EQ(dorvi["ok"], true);
  EXPECT_EQ(dorvi["args"], Json::parse(R"(["[]"])"));
  EXPECT_EQ(dorvi["reports"], Json::array());

  const Json got =
      Ask(R"({"get":["NbRub","Rub.2.Identif","Rub.2.Libelle","Rub.2.TypeDon","Rub.2.Coul",)"
          R"("Rub.2.Valeur","Rub.2.LC","Rub.2.LcT","Rub.2.LzT","Rub.2.L","Rub.2.ClT","Rub.2.CzT",)"
          R"("Rub.2.CT","Rub.2.LlT","Rub.4.ClT","Rub.4.Coul","Rub.0.Identif","Rub.0.L"]})");
  EXPECT_EQ(got["values"], Json::parse(R"({"NbRub":4,"Rub.2.Identif":"CODE",
      "Rub.2.Libelle":"Code","Rub.2.TypeDon":"I0","Rub.2.Coul":"I","Rub.2.Valeur":"",
      "Rub.2.LC":5,"Rub.2.LcT":525,"Rub.2.LzT":735,"Rub.2.L":4,"Rub.2.ClT":6237,
      "Rub.2.CzT":6804,"Rub.2.CT":6867,"Rub.2.LlT":525,"Rub.4.ClT":2162,"Rub.4.Coul":"S",
      "Rub.0.Identif":"","Rub.0.L":0})"));
}

TEST_F(RecordTableGetTest, TableIsReadOnlyAndNamesAreChecked) {
  struct Case {
    const char* line;
    int number;
  };
  for (const Case& c : {Case{R"({"get":["Rub.41.L"]})", 9}, Case{R"({"get":["Rub.-1.L"]})", 9},
                        Case{R"({"get":["Rub.1.Nope"]})", 438}, Case{R"({"get":["Rub.1"]})", 438},
                        Case{R"({"get":["Rub.x.L"]})", 5}, Case{R"({"set":{"Rub.1.L":3}})", 5},
                        Case{R"({"set":{"NbRub":3}})", 5}}) {
    const Json answer = Ask(c.line);
    EXPECT_EQ(answer["ok"], false) << c.line;
    EXPECT_EQ(answer["error"]["number"], c.number) << c.line;
  }
  EXPECT_EQ(Ask(R"({"get":["NbRub"]})")["values"]["NbRub"], 0);
}

}  // namespace
}  // namespace ferlan::tool
