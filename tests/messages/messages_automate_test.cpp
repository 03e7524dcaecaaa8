// Messages and blocks as a host sees them through `ferlan automate`: font
// properties by nested name, block messages among the boxes, and a block
// list given back consumed.
#include <gtest/gtest.h>

#include "support/automate_fixture.hpp"

namespace ferlan::tool {
namespace {

using MessagesAutomateTest = AutomateFixture;

TEST_F(MessagesAutomateTest, FontPropertiesAreReachedByNestedNames) {
  EXPECT_EQ(Ask(R"({"set":{"ZoneAff.Font.Size":12,"ZoneAff.Font.Bold":true}})")["ok"], true);
  EXPECT_EQ(Ask(R"({"get":["ZoneAff.Font.Size","ZoneAff.Font.Bold"]})")["values"],
            Json::parse(R"({"ZoneAff.Font.Size":12,"ZoneAff.Font.Bold":true})"));
  EXPECT_EQ(Ask(R"({"call":"HauteurTexte"})")["result"], 234);  // 19.5 x 12
  Ask(R"({"new":{"name":"pic","set":{"Width":600,"Font.Size":8}}})");
  EXPECT_EQ(Ask(R"({"get":["pic.Font.Size","Caret.Font.Bold"]})")["values"]["pic.Font.Size"], 8);
  for (const char* bad : {R"({"get":["ZoneAff.Font.Colour"]})", R"({"get":["ZoneAff.Width.Size"]})",
                          R"({"set":{"ZoneAff.Font.":1}})"}) {
    EXPECT_EQ(Ask(bad)["error"]["number"], 438) << bad;
  }
}

TEST_F(MessagesAutomateTest, BlockMessagesShowAmongTheBoxes) {
  const Json answer = Ask(R"({"call":"AfficheBlocMes","args":["Veuillez @Patienter@",6]})");
  EXPECT_EQ(answer["boxes"], Json::parse(R"([{"bloc":"Veuillez @Patienter@","line":6}])"));
  const Json block = Ask(R"({"call":"AffBloc","args":["Bleu","[Un,Deux]","O"]})");
  EXPECT_EQ(block["args"][1], "[]");
  EXPECT_EQ(block["boxes"], Json::array());
  EXPECT_EQ(Ask(R"({"call":"LongMesCoul","args":["[[B,ab],[N,cd,G]]"]})")["result"], 210 + 420);
}

}  // namespace
}  // namespace ferlan::tool
