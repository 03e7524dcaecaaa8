// The form's furniture over `ferlan automate`: the message zone under the surface, the caption, the
// column rules, and the wait for the operator. The session's zone is a hidden picture control of
// the form; its height is set so that 1.1 times it is exact.
#include <memory>

#include "ferlan/kysaisie.hpp"
#include "forms/bitmap.hpp"
#include "support/automate_fixture.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

using tool::Json;
using CaptionTest = tool::AutomateFixture;

class MessageZoneTest : public tool::AutomateFixture {
 protected:
  void SetUp() override { Set({{"zoneMessage.Height", 500}, {"zoneMessage.Width", 6000}}); }
  Json Place() {
    return Json::array({Get("zoneMessage.Left"), Get("zoneMessage.Top"), Get("zoneMessage.Visible"),
                        Get("ZoneAff.Left"), Get("ZoneAff.Top"), Get("KyF.Height")});
  }
  // Sets `values` and shows the zone; gives the drawing log and Place().
  Json Show(const Json& values) {
    Set(values);
    Call("AfficheZoneMessage", {nullptr});
    return Json::array({Log(), Place()});
  }
};

// 1.1 x 500 = 550 is needed under the surface, strictly more than the room left.
TEST_F(MessageZoneTest, TheZoneGoesUnderTheSurfaceWhichMakesRoomOnlyWhenItMust) {
  // 8550 - 8000 leaves exactly 550: flush under the surface, centred under
  // the surface (11880 wide), not under the form.
  EXPECT_EQ(Show({{"ZoneAff.Height", 8000}, {"ZoneAff.Top", 0}, {"ZoneAff.Left", 10}}),
            Json::parse("[[], [2950, 8000, true, 10, 0, 9000]]"));
  // Room 549: Centrage with a margin of 550 finds the form tall enough (8550 >= 7941 + 550 + 15),
  // so it only centres; the zone then hangs past the form's lower edge.
  EXPECT_EQ(Show({{"ZoneAff.Height", 8001}}),
            Json::parse("[[], [2940, 8275.5, true, 0, 274.5, 9000]]"));
  // The full surface: the form grows by 550 + 15 and the surface is centred
  // in the new 9115 of inner height.
  EXPECT_EQ(Show({{"ZoneAff.Height", 8550}, {"ZoneAff.Top", 0}}),
            Json::parse(R"([[["Recadre"]], [2940, 8832.5, true, 0, 282.5, 9565]])"));
}

TEST_F(MessageZoneTest, AZoneWiderThanTheSurfaceStartsLeftOfIt) {
  EXPECT_EQ(Show({{"ZoneAff.Width", 4000}, {"ZoneAff.Height", 3000}, {"ZoneAff.Left", 3000}})[1],
            Json::parse("[2000, 3000, true, 3000, 0, 9000]"));
  // Maximised, the form keeps its size and the zone is placed all the same.
  EXPECT_EQ(Show({{"KyF.WindowState", 2}, {"ZoneAff.Height", 16000}})[0], Json::array());
  EXPECT_EQ(Get("zoneMessage.Top"), Get("ZoneAff.Top").get<double>() + 16000);
  EXPECT_EQ(Get("zoneMessage.Left"), Get("ZoneAff.Left").get<double>() - 1000);
}

TEST_F(MessageZoneTest, EffaceZoneMessageOnlyHidesTheZone) {
  Call("AfficheZoneMessage", {nullptr});
  const Json shown = Place();
  Call("EffaceZoneMessage");
  Call("EffaceZoneMessage");
  Json hidden = shown;
  hidden[2] = false;
  EXPECT_EQ(Place(), hidden);
  // A picture control passed for the picture gives its own Picture.
  Ok(R"({"new":{"name":"box","kind":"PictureBox"}})");
  Ok(R"({"call":"AfficheZoneMessage","args":[{"obj":"box"}]})");
  EXPECT_EQ(Get("zoneMessage.Visible"), true);
}

using MessageZonePictureTest = SessionTest;

TEST_F(MessageZonePictureTest, TheZoneShowsThePictureItselfAndKeepsItWhenHidden) {
  auto picture = std::make_shared<forms::Bitmap>(2, 1, std::vector<forms::Rgb>(2));
  KySaisie{}.AfficheZoneMessage(picture);
  auto zone = std::dynamic_pointer_cast<PictureBox>(Form().Member("zoneMessage"));
  EXPECT_EQ(zone->Picture(), picture);
  KySaisie{}.EffaceZoneMessage();
  EXPECT_FALSE(zone->Visible());
  EXPECT_EQ(zone->Picture(), picture);

  // The picture goes in before the surface is read: without a surface the
  // call fails, the new picture already shown.
  auto other = std::make_shared<forms::Bitmap>(1, 1, std::vector<forms::Rgb>(1));
  Env().surface = nullptr;
  ExpectPlatformError([&] { KySaisie{}.AfficheZoneMessage(other); }, 91);
  EXPECT_EQ(zone->Picture(), other);
}

