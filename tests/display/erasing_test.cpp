// Clearing lines, entry boxes and the whole surface, by the Dessin calls made.
#include <gtest/gtest.h>

#include <memory>

#include "display/display_fixture.hpp"
#include "forms/form.hpp"

namespace ferlan::testing {
namespace {

using ErasingTest = DisplayTest;

TEST_F(ErasingTest, LinesAreClearedOneTextHeightHighToTheRightEdge) {
  ky.AffPosT(50, 60);
  ky.EffaceLigne(3);  // from column 1
  ky.EffaceLigne(3, 0);
  ky.EffaceLigneColT(3, 52.5f);
  ky.EffaceLigne(40);  // below the surface: cleared all the same
  ky.EffaceLignes(2, 4);
  ky.EffaceLignes(4, 2);  // nothing
  EXPECT_EQ(TakeLog(), Cleared(936) + Cleared(936, 0) + Cleared(936, 52.5) + Cleared(12480) +
                           Cleared(624) + Cleared(936) + Cleared(1248));
  EXPECT_EQ(Zone().CurrentX(), 60.0f);  // the position is left alone
}

TEST_F(ErasingTest, EffaceZoneSaisieClearsInsideTheEntryBox) {
  ky.EffaceZoneSaisie(312, 1050, 2100);
  ky.EffaceZoneSaisie(624, 1050, 2100, 0x00FFFFFF);
  EXPECT_EQ(TakeLog(), "EffaceRect 1052 312 3147 506 -1\nEffaceRect 1052 624 3147 818 16777215\n");
  auto other = session.NewPictureBox();
  other->Font().SetSize(20);
  ky.EffaceZoneSaisie(100, 0, 1000, 255, other);  // with Env.ZoneAff's height
  EXPECT_EQ(dynamic_cast<headless::FixedCanvas&>(other->GetCanvas()).DescribeOps(),
            "FillBox 2 100 997 294 255\n");
}

TEST_F(ErasingTest, EffaceEcranClearsAndGoesToLineOneColumnOneOrUnderTheToolbar) {
  ky.AffPos(9, 9);
  ky.EffaceEcran();
  ky.EffaceEcran(true);
  EXPECT_EQ(TakeLog(), "Efface\nEfface\nReduit\n");
  EXPECT_EQ(Env().CourantY, 312.0f);
  EXPECT_EQ(Env().CourantX, 105.0f);
  auto toolbar = std::dynamic_pointer_cast<ferlan::Control>(Form().Member("BarreOutils"));
  ASSERT_TRUE(toolbar);
  toolbar->SetVisible(true);  // 420 high: 420 + 195 / 2 = 517.5, to even
  ky.EffaceEcran();
  EXPECT_EQ(Env().CourantY, 518.0f);

  Env().form = std::make_shared<forms::Form>(1, 28800, 16200);  // no toolbar
  ky.AffPos(9, 9);
  ExpectPlatformError([&] { ky.EffaceEcran(true); }, 438);
  EXPECT_EQ(TakeLog(), "Efface\nEfface\nReduit\n");  // the failure comes after the clearing
  EXPECT_EQ(Env().CourantY, 2808.0f);
}

}  // namespace
}  // namespace ferlan::testing
