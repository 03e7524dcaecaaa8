#include "forms/global.hpp"

#include <gtest/gtest.h>

#include "forms/bitmap.hpp"
#include "support/session_test.hpp"

namespace ferlan::forms {
namespace {

using ferlan::testing::ExpectPlatformError;

// A loop that only counts what it is asked.
class CountingLoop final : public EventLoop {
 public:
  void DoEvents() override { ++do_events; }
  TimerRef CreateTimer(std::function<void()>) override {
    ++timers;
    return nullptr;
  }
  int do_events = 0;
  int timers = 0;
};

class GlobalTest : public ::testing::Test {
 protected:
  CountingLoop loop;
  Global global{loop, Screen(19200, 15360)};
};

TEST_F(GlobalTest, PassesDoEventsAndTimersToItsLoop) {
  global.DoEvents();
  global.DoEvents();
  global.CreateTimer([] {});
  EXPECT_EQ(loop.do_events, 2);
  EXPECT_EQ(loop.timers, 1);
  EXPECT_FLOAT_EQ(global.Screen().Width(), 19200);
  EXPECT_FLOAT_EQ(global.Screen().Height(), 15360);
}

TEST_F(GlobalTest, ClipboardHoldsTextOnly) {
  ferlan::Clipboard& clipboard = global.Clipboard();
  EXPECT_EQ(clipboard.GetText(), u"");
  clipboard.SetText(u"12,50 €");
  EXPECT_EQ(clipboard.GetText(1), u"12,50 €");
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), u"");
  ExpectPlatformError([&] { clipboard.SetText(u"x", 2); }, 5);
  ExpectPlatformError([&] { clipboard.GetText(0xBF01); }, 5);
}

TEST_F(GlobalTest, LoadPictureReadsBmpAndHandsPngToItsDecoder) {
  // The caret's overwrite picture: 11 x 5 black pixels, 24 bits, 234 bytes.
  std::vector<std::uint8_t> bar(234, 0);
  const std::uint8_t header[] = {'B', 'M', 234, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,
                                 40,  0,   0,   0, 11, 0, 0, 0, 5, 0, 0, 0, 1, 0, 24, 0};
  std::copy(std::begin(header), std::end(header), bar.begin());
  PictureRef picture = global.LoadPicture(bar);
  EXPECT_FLOAT_EQ(picture->Width(), 165);
  EXPECT_FLOAT_EQ(picture->Height(), 75);
  EXPECT_EQ(std::dynamic_pointer_cast<Bitmap>(picture)->Pixel(10, 4), (Rgb{0, 0, 0}));

  const std::vector<std::uint8_t> png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0};
  ExpectPlatformError([&] { global.LoadPicture(png); }, 445);
  auto decoded = std::make_shared<Bitmap>(2, 1, std::vector<Rgb>(2));
  std::size_t seen = 0;
  global.SetPngDecoder([&](std::span<const std::uint8_t> bytes) -> PictureRef {
    seen = bytes.size();
    return decoded;
  });
  EXPECT_EQ(global.LoadPicture(png), decoded);
  EXPECT_EQ(seen, png.size());

  const std::vector<std::uint8_t> text{'h', 'e', 'l', 'l', 'o'};
  ExpectPlatformError([&] { global.LoadPicture(text); }, 5);
}

}  // namespace
}  // namespace ferlan::forms
