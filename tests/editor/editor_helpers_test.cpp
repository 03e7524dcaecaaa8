// FnMot and FormatDate called directly, as a host may.
#include <gtest/gtest.h>

#include <tuple>

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
  const std::tuple<String, String, std::string> cases[] = {
      {Space(10), u"D", "  /  /    "},     {u"12.03.2024", u"D", "12/03/2024"},
      {u"12.03.2024", u"d", "12.03.2024"}, {u"12.03.2024", u"C", "12.03.2024"},
      {u"abcdef", u"D", "ab/de/"},
  };
  for (auto [ch, tv, want] : cases) {
    KySaisie{}.FormatDate(ch, tv);
    EXPECT_EQ(ToUtf8(ch), want);
  }
  // Shorter, it fails with error 5, after the first separator if there was room.
  String ch = u"abcde";
  ExpectPlatformError([&] { KySaisie{}.FormatDate(ch, u"D"); }, 5);
  EXPECT_EQ(ToUtf8(ch), "ab/de");
  ch.clear();
  ExpectPlatformError([&] { KySaisie{}.FormatDate(ch, u"D"); }, 5);
}

}  // namespace
}  // namespace ferlan::testing
