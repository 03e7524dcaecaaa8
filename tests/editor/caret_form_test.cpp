// The caret: its two pictures, where it stands, how wide it is, and its two
// timers, which run only while a field waits for a key.
#include "editor/caret_form.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "editor/caret_bitmaps.hpp"
#include "editor/editor_fixture.hpp"
#include "forms/bitmap.hpp"
#include "forms/bmp_decoder.hpp"

namespace ferlan::testing {
namespace {

using CaretTest = EditorTest;

// The pictures as drawn, top row first: K black, W white, Y yellow.
constexpr std::array<std::string_view, 5> kArrow = {
    "WWWWWKWWWWW", "WWWWKYKWWWW", "WWWKYYYKWWW", "WWKYYYYYKWW", "KKYYYYYYYKK",
};
constexpr std::array<std::string_view, 5> kBar = {
    "KKKKKKKKKKK", "KKKKKKKKKKK", "KKKKKKKKKKK", "KKKKKKKKKKK", "KKKKKKKKKKK",
};

// The 54 bytes of the two headers of an 11 x 5, 24-bit BMP of 234 bytes.
constexpr std::array<std::uint8_t, 54> kHeader = {
    'B', 'M', 234, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,  // file: size, offset of pixels
    40,  0,   0,   0,                                 // info header size
    11,  0,   0,   0, 5, 0, 0, 0,                     // width, height (bottom-up)
    1,   0,   24,  0,                                 // planes, bits per pixel
    0,   0,   0,   0,                                 // no compression
    180, 0,   0,   0,                                 // pixel bytes: 5 rows of 36
    0,   0,   0,   0, 0, 0, 0, 0,                     // resolution
    0,   0,   0,   0, 0, 0, 0, 0,                     // palette
};

std::vector<std::uint8_t> ExpectedBmp(const std::array<std::string_view, 5>& rows) {
  std::vector<std::uint8_t> bytes(kHeader.begin(), kHeader.end());
  for (int y = 4; y >= 0; --y) {  // bottom row first
    for (char letter : rows[static_cast<std::size_t>(y)]) {
      const std::uint8_t blue = letter == 'W' ? 255 : 0;
      const std::uint8_t green_red = letter == 'K' ? 0 : 255;
      bytes.insert(bytes.end(), {blue, green_red, green_red});
    }
    bytes.insert(bytes.end(), {0, 0, 0});  // 33 bytes padded to 36
  }
  return bytes;
}

forms::Rgb Colour(char letter) {
  switch (letter) {
    case 'W':
      return {255, 255, 255};
    case 'Y':
      return {255, 255, 0};
    default:
      return {0, 0, 0};
  }
}

void ExpectPixels(const Picture& picture, const std::array<std::string_view, 5>& rows) {
  const auto* bitmap = dynamic_cast<const forms::Bitmap*>(&picture);
  ASSERT_NE(bitmap, nullptr);
  ASSERT_EQ(bitmap->PixelWidth(), 11);
  ASSERT_EQ(bitmap->PixelHeight(), 5);
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 11; ++x) {
      EXPECT_EQ(bitmap->Pixel(x, y),
                Colour(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]))
          << "pixel " << x << ", " << y;
    }
  }
}

TEST_F(CaretTest, PicturesAreThe234ByteBmpsAsDrawn) {
  const auto arrow = CaretInsertionImage();
  const auto bar = CaretSurchargeImage();
  EXPECT_EQ(std::vector<std::uint8_t>(arrow.begin(), arrow.end()), ExpectedBmp(kArrow));
  EXPECT_EQ(std::vector<std::uint8_t>(bar.begin(), bar.end()), ExpectedBmp(kBar));
  // And a BMP reader sees them pixel for pixel as drawn.
  ExpectPixels(*forms::DecodeBmp(arrow), kArrow);
  ExpectPixels(*forms::DecodeBmp(bar), kBar);
}

TEST_F(CaretTest, CaretTakesThePictureOfTheInsertMode) {
  EXPECT_EQ(St().Feuille_Caret, nullptr);
  Edit({u"abc"}, "{Enter}");
  ASSERT_NE(St().Feuille_Caret, nullptr);
  ExpectPixels(*CaretControl(St())->Picture(), kBar);
  // The Insert key changes the picture at once: the control shows the very
  // picture of the hidden form.
  Edit({u"abc"}, "{Insert}{Enter}");
  EXPECT_EQ(CaretControl(St())->Picture(), St().Feuille_Caret->CaretInsertion.Picture);
  ExpectPixels(*CaretControl(St())->Picture(), kArrow);
  // The next field starts in the mode the last one left.
  Edit({u"abc"}, "{Enter}");
  EXPECT_EQ(CaretControl(St())->Picture(), St().Feuille_Caret->CaretInsertion.Picture);
  Edit({u"abc"}, "{Insert}{Enter}");
  EXPECT_EQ(CaretControl(St())->Picture(), St().Feuille_Caret->CaretSurcharge.Picture);
}

