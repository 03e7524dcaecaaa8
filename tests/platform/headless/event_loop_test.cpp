// The headless event loop on its virtual clock, and the key scripts it plays.
#include "headless/event_loop.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "headless/key_script.hpp"
#include "support/session_test.hpp"

namespace ferlan::headless {
namespace {

void Start(const TimerRef& timer, Long interval_ms) {
  timer->SetEnabled(true);
  timer->SetInterval(interval_ms);
}

// A loop of its own on a form, skipping idle time or stepping 1 ms a call;
// Note keeps what happened and at which virtual time.
struct OwnLoop {
  explicit OwnLoop(bool skip = false) {
    loop.SetForm(form);
    if (skip) loop.SetCallerIdle([] { return true; });
  }
  void Note(const std::string& what) { events += what + "@" + std::to_string(clock.Now()) + " "; }
  void Pump(int times) {
    for (int i = 0; i < times; ++i) loop.DoEvents();
  }
  std::shared_ptr<forms::Form> form = std::make_shared<forms::Form>(1, 28800, 16200);
  VirtualClock clock;
  KeyScript script;
  EventLoop loop{clock, script};
  std::string events;
};

// Handlers that note what they get and when, then zero the key code as a host
// may (KeyPress comes all the same); the loop's own Abandon.
class EventLoopTest : public ::testing::Test, protected OwnLoop {
 protected:
  EventLoopTest() {
    form->on_key_down = [this](Integer& k, Integer s) {
      Note("D" + std::to_string(k) + "," + std::to_string(s));
      k = 0;
    };
    form->on_key_press = [this](Integer& a) { Note("P" + std::to_string(a)); };
    loop.SetAbandonWriter([this](Boolean v) { Note((abandon = v) ? "abandon" : "resume"); });
  }
  Boolean abandon = false;
};

TEST_F(EventLoopTest, DeliversOneItemEachDoEventsThoseAHandlerQueuesLast) {
  form->on_key_press = [this](Integer& a) {
    Note("P" + std::to_string(a));
    if (a == 'a') script.Append("z");
  };
  script.Append("a{Left}{Ctrl+B}{wait:3}b{wait:0}{abandon}c");
  Pump(10);
  EXPECT_EQ(events,
            "D65,0@1 P97@1 D37,0@2 D66,2@3 P2@3 D66,0@7 P98@7 abandon@8 D67,0@9 P99@9 D90,0@10 "
            "P122@10 ");
}

TEST_F(EventLoopTest, StarvesAtTenSecondsOfEmptyScript) {
  script.Append("{abandon}a");
  Pump(1);
  loop.BeginCall();
  EXPECT_TRUE(abandon) << "BeginCall keeps an Abandon it did not cause";
  abandon = false;
  Pump(1 + 9999);  // the count starts after the key
  EXPECT_FALSE(abandon || loop.Starved());
  Pump(1);
  EXPECT_TRUE(abandon && loop.Starved());

  loop.BeginCall();
  EXPECT_FALSE(abandon || loop.Starved());
  Pump(9999);
  script.Append("{wait:15000}b");  // neither a wait nor a key is starvation
  Pump(15001 + 9999);
  EXPECT_FALSE(abandon);
  Pump(1);
  EXPECT_TRUE(abandon);
}

TEST_F(EventLoopTest, TimersFireOnTheVirtualClockInCreationOrder) {
  TimerRef slow = loop.CreateTimer([&] { Note("slow"); });
  TimerRef fast = loop.CreateTimer([&] { Note("fast"); });
  Pump(3);           // a new timer is stopped
  Start(slow, 500);  // counted from now, 3
  Start(fast, 250);
  Pump(500);
  fast->SetInterval(0);  // stops it
  Pump(900);
  slow->SetInterval(500);  // at 1403: the count starts again
  Pump(500);
  slow->SetEnabled(false);
  Pump(1000);
  EXPECT_EQ(events, "fast@253 slow@503 fast@503 slow@1003 slow@1903 ");
}

TEST_F(EventLoopTest, OneMsTimerTicksEachDoEventsWithoutReentryTillDropped) {
  int ticks = 0;
  TimerRef t = loop.CreateTimer([&] {
    ++ticks;
    loop.DoEvents();  // moves the clock but does not run this tick again
  });
  Start(t, 1);
  Pump(4);
  EXPECT_EQ(ticks, 4);
  EXPECT_EQ(clock.Now(), 8);
  t.reset();
  Pump(3);
  EXPECT_EQ(ticks, 4);
}

// Idle time skipped: the same notes at the same virtual times as 1 ms a
// call, for far fewer calls.
TEST_F(EventLoopTest, SkippingIdleTimeKeepsEveryTimeAndCount) {
  const auto run = [](bool skip) {
    OwnLoop own(skip);
    own.form->on_key_press = [&](Integer& a) { own.Note("P" + std::to_string(a)); };
    own.loop.SetAbandonWriter([&](Boolean v) { own.Note(v ? "abandon" : "resume"); });
    TimerRef fast = own.loop.CreateTimer([&] { own.Note("fast"); });
    TimerRef slow = own.loop.CreateTimer([&] {
      own.Note("slow");
      if (own.clock.Now() < 9000) own.script.Append("{wait:1}s");  // a tick that types
    });
    Start(fast, 2500);
    Start(slow, 4000);
    own.script.Append("{wait:1234}x{wait:3000}{wait:0}y");
    while (!own.loop.Starved()) own.loop.DoEvents();
    fast->SetEnabled(false);
    slow->SetEnabled(false);
    return std::make_pair(own.events, own.loop.Calls());
  };
  const auto [stepped, stepped_calls] = run(false);
  const auto [skipped, skipped_calls] = run(true);
  EXPECT_EQ(skipped, stepped);
  EXPECT_NE(stepped.find("abandon@18002"), std::string::npos) << stepped;
  EXPECT_EQ(stepped_calls, 18002);
  // A few calls for each of the 16 events, none for the idle time between.
  EXPECT_LT(skipped_calls, 3 * 16);
}

// A 1 ms timer coalesces over idle time, yet sees each change of a slower
// timer 1 ms after it, as with 1 ms steps.
TEST_F(EventLoopTest, OneMsTimerCoalescesYetSeesEveryChangeAtItsTime) {
  const auto run = [](bool skip) {
    OwnLoop own(skip);
    int blinks = 0, seen = 0;
    TimerRef blink = own.loop.CreateTimer([&] { ++blinks; });
    TimerRef follow = own.loop.CreateTimer([&] {
      if (seen != blinks) own.events += std::to_string(own.clock.Now()) + " ";
      seen = blinks;
    });
    Start(blink, 500);
    Start(follow, 1);
    own.script.Append("{wait:100000}");
    while (!own.script.Empty()) own.loop.DoEvents();
    blink->SetEnabled(false);
    follow->SetEnabled(false);
    return std::make_pair(own.events, own.loop.Calls());
  };
  const auto [stepped, stepped_calls] = run(false);
  const auto [skipped, skipped_calls] = run(true);
  EXPECT_EQ(skipped, stepped);
  EXPECT_EQ(stepped_calls, 100000);
  // The blink's 200 ticks, each seen 1 ms later, and the skips between.
  EXPECT_LE(skipped_calls, 3 * 200 + 3);
}

// Maximal waits through Saisie and virtual keys at 1 ms a poll are the key
// pipeline's; here, starvation still comes after exactly ten seconds.
TEST_F(EventLoopTest, StarvationStaysAtTenSecondsWhileIdleTimeIsSkipped) {
  loop.SetCallerIdle([] { return true; });
  loop.BeginCall();
  // A timer set to the 9,999th ms of an empty script sees no starvation yet.
  bool starved_at_9999 = true;
  TimerRef probe = loop.CreateTimer([&] { starved_at_9999 = loop.Starved(); });
  Start(probe, 9999);
  while (!loop.Starved()) loop.DoEvents();
  EXPECT_FALSE(starved_at_9999);
  EXPECT_EQ(clock.Now(), 10000);
  EXPECT_LE(loop.Calls(), 6);
}

// Key scripts: what each item types on a US keyboard, and the scripts refused.
// The events of a whole script, one Describe an item, joined by " | ".
std::string Events(std::string_view script) {
  std::string out;
  for (const KeyItem& item : KeyScript::Parse(script)) {
    out += (out.empty() ? "" : " | ") + Describe(item);
  }
  return out;
}

TEST(KeyScriptTest, TranslatesLikeAUsKeyboard) {
  const std::pair<const char*, const char*> cases[] = {
      {"a", "KeyDown(65,0) KeyPress(97)"},
      {"A{Shift+a}", "KeyDown(65,1) KeyPress(65) | KeyDown(65,1) KeyPress(65)"},
      {"!}{{",
       "KeyDown(49,1) KeyPress(33) | KeyDown(221,1) KeyPress(125) | KeyDown(219,1) "
       "KeyPress(123)"},
      {"{Left}{pgdn}{F12}{Ctrl+Tab}",
       "KeyDown(37,0) | KeyDown(34,0) | KeyDown(123,0) | KeyDown(9,2)"},
      {"{Enter}{Shift+Tab}", "KeyDown(13,0) KeyPress(13) | KeyDown(9,1) KeyPress(9)"},
      {"{Ctrl+Shift+C}{Ctrl+[}", "KeyDown(67,3) KeyPress(3) | KeyDown(219,2) KeyPress(27)"},
      {"{Ctrl+Enter}{Ctrl+Backspace}", "KeyDown(13,2) KeyPress(10) | KeyDown(8,2) KeyPress(127)"},
      {"{Ctrl+1}{Ctrl+!}{Ctrl++}", "KeyDown(49,2) | KeyDown(49,3) | KeyDown(187,3)"},
      {"{Shift+Ctrl+Left}{Alt+R}{Ctrl+Alt+E}", "KeyDown(37,3) | KeyDown(82,4) | KeyDown(69,6)"},
      {"é€", "KeyDown(231,0) KeyPress(233) | KeyDown(231,0) KeyPress(128)"},
      {"{down:16:1}{press:300}{wait:250}{abandon}",
       "KeyDown(16,1) | KeyPress(300) | wait 250 | abandon"},
      {"", ""},
  };
  for (const auto& [script, events] : cases) EXPECT_EQ(Events(script), events) << script;
}

TEST(KeyScriptTest, RefusesBadScriptsNamingThePlaceAndQueuesNothing) {
  const std::pair<const char*, const char*> cases[] = {
      {"ab{Left", "at 3: \"{\" without \"}\" (write {{ for a brace)"},
      {"{}", "at 2: empty {}"},
      {"{Foo}", "at 2: unknown key {Foo}"},
      {"é{Meta+A}", "at 3: unknown prefix \"Meta+\" (Shift+, Ctrl+, Alt+)"},
      {"{Ctrl+Ctrl+A}", "at 2: \"Ctrl+\" twice"},
      {"{Ctrl+é}", "at 2: no key gives U+00E9 on a US keyboard, so it takes no Shift, Ctrl or Alt"},
      {"{down:65}", "at 2: write {down:KeyCode:Shift}"},
      {"{press:40000}", "at 2: KeyAscii 40000 is out of range"},
      {"{wait:-1}", "at 2: a wait of negative time"},
      {"{wait:}", "at 2: wait \"\" is not a whole number"},
      {"a\tb", "at 2: control character U+0009 in a key script: use a key name such as {Enter}"},
      {"\xF0\x9F\x98\x80", "at 1: a character beyond U+FFFF has no key code"},
  };
  for (const auto& c : cases) {
    ferlan::testing::ExpectPlatformError(
        [&] { KeyScript::Parse(c.first); }, 5,
        std::string("Invalid procedure call or argument: key script ") + c.second);
  }
  KeyScript script;  // a refused script adds nothing to what is queued
  EXPECT_EQ(script.Append("ab{Left}"), 3u);
  EXPECT_THROW(script.Append("cd{Nope}"), PlatformError);
  EXPECT_EQ(script.Size(), 3u);
  // Items nobody reads stop at the limit; the script that would pass it adds none.
  EXPECT_EQ(script.Append(std::string(KeyScript::kMaxQueued - 4, 'x')), KeyScript::kMaxQueued - 4);
  EXPECT_THROW(script.Append("yz"), PlatformError);
  EXPECT_EQ(script.Size(), KeyScript::kMaxQueued - 1);
}

}  // namespace
}  // namespace ferlan::headless
