// Global: the text clipboard, and pictures loaded from bytes.
#include "forms/global.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "forms/bitmap.hpp"
#include "support/session_test.hpp"

namespace ferlan::forms {
namespace {

using ferlan::testing::ExpectPlatformError;

struct IdleLoop final : EventLoop {
  void DoEvents() override {}
  TimerRef CreateTimer(std::function<void()>) override { return nullptr; }
};

class GlobalTest : public ::testing::Test {
 protected:
  IdleLoop loop;
  Global global{loop, Screen(19200, 15360)};
};

TEST_F(GlobalTest, ClipboardHoldsTextOnly) {
  ferlan::Clipboard& clipboard = global.Clipboard();
  clipboard.SetText(u"12,50 €");
  EXPECT_EQ(clipboard.GetText(1), u"12,50 €");
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), u"");
  ExpectPlatformError([&] { clipboard.SetText(u"x", 2); }, 5);
  ExpectPlatformError([&] { clipboard.GetText(0xBF01); }, 5);
}

TEST_F(GlobalTest, LoadPictureReadsBmpAndHandsPngToItsDecoder) {
  // 11 x 5 black pixels, 24 bits: a header, then 5 rows of 33 bytes padded to 36.
  std::vector<std::uint8_t> bmp = {'B', 'M', 234, 0,  0, 0, 0, 0, 0, 0, 54, 0, 0, 0,  40,
                                   0,   0,   0,   11, 0, 0, 0, 5, 0, 0, 0,  1, 0, 24, 0};
  bmp.resize(234);
  auto picture = std::dynamic_pointer_cast<Bitmap>(global.LoadPicture(bmp));
  EXPECT_FLOAT_EQ(picture->Width(), 165);
  EXPECT_EQ(picture->Pixel(10, 4), (Rgb{0, 0, 0}));
  const std::vector<std::uint8_t> png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0};
  ExpectPlatformError([&] { global.LoadPicture(png); }, 445);
  auto decoded = std::make_shared<Bitmap>(2, 1, std::vector<Rgb>(2));
  global.SetPngDecoder([&](std::span<const std::uint8_t> bytes) -> PictureRef {
    return bytes.size() == png.size() ? decoded : nullptr;
  });
  EXPECT_EQ(global.LoadPicture(png), decoded);
  ExpectPlatformError([&] { global.LoadPicture(std::vector<std::uint8_t>{'h', 'i'}); }, 5);
}

}  // namespace
}  // namespace ferlan::forms
