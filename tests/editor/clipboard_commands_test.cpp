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

  // Paste reads nothing, but LU still becomes LC.
  EXPECT_EQ(Edit(At(u"abc", 2, 10), "{Ctrl+V}{End}{Enter}"), (Outcome{u"abc", 13, 10}));
  ExpectPlatformError([&] { Edit(At(u"abc", 1, 10), "{Ctrl+C}{Enter}"); }, 51, "clipboard: locked");
  EXPECT_TRUE(session.Records().boxes.empty());
}

}  // namespace
}  // namespace ferlan::testing
