// The command table through real keys: each case types a script into a
// field and checks what the caller gets back. The caret's final position
// (Col) shows LU where End is pressed last.
#include <gtest/gtest.h>

#include <ostream>

#include "editor/editor_fixture.hpp"

namespace ferlan::testing {
namespace {

struct CommandCase {
  const char* what;
  Field field;
  bool insertion;  // Insertion as an earlier field left it
  const char* keys;
  String want_ch;
  Integer want_col;
  Integer want_tr = 13;
};

void PrintTo(const CommandCase& c, std::ostream* os) { *os << c.what << " [" << c.keys << "]"; }

class KeyCommandTest : public EditorTest, public ::testing::WithParamInterface<CommandCase> {};

TEST_P(KeyCommandTest, GivesTheCallerTheEditedField) {
  const CommandCase& c = GetParam();
  SCOPED_TRACE(std::string(c.what) + ", keys " + c.keys);
  St().Insertion = c.insertion;
  const Outcome out = Edit(c.field, c.keys);
  EXPECT_EQ(ToUtf8(out.ch), ToUtf8(c.want_ch));
  EXPECT_EQ(out.col, c.want_col);
  EXPECT_EQ(out.tr, c.want_tr);
}

// clang-format off
const CommandCase kTypingCases[] = {
    {"first key blanks; overwrite keeps LU 11 so End goes to 12",
     {u"hello world"}, false, "abc{End}{Enter}", u"abc", 12},
    {"first key blanks; insert counts LU up to 14",
     {u"hello world"}, true, "abc{End}{Enter}", u"abc", 15},
    {"IMS P keeps the text", {u"hello world", 20, u"C", u"P"}, false, "abc{Enter}",
     u"abclo world", 4},
    {"IMS E keeps the text", {u"hello world", 20, u"C", u"E", 1}, false, "abc{Enter}",
     u"abclo world", 4},
    {"a move first spends the blanking", {u"hello world"}, false, "{Right}x{Enter}",
     u"hxllo world", 3},
    {"Home as first key spends the blanking", {u"hello"}, false, "{Home}x{Enter}", u"xello", 2},
    {"insert into a full field drops the last character",
     {u"abcdefghij", 10, u"C", u"E", 3}, true, "x{End}{Enter}", u"abxcdefghi", 10},
    {"typing at the last position replaces and stays", {u"abc", 3, u"C", u"E", 3}, false,
     "xy{Enter}", u"aby", 3},
    {"Ctrl+R types the character left of the caret", {u"abcd", 20, u"C", u"E", 4}, false,
     "{Ctrl+R}{Enter}", u"abcc", 5},
    {"Ctrl+R as first key at 1 keeps only that character", {u"hello"}, false,
     "{Ctrl+R}{Enter}", u"h", 2},
    {"a key with no meaning does nothing, and spends the blanking", {u"hello"}, false,
     "{Ctrl+A}{Alt+E}x{Enter}", u"xello", 2},
};

const CommandCase kEditingCases[] = {
    {"blanking key leaves LU 1, End goes to 2", {u"hello", 20, u"C", u"E", 3}, false,
     "{Esc}{End}{Enter}", u"", 2},
    {"Ctrl+End at 1 leaves LU 0", {u"hello", 20, u"C", u"E", 1}, false,
     "{Ctrl+End}{End}{Enter}", u"", 1},
    {"Ctrl+End at 3 cuts the rest", {u"hello", 20, u"C", u"E", 3}, false,
     "{Ctrl+End}{End}{Enter}", u"he", 3},
    {"Delete at 1 of ab", {u"ab", 20, u"C", u"E", 1}, false, "{Delete}{End}{Enter}", u"b", 2},
    {"Delete on the only character keeps LU 1", {u"a", 20, u"C", u"E", 1}, false,
     "{Delete}{End}{Enter}", u"", 2},
    {"Delete behind the text still lowers LU", {u"abc", 20, u"C", u"E", 10}, false,
     "{Delete}{End}{Enter}", u"abc", 3},
    {"Backspace moves left and deletes nothing", {u"abcdef", 20, u"C", u"E", 5}, false,
     "{Backspace}{Enter}", u"abcdef", 4},
    {"Left stops at 1", {u"ab", 20, u"C", u"E", 1}, false, "{Left}{Enter}", u"ab", 1},
    {"Right stops at LC", {u"ab", 3, u"C", u"E", 3}, false, "{Right}{Enter}", u"ab", 3},
    {"Tab from 3 goes to 10 as P + 7", {u"", 10, u"C", u"E", 3}, false, "{Tab}{Enter}", u"",
     10},
    {"Tab from 4 goes to 10 as LC", {u"", 10, u"C", u"E", 4}, false, "{Tab}{Enter}", u"", 10},
    {"Tab from 1 goes to 8", {u"", 10, u"C", u"E", 1}, false, "{Tab}{Enter}", u"", 8},
    {"Shift+Tab from 10 goes to 3", {u"", 10, u"C", u"E", 10}, false, "{Shift+Tab}{Enter}", u"",
     3},
    {"Shift+Tab from 7 goes to 1", {u"", 10, u"C", u"E", 7}, false, "{Shift+Tab}{Enter}", u"",
     1},
    {"Shift+Tab from 8 goes to 1", {u"", 10, u"C", u"E", 8}, false, "{Shift+Tab}{Enter}", u"",
     1},
};

const CommandCase kWordMoveCases[] = {
    {"word right from 1", {u"abc def", 20, u"C", u"E", 1}, false, "{Ctrl+Right}{Enter}",
     u"abc def", 5},
    {"word right from the last word stays", {u"abc def", 20, u"C", u"E", 5}, false,
     "{Ctrl+Right}{Enter}", u"abc def", 5},
    {"word right from the blank", {u"abc def", 20, u"C", u"E", 4}, false,
     "{Ctrl+Right}{Enter}", u"abc def", 5},
    {"word right with only punctuation after stays", {u"abc.", 20, u"C", u"E", 1}, false,
     "{Ctrl+Right}{Enter}", u"abc.", 1},
    {"é is no word character", {u"été", 20, u"C", u"E", 1}, false, "{Ctrl+Right}{Enter}",
     u"été", 2},
    {"word left from 5", {u"abc def", 20, u"C", u"E", 5}, false, "{Ctrl+Left}{Enter}",
     u"abc def", 1},
    {"word left from 6", {u"abc def", 20, u"C", u"E", 6}, false, "{Ctrl+Left}{Enter}",
     u"abc def", 5},
    {"word left from 1 stays", {u"abc def", 20, u"C", u"E", 1}, false, "{Ctrl+Left}{Enter}",
     u"abc def", 1},
    {"word left with no word to the left stays", {u"  abc", 20, u"C", u"E", 3}, false,
     "{Ctrl+Left}{Enter}", u"  abc", 3},
};

const CommandCase kLeavingCases[] = {
    {"Up leaves", {u"abc"}, false, "{Up}", u"abc", 1, 38},
    {"Down leaves", {u"abc"}, false, "{Down}", u"abc", 1, 40},
    {"Page Up leaves", {u"abc"}, false, "{PgUp}", u"abc", 1, 33},
    {"Page Down leaves", {u"abc"}, false, "{PgDn}", u"abc", 1, 34},
    {"F1 leaves", {u"abc"}, false, "{F1}", u"abc", 1, 112},
    {"F12 leaves", {u"abc"}, false, "{F12}", u"abc", 1, 123},
    {"Shift+F1 is outside the range", {u"abc"}, false, "{Shift+F1}{F5}", u"abc", 1, 116},
    {"leaving keeps an edit in progress", {u"abc", 20, u"C", u"E", 2}, false, "x{Down}",
     u"axc", 3, 40},
};

const CommandCase kSetUpCases[] = {
    {"E starts at Col, lowered to LC", {u"hello", 10, u"C", u"E", 50}, false, "{Enter}",
     u"hello", 10},
    {"V starts behind the text", {u"abc", 10, u"C", u"V"}, false, "{Enter}", u"abc", 4},
    {"V on an empty text starts at 1", {u"", 10, u"C", u"V"}, false, "{Enter}", u"", 1},
    {"V on a full text starts on its last character", {u"abcdefghij", 10, u"C", u"V"}, false,
     "{Enter}", u"abcdefghij", 10},
    {"a text longer than the field is cut with the mark 22", {u"abcdefghijkl", 10}, false,
     "{Enter}", u"abcdefghi\x16", 1},
    {"LCM 0 reads no key", {u"", 0}, false, "", u"", 1, 0},
    {"Infini holds 1000 characters", {u"abc", 5, u"C", u"Infini"}, false, "{End}{Enter}",
     u"abc", 4},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Typing, KeyCommandTest, ::testing::ValuesIn(kTypingCases));
INSTANTIATE_TEST_SUITE_P(Editing, KeyCommandTest, ::testing::ValuesIn(kEditingCases));
INSTANTIATE_TEST_SUITE_P(WordMoves, KeyCommandTest, ::testing::ValuesIn(kWordMoveCases));
INSTANTIATE_TEST_SUITE_P(Leaving, KeyCommandTest, ::testing::ValuesIn(kLeavingCases));
INSTANTIATE_TEST_SUITE_P(SetUp, KeyCommandTest, ::testing::ValuesIn(kSetUpCases));

}  // namespace
}  // namespace ferlan::testing
