// Tables: the worked three-column table through `ferlan automate`, then the
// edges of AffTab and of the lookups on the fixed surface.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>

#include "display/display_fixture.hpp"
#include "kit/dessin.hpp"
#include "support/automate_fixture.hpp"

namespace ferlan::testing {
namespace {

using tool::Json;

using TableAutomateTest = tool::AutomateFixture;

constexpr const char* kClients =
    R"({"call":"AffTab","args":[10,"[[NOM,Nom du client,30],[VILLE,Ville,12],[CP,Code Postal,5]]"]})";

TEST_F(TableAutomateTest, TheClientTableGetsItsColumnsCellsAndLines) {
  Call("DimensionFeuille", {25, 76});  // 80 grid columns
  Call("AffPos", {5, 1});
  Log();
  const Json drawn = Ok(kClients);
  EXPECT_EQ(drawn["args"][1], "[]");  // the description is consumed
  EXPECT_EQ(drawn["reports"], Json::array());

  // Trailing blanks do not count; line 0 is the titles'.
  const std::tuple<const char*, Json, int> calls[] = {
      {"CTab", {"NOM"}, 10}, {"CTab", {"VILLE   "}, 43}, {"CTab", {"CP"}, 58},
      {"NLTab", Json::array(), 10}, {"LTab", {0}, 5}, {"LTab", {1}, 6}, {"LTab", {10}, 15}};
  for (const auto& [method, args, result] : calls) {
    EXPECT_EQ(Call(method, args)["result"], result) << method << args;
  }
  EXPECT_EQ(Call("RechIdenTab", {"CP", 0})["args"][1], 3);

  // Room was there (6930 x 4462): no sizing, only the boxes, column by
  // column, the title first. Cells are a pitch high and Larg + 3 columns
  // wide, one column left of the text and 58 above it.
  const Json ops = Log();
  ASSERT_EQ(ops.size(), 33u);
  const Long bleu = 0x00C00000, jaune = 0x0000FFFF, blanc = 0x00FFFFFF;
  struct Column {
    std::size_t first_op;
    const char* title;
    int left, width;
  };
  for (const Column& c : {Column{0, " Nom du client", 945, 3465}, Column{11, " Ville", 4410, 1575},
                          Column{22, " Code Postal", 5985, 1470}}) {
    EXPECT_EQ(ops[c.first_op], Json::array({"Cadre3D", bleu, jaune, c.title, 1502, c.left, c.width,
                                            312, "3D", 0, "G"}));
    for (int row = 1; row <= 10; ++row) {
      EXPECT_EQ(ops[c.first_op + static_cast<std::size_t>(row)],
                Json::array({"Rectangle", blanc, 1502 + 312 * row, c.left, c.width, 312}))
          << c.title << " row " << row;
    }
  }
  EXPECT_EQ(Get("Env.CourantY"), 1560);  // not moved
}

TEST_F(TableAutomateTest, ANarrowSurfaceIsWidenedForTheTableAndTheMarginIsOne) {
  Call("DimensionFeuille", {10, 56});  // 60 columns, 10 lines
  Call("AffPos", {5, 1});
  Log();
  Ok(kClients);
  const Json ops = Log();
  ASSERT_GE(ops.size(), 2u);
  // WinCol(64 + 2) wide; WinLigne(13) x 1.1 below line 5.
  EXPECT_EQ(ops[0], Json::parse(R"(["Largeur",6930,false])"));
  EXPECT_EQ(ops[1], Json::parse(R"(["Hauteur",6022,false])"));
  // 66 columns now: (66 - 64) / 2 is 1, and the text starts 2 further.
  EXPECT_EQ(Call("CTab", {"NOM"})["result"], 3);
  EXPECT_EQ(Call("CTab", {"CP"})["result"], 51);
}

// A Dessin that will not widen the surface, so that a table too wide for it
// stays too wide.
class NarrowDessin final : public kit::Dessin {
 public:
  using kit::Dessin::Dessin;
  void Largeur(PictureBox&, Single, Boolean) override {}
};

using TableTest = DisplayTest;

TEST_F(TableTest, ATableTooWideIsReportedAndDrawnAllTheSame) {
  auto env = std::make_shared<kit::EnvState>(Env());  // same form and surface
  auto records = std::make_shared<kit::Records>();
  ClassRegistry registry;
  kit::RegisterKit(registry, env, records);
  auto recorder = std::make_shared<headless::RecordingDessin>(std::make_shared<NarrowDessin>(env));
  registry.Register("Dessin", [recorder] { return recorder; });
  const Apartment narrow(std::move(registry));

  ky.AffPos(2, 1);
  String list = u"[[A,a,110],[B,b,2]]";  // 2 + 113 + 5 = 120 columns on 113
  ky.AffTab(1, list);
  ASSERT_EQ(records->reports.size(), 1u);
  EXPECT_EQ(records->reports[0].source + u": " + records->reports[0].text,
            u"AFFTAB: Tableau Trop Large : 120");
  // Margin floor((113 - 120) / 2) = -4: the table starts left of the edge.
  EXPECT_EQ(ky.CTab(u"A"), -2);
  EXPECT_EQ(ky.CTab(u"B"), 111);
  const std::string log = recorder->TakeLogText();
  EXPECT_NE(log.find("Largeur 12810 False\n"), std::string::npos);
  EXPECT_NE(log.find("Cadre3D 12582912 65535 \" a\" 566 -315 11865 312 \"3D\" 0 \"G\"\n"),
            std::string::npos)
      << log;
}

TEST_F(TableTest, ColumnsFollowTheirTitlesAndWidthsAsTheRulesSay) {
  ky.AffPos(3, 1);
  String list = u"[[A,t,12.5],[B,t,13.5],[C,Titre,x],[D," + String(60, u'T') +
                u",1],[IDENTIFIANT_TRES_LONG_X,t,4],[A,second,4]]";
  ky.AffTab(2, list);
  EXPECT_TRUE(session.Records().reports.empty());
  // Widths: 12.5 gives 12, 13.5 gives 14, no number gives the title's
  // length, and a title is cut at 50 characters.
  const Integer c1 = ky.CTab(u"A"), c2 = ky.CTab(u"B"), c3 = ky.CTab(u"C"), c4 = ky.CTab(u"D");
  EXPECT_EQ(c2 - c1, 12 + 3);
  EXPECT_EQ(c3 - c2, 14 + 3);
  EXPECT_EQ(c4 - c3, 5 + 3);
  EXPECT_EQ(ky.CTab(u"IDENTIFIANT_TRES_LON"), c4 + 50 + 3);  // cut at 20
  EXPECT_EQ(TakeLog().find(std::string(" ") + std::string(51, 'T')), std::string::npos);
  // Tot = 2 + 15 + 17 + 8 + 53 + 7 + 9 = 111 on 113 columns: margin 1.
  EXPECT_EQ(c1, 3);
  // Case counts, the first of two equal identifiers wins, an unknown one is
  // reported and reads element 0.
  EXPECT_EQ(ky.CTab(u"a"), 0);
  Integer r = 7;
  ky.RechIdenTab(u"A", r);
  EXPECT_EQ(r, 1);
  ky.RechIdenTab(u"Z", r);
  EXPECT_EQ(r, 1);
  EXPECT_EQ(TakeReports(), (std::vector<std::string>{"RECHIDENTAB: Identif Inconnu a",
                                                     "RECHIDENTAB: Identif Inconnu Z"}));
}

TEST_F(TableTest, EmptyTablesAndTheFirstLine) {
  ExpectPlatformError([&] { ky.CTab(u"A"); }, 9);  // before any table: reported, then 9
  EXPECT_EQ(session.Records().reports.size(), 1u);

  ky.AffPosT(0, 300);  // line 0: the table starts on line 1, column 1
  String list = u"[]";
  ky.AffTab(4, list);
  ExpectAt(1, 1);
  EXPECT_EQ(ky.LTab(0), 1);
  EXPECT_EQ(ky.LTab(1), 2);  // moves on by 2 with nothing drawn
  EXPECT_EQ(ky.NLTab(), 4);
  EXPECT_EQ(ky.CTab(u""), 0);  // element 0 of a table without columns
  EXPECT_EQ(TakeLog(), "");

  ky.AffPos(4, 7);
  list = u"[[K,Clef,3]]";
  ky.AffTab(0, list);  // titles without cells; the position stays
  const std::string log = TakeLog();
  EXPECT_EQ(log.find("Rectangle"), std::string::npos);
  EXPECT_NE(log.find("Cadre3D"), std::string::npos);
  ExpectAt(4, 7);
  ExpectPlatformError([&] { ky.AffTab(40000, list); }, 6);  // rows beyond Integer
}

}  // namespace
}  // namespace ferlan::testing
