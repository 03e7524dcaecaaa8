#include "headless/session.hpp"

#include <gtest/gtest.h>

#include "forms/control.hpp"
#include "headless/key_interception.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

using HeadlessSessionTest = SessionTest;

TEST_F(HeadlessSessionTest, AssemblesTheDefaultHost) {
  EXPECT_FLOAT_EQ(Form().Width(), 12000);
  EXPECT_FLOAT_EQ(Form().Height(), 9000);
  EXPECT_EQ(Form().WindowState(), 0);
  EXPECT_EQ(Env().form, session.FormRef());
  EXPECT_EQ(Env().surface, session.SurfaceRef());
  EXPECT_EQ(Env().active_window, Form().hWnd());
  EXPECT_EQ(Form().Member("ZoneAff"), session.SurfaceRef());

  auto toolbar = std::dynamic_pointer_cast<Control>(Form().Member("BarreOutils"));
  ASSERT_TRUE(toolbar);
  EXPECT_FALSE(toolbar->Visible());
  EXPECT_FLOAT_EQ(toolbar->Height(), 420);
  EXPECT_FLOAT_EQ(toolbar->Width(), Form().ScaleWidth());

  for (const char* name : {"Caret", "zoneMessage"}) {
    auto box = std::dynamic_pointer_cast<PictureBox>(Form().Member(name));
    ASSERT_TRUE(box) << name;
    EXPECT_FALSE(box->Visible()) << name;
  }
  auto clavier = Form().Member("ClavierKY");
  EXPECT_EQ(VariantToBoolean(clavier->GetProperty("Interception")), false);
  clavier->SetProperty("Interception", true);
  EXPECT_EQ(VariantToBoolean(clavier->GetProperty("Interception")), true);

  // The surface sits in the form's inner area with a fixed single border.
  EXPECT_FLOAT_EQ(Zone().Width(), Form().ScaleWidth());
  EXPECT_FLOAT_EQ(Zone().ScaleWidth(), Zone().Width() - 60);
  EXPECT_FLOAT_EQ(Zone().TextHeight(u" "), 195);
  EXPECT_FLOAT_EQ(Zone().TextWidth(u"T"), 105);
}

TEST_F(HeadlessSessionTest, TypedKeysReachTheComponent) {
  KySaisie k;
  String r = u"?";
  Integer code = -1;
  Type("a");
  k.Saisie(r, &code);
  EXPECT_EQ(r, u"a");
  EXPECT_EQ(code, 0);

  Type("{Left}");
  k.Saisie(r, &code);
  EXPECT_EQ(code, 37);

  Type("{Shift+Tab}");
  k.Saisie(r, &code);
  EXPECT_EQ(code, 1009);

  Type("{Ctrl+B}");
  r = u"?";
  k.Saisie(r, &code);
  EXPECT_EQ(r, Chr(2));
  EXPECT_EQ(code, 0);

  Type("{Alt+R}");
  k.Saisie(r, &code);
  EXPECT_EQ(code, 4082);

  Type("é");
  k.Saisie(r, &code);
  EXPECT_EQ(r, u"é");
  EXPECT_FALSE(Env().ToucheVirtuelle);
}

TEST_F(HeadlessSessionTest, WaitWithNoKeysEndsStarvedAfterTenSeconds) {
  session.BeginCall();
  const auto start = session.Clock().Now();
  String r;
  Integer code = -1;
  KySaisie{}.Saisie(r, &code);
  EXPECT_EQ(session.Clock().Now() - start, 10000);
  EXPECT_TRUE(Env().Abandon);
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(session.EndCall());

  session.BeginCall();
  EXPECT_FALSE(Env().Abandon);
  EXPECT_FALSE(session.EndCall());
}

TEST_F(HeadlessSessionTest, ScriptedAbandonEndsTheWait) {
  Type("{wait:20}{abandon}");
  String r;
  KySaisie{}.Saisie(r);
  EXPECT_TRUE(Env().Abandon);
  EXPECT_EQ(session.Clock().Now(), 21);
}

TEST_F(HeadlessSessionTest, RecordsDessinCallsAndPassesThemOn) {
  Zone().SetBackColor(0x00123456);
  session.Recorder().EffaceRect(Zone(), 105, 312, 1105, 506, -1);
  session.Recorder().Texte(Zone(), 0, 0, u"Nom", 0);
  session.Recorder().Hauteur(Zone(), 3000, true);
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 312 1105 506 -1\n"
            "Texte 0 0 \"Nom\" 0\n"
            "Hauteur 3000 True\n");
  EXPECT_EQ(TakeLog(), "");
  // What the kit drew reached the surface's canvas.
  auto& canvas = dynamic_cast<headless::FixedCanvas&>(Zone().GetCanvas());
  EXPECT_NE(canvas.DescribeOps().find("\"Nom\""), std::string::npos) << canvas.DescribeOps();
}

TEST_F(HeadlessSessionTest, NamedPictureBoxesUseTheSessionsCanvas) {
  auto box = session.NewPictureBox();
  box->SetWidth(600);
  EXPECT_FLOAT_EQ(box->TextWidth(u"ab"), 210);
  EXPECT_NE(dynamic_cast<headless::FixedCanvas*>(&box->GetCanvas()), nullptr);
}

TEST_F(HeadlessSessionTest, GlobalGivesClipboardScreenAndTimers) {
  session.SetClipboardText(u"copié");
  EXPECT_EQ(session.ClipboardText(), u"copié");
  EXPECT_FLOAT_EQ(session.Global().Screen().Width(), 28800);
  int ticks = 0;
  TimerRef t = session.Global().CreateTimer([&] { ++ticks; });
  t->SetEnabled(true);
  t->SetInterval(2);
  session.Global().DoEvents();
  session.Global().DoEvents();
  EXPECT_EQ(ticks, 1);
}

TEST(SessionLifetimeTest, ANewSessionFollowsTheLastOnTheSameThread) {
  for (int round = 0; round < 3; ++round) {
    headless::Session session;
    session.Keys().Append("x");
    String r;
    KySaisie{}.Saisie(r);
    EXPECT_EQ(r, u"x") << "round " << round;
    EXPECT_EQ(session.Clock().Now(), 1);
  }
}

TEST(SessionLifetimeTest, ResizeHandlerMayReenterTheComponent) {
  headless::Session session;
  int resizes = 0;
  session.Form().on_resize = [&] {
    ++resizes;
    // A host handler that calls back in while the assignment runs.
    KySaisie{}.VideClavierVirtuel();
  };
  session.Form().SetWidth(13000);
  session.Form().SetProperty("Height", Variant(Single{9500}));
  EXPECT_EQ(resizes, 2);
}

}  // namespace
}  // namespace ferlan::testing