// The form's caption and the vertical rules: a column is 105 wide and a line 312 high.
TEST_F(CaptionTest, TitreComposesTheCaptionWithOnlyTheCompanyTrimmed) {
  Set(Json::parse(R"({"Env.DateTitre": " 31/12/2026 ", "Env.EnteteTexte": "Paie ",
                      "Env.CodeEnt": " 042 ", "Env.NomEnt": "  Dupont & Fils   "})"));
  Call("Titre", {"Bulletins "});
  EXPECT_EQ(Get("KyF.Caption"),
            "Bulletins  au  31/12/2026  - Paie  -  Code Ent  042  :   Dupont & Fils");

  // Empty pieces still leave every separator; a blank company name ends in " : ".
  Set({{"Env.DateTitre", ""}, {"Env.EnteteTexte", ""}, {"Env.CodeEnt", ""}, {"Env.NomEnt", "   "}});
  Call("Titre", {""});
  EXPECT_EQ(Get("KyF.Caption"), " au  -  -  Code Ent  : ");
}

TEST_F(CaptionTest, TraceColonneDrawsSimpleAndDoubleRulesInBlackAndReportsOtherModes) {
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
  // Any other mode is reported and draws nothing.
  for (const char* mode : {"s", "d", "", "DD", "S "}) {
    const Json answer = Call("TraceColonne", {1, 1, 3, mode});
    const Json expected = {
        {{"source", "TraceColonne"},
         {"text", std::string("Code de Tracé de Colonne <@") + mode + "@> Inconnu "}}};
    EXPECT_EQ(answer["reports"], expected) << mode;
  }
  EXPECT_EQ(Log(), Json::array());
}

// Waiting for the operator. On 25 lines of the fixed-metric surface the
// prompt and its one-character field share line 23 (Y 7176).
class WaitingTest : public tool::AutomateFixture {
 protected:
  // Surface and form sizes, and the caption.
  Json Screen() {
    return Json::array({Get("ZoneAff.Width"), Get("ZoneAff.Height"), Get("KyF.Width"),
                        Get("KyF.Height"), Get("KyF.Caption")});
  }
  // Waits while `keys` are typed; the wait must end on them and give the
  // screen back. Gives the drawing operations of the wait.
  Json Wait(const char* keys) {
    const Json before = Screen();
    Log();
    Ok(Json{{"keys", keys}}.dump());
    EXPECT_FALSE(Call("Attente").contains("starved")) << keys;
    EXPECT_EQ(Screen(), before) << keys;
    return Log();
  }
  // The operations of `ops` named `name`.
  static Json Named(const Json& ops, const std::string& name) {
    Json out = Json::array();
    for (const Json& op : ops) {
      if (op[0] == name) out.push_back(op);
    }
    return out;
  }
};

TEST_F(WaitingTest, AttentePutsPromptAndFieldOnLine23AndGivesTheScreenBack) {
  Call("DimensionFeuille", {25});
  Set({{"KyF.Caption", "Facture"}});
  const Json ops = Wait("x{Enter}");
  // Saved first, restored last.
  EXPECT_EQ(ops.front(), Json::parse(R"(["MemImage"])"));
  EXPECT_EQ(ops.back(), Json::parse(R"(["ResImage"])"));
  // Room for the block: 5 pitches below its base line 22.
  EXPECT_EQ(Named(ops, "Hauteur"), Json::parse(R"([["Hauteur",8424,false]])"));
  // The prompt, 40 characters centred in 8820, in its box from 4 units above line 23.
  const Json texts = Named(ops, "Texte");
  ASSERT_FALSE(texts.empty());
  EXPECT_EQ(
      texts[0],
      Json::parse(R"(["Texte",2310,7176,"Veuillez Taper sur Entrée pour Continuer",12582912])"));
  EXPECT_EQ(Named(ops, "Rectangle"), Json::parse(R"([["Rectangle",14737632,7172,2205,4410,312]])"));
  // The field on the same line, one column behind the prompt: 6510 + 105.
  Json field = Json::array();
  for (std::size_t i = 1; i < texts.size(); ++i) {
    if (texts[i][2] == 7176) field.push_back(texts[i][1]);
  }
  EXPECT_EQ(field, Json::parse("[6615, 6615, 6615]"));
}

TEST_F(WaitingTest, AttenteGrowsTheSurfaceForItsPromptAndRestoresIt) {
  Call("DimensionFeuille", {10, 20});
  const Json ops = Wait("{F5}");
  // Room for the prompt and its frame, then the form is recentred.
  EXPECT_EQ(Named(ops, "Largeur")[0], Json::parse(R"(["Largeur",4620,false])"));
  EXPECT_EQ(Named(ops, "Hauteur")[0], Json::parse(R"(["Hauteur",3744,false])"));
}

TEST_F(WaitingTest, OnlyALeavingKeyOrAnAbandonEndsTheWait) {
  Call("DimensionFeuille", {25});
  for (const char* keys : {"{Up}", "{PgDn}", "{F12}", "ab{Enter}"}) Wait(keys);
  // A character alone leaves the wait running until the host abandons; the
  // screen comes back all the same.
  const Json before = Screen();
  Ok(R"({"keys":"x"})");
  EXPECT_EQ(Call("Attente").value("starved", false), true);
  EXPECT_EQ(Screen(), before);
}

TEST_F(WaitingTest, MessageAttenteAsksTheMessageBoxAndDrawsNothing) {
  EXPECT_EQ(Call("MessageAttente")["boxes"],
            Json::parse(R"([{"style":"Simple","title":"","text":)"
                        R"("Veuillez Taper sur @Entrée@ pour Continuer"}])"));
  EXPECT_EQ(Log(), Json::array());
}

}  // namespace
}  // namespace ferlan::testing
