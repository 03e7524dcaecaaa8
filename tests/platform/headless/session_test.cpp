#include "headless/session.hpp"

#include <gtest/gtest.h>

#include <utility>

#include "forms/control.hpp"
#include "headless/fixed_canvas.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

using HeadlessSessionTest = SessionTest;

// A long session must stay flat: what the host keeps (display list, drawing
// log, reports) is measured by counts after many rounds of typing.
TEST_F(HeadlessSessionTest, WhatTheHostKeepsStopsGrowing) {
  KySaisie{}.InitKyF();
  KySaisie{}.DimensionFeuille(25);
  for (int i = 0; i < 600; ++i) {  // a field typed into and left, then a reported error
    Type("abcdefghij{Enter}");
    String text = u"Martin";
    Integer ending = 0;
    KySaisie{}.Modif(936, 12, 1260, 20, 2310, 1155, u"C", text, ending, u"F");
    KySaisie{}.Couleur(u"unknown colour");
  }
  auto& canvas = dynamic_cast<headless::FixedCanvas&>(Zone().GetCanvas());
  const std::size_t limit = headless::FixedCanvas::kOpsLimit;
  EXPECT_LE(canvas.Ops().size(), limit + limit / 4);
  EXPECT_GT(canvas.Dropped(), 0u);
  // The unread drawing log keeps its latest calls and counts the others.
  EXPECT_GT(session.Recorder().Dropped(), 0u);
  EXPECT_EQ(session.Recorder().TakeLog().size(), headless::RecordingDessin::kLogLimit);
  EXPECT_EQ(session.Recorder().Dropped(), 0u);
  // Reports nobody read keep the first ones and count the rest.
  for (std::size_t i = session.Records().reports.size(); i < kit::Records::kLimit + 5; ++i) {
    KySaisie{}.Couleur(u"unknown colour");
  }
  EXPECT_EQ(session.Records().reports.size(), kit::Records::kLimit);
  EXPECT_EQ(session.Records().dropped, 5u);
  // Long texts weigh by their length: the log keeps at most kTextLimit units.
  session.Recorder().TakeLog();
  const String long_text(headless::RecordingDessin::kTextLimit / 3, u'x');
  for (int i = 0; i < 10; ++i) session.Recorder().Texte(Zone(), 0, Single(i), long_text, 0);
  const std::size_t dropped = session.Recorder().Dropped();
  const auto log = session.Recorder().TakeLog();
  std::size_t units = 0;
  for (const auto& call : log) units += std::get<String>(call.args[2]).size();
  EXPECT_LE(units, headless::RecordingDessin::kTextLimit);
  EXPECT_EQ(log.size() + dropped, 10u);
}

TEST(SessionLifetimeTest, ANewSessionFollowsTheLastAndMayBeReenteredOnResize) {
  for (int round = 0; round < 3; ++round) {
    headless::Session session;
    session.Keys().Append("x");
    String r;
    KySaisie{}.Saisie(r);
    EXPECT_EQ(r, u"x") << "round " << round;
    EXPECT_EQ(session.Clock().Now(), 1);
    int resizes = 0;
    session.Form().on_resize = [&] {
      ++resizes;
      KySaisie{}.VideClavierVirtuel();  // a host handler that calls back in
    };
    session.Form().SetWidth(13000);
    session.Form().SetProperty("Height", Variant(Single{9500}));
    EXPECT_EQ(resizes, 2);
  }
}

TEST(SessionLifetimeTest, ATimerTheHostKeepsStopsWithItsSession) {
  TimerRef timer;
  int ticks = 0;
  {
    headless::Session session;
    timer = session.Global().CreateTimer([&ticks] { ++ticks; });
    timer->SetInterval(1);
    timer->SetEnabled(true);
  }
  // The session's clock has gone: the timer reads it no more.
  timer->SetEnabled(false);
  timer->SetInterval(5);
  EXPECT_EQ(std::pair(timer->Interval(), ticks), std::pair(Long{5}, 0));
}

TEST(SessionLifetimeTest, ASecondSessionOnTheSameThreadIsRefused) {
  headless::Session first;
  ExpectPlatformError([] { headless::Session second; }, 5,
                      "Invalid procedure call or argument: another Session lives on this thread");
  // The first stays current and whole.
  EXPECT_EQ(KySaisie{}.HauteurTexte(), 195);
}

}  // namespace
}  // namespace ferlan::testing
