#include "headless/event_loop.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ferlan::headless {
namespace {

// A loop alone with a form whose handlers write down what they get, and an
// Abandon flag of its own.
class EventLoopTest : public ::testing::Test {
 protected:
  EventLoopTest() {
    form->on_key_down = [this](Integer& k, Integer s) {
      events.push_back("D" + std::to_string(k) + "," + std::to_string(s) + "@" +
                       std::to_string(clock.Now()));
    };
    form->on_key_press = [this](Integer& a) {
      events.push_back("P" + std::to_string(a) + "@" + std::to_string(clock.Now()));
    };
    loop.SetForm(form);
    loop.SetAbandonWriter([this](Boolean v) { abandon = v; });
  }

  void Pump(int times) {
    for (int i = 0; i < times; ++i) loop.DoEvents();
  }

  VirtualClock clock;
  KeyScript script;
  EventLoop loop{clock, script};
  std::shared_ptr<forms::Form> form = std::make_shared<forms::Form>(1, 28800, 16200);
  std::vector<std::string> events;
  Boolean abandon = false;
};

TEST_F(EventLoopTest, DeliversOneKeystrokeEachDoEvents) {
  script.Append("a{Left}{Ctrl+B}");
  Pump(1);
  EXPECT_EQ(events, (std::vector<std::string>{"D65,0@1", "P97@1"}));
  Pump(1);
  EXPECT_EQ(events.back(), "D37,0@2");
  Pump(5);
  EXPECT_EQ(events, (std::vector<std::string>{"D65,0@1", "P97@1", "D37,0@2", "D66,2@3", "P2@3"}));
  EXPECT_TRUE(script.Empty());
}

TEST_F(EventLoopTest, ZeroedKeyCodeStillGetsItsKeyPress) {
  form->on_key_down = [this](Integer& k, Integer) {
    events.push_back("D" + std::to_string(k));
    k = 0;
  };
  script.Append("x");
  Pump(1);
  EXPECT_EQ(events, (std::vector<std::string>{"D88", "P120@1"}));
}

TEST_F(EventLoopTest, WaitLetsTimePassWithNoKey) {
  script.Append("a{wait:3}b{wait:0}c");
  Pump(10);
  EXPECT_EQ(events, (std::vector<std::string>{"D65,0@1", "P97@1", "D66,0@5", "P98@5", "D67,0@6",
                                              "P99@6"}));
}

TEST_F(EventLoopTest, AbandonItemSetsAbandonInItsTurn) {
  script.Append("a{abandon}b");
  Pump(1);
  EXPECT_FALSE(abandon);
  Pump(1);
  EXPECT_TRUE(abandon);
  EXPECT_EQ(events.size(), 2u);
  Pump(1);
  EXPECT_EQ(events.size(), 4u);
}

TEST_F(EventLoopTest, StarvesAfterTenSecondsOfEmptyScript) {
  script.Append("a");
  Pump(1);  // the key: the count starts after it
  Pump(9999);
  EXPECT_FALSE(abandon);
  EXPECT_FALSE(loop.Starved());
  Pump(1);
  EXPECT_TRUE(abandon);
  EXPECT_TRUE(loop.Starved());

  loop.BeginCall();
  EXPECT_FALSE(abandon);
  EXPECT_FALSE(loop.Starved());
  Pump(9999);
  EXPECT_FALSE(abandon);
  script.Append("b");
  Pump(1);  // a key resets the count
  Pump(9999);
  EXPECT_FALSE(abandon);
  Pump(1);
  EXPECT_TRUE(abandon);
}

TEST_F(EventLoopTest, WaitingScriptIsNotStarvation) {
  script.Append("{wait:15000}");
  Pump(15000);
  EXPECT_FALSE(abandon);
  Pump(9999);
  EXPECT_FALSE(abandon);
  Pump(1);
  EXPECT_TRUE(abandon);
}

TEST_F(EventLoopTest, BeginCallKeepsAnAbandonItDidNotCause) {
  script.Append("{abandon}");
  Pump(1);
  loop.BeginCall();
  EXPECT_TRUE(abandon);
}

TEST_F(EventLoopTest, TimersFireOnTheVirtualClockInCreationOrder) {
  std::vector<std::string> ticks;
  TimerRef slow = loop.CreateTimer([&] { ticks.push_back("slow@" + std::to_string(clock.Now())); });
  TimerRef fast = loop.CreateTimer([&] { ticks.push_back("fast@" + std::to_string(clock.Now())); });
  EXPECT_FALSE(slow->Enabled());
  EXPECT_EQ(slow->Interval(), 0);
  Pump(3);
  EXPECT_TRUE(ticks.empty()) << "a new timer is stopped";

  slow->SetEnabled(true);
  slow->SetInterval(500);  // counted from now, 3
  fast->SetEnabled(true);
  fast->SetInterval(250);
  Pump(499);
  EXPECT_EQ(ticks, (std::vector<std::string>{"fast@253"}));
  Pump(1);
  EXPECT_EQ(ticks, (std::vector<std::string>{"fast@253", "slow@503", "fast@503"}));

  fast->SetInterval(0);  // stops it
  Pump(500);
  EXPECT_EQ(ticks.back(), "slow@1003");
  EXPECT_EQ(ticks.size(), 4u);

  slow->SetEnabled(false);
  Pump(1000);
  EXPECT_EQ(ticks.size(), 4u);
}

TEST_F(EventLoopTest, SettingIntervalRestartsTheCount) {
  int ticks = 0;
  TimerRef t = loop.CreateTimer([&] { ++ticks; });
  t->SetEnabled(true);
  t->SetInterval(10);
  Pump(9);
  t->SetInterval(10);
  Pump(9);
  EXPECT_EQ(ticks, 0);
  Pump(1);
  EXPECT_EQ(ticks, 1);
}

TEST_F(EventLoopTest, IntervalOneTicksEveryDoEvents) {
  int ticks = 0;
  TimerRef t = loop.CreateTimer([&] { ++ticks; });
  t->SetEnabled(true);
  t->SetInterval(1);
  Pump(5);
  EXPECT_EQ(ticks, 5);
}

TEST_F(EventLoopTest, DroppedTimerStops) {
  int ticks = 0;
  TimerRef t = loop.CreateTimer([&] { ++ticks; });
  t->SetEnabled(true);
  t->SetInterval(1);
  Pump(1);
  t.reset();
  Pump(3);
  EXPECT_EQ(ticks, 1);
}

TEST_F(EventLoopTest, TickThatRunsDoEventsDoesNotReenterItself) {
  int depth = 0;
  int max_depth = 0;
  int ticks = 0;
  TimerRef t = loop.CreateTimer([&] {
    ++ticks;
    max_depth = std::max(max_depth, ++depth);
    loop.DoEvents();
    --depth;
  });
  t->SetEnabled(true);
  t->SetInterval(1);
  Pump(4);
  EXPECT_EQ(max_depth, 1);
  EXPECT_EQ(clock.Now(), 8) << "each tick's own DoEvents moves the clock too";
  EXPECT_EQ(ticks, 4);
}

TEST_F(EventLoopTest, KeysOfAScriptAppendedByAHandlerComeLater) {
  form->on_key_press = [this](Integer& a) {
    events.push_back("P" + std::to_string(a));
    if (a == 97) script.Append("z");
  };
  script.Append("ab");
  Pump(3);
  EXPECT_EQ(events, (std::vector<std::string>{"D65,0@1", "P97", "D66,0@2", "P98", "D90,0@3", "P122"}));
}

}  // namespace
}  // namespace ferlan::headless
