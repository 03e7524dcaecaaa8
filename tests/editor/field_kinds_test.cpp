// Date and yes/no fields: the separators that type themselves, the arrows
// that skip them, and the answer that ends the field.
#include <gtest/gtest.h>

#include <ostream>

#include "editor/editor_fixture.hpp"

namespace ferlan::testing {
namespace {

struct KindCase {
  const char* what;
  Field field;
  bool insertion;
  const char* keys;
  String want_ch;
  Integer want_col;
  Integer want_tr = 13;
};

void PrintTo(const KindCase& c, std::ostream* os) { *os << c.what << " [" << c.keys << "]"; }

class FieldKindTest : public EditorTest, public ::testing::WithParamInterface<KindCase> {};

TEST_P(FieldKindTest, GivesTheCallerTheEditedField) {
  const KindCase& c = GetParam();
  SCOPED_TRACE(std::string(c.what) + ", keys " + c.keys);
  St().Insertion = c.insertion;
  const Outcome out = Edit(c.field, c.keys);
  EXPECT_EQ(ToUtf8(out.ch), ToUtf8(c.want_ch));
  EXPECT_EQ(out.col, c.want_col);
  EXPECT_EQ(out.tr, c.want_tr);
}

Field Date(String ch, String ims = u"F", Integer col = 0) { return {ch, 10, u"D", ims, col}; }
Field YesNo(String ch, Integer lcm = 3) { return {ch, lcm, u"B"}; }

// clang-format off
const KindCase kDateCases[] = {
    {"separators type themselves", Date(u""), false, "12032024{Enter}", u"12/03/2024", 10},
    {"a typed slash is a character like any other", Date(u""), false, "1/{Enter}", u"1//", 4},
    {"End landing on 3 types the separator", Date(u"12", u"E", 1), false, "{End}{Enter}",
     u"12/", 4},
    {"Tab from 1 goes to 8", Date(u"12/03/2024", u"E", 1), false, "{Tab}{Enter}",
     u"12/03/2024", 8},
    {"Tab from 5 goes to 10", Date(u"12/03/2024", u"E", 5), false, "{Tab}{Enter}",
     u"12/03/2024", 10},
    {"Shift+Tab from 10 lands on 3 and moves on to 4", Date(u"12/03/2024", u"E", 10), false,
     "{Shift+Tab}{Enter}", u"12/03/2024", 4},
    {"Left from 4 skips to 2", Date(u"12/03/2024", u"E", 4), false, "{Left}{Enter}",
     u"12/03/2024", 2},
    {"Right from 2 skips to 4", Date(u"12/03/2024", u"E", 2), false, "{Right}{Enter}",
     u"12/03/2024", 4},
    {"Left from 7 skips to 5", Date(u"12/03/2024", u"E", 7), false, "{Left}{Enter}",
     u"12/03/2024", 5},
    {"Right from 5 skips to 7", Date(u"12/03/2024", u"E", 5), false, "{Right}{Enter}",
     u"12/03/2024", 7},
    {"the first key edits in place", Date(u"12/03/2024"), false, "3{Enter}", u"32/03/2024", 2},
    {"Insertion left on still overwrites", Date(u"12/03/2024", u"E", 1), true, "9{Enter}",
     u"92/03/2024", 2},
    {"Delete works behind the second separator", Date(u"12/03/2024", u"E", 7), false,
     "{Delete}{Enter}", u"12/03/024", 7},
    {"Delete does nothing before it", Date(u"12/03/2024", u"E", 4), false, "{Delete}{Enter}",
     u"12/03/2024", 4},
    {"Ctrl+End at 1 keeps the separators", Date(u"12/03/2024", u"E", 1), false,
     "{Ctrl+End}{Enter}", u"  /  /", 1},
    {"the blanking key gives the empty text", Date(u"12/03/2024", u"E", 1), false,
     "{Esc}{Enter}", u"", 1},
};

const KindCase kYesNoCases[] = {
    {"n as first key answers NON", YesNo(u"OUI"), false, "n", u"NON", 1},
    {"o answers OUI", YesNo(u"NON"), false, "o", u"OUI", 1},
    {"a wrong character stays on 1 and the next answers", YesNo(u"OUI"), false, "xO", u"OUI", 1},
    {"a character right of 1 is stored and the caret comes back", YesNo(u"OUI"), false,
     "{Right}O{Enter}", u"OOI", 1},
    {"a field of length 1 answers", YesNo(u"O", 1), false, "n", u"NON", 1},
    {"validating an unanswered x gives x", YesNo(u"OUI"), false, "x{Enter}", u"x", 1},
    {"Insertion left on still overwrites", YesNo(u"OUI"), true, "{Right}x{Enter}", u"OxI", 1},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Date, FieldKindTest, ::testing::ValuesIn(kDateCases));
INSTANTIATE_TEST_SUITE_P(YesNo, FieldKindTest, ::testing::ValuesIn(kYesNoCases));

TEST_F(FieldKindTest, InsertKeyCannotTurnInsertionOnInADate) {
  St().Insertion = false;
  Edit(Date(u"12/03/2024", u"E", 1), "{Insert}{Enter}");
  EXPECT_FALSE(St().Insertion);
  St().Insertion = true;
  Edit(Date(u"12/03/2024", u"E", 1), "{Insert}{Enter}");
  EXPECT_FALSE(St().Insertion);
}

TEST_F(FieldKindTest, InsertKeyTogglesInsertionInAYesNoFieldWithoutEffect) {
  St().Insertion = false;
  const Outcome out = Edit(YesNo(u"OUI"), "{Insert}{Right}x{Enter}");
  EXPECT_TRUE(St().Insertion);
  EXPECT_EQ(ToUtf8(out.ch), "OxI");
}

TEST_F(FieldKindTest, DateSeparatorAppearsRightAfterTheDigitBeforeIt) {
  Edit(Date(u""), "12{Enter}");
  // One drawing per pass: blank, after 1, after 2, after the typed "/", and
  // the end's drawing in black.
  const std::vector<String> drawn = FieldTexts();
  ASSERT_EQ(drawn.size(), 5u);
  EXPECT_EQ(ToUtf8(drawn[2]), "12        ");
  EXPECT_EQ(ToUtf8(drawn[3]), "12/       ");
}

}  // namespace
}  // namespace ferlan::testing
