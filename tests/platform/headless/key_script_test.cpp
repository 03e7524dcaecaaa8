#include "headless/key_script.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/session_test.hpp"

namespace ferlan::headless {
namespace {

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
      {"!}{{", "KeyDown(49,1) KeyPress(33) | KeyDown(221,1) KeyPress(125) | KeyDown(219,1) "
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
  KeyScript script;
  EXPECT_EQ(script.Append("ab{Left}"), 3u);
  EXPECT_THROW(script.Append("cd{Nope}"), PlatformError);
  EXPECT_EQ(script.Size(), 3u);
}

}  // namespace
}  // namespace ferlan::headless
