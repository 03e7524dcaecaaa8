// Copy and paste in a field, and the one error the editor catches.
#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "editor/editor_fixture.hpp"
#include "forms/global.hpp"

namespace ferlan::testing {
namespace {

using ClipboardTest = EditorTest;

TEST_F(ClipboardTest, CopyTakesTheTrimmedRestAndShowsItUntrimmed) {
  session.SetClipboardText(u"old");
  const Outcome out = Edit({u"abc def  ", 9, u"C", u"E", 4}, "{Ctrl+C}{Enter}");
  EXPECT_EQ(ToUtf8(session.ClipboardText()), "def");
  ASSERT_EQ(session.Records().boxes.size(), 1u);
  const kit::BoxReport& box = session.Records().boxes[0];
  EXPECT_EQ(ToUtf8(box.style), "Information");
  EXPECT_EQ(ToUtf8(box.title), "Presse Papier");
  EXPECT_EQ(ToUtf8(box.text), "@ def  @ est dans le Presse Papier");
  EXPECT_EQ(ToUtf8(out.ch), "abc def");
  EXPECT_EQ(out.col, 4);
}

struct PasteCase {
  const char* what;
  Field field;
  bool insertion;
  String clipboard;
  const char* keys;
  String want_ch;
  Integer want_col;
};

void PrintTo(const PasteCase& c, std::ostream* os) { *os << c.what; }

class PasteTest : public EditorTest, public ::testing::WithParamInterface<PasteCase> {};

TEST_P(PasteTest, PutsTheClipboardAtTheCaret) {
  const PasteCase& c = GetParam();
  St().Insertion = c.insertion;
  session.SetClipboardText(c.clipboard);
  const Outcome out = Edit(c.field, c.keys);
  EXPECT_EQ(ToUtf8(out.ch), ToUtf8(c.want_ch));
  EXPECT_EQ(out.col, c.want_col);
}

// clang-format off
const PasteCase kPasteCases[] = {
    {"insert keeps the first LC characters", {u"hello", 10, u"C", u"E", 3}, true,
     u"0123456789ABCDEF", "{Ctrl+V}{Enter}", u"he01234567", 3},
    {"overwrite replaces as far as the text goes", {u"hello world", 11, u"C", u"E", 3}, false,
     u"XY", "{Ctrl+V}{Enter}", u"heXYo world", 3},
    {"overwrite at the last position takes one character", {u"hello", 5, u"C", u"E", 5}, false,
     u"XYZ", "{Ctrl+V}{Enter}", u"hellX", 5},
    {"an empty clipboard changes only LU, so End goes to LC", {u"abc", 10, u"C", u"E", 1}, false,
     u"", "{Ctrl+V}{End}{Enter}", u"abc", 10},
    {"after paste LU is LC also in insert mode", {u"abc", 10, u"C", u"E", 2}, true, u"x",
     "{Ctrl+V}{End}{Enter}", u"axbc", 10},
    {"nothing is filtered", {u"ab", 10, u"C", u"E", 2}, true, u"\t\r\n", "{Ctrl+V}{Enter}",
     u"a\t\r\nb", 2},
    {"date fields have no rule: insertion shifts the separators",
     {u"12/03/2024", 10, u"D", u"E", 1}, true, u"9", "{Ctrl+V}{Enter}", u"912/03/202", 1},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Paste, PasteTest, ::testing::ValuesIn(kPasteCases));

// A clipboard that can't be opened, as when another program holds it.
class LockedClipboard final : public Clipboard {
 public:
  void Clear() override { throw PlatformError::Host("clipboard", "locked"); }
  void SetText(const String&, Long) override { throw PlatformError::Host("clipboard", "locked"); }
  String GetText(Long) override { throw PlatformError::Host("clipboard", "locked"); }
};

// The session's host, but with a locked clipboard, in an apartment of its own
// for the time of the test.
class LockedClipboardTest : public EditorTest {
 protected:
  void SetUp() override {
    auto global = std::make_shared<forms::Global>(
        session.Loop(),
        forms::Screen(headless::Session::kScreenWidth, headless::Session::kScreenHeight),
        std::make_unique<LockedClipboard>());
    ClassRegistry registry;
    // Not owned: the session keeps its environment and records.
    kit::RegisterKit(registry, std::shared_ptr<kit::EnvState>(std::shared_ptr<void>(), &Env()),
                     std::shared_ptr<kit::Records>(std::shared_ptr<void>(), &session.Records()));
    registry.Register("Global", [global] { return global; });
    apartment_.emplace(std::move(registry));
  }
  void TearDown() override {
    apartment_.reset();
    EditorTest::TearDown();
  }

  std::optional<Apartment> apartment_;
};

TEST_F(LockedClipboardTest, PasteFromAnUnreadableClipboardPastesNothing) {
  const Outcome out = Edit({u"abc", 10, u"C", u"E", 2}, "{Ctrl+V}{End}{Enter}");
  EXPECT_EQ(ToUtf8(out.ch), "abc");
  EXPECT_EQ(out.col, 10);  // LU still became LC
  EXPECT_EQ(out.tr, 13);
}

TEST_F(LockedClipboardTest, CopyToALockedClipboardFailsTheCaller) {
  String ch = u"abc";
  Integer tr = 0;
  Type("{Ctrl+C}{Enter}");
  try {
    KySaisie{}.Modif(kLT, 5, kCT, 10, kLzT, kCzT, u"C", ch, tr, u"F");
    ADD_FAILURE() << "Ctrl+C on a locked clipboard returned";
  } catch (const PlatformError& e) {
    EXPECT_NE(e.Description().find("locked"), std::string::npos) << e.Description();
  }
  EXPECT_TRUE(session.Records().boxes.empty());
}

}  // namespace
}  // namespace ferlan::testing
