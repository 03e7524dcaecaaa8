// Centrage and its re-entry guard. Growing the form runs the form's
// on_resize handler before the assignment returns, as a host's resize
// event does, and that handler may call back into the component.
#include <gtest/gtest.h>

#include <memory>

#include "ferlan/kysaisie.hpp"
#include "forms/form.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class CentrageTest : public SessionTest {
 protected:
  void SetUp() override {
    other = session.NewPictureBox();
    other->SetLeft(5);
    other->SetTop(6);
    other->SetWidth(100);
    other->SetHeight(100);
  }
  void TearDown() override {
    Form().on_resize = nullptr;
    SessionTest::TearDown();
  }
  std::shared_ptr<forms::PictureBox> other;
  KySaisie ky;
};

TEST_F(CentrageTest, MargeBasseMakesTheFormTallerButDoesNotMoveTheCentre) {
  ky.Centrage(session.SurfaceRef(), 1000);
  EXPECT_EQ(TakeLog(), "Recadre\n");
  // 9000 - 8550 + 8550 (the surface's Height) + 1000 + 15.
  EXPECT_EQ(Form().Height(), 10015.0f);
  EXPECT_EQ(Zone().Top(), 507.5f);  // (9565 - 8550) / 2
  EXPECT_EQ(Zone().Left(), 0.0f);
}

TEST_F(CentrageTest, ACentrageFromInsideACentrageLeavesItsControlUntouched) {
  int resizes = 0;
  Form().on_resize = [&] {
    ++resizes;
    KySaisie{}.Centrage(other);
  };
  ky.DimensionFeuille(30, 120);  // grows the form's height and width
  EXPECT_EQ(resizes, 2);
  EXPECT_EQ(other->Left(), 5.0f);
  EXPECT_EQ(other->Top(), 6.0f);
  // The outer call completed.
  EXPECT_EQ(Zone().Left(), 0.0f);
  EXPECT_EQ(Zone().Top(), 7.5f);

  // Once it has ended, a Centrage runs again.
  Form().on_resize = nullptr;
  ky.Centrage(other);
  EXPECT_EQ(other->Left(), (Form().ScaleWidth() - 100) / 2);
  EXPECT_EQ(other->Top(), (Form().ScaleHeight() - 100) / 2);
}

TEST_F(CentrageTest, APlatformErrorInsideCentrageLeavesTheGuardDown) {
  Form().on_resize = [] { throw PlatformError::InvalidCall("resize refused"); };
  ExpectPlatformError([&] { ky.DimensionFeuille(30, 120); }, 5);
  // The height had been set when the handler failed; the width had not.
  EXPECT_EQ(Form().Height(), 9885.0f);
  EXPECT_EQ(Form().Width(), 12000.0f);

  Form().on_resize = nullptr;
  ky.Centrage(other);
  EXPECT_EQ(other->Left(), (Form().ScaleWidth() - 100) / 2);

  // The same after a form without toolbar.
  auto form = Env().form;
  auto bare = std::make_shared<forms::Form>(1, 28800, 16200);
  Env().form = bare;
  ExpectPlatformError([&] { ky.Centrage(other); }, 438);
  Env().form = form;
  other->SetLeft(5);
  ky.Centrage(other);
  EXPECT_EQ(other->Left(), (Form().ScaleWidth() - 100) / 2);
}

TEST_F(CentrageTest, NothingToCentreIsAnObjectError) {
  ExpectPlatformError([&] { ky.Centrage(nullptr); }, 91);
  Form().SetWindowState(1);
  ExpectPlatformError([&] { ky.Centrage(nullptr); }, 91);
  // And the guard is down again.
  Form().SetWindowState(0);
  ky.Centrage(other);
  EXPECT_EQ(other->Top(), (Form().ScaleHeight() - 100) / 2);
}

}  // namespace
}  // namespace ferlan::testing
