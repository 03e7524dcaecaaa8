// Coloured messages on the fixed surface (11820 wide, 10.5 x size per
// character, 19.5 x size high): widths per run, sizes per letter, centring
// and the Dessin calls of each run.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "display/display_fixture.hpp"

namespace ferlan::testing {
namespace {

using ColouredMessageTest = DisplayTest;

const String kTotal = u"[[B,Total :],[Rouge,12 500,G],[N, F]]";

TEST_F(ColouredMessageTest, SizeLettersAndWidthsPerRun) {
  for (const auto& [letter, size] : {std::pair(u"G", 2.0F), {u"S", 1.4F}, {u"L", 1.1F},
                                     {u"g", 1.0F}, {u"", 1.0F}, {u"GG", 1.0F}, {u" G", 1.0F}}) {
    EXPECT_EQ(ky.TailleMesCoul(letter), size) << ToUtf8(letter);
  }

  // 7 x 105, then 6 x 210 at double size, then 2 x 105.
  EXPECT_EQ(ky.LongMesCoul(kTotal), 735 + 1260 + 210);
  EXPECT_EQ(ky.LongMesCoul(u"[]"), 0);
  // 14 x 2, 11 x 2 x 10.5 = 231, lower case is plain; a fourth element is
  // ignored.
  EXPECT_EQ(ky.LongMesCoul(u"[[N,ab,S],[N,ab,L],[N,ab,g],[N,ab,G,x]]"), 294 + 231 + 210 + 420);
  EXPECT_EQ(Zone().Font().Size(), 10.0f);
  EXPECT_EQ(TakeLog(), "");  // measuring draws nothing

  // Rounded after every run, ties to even: 100.5 gives 100, 201.5 gives 202;
  // in one piece 100.4 + 100.4 would give 201.
  MeasuredCanvas& canvas = UseMeasuredSurface();
  canvas.widths[u"a"] = 100.5f;
  canvas.widths[u"b"] = 101.5f;
  canvas.widths[u"c"] = 100.4f;
  EXPECT_EQ(ky.LongMesCoul(u"[[N,a],[N,b]]"), 202);
  EXPECT_EQ(ky.LongMesCoul(u"[[N,c],[N,c]]"), 200);
}

TEST_F(ColouredMessageTest, TheWorkedMessageIsCentredRunByRunOnOneTop) {
  ky.AffMesCoul(3, kTotal);
  // (11820 - 2205) / 2 = 4807; the "G" run's box is 390 high.
  EXPECT_EQ(TakeLog(), Cleared(936) + Written(4807, 936, 5542, "Total :", -1, Env().CouleurB) +
                           "EffaceRect 5542 936 6802 1325 -1\nPave 5542 936 6802 1324 -1\n"
                           "Texte 5542 936 \"12 500\" " +
                           Num(Env().Rouge) + "\n" + Written(6802, 936, 7012, " F"));
  EXPECT_EQ(Zone().Font().Size(), 10.0f);
  EXPECT_EQ(std::pair(Env().CourantX, Env().CourantY), std::pair(7012.0F, 936.0F));
}

TEST_F(ColouredMessageTest, AGivenLeftEdgeIsRoundedAndZeroIsTheLeftEdge) {
  for (const auto& [left, x] : {std::pair(52.5F, 52.0F), {53.5F, 54.0F}, {0.0F, 0.0F}}) {
    ky.AffMesCoul(2, u"[]", false, left);  // ties to even
    EXPECT_EQ(Env().CourantX, x) << left;
  }
  ky.AffMesCoul(4, u"[]", false);  // centred: half the surface
  EXPECT_EQ(std::pair(Env().CourantX, Env().CourantY), std::pair(5910.0F, 1248.0F));
  EXPECT_EQ(TakeLog(), "");
  ky.AffMesCoul(4, u"[]");  // clears first
  EXPECT_EQ(TakeLog(), Cleared(1248));

  // Wider than the surface: 11820 - 12031 = -211, halved toward zero.
  UseMeasuredSurface().widths[u"w"] = 12031;
  ky.AffMesCoul(1, u"[[N,w]]", false);
  const std::string log = TakeLog();
  EXPECT_EQ(log.rfind("EffaceRect -105 312 ", 0), 0u) << log;
  EXPECT_NE(log.find("Texte -105 312 \"w\" 0"), std::string::npos) << log;
}

TEST_F(ColouredMessageTest, AnUnknownColourIsReportedAndTheMessageGoesOn) {
  Zone().Font().SetSize(12);
  ky.AffMesCoul(1, u"[[Vert,x,G],[N,y]]", false, 0);
  EXPECT_EQ(session.Records().reports.size(), 1u);
  const std::string log = TakeLog();
  EXPECT_NE(log.find("Texte 0 374 \"x\" 0\n"), std::string::npos);
  EXPECT_NE(log.find("Texte 252 374 \"y\" 0\n"), std::string::npos);  // 10.5 x 24, pitch 374.4
  EXPECT_EQ(Zone().Font().Size(), 12.0f);
}

}  // namespace
}  // namespace ferlan::testing
