// The message zone under the surface, the caption and the column rules. The
// session's zone is a hidden picture control of the form; its height is set
// so that 1.1 times it is exact.
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
    return Json::array({Get("zoneMessage.Left"), Get("zoneMessage.Top"),
                        Get("zoneMessage.Visible"), Get("ZoneAff.Left"), Get("ZoneAff.Top"),
                        Get("KyF.Height")});
  }
};

TEST_F(MessageZoneTest, EnoughRoomPlacesTheZoneFlushUnderTheSurfaceWithoutCentring) {
  // 8550 - 8000 is exactly 1.1 x 500: strictly less is needed to make room.
  Set({{"ZoneAff.Height", 8000}, {"ZoneAff.Top", 0}, {"ZoneAff.Left", 10}});
  Call("AfficheZoneMessage", {nullptr});
  EXPECT_EQ(Log(), Json::array());
  // Centred under the surface (11880 wide), not under the form.
  EXPECT_EQ(Place(), Json::parse("[2950, 8000, true, 10, 0, 9000]"));
}

TEST_F(MessageZoneTest, TooLittleRoomCentresTheSurfaceWithTheZoneAsMargin) {
  // Room 549: Centrage with a margin of 550 finds the form tall enough
  // (8550 >= 7941 + 550 + 15), so it only centres; the zone then hangs past
  // the form's lower edge.
  Set({{"ZoneAff.Height", 8001}});
  Call("AfficheZoneMessage", {nullptr});
  EXPECT_EQ(Log(), Json::array());
  EXPECT_EQ(Place(), Json::parse("[2940, 8275.5, true, 0, 274.5, 9000]"));

  // The full surface: the form grows by 550 + 15 and the surface is centred
  // in the new 9115 of inner height.
  Set({{"ZoneAff.Height", 8550}, {"ZoneAff.Top", 0}});
  Call("AfficheZoneMessage", {nullptr});
  EXPECT_EQ(Log(), Json::parse(R"([["Recadre"]])"));
  EXPECT_EQ(Place(), Json::parse("[2940, 8832.5, true, 0, 282.5, 9565]"));
}

TEST_F(MessageZoneTest, AZoneWiderThanTheSurfaceStartsLeftOfIt) {
  Set({{"ZoneAff.Width", 4000}, {"ZoneAff.Height", 3000}, {"ZoneAff.Left", 3000}});
  Call("AfficheZoneMessage", {nullptr});
  EXPECT_EQ(Place(), Json::parse("[2000, 3000, true, 3000, 0, 9000]"));
  // Maximised, the form keeps its size and the zone is placed all the same.
  Set({{"KyF.WindowState", 2}, {"ZoneAff.Height", 16000}});
  Call("AfficheZoneMessage", {nullptr});
  EXPECT_EQ(Log(), Json::array());
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

class MessageZonePictureTest : public SessionTest {};

TEST_F(MessageZonePictureTest, TheZoneShowsThePictureItselfAndKeepsItWhenHidden) {
  auto picture = std::make_shared<forms::Bitmap>(2, 1, std::vector<forms::Rgb>(2));
  KySaisie ky;
  ky.AfficheZoneMessage(picture);
  auto zone = std::dynamic_pointer_cast<PictureBox>(Form().Member("zoneMessage"));
  EXPECT_EQ(zone->Picture(), picture);
  ky.EffaceZoneMessage();
  EXPECT_FALSE(zone->Visible());
  EXPECT_EQ(zone->Picture(), picture);
}

// The form's caption and the vertical rules: a column is 105 wide and a line
// 312 high.
TEST_F(CaptionTest, TitreComposesTheCaptionWithOnlyTheCompanyTrimmed) {
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
    const Json expected = {{{"source", "TraceColonne"},
                            {"text", std::string("Code de Tracé de Colonne <@") + mode +
                                         "@> Inconnu "}}};
    EXPECT_EQ(answer["reports"], expected) << mode;
  }
  EXPECT_EQ(Log(), Json::array());
}

}  // namespace
}  // namespace ferlan::testing
