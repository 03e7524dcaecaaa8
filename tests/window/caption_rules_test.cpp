// The form's caption and the vertical rules, through `ferlan automate`. On
// the fixed-metric surface a column is 105 wide and a line 312 high.
#include "window/automate_fixture.hpp"

namespace ferlan::testing {
namespace {

using tool::Json;

TEST_F(AutomateWindowTest, TitreComposesTheCaptionWithOnlyTheCompanyTrimmed) {
  Set({{"Env.DateTitre", " 31/12/2026 "},
       {"Env.EnteteTexte", "Paie "},
       {"Env.CodeEnt", " 042 "},
       {"Env.NomEnt", "  Dupont & Fils   "}});
  Call("Titre", {"Bulletins "});
  EXPECT_EQ(Get("KyF.Caption"),
            "Bulletins  au  31/12/2026  - Paie  -  Code Ent  042  :   Dupont & Fils");

  // Empty pieces still leave every separator; a blank company name ends in
  // " : ".
  Set({{"Env.DateTitre", ""}, {"Env.EnteteTexte", ""}, {"Env.CodeEnt", ""}, {"Env.NomEnt", "   "}});
  Call("Titre", {""});
  EXPECT_EQ(Get("KyF.Caption"), " au  -  -  Code Ent  : ");
}

TEST_F(AutomateWindowTest, TraceColonneDrawsSimpleAndDoubleRulesInBlack) {
  Set({{"Env.Noir", 0x123456}, {"Env.MargeX", 30}});
  Call("TraceColonne", {2, 10, 5, "S"});
  EXPECT_EQ(Log(), Json::parse(R"([["LigneV",1050,624,1560,1193046]])"));
  // Double: the second rule MargeX to the right. The ends keep their order.
  Call("TraceColonne", {7, 3, 1, "D"});
  EXPECT_EQ(Log(), Json::parse(R"([["LigneV",315,2184,312,1193046],
                                   ["LigneV",345,2184,312,1193046]])"));
  // With MargeX 0 the two fall on each other; equal lines give equal ends.
  Set({{"Env.MargeX", 0}});
  Call("TraceColonne", {4, 1, 4, "D"});
  EXPECT_EQ(Log(), Json::parse(R"([["LigneV",105,1248,1248,1193046],
                                   ["LigneV",105,1248,1248,1193046]])"));
  EXPECT_EQ(Get("Env.CourantX"), 0);
}

TEST_F(AutomateWindowTest, TraceColonneReportsAnyOtherModeAndDrawsNothing) {
  for (const char* mode : {"s", "d", "", "DD", "S "}) {
    const Json answer = Call("TraceColonne", {1, 1, 3, mode});
    const Json expected = {{{"source", "TraceColonne"},
                            {"text", std::string("Code de Tracé de Colonne <@") + mode +
                                         "@> Inconnu "}}};
    EXPECT_EQ(answer["reports"], expected) << mode;
  }
  EXPECT_EQ(Log(), Json::array());
}

}  // namespace
}  // namespace ferlan::testing
