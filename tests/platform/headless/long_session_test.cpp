// A long session must stay flat: what the host keeps (display list, drawing
// log, reports) is measured by counts after many rounds of typing.
#include <gtest/gtest.h>

#include "support/session_test.hpp"

namespace ferlan::headless {
namespace {

class LongSessionTest : public ferlan::testing::SessionTest {
 protected:
  // One round: a field typed into and left with Enter, then a reported error.
  void Round() {
    Type("abcdefghij{Enter}");
    String text = u"Martin";
    Integer ending = 0;
    KySaisie{}.Modif(936, 12, 1260, 20, 2310, 1155, u"C", text, ending, u"F");
    KySaisie{}.Couleur(u"unknown colour");
  }
  std::size_t Ops() {
    return dynamic_cast<FixedCanvas&>(Zone().GetCanvas()).Ops().size();
  }
};

TEST_F(LongSessionTest, WhatTheHostKeepsStopsGrowing) {
  KySaisie{}.InitKyF();
  KySaisie{}.DimensionFeuille(25);
  for (int i = 0; i < 600; ++i) Round();
  // The display list, overprinted by the field's texts, stays bounded.
  EXPECT_LE(Ops(), FixedCanvas::kOpsLimit + FixedCanvas::kOpsLimit / 4);
  EXPECT_GT(dynamic_cast<FixedCanvas&>(Zone().GetCanvas()).Dropped(), 0u);
  // The unread drawing log keeps its latest calls and counts the others.
  EXPECT_GT(session.Recorder().Dropped(), 0u);
  const auto log = session.Recorder().TakeLog();
  EXPECT_EQ(log.size(), RecordingDessin::kLogLimit);
  EXPECT_EQ(session.Recorder().Dropped(), 0u);
  // Reports nobody read keep the first ones and count the rest.
  for (std::size_t i = session.Records().reports.size(); i < kit::Records::kLimit + 5; ++i) {
    KySaisie{}.Couleur(u"unknown colour");
  }
  EXPECT_EQ(session.Records().reports.size(), kit::Records::kLimit);
  EXPECT_EQ(session.Records().dropped, 5u);
}

}  // namespace
}  // namespace ferlan::headless
