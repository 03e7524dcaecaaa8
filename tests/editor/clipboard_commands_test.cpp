// Copy in a field, and a clipboard another program holds: the one error
// the editor catches. Paste is in the command table.
#include <gtest/gtest.h>

#include <memory>

#include "editor/editor_fixture.hpp"
#include "forms/global.hpp"

namespace ferlan::testing {
namespace {

using ClipboardTest = EditorTest;

TEST_F(ClipboardTest, CopyTakesTheTrimmedRestAndShowsItUntrimmed) {
  session.SetClipboardText(u"old");
  const Outcome out = Edit(At(u"abc def  ", 4, 9), "{Ctrl+C}{Enter}");
  EXPECT_EQ(ToUtf8(session.ClipboardText()), "def");
  ASSERT_EQ(session.Records().boxes.size(), 1u);
  const kit::BoxReport& box = session.Records().boxes[0];
  EXPECT_EQ(ToUtf8(box.style), "Information");
  EXPECT_EQ(ToUtf8(box.title), "Presse Papier");
  EXPECT_EQ(ToUtf8(box.text), "@ def  @ est dans le Presse Papier");
  EXPECT_EQ(ToUtf8(out.ch), "abc def");
  EXPECT_EQ(out.col, 4);
}

// A clipboard that can't be opened, as when another program holds it.
class LockedClipboard final : public Clipboard {
 public:
  void Clear() override { throw PlatformError::Host("clipboard", "locked"); }
  void SetText(const String&, Long) override { throw PlatformError::Host("clipboard", "locked"); }
  String GetText(Long) override { throw PlatformError::Host("clipboard", "locked"); }
};

TEST_F(ClipboardTest, ALockedClipboardPastesNothingButFailsACopy) {
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

  const Outcome out = Edit(At(u"abc", 2, 10), "{Ctrl+V}{End}{Enter}");
  EXPECT_EQ(ToUtf8(out.ch), "abc");
  EXPECT_EQ(out.col, 10);  // LU still became LC
  EXPECT_EQ(out.tr, 13);
  ExpectPlatformError([&] { Edit(At(u"abc", 1, 10), "{Ctrl+C}{Enter}"); }, 51, "clipboard: locked");
  EXPECT_TRUE(session.Records().boxes.empty());
}

}  // namespace
}  // namespace ferlan::testing
