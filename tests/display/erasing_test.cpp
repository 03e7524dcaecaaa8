// Clearing lines, entry boxes and the whole surface, by the Dessin calls made.
#include <gtest/gtest.h>

#include <memory>

#include "ferlan/kysaisie.hpp"
#include "forms/form.hpp"
#include "headless/fixed_canvas.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class ErasingTest : public SessionTest {
 protected:
  void SetUp() override {
    Zone().SetWidth(11820 + Zone().Border());
    Zone().SetHeight(8490 + Zone().Border());
  }
  KySaisie ky;
};

TEST_F(ErasingTest, LinesAreClearedOneTextHeightHighToTheRightEdge) {
  ky.AffPosT(50, 60);
  ky.EffaceLigne(3);      // from column 1: column 0 stays
  ky.EffaceLigne(3, 0);   // from the left edge
  ky.EffaceLigneColT(3, 52.5f);
  ky.EffaceLigne(40);     // below the surface: cleared all the same
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 936 11820 1131 -1\n"
            "EffaceRect 0 936 11820 1131 -1\n"
            "EffaceRect 52.5 936 11820 1131 -1\n"
            "EffaceRect 105 12480 11820 12675 -1\n");
  // The display position and the surface's own are left alone.
  EXPECT_EQ(Env().CourantY, 50.0f);
  EXPECT_EQ(Env().CourantX, 60.0f);
  EXPECT_EQ(Zone().CurrentY(), 50.0f);
}

TEST_F(ErasingTest, EffaceLignesGoesDownFromFirstToLast) {
  ky.EffaceLignes(2, 4);
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 624 11820 819 -1\n"
            "EffaceRect 105 936 11820 1131 -1\n"
            "EffaceRect 105 1248 11820 1443 -1\n");
  ky.EffaceLignes(4, 2);
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(ErasingTest, EffaceZoneSaisieClearsInsideTheEntryBox) {
  ky.EffaceZoneSaisie(312, 1050, 2100);
  ky.EffaceZoneSaisie(624, 1050, 2100, 0x00FFFFFF);
  EXPECT_EQ(TakeLog(),
            "EffaceRect 1052 312 3147 506 -1\n"
            "EffaceRect 1052 624 3147 818 16777215\n");

  // Another surface is cleared, but the height is still that of
  // Env.ZoneAff's font.
  auto other = session.NewPictureBox();
  other->SetWidth(6000);
  other->SetHeight(3000);
  other->Font().SetSize(20);
  Env().MargeX = 2;
  ky.EffaceZoneSaisie(100, 0, 1000, 255, other);
  EXPECT_EQ(TakeLog(), "EffaceRect 4 100 994 294 255\n");
  auto& canvas = dynamic_cast<headless::FixedCanvas&>(other->GetCanvas());
  ASSERT_EQ(canvas.Ops().size(), 1u);
  EXPECT_EQ(headless::Describe(canvas.Ops()[0]), "FillBox 4 100 994 294 255");
}

TEST_F(ErasingTest, EffaceEcranClearsAndGoesToLineOneColumnOne) {
  ky.AffPos(9, 9);
  ky.EffaceEcran();
  EXPECT_EQ(TakeLog(), "Efface\n");
  EXPECT_EQ(Env().CourantY, 312.0f);
  EXPECT_EQ(Env().CourantX, 105.0f);

  ky.EffaceEcran(true);
  EXPECT_EQ(TakeLog(), "Efface\nReduit\n");
}

TEST_F(ErasingTest, UnderAVisibleToolbarThePositionIsOffTheGrid) {
  auto toolbar = std::dynamic_pointer_cast<ferlan::Control>(Form().Member("BarreOutils"));
  ASSERT_TRUE(toolbar);
  toolbar->SetVisible(true);  // 420 high
  ky.EffaceEcran();
  // 420 + 195 / 2 = 517.5, to even.
  EXPECT_EQ(Env().CourantY, 518.0f);
  EXPECT_EQ(Env().CourantX, 105.0f);

  toolbar->SetHeight(421);
  ky.EffaceEcran();
  EXPECT_EQ(Env().CourantY, 518.0f);  // 518.5, to even
}

TEST_F(ErasingTest, AFormWithoutToolbarFailsAfterTheClearing) {
  auto bare = std::make_shared<forms::Form>(1, 28800, 16200);
  bare->SetWidth(12000);
  bare->SetHeight(9000);
  Env().form = bare;
  ky.AffPos(9, 9);
  ExpectPlatformError([&] { ky.EffaceEcran(true); }, 438);
  EXPECT_EQ(TakeLog(), "Efface\nReduit\n");
  EXPECT_EQ(Env().CourantY, 2808.0f);  // not moved
}

}  // namespace
}  // namespace ferlan::testing