TEST_F(CaretTest, CaretStandsUnderTheCharacterAndIsAsWideAsIt) {
  // The timers place the caret during the wait.
  Edit({u"hello", 20, u"C", u"E", 4}, "{wait:2}{Enter}");
  PictureBox& caret = *CaretControl(St());
  EXPECT_EQ(caret.Left(), kCT + 3 * 105);  // the width of "hel"
  EXPECT_EQ(caret.Top(), 790);             // 624 + 195 x 0.85 = 789.75
  EXPECT_EQ(caret.Width(), 105);
  EXPECT_FALSE(caret.Visible());  // hidden once the key came

  // A larger font: wider letters push the caret further, and the top
  // rounds 624 + 390 x 0.85 = 955.5 to the even 956.
  Zone().Font().SetSize(20);
  Edit({u"hello", 20, u"C", u"E", 4}, "{wait:2}{Enter}");
  EXPECT_EQ(caret.Left(), kCT + 3 * 210);
  EXPECT_EQ(caret.Top(), 956);
  EXPECT_EQ(caret.Width(), 210);
}

TEST_F(CaretTest, CaretOnABlankHasTheWidthOfA) {
  Zone().Font().SetSize(20);
  // Behind the text the character is a blank, measured as "A"; an empty
  // measure would give a caret of width 0.
  Edit({u"ab", 10, u"C", u"E", 5}, "{wait:2}{Enter}");
  EXPECT_EQ(CaretControl(St())->Width(), 210);
}

TEST_F(CaretTest, TimersRunOnlyWhileTheFieldWaits) {
  Edit({u"abc"}, "{Enter}");
  CaretForm& form = *St().Feuille_Caret;
  EXPECT_FALSE(form.TimerCaret->Enabled());
  EXPECT_EQ(form.TimerCaret->Interval(), 0);
  EXPECT_FALSE(form.TimerCaretCligote->Enabled());
  EXPECT_EQ(form.TimerCaretCligote->Interval(), 0);
  // Stopped timers don't move the caret.
  St().PosCaretX = 3000;
  Pump(600);
  EXPECT_NE(CaretControl(St())->Left(), 3000);
}

TEST_F(CaretTest, CaretBlinksOnlyWhileTheFormIsInFront) {
  Env().active_window = session.Form().hWnd();
  // Abandon leaves both timers running, so the blinking can be watched.
  Edit({u"abc", 20, u"C", u"E", 2}, "{abandon}");
  PictureBox& caret = *CaretControl(St());
  // The first tick: the caret has moved from 0, so it shows at once.
  EXPECT_TRUE(caret.Visible());
  EXPECT_EQ(caret.Left(), kCT + 105);
  Pump(500);
  EXPECT_FALSE(caret.Visible());
  Pump(500);
  EXPECT_TRUE(caret.Visible());
  // In the background it stays hidden at each blink...
  Env().active_window = 0;
  Pump(500);
  EXPECT_FALSE(caret.Visible());
  Pump(500);
  EXPECT_FALSE(caret.Visible());
  // ...but a sideways move shows it until the next blink.
  St().PosCaretX = 2000;
  Pump(2);
  EXPECT_TRUE(caret.Visible());
  EXPECT_EQ(caret.Left(), 2000);
  // A move in PosCaretY alone doesn't.
  Pump(500);
  ASSERT_FALSE(caret.Visible());
  St().PosCaretY = 3000;
  Pump(2);
  EXPECT_FALSE(caret.Visible());
  EXPECT_EQ(caret.Top(), 3000);
}

TEST_F(CaretTest, BlinkPhaseCarriesOverUnlessTheCaretMovesSideways) {
  Env().active_window = session.Form().hWnd();
  // 600 ms of waiting: shown at the first tick, hidden by the blink at 500.
  // Delete leaves PosCaretX as it was, so the next wait stays hidden.
  Edit({u"abc", 20, u"C", u"E", 2}, "{wait:600}{Delete}{wait:100}{abandon}");
  EXPECT_FALSE(CaretControl(St())->Visible());
  // A Right arrow moves it, so it shows again at once.
  Env().Abandon = false;
  Edit({u"abc", 20, u"C", u"E", 1}, "{wait:600}{Right}{wait:100}{abandon}");
  EXPECT_TRUE(CaretControl(St())->Visible());
}

TEST_F(CaretTest, FormWithoutCaretFailsAtSetUp) {
  Env().form =
      std::make_shared<forms::Form>(headless::Session::kFormHandle, headless::Session::kScreenWidth,
                                    headless::Session::kScreenHeight);
  String ch = u"abc";
  Integer tr = 0;
  ExpectPlatformError([&] { KySaisie{}.Modif(kLT, 5, kCT, 10, kLzT, kCzT, u"C", ch, tr, u"F"); },
                      438);
}

}  // namespace
}  // namespace ferlan::testing
