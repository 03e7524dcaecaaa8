#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "headless/key_script.hpp"
#include "support/session_test.hpp"

namespace ferlan::headless {
namespace {

// The events of a whole script, one Describe each.
std::vector<std::string> Events(std::string_view script) {
  std::vector<std::string> out;
  for (const KeyItem& item : KeyScript::Parse(script)) out.push_back(Describe(item));
  return out;
}

using Events_ = std::vector<std::string>;

TEST(KeyScriptTest, TranslatesLikeAUsKeyboard) {
  struct Case {
    const char* script;
    Events_ events;
  };
  const Case cases[] = {
      {"a", {"KeyDown(65,0) KeyPress(97)"}},
      {"A", {"KeyDown(65,1) KeyPress(65)"}},
      {"{Shift+a}", {"KeyDown(65,1) KeyPress(65)"}},
      {"{Shift+B}", {"KeyDown(66,1) KeyPress(66)"}},
      {"{Ctrl+!}", {"KeyDown(49,3)"}},
      {"7", {"KeyDown(55,0) KeyPress(55)"}},
      {"!", {"KeyDown(49,1) KeyPress(33)"}},
      {" ", {"KeyDown(32,0) KeyPress(32)"}},
      {".", {"KeyDown(190,0) KeyPress(46)"}},
      {"?", {"KeyDown(191,1) KeyPress(63)"}},
      {"}", {"KeyDown(221,1) KeyPress(125)"}},
      {"{{", {"KeyDown(219,1) KeyPress(123)"}},
      {"{Left}", {"KeyDown(37,0)"}},
      {"{Right}{Up}{Down}", {"KeyDown(39,0)", "KeyDown(38,0)", "KeyDown(40,0)"}},
      {"{Home}{End}{PgUp}{PgDn}",
       {"KeyDown(36,0)", "KeyDown(35,0)", "KeyDown(33,0)", "KeyDown(34,0)"}},
      {"{Insert}{Delete}{CapsLock}", {"KeyDown(45,0)", "KeyDown(46,0)", "KeyDown(20,0)"}},
      {"{F1}{F12}", {"KeyDown(112,0)", "KeyDown(123,0)"}},
      {"{Enter}", {"KeyDown(13,0) KeyPress(13)"}},
      {"{Backspace}", {"KeyDown(8,0) KeyPress(8)"}},
      {"{Tab}", {"KeyDown(9,0) KeyPress(9)"}},
      {"{Esc}", {"KeyDown(27,0) KeyPress(27)"}},
      {"{Shift+Tab}", {"KeyDown(9,1) KeyPress(9)"}},
      {"{Shift+F1}", {"KeyDown(112,1)"}},
      {"{Ctrl+B}", {"KeyDown(66,2) KeyPress(2)"}},
      {"{Ctrl+b}", {"KeyDown(66,2) KeyPress(2)"}},
      {"{Ctrl+Z}", {"KeyDown(90,2) KeyPress(26)"}},
      {"{Ctrl+Shift+C}", {"KeyDown(67,3) KeyPress(3)"}},
      {"{Ctrl+[}", {"KeyDown(219,2) KeyPress(27)"}},
      {"{Ctrl+1}", {"KeyDown(49,2)"}},
      {"{Ctrl+Enter}", {"KeyDown(13,2) KeyPress(10)"}},
      {"{Ctrl+Backspace}", {"KeyDown(8,2) KeyPress(127)"}},
      {"{Ctrl+Tab}", {"KeyDown(9,2)"}},
      {"{Ctrl+End}", {"KeyDown(35,2)"}},
      {"{Ctrl+Shift+Left}", {"KeyDown(37,3)"}},
      {"{Shift+Ctrl+Left}", {"KeyDown(37,3)"}},
      {"{Alt+R}", {"KeyDown(82,4)"}},
      {"{Alt+C}", {"KeyDown(67,4)"}},
      {"{Alt+Enter}", {"KeyDown(13,4)"}},
      {"{Ctrl+Alt+E}", {"KeyDown(69,6)"}},
      {"{Ctrl++}", {"KeyDown(187,3)"}},
      {"{enter}{pgdn}{ctrl+left}", {"KeyDown(13,0) KeyPress(13)", "KeyDown(34,0)", "KeyDown(37,2)"}},
      {"é", {"KeyDown(231,0) KeyPress(233)"}},
      {"€", {"KeyDown(231,0) KeyPress(128)"}},
      {"Ω", {"KeyDown(231,0) KeyPress(937)"}},
      {"{down:16:1}", {"KeyDown(16,1)"}},
      {"{down:0:0}", {"KeyDown(0,0)"}},
      {"{press:300}", {"KeyPress(300)"}},
      {"{wait:250}", {"wait 250"}},
      {"{abandon}", {"abandon"}},
      {"ab{Left}{Ctrl+End}{Enter}",
       {"KeyDown(65,0) KeyPress(97)", "KeyDown(66,0) KeyPress(98)", "KeyDown(37,0)",
        "KeyDown(35,2)", "KeyDown(13,0) KeyPress(13)"}},
      {"", {}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Events(c.script), c.events) << "script: " << c.script;
  }
}

TEST(KeyScriptTest, KeepsEachItemAsWritten) {
  const std::vector<KeyItem> items = KeyScript::Parse("x{Ctrl+B}{{é{wait:3}");
  ASSERT_EQ(items.size(), 5u);
  EXPECT_EQ(items[0].source, "x");
  EXPECT_EQ(items[1].source, "{Ctrl+B}");
  EXPECT_EQ(items[2].source, "{{");
  EXPECT_EQ(items[3].source, "é");
  EXPECT_EQ(items[4].source, "{wait:3}");
}

TEST(KeyScriptTest, RefusesBadScriptsNamingThePlace) {
  struct Case {
    const char* script;
    const char* detail;
  };
  const Case cases[] = {
      {"ab{Left", "key script at 3: \"{\" without \"}\" (write {{ for a brace)"},
      {"{}", "key script at 2: empty {}"},
      {"{Foo}", "key script at 2: unknown key {Foo}"},
      {"é{Meta+A}", "key script at 3: unknown prefix \"Meta+\" (Shift+, Ctrl+, Alt+)"},
      {"{Ctrl+Ctrl+A}", "key script at 2: \"Ctrl+\" twice"},
      {"{Ctrl+é}",
       "key script at 2: no key gives U+00E9 on a US keyboard, so it takes no Shift, Ctrl or Alt"},
      {"{down:65}", "key script at 2: write {down:KeyCode:Shift}"},
      {"{down:x:0}", "key script at 2: KeyCode \"x\" is not a whole number"},
      {"{press:40000}", "key script at 2: KeyAscii 40000 is out of range"},
      {"{wait:-1}", "key script at 2: a wait of negative time"},
      {"{wait:}", "key script at 2: wait \"\" is not a whole number"},
      {"a\tb", "key script at 2: control character U+0009 in a key script: use a key name such "
               "as {Enter}"},
      {"\xF0\x9F\x98\x80", "key script at 1: a character beyond U+FFFF has no key code"},
  };
  for (const Case& c : cases) {
    ferlan::testing::ExpectPlatformError([&] { KeyScript::Parse(c.script); }, 5,
                                         std::string("Invalid procedure call or argument: ") +
                                             c.detail);
  }
}

TEST(KeyScriptTest, BadScriptQueuesNothing) {
  KeyScript script;
  EXPECT_EQ(script.Append("ab{Left}{Ctrl+End}{Enter}"), 5u);
  EXPECT_THROW(script.Append("cd{Nope}"), PlatformError);
  EXPECT_EQ(script.Size(), 5u);
  EXPECT_EQ(script.Append("z"), 1u);
  EXPECT_EQ(script.Size(), 6u);
}

}  // namespace
}  // namespace ferlan::headless
