// Waiting for the operator, over `ferlan automate`. On 25 lines of the
// fixed-metric surface the prompt and its one-character field share line 23
// (Y 7176).
#include "support/automate_fixture.hpp"

namespace ferlan::testing {
namespace {

using tool::Json;

class WaitingTest : public tool::AutomateFixture {
 protected:
  // Surface and form sizes, and the caption.
  Json Screen() {
    return Json::array({Get("ZoneAff.Width"), Get("ZoneAff.Height"), Get("KyF.Width"),
                        Get("KyF.Height"), Get("KyF.Caption")});
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
  const Json before = Screen();
  Log();
  Ok(R"({"keys":"x{Enter}"})");
  const Json answer = Call("Attente");
  EXPECT_FALSE(answer.contains("starved"));
  const Json ops = Log();
  // Saved first, restored last.
  EXPECT_EQ(ops.front(), Json::parse(R"(["MemImage"])"));
  EXPECT_EQ(ops.back(), Json::parse(R"(["ResImage"])"));
  // Room for the block: 5 pitches below its base line 22.
  EXPECT_EQ(Named(ops, "Hauteur"), Json::parse(R"([["Hauteur",8424,false]])"));
  // The prompt, 40 characters centred in 8820, in its box from 4 units
  // above line 23.
  const Json texts = Named(ops, "Texte");
  ASSERT_FALSE(texts.empty());
  EXPECT_EQ(texts[0], Json::parse(R"(["Texte",2310,7176,"Veuillez Taper sur Entrée pour Continuer",12582912])"));
  EXPECT_EQ(Named(ops, "Rectangle"),
            Json::parse(R"([["Rectangle",14737632,7172,2205,4410,312]])"));
  // The field on the same line, one column behind the prompt: 6510 + 105.
  Json field = Json::array();
  for (std::size_t i = 1; i < texts.size(); ++i) {
    if (texts[i][2] == 7176) field.push_back(texts[i][1]);
  }
  EXPECT_EQ(field, Json::parse("[6615, 6615, 6615]"));
  EXPECT_EQ(Screen(), before);
}

TEST_F(WaitingTest, AttenteGrowsTheSurfaceForItsPromptAndRestoresIt) {
  Call("DimensionFeuille", {10, 20});
  const Json before = Screen();
  Log();
  Ok(R"({"keys":"{F5}"})");
  const Json answer = Call("Attente");
  EXPECT_FALSE(answer.contains("starved"));
  const Json ops = Log();
  // Room for the prompt and its frame, then the form is recentred.
  EXPECT_EQ(Named(ops, "Largeur")[0], Json::parse(R"(["Largeur",4620,false])"));
  EXPECT_EQ(Named(ops, "Hauteur")[0], Json::parse(R"(["Hauteur",3744,false])"));
  EXPECT_EQ(Screen(), before);
}

TEST_F(WaitingTest, OnlyALeavingKeyOrAnAbandonEndsTheWait) {
  Call("DimensionFeuille", {25});
  const Json before = Screen();
  for (const char* keys : {"{Up}", "{PgDn}", "{F12}", "ab{Enter}"}) {
    Ok(Json{{"keys", keys}}.dump());
    EXPECT_FALSE(Call("Attente").contains("starved")) << keys;
    EXPECT_EQ(Screen(), before) << keys;
  }
  // A character alone leaves the wait running until the host abandons; the
  // screen comes back all the same.
  Ok(R"({"keys":"x"})");
  EXPECT_EQ(Call("Attente").value("starved", false), true);
  EXPECT_EQ(Screen(), before);
}

TEST_F(WaitingTest, MessageAttenteAsksTheMessageBoxAndDrawsNothing) {
  const Json answer = Call("MessageAttente");
  EXPECT_EQ(answer["boxes"], Json::parse(R"([{"style":"Simple","title":"","text":"Veuillez Taper sur @Entrée@ pour Continuer"}])"));
  EXPECT_EQ(Log(), Json::array());
}

}  // namespace
}  // namespace ferlan::testing
