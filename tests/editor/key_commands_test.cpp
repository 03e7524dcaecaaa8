// The command table through real keys: each case types a script into a
// field and checks what the caller gets back. The final Col shows LU where
// End is pressed last. A locked clipboard is the one error the editor catches.
#include <gtest/gtest.h>

#include <memory>
#include <tuple>

#include "editor/editor_fixture.hpp"
#include "forms/global.hpp"

namespace ferlan::testing {
namespace {

struct Case {
  const char* keys;
  Field field;
  String want_ch;
  Integer want_col;
  Integer want_tr = 13;
  bool insertion = false;  // Insertion as an earlier field left it
  const char16_t* clipboard = nullptr;
};

class KeyCommandTest : public EditorTest, public ::testing::WithParamInterface<Case> {};

TEST_P(KeyCommandTest, GivesTheCallerTheEditedField) {
  const Case& c = GetParam();
  SCOPED_TRACE("keys " + std::string(c.keys) + " on \"" + ToUtf8(c.field.ch) + "\"");
  St().Insertion = c.insertion;
  if (c.clipboard != nullptr) session.SetClipboardText(c.clipboard);
  EXPECT_EQ(Edit(c.field, c.keys), (Outcome{c.want_ch, c.want_tr, c.want_col}));
}

Field Date(String ch, Integer col = 0) { return {ch, 10, u"D", col == 0 ? u"F" : u"E", col}; }
Field YesNo(String ch, Integer lcm = 3) { return {ch, lcm, u"B"}; }
constexpr const char16_t* kDate = u"12/03/2024";

// clang-format off
const Case kCases[] = {
    // The first key blanks the field; overwrite keeps LU 11, insert counts it up to 14.
    {"abc{End}{Enter}", {u"hello world"}, u"abc", 12},
    {"abc{End}{Enter}", {u"hello world"}, u"abc", 15, 13, true},
    {"abc{Enter}", {u"hello world", 20, u"C", u"P"}, u"abclo world", 4},
    // A move spends the blanking, even to where the caret is; so does a key with no meaning.
    {"{Right}x{Enter}", {u"hello world"}, u"hxllo world", 3},
    {"{Home}x{Enter}", {u"hello"}, u"xello", 2},
    {"{Ctrl+A}{Alt+E}x{Enter}", {u"hello"}, u"xello", 2},
    {"x{End}{Enter}", At(u"abcdefghij", 3, 10), u"abxcdefghi", 10, 13, true},  // full: drops j
    {"xy{Enter}", At(u"abc", 3, 3), u"aby", 3},  // the last position replaces and stays
    {"{Ctrl+R}{Enter}", At(u"abcd", 4), u"abcc", 5},  // types the character left of the caret
    // Esc leaves LU 1, Ctrl+End at 1 leaves 0; Delete lowers it, behind the text too, to 1.
    {"{Esc}{End}{Enter}", At(u"hello", 3), u"", 2},
    {"{Ctrl+End}{End}{Enter}", At(u"hello", 1), u"", 1},
    {"{Ctrl+End}{End}{Enter}", At(u"hello", 3), u"he", 3},
    {"{Delete}{End}{Enter}", At(u"ab", 1), u"b", 2},
    {"{Delete}{End}{Enter}", At(u"abc", 10), u"abc", 3},
    // Words are plain letters and digits.
    {"{Ctrl+Right}{Enter}", At(u"abc def", 1), u"abc def", 5},
    {"{Ctrl+Right}{Enter}", At(u"été", 1), u"été", 2},
    {"{Ctrl+Left}{Enter}", At(u"  abc", 3), u"  abc", 3},
    // The leaving keys, in the middle of an edit too; Shift+F1 is none.
    {"{Up}", {u"abc"}, u"abc", 1, 38},       {"{Down}", {u"abc"}, u"abc", 1, 40},
    {"{PgUp}", {u"abc"}, u"abc", 1, 33},     {"{PgDn}", {u"abc"}, u"abc", 1, 34},
    {"{F1}", {u"abc"}, u"abc", 1, 112},      {"{F12}", {u"abc"}, u"abc", 1, 123},
    {"{Shift+F1}{F5}", {u"abc"}, u"abc", 1, 116},
    {"x{Down}", At(u"abc", 2), u"axc", 3, 40},
    // The start: Col lowered to LC, V behind the text; too long cut with mark 22; LCM 0 reads no key.
    {"{Enter}", At(u"hello", 50, 10), u"hello", 10},
    {"{Enter}", {u"abc", 10, u"C", u"V"}, u"abc", 4},
    {"{Enter}", {u"abcdefghijkl", 10}, u"abcdefghi\x16", 1},
    {"", {u"", 0}, u"", 1, 0},
    {"{End}{Enter}", {u"abc", 5, u"C", u"Infini"}, u"abc", 4},
    // Dates: '/' types itself, no blanking, always overwrite, Delete only behind the second '/'.
    {"12032024{Enter}", Date(u""), kDate, 10},
    {"1/{Enter}", Date(u""), u"1//", 4},
    {"{End}{Enter}", Date(u"12", 1), u"12/", 4},
    {"{Shift+Tab}{Enter}", Date(kDate, 10), kDate, 4},  // lands on 3 and moves on
    {"3{Enter}", Date(kDate), u"32/03/2024", 2},
    {"9{Enter}", Date(kDate, 1), u"92/03/2024", 2, 13, true},
    {"{Delete}{Enter}", Date(kDate, 7), u"12/03/024", 7},
    {"{Delete}{Enter}", Date(kDate, 4), kDate, 4},
    {"{Ctrl+End}{Enter}", Date(kDate, 1), u"  /  /", 1},
    {"{Esc}{Enter}", Date(kDate, 1), u"", 1},
    // Yes/no: an answer ends the field, a wrong one waits; right of 1 a character is stored.
    {"n", YesNo(u"OUI"), u"NON", 1},         {"o", YesNo(u"NON"), u"OUI", 1},
    {"xO", YesNo(u"OUI"), u"OUI", 1},        {"n", YesNo(u"O", 1), u"NON", 1},
    {"x{Enter}", YesNo(u"OUI"), u"x", 1},    {"{Right}O{Enter}", YesNo(u"OUI"), u"OOI", 1},
    // Paste: insert keeps the first LC characters, overwrite goes as far as the text; LU becomes
    // LC in either mode, even for an empty clipboard; nothing is filtered; no date rule.
    {"{Ctrl+V}{Enter}", At(u"hello", 3, 10), u"he01234567", 3, 13, true, u"0123456789ABCDEF"},
    {"{Ctrl+V}{Enter}", At(u"hello world", 3, 11), u"heXYo world", 3, 13, false, u"XY"},
    {"{Ctrl+V}{Enter}", At(u"hello", 5, 5), u"hellX", 5, 13, false, u"XYZ"},
    {"{Ctrl+V}{End}{Enter}", At(u"abc", 1, 10), u"abc", 10, 13, false, u""},
    {"{Ctrl+V}{Enter}", At(u"ab", 2, 10), u"a\t\r\nb", 2, 13, true, u"\t\r\n"},
    {"{Ctrl+V}{Enter}", Date(kDate, 1), u"912/03/202", 1, 13, true, u"9"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Keys, KeyCommandTest, ::testing::ValuesIn(kCases));

// The moves, through the caret positions the status line shows at each key (each
// is a pass, one with no meaning too).
TEST_F(KeyCommandTest, MovesStopAtTheEdgesAndSkipDateSeparators) {
  const std::tuple<Field, const char*, const char*> cases[] = {
      {At(u"ab", 1, 3), "{Left}{Ctrl+A}{Right}{Right}{Right}{Backspace}", "1|1|1|2|3|3|2|"},
      {At(u"", 1, 10), "{Tab}{Tab}{Shift+Tab}{Shift+Tab}", "1|8|10|3|1|"},
      {At(u"abc def", 1),
       "{Ctrl+Right}{Ctrl+Right}{Ctrl+Left}{Ctrl+Left}{Right}{Right}{Right}{Ctrl+Right}{Right}"
       "{Ctrl+Left}",
       "1|5|5|1|1|2|3|4|5|6|5|"},
      {Date(kDate, 2), "{Right}{Right}{Right}{Left}{Left}{Left}", "2|4|5|7|5|4|2|"},
  };
  for (const auto& [field, keys, trail] : cases) {
    TakeLog();
    EXPECT_EQ(Edit(field, std::string(keys) + "{Enter}").ch, field.ch) << keys;
    EXPECT_EQ(Drawn(true), trail) << keys;
  }
}

TEST_F(KeyCommandTest, InsertKeyTogglesOnlyOutsideDates) {
  for (const bool before : {false, true}) {
    St().Insertion = before;
    Edit(Date(kDate, 1), "{Insert}{Enter}");
    EXPECT_FALSE(St().Insertion) << "Insertion was " << before;
  }
  // In a yes/no field it toggles, without effect on the typing.
  EXPECT_EQ(ToUtf8(Edit(YesNo(u"OUI"), "{Insert}{Right}x{Enter}").ch), "OxI");
  EXPECT_TRUE(St().Insertion);
  // A yes/no answer ends the field with Env.ToucheEntree.
  Env().ToucheEntree = 10;
  EXPECT_EQ(Edit(YesNo(u"OUI"), "n"), (Outcome{u"NON", 10, 1}));
}

// FnMot and FormatDate called directly, as a host may.
TEST_F(KeyCommandTest, FnMotAcceptsPlainLettersAndDigitsOnly) {
  for (const Integer code : {48, 57, 65, 90, 97, 122}) EXPECT_TRUE(KySaisie{}.FnMot(code)) << code;
  for (const Integer code : {47, 58, 64, 91, 96, 123, 0, 233, 201, -1, 32767}) {
    EXPECT_FALSE(KySaisie{}.FnMot(code)) << code;
  }
}

TEST_F(KeyCommandTest, FormatDateWritesBothSeparatorsOnlyForD) {
  const std::tuple<String, String, std::string> cases[] = {
      {Space(10), u"D", "  /  /    "},     {u"12.03.2024", u"D", "12/03/2024"},
      {u"12.03.2024", u"d", "12.03.2024"}, {u"12.03.2024", u"C", "12.03.2024"},
      {u"abcdef", u"D", "ab/de/"},
  };
  for (auto [ch, tv, want] : cases) {
    KySaisie{}.FormatDate(ch, tv);
    EXPECT_EQ(ToUtf8(ch), want);
  }
  // Shorter, it fails with error 5 (what it wrote first is the automate suite's).
  String ch;
  ExpectPlatformError([&] { KySaisie{}.FormatDate(ch, u"D"); }, 5);
}

// A date field ending on a separator would loop without reading a key.
TEST_F(KeyCommandTest, DateFieldEndingOnItsSeparatorIsRefused) {
  for (Integer lcm : {3, 6}) {
    ExpectPlatformError([&] { Edit({u"", lcm, u"D"}, ""); }, 5);
  }
  EXPECT_EQ(Edit({u"", 4, u"D"}, "123{Enter}").ch, u"12/3");
}

TEST_F(KeyCommandTest, CopyTakesTheTrimmedRestAndShowsItUntrimmed) {
  session.SetClipboardText(u"old");
  EXPECT_EQ(Edit(At(u"abc def  ", 4, 9), "{Ctrl+C}{Enter}"), (Outcome{u"abc def", 13, 4}));
  EXPECT_EQ(ToUtf8(session.ClipboardText()), "def");
  ASSERT_EQ(session.Records().boxes.size(), 1u);
  const kit::BoxReport& box = session.Records().boxes[0];
  EXPECT_EQ(ToUtf8(box.style + u"|" + box.title + u"|" + box.text),
            "Information|Presse Papier|@ def  @ est dans le Presse Papier");
}

// A clipboard that can't be opened, as when another program holds it.
class LockedClipboard final : public Clipboard {
 public:
  void Clear() override { throw PlatformError::Host("clipboard", "locked"); }
  void SetText(const String&, Long) override { throw PlatformError::Host("clipboard", "locked"); }
  String GetText(Long) override { throw PlatformError::Host("clipboard", "locked"); }
};

TEST_F(KeyCommandTest, ALockedClipboardPastesNothingButFailsACopy) {
  // The session's host with a locked clipboard, in an apartment of its own;
  // the session keeps its environment and records.
  ClassRegistry registry;
  kit::RegisterKit(registry, std::shared_ptr<kit::EnvState>(std::shared_ptr<void>(), &Env()),
                   std::shared_ptr<kit::Records>(std::shared_ptr<void>(), &session.Records()));
  auto global = std::make_shared<forms::Global>(
      session.Loop(),
      forms::Screen(headless::Session::kScreenWidth, headless::Session::kScreenHeight),
      std::make_unique<LockedClipboard>());
  registry.Register("Global", [global] { return global; });
  const Apartment apartment(std::move(registry));

  // Paste reads nothing, but LU still becomes LC.
  EXPECT_EQ(Edit(At(u"abc", 2, 10), "{Ctrl+V}{End}{Enter}"), (Outcome{u"abc", 13, 10}));
  ExpectPlatformError([&] { Edit(At(u"abc", 1, 10), "{Ctrl+C}{Enter}"); }, 51, "clipboard: locked");
  EXPECT_TRUE(session.Records().boxes.empty());
}

}  // namespace
}  // namespace ferlan::testing
