// Ctrl_C, FnMot and FormatDate called directly, as a host may.
#include <gtest/gtest.h>

#include "editor/editor_fixture.hpp"

namespace ferlan::testing {
namespace {

using EditorHelpersTest = EditorTest;

TEST_F(EditorHelpersTest, FnMotAcceptsPlainLettersAndDigitsOnly) {
  for (const Integer code : {48, 57, 65, 90, 97, 122}) EXPECT_TRUE(KySaisie{}.FnMot(code)) << code;
  for (const Integer code : {47, 58, 64, 91, 96, 123, 0, 233, 201, -1, 32767}) {
    EXPECT_FALSE(KySaisie{}.FnMot(code)) << code;
  }
}

TEST_F(EditorHelpersTest, FormatDateWritesBothSeparatorsOnlyForD) {
  String ch = Space(10);
  KySaisie{}.FormatDate(ch, u"D");
  EXPECT_EQ(ToUtf8(ch), "  /  /    ");
  ch = u"12.03.2024";
  KySaisie{}.FormatDate(ch, u"d");
  KySaisie{}.FormatDate(ch, u"C");
  EXPECT_EQ(ToUtf8(ch), "12.03.2024");
  KySaisie{}.FormatDate(ch, u"D");
  EXPECT_EQ(ToUtf8(ch), "12/03/2024");

  // Six characters are enough; with fewer, error 5 after the first one.
  ch = u"abcdef";
  KySaisie{}.FormatDate(ch, u"D");
  EXPECT_EQ(ToUtf8(ch), "ab/de/");
  ch = u"abcde";
  ExpectPlatformError([&] { KySaisie{}.FormatDate(ch, u"D"); }, 5);
  EXPECT_EQ(ToUtf8(ch), "ab/de");
  ch.clear();
  ExpectPlatformError([&] { KySaisie{}.FormatDate(ch, u"D"); }, 5);
}

TEST_F(EditorHelpersTest, CtrlCReplacesWhatTheClipboardHeld) {
  session.SetClipboardText(u"a much longer text");
  KySaisie{}.Ctrl_C(u"");
  EXPECT_EQ(ToUtf8(session.ClipboardText()), "");
}

}  // namespace
}  // namespace ferlan::testing
