// Ctrl_C, FnMot and FormatDate called directly, as a host may.
#include <gtest/gtest.h>

#include "editor/editor_fixture.hpp"

namespace ferlan::testing {
namespace {

using EditorHelpersTest = EditorTest;

TEST_F(EditorHelpersTest, FnMotAcceptsPlainLettersAndDigitsOnly) {
  struct Case {
    Integer code;
    bool word;
  };
  const Case cases[] = {{47, false}, {48, true},    {57, true},  {58, false},  {64, false},
                        {65, true},  {90, true},    {91, false}, {96, false},  {97, true},
                        {122, true}, {123, false},  {0, false},  {233, false}, {201, false},
                        {-1, false}, {32767, false}};
  for (const Case& c : cases) EXPECT_EQ(KySaisie{}.FnMot(c.code), c.word) << "code " << c.code;
}

TEST_F(EditorHelpersTest, FormatDateWritesBothSeparatorsOnlyForD) {
  String ch = Space(10);
  KySaisie{}.FormatDate(ch, u"D");
  EXPECT_EQ(ToUtf8(ch), "  /  /    ");

  ch = u"12.03.2024";
  KySaisie{}.FormatDate(ch, u"d");
  EXPECT_EQ(ToUtf8(ch), "12.03.2024");
  KySaisie{}.FormatDate(ch, u"C");
  EXPECT_EQ(ToUtf8(ch), "12.03.2024");
  KySaisie{}.FormatDate(ch, u"D");
  EXPECT_EQ(ToUtf8(ch), "12/03/2024");
}

TEST_F(EditorHelpersTest, FormatDateOnATextTooShortFailsWithError5) {
  String six = u"abcdef";
  KySaisie{}.FormatDate(six, u"D");
  EXPECT_EQ(ToUtf8(six), "ab/de/");

  String five = u"abcde";
  ExpectPlatformError([&] { KySaisie{}.FormatDate(five, u"D"); }, 5);
  EXPECT_EQ(ToUtf8(five), "ab/de");  // the first separator went in before the failure
  String empty;
  ExpectPlatformError([&] { KySaisie{}.FormatDate(empty, u"D"); }, 5);
}

TEST_F(EditorHelpersTest, CtrlCReplacesWhatTheClipboardHeld) {
  session.SetClipboardText(u"a much longer text");
  KySaisie{}.Ctrl_C(u"abc");
  EXPECT_EQ(ToUtf8(session.ClipboardText()), "abc");
  KySaisie{}.Ctrl_C(u"");
  EXPECT_EQ(ToUtf8(session.ClipboardText()), "");
}

}  // namespace
}  // namespace ferlan::testing
