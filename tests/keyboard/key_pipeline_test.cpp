// Keys from the host to Saisie: scripted keys, chords, the wait and its
// abandon, and the virtual keyboard's buffer.
#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan {
namespace {

using KeyPipelineTest = testing::SessionTest;

struct Received {
  String r;
  Integer code;
  bool operator==(const Received&) const = default;
  friend void PrintTo(const Received& k, std::ostream* os) {
    *os << "R \"" << ToUtf8(k.r) << "\" code " << k.code;
  }
};

// One wait for a key, as the field editor makes it.
Received WaitForKey(String r = u"") {
  Integer code = -1;
  KySaisie{}.Saisie(r, &code);
  return {r, code};
}

// A key code comes back with the caller's R untouched; a character in R, and
// the repeat key hands R back.
TEST_F(KeyPipelineTest, ScriptedKeysReachSaisieAsKeyCodes) {
  const std::tuple<const char*, Integer, const char16_t*> cases[] = {
      {"{Left}", 37, u"R"},    {"{Shift+Tab}", 1009, u"R"}, {"{Ctrl+Shift+Left}", 3037, u"R"},
      {"{Alt+R}", 4082, u"R"}, {"{Shift+F1}", 1112, u"R"},  {"{Ctrl+B}", 0, u"\x02"},
      {"{Shift+a}", 0, u"A"},  {"{Ctrl+C}", 2067, u"R"},    {"{Ctrl+Shift+C}", 0, u"\x03"},
      {"{Alt+C}", 4067, u"R"}, {"{Enter}", 13, u"R"},       {"\xE2\x82\xAC", 0, u"\u20AC"},
      {"{Ctrl+R}", 0, u"R"}};
  for (const auto& [script, code, r] : cases) {
    Type(script);
    EXPECT_EQ(WaitForKey(u"R"), (Received{r, code})) << script;
  }
  // Caps Lock alone, KeyCode 0 with the KeyPress that follows, and Shift
  // alone store nothing; the wait then takes the next real key.
  Type("{CapsLock}{down:0:0}{press:97}{down:16:1}z");
  EXPECT_EQ(WaitForKey(), (Received{u"z", 0}));
}

TEST_F(KeyPipelineTest, ShiftAloneLeavesToucheVirtuelleWhileCtrlAloneClearsIt) {
  KySaisie k;
  // The key code GestKeyDown leaves to the host.
  const auto down = [&](Integer code, Integer shift) {
    k.GestKeyDown(code, shift);
    return code;
  };
  Env().ToucheVirtuelle = true;
  EXPECT_EQ(down(16, 1), 16);
  EXPECT_TRUE(Env().ToucheVirtuelle);
  EXPECT_EQ(down(17, 2), 17);
  EXPECT_FALSE(Env().ToucheVirtuelle);
  EXPECT_FALSE(State().ToucheTraitee);
  EXPECT_EQ(down(20, 0), 0);  // Caps Lock, unless with Shift
  EXPECT_EQ(down(20, 1), 20);

  // Ctrl+Alt+E is no chord: its character goes through KeyPress.
  down(69, 6);
  Integer euro = 128;
  k.GestKeyPress(euro);
  EXPECT_EQ(euro, 0);
  EXPECT_EQ(State().ToucheEnAttente, 128);
  EXPECT_TRUE(State().EstCaractere);
}

TEST_F(KeyPipelineTest, CharacterAbove255WaitsUntilAnotherKeyReplacesIt) {
  Type("\xE4\xB8\xAD{wait:5}q");  // a character outside the code page, then q
  const std::int64_t start = session.Clock().Now();
  EXPECT_EQ(WaitForKey().r, u"q");
  EXPECT_GE(session.Clock().Now() - start, 6);
}

TEST_F(KeyPipelineTest, KeyBeforeTheWaitIsLostAndTheLastOfOneDoEventsWins) {
  KySaisie k;
  k.ModifClavier(65, true);  // pending before Saisie: cleared when it starts
  Form().on_key_down = [&](Integer&, Integer) {
    k.ModifClavier(97, true);
    k.ModifClavier(98, true);
  };
  Type("{down:90:0}");
  EXPECT_EQ(WaitForKey().r, u"b");
}

TEST_F(KeyPipelineTest, AbandonEndsTheWaitWithCodeZero) {
  Env().Abandon = true;
  const std::int64_t before = session.Clock().Now();
  EXPECT_EQ(WaitForKey(u"r"), (Received{u"r", 0}));
  EXPECT_EQ(session.Clock().Now(), before) << "no DoEvents when Abandon is set on entry";

  Env().Abandon = false;
  Type("{wait:3}{abandon}x");
  EXPECT_EQ(WaitForKey(), (Received{u"", 0}));
  EXPECT_EQ(State().ToucheEnAttente, 0);
}

TEST_F(KeyPipelineTest, MaximalWaitsCostAFewPollsAndVirtualKeysStillComeFirst) {
  Type("{wait:2147483647}{wait:2147483647}x");
  const std::int64_t before = session.Clock().Now();
  const std::int64_t calls = session.Loop().Calls();
  EXPECT_EQ(WaitForKey().r, u"x");
  EXPECT_EQ(session.Clock().Now() - before, 2 * std::int64_t{2147483647} + 1);
  EXPECT_LE(session.Loop().Calls() - calls, 6);

  // Virtual keys are read one a poll, 1 ms apart, before a wait's end.
  Type("{wait:1000}y");
  KySaisie{}.ClavierVirtuel(u"ab", 0, false);
  const std::int64_t start = session.Clock().Now();
  EXPECT_EQ(WaitForKey().r, u"a");
  EXPECT_EQ(WaitForKey().r, u"b");
  EXPECT_EQ(WaitForKey().code, 36);  // Home, ending the virtual keys
  EXPECT_EQ(session.Clock().Now() - start, 3);
  EXPECT_EQ(WaitForKey().r, u"y");
  EXPECT_EQ(session.Clock().Now() - start, 1001);
}

TEST_F(KeyPipelineTest, VideClavierRunsNoDoEventsWhenNothingIsPendingAndInterceptionIsByName) {
  KySaisie k;
  const std::int64_t before = session.Clock().Now();
  k.VideClavier();
  EXPECT_EQ(session.Clock().Now(), before);
  k.ModifClavier(2067, false);
  k.VideClavier();
  EXPECT_EQ(session.Clock().Now(), before + 1);
  EXPECT_EQ(State().ToucheEnAttente, 0);
  // Interception is written on the form's object by name.
  KySaisie{}.IntercepteClavierKY(true);
  EXPECT_EQ(std::get<Boolean>(Form().Member("ClavierKY")->GetProperty("Interception")), true);
  Env().form = nullptr;
  testing::ExpectPlatformError([] { KySaisie{}.IntercepteClavierKY(false); }, 91);
}

// Drains the virtual keyboard's buffer through the real wait, one key a Saisie.
using Keys = std::vector<std::pair<Integer, String>>;
Keys ReadAll() {
  Keys keys;
  while (State().ClavierTampon != u"[]") {
    const Received got = WaitForKey();
    keys.emplace_back(got.code, got.code == 0 ? got.r : String());
  }
  return keys;
}

TEST_F(KeyPipelineTest, VirtualKeysComeOutAfterTheBlankingKeyAndBeforeHomeAndT) {
  KySaisie k;
  k.ClavierVirtuel(u"AB", 13, true);
  EXPECT_EQ(ReadAll(), (Keys{{27, u""}, {0, u"A"}, {0, u"B"}, {36, u""}, {13, u""}}));
  EXPECT_TRUE(Env().ToucheVirtuelle);
  k.ClavierVirtuel(u"", 0, true);
  EXPECT_EQ(ReadAll(), (Keys{{27, u""}, {36, u""}}));
  k.ClavierVirtuel(u"xyz", 13, false);
  k.ClavierVirtuelToucheFonction(13);  // replaces the first call entirely
  EXPECT_EQ(ReadAll(), (Keys{{27, u""}, {13, u""}}));
  k.ClavierVirtuel(String(1, u'\0') + u" 40.4", 13, false);  // T ignored for a key number
  EXPECT_EQ(ReadAll(), (Keys{{40, u""}}));
  // A text with brackets, commas and quotes travels through the list intact.
  k.ClavierVirtuel(u"[a,\"]", 0, false);
  EXPECT_EQ(ReadAll(), (Keys{{0, u"["}, {0, u"a"}, {0, u","}, {0, u"\""}, {0, u"]"}, {36, u""}}));
}

TEST_F(KeyPipelineTest, KeyOutsideTheCodePageFailsAfterWhatWasAdded) {
  Env().ToucheVide = 300;
  testing::ExpectPlatformError([] { KySaisie{}.ClavierVirtuel(u"A"); }, 5);
  EXPECT_EQ(State().ClavierTampon, u"[]");
  Env().ToucheVide = 27;
  testing::ExpectPlatformError([] { KySaisie{}.ClavierVirtuelToucheFonction(256); }, 5);
  EXPECT_EQ(WaitForKey().code, 27);  // the blanking key added before the failure
}

}  // namespace
}  // namespace ferlan
