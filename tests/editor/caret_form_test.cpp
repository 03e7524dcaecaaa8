// The caret: its two pictures, where it stands, how wide it is, and its two
// timers, which run only while a field waits for a key.
#include "editor/caret_form.hpp"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

#include "editor/editor_fixture.hpp"
#include "forms/bitmap.hpp"

namespace ferlan::testing {
namespace {

using CaretTest = EditorTest;

TEST_F(CaretTest, CaretTakesThePictureOfTheInsertMode) {
  EXPECT_EQ(St().Feuille_Caret, nullptr);
  // The Insert key changes it at once, to the hidden form's very picture;
  // the next field starts in the mode the last one left.
  for (const char* keys : {"{Enter}", "{Insert}{Enter}", "{Enter}", "{Insert}{Enter}"}) {
    Edit({u"abc"}, keys);
    const CaretForm& form = *St().Feuille_Caret;
    const auto& shown = St().Insertion ? form.CaretInsertion : form.CaretSurcharge;
    EXPECT_EQ(CaretControl(St())->Picture(), shown.Picture) << keys;
  }
  EXPECT_FALSE(St().Insertion);
  // Read back, top left: white on the arrow, black on the bar.
  auto top_left = [](const PictureRef& picture) {
    return dynamic_cast<const forms::Bitmap&>(*picture).Pixel(0, 0);
  };
  EXPECT_EQ(top_left(St().Feuille_Caret->CaretInsertion.Picture), (forms::Rgb{255, 255, 255}));
  EXPECT_EQ(top_left(St().Feuille_Caret->CaretSurcharge.Picture), (forms::Rgb{0, 0, 0}));
}

TEST_F(CaretTest, CaretStandsUnderTheCharacterAsWideAsItWhileTheFieldWaits) {
  // The timers place the caret during the wait.
  Edit(At(u"hello", 4), "{wait:2}{Enter}");
  PictureBox& caret = *CaretControl(St());
  // Right of "hel", at 624 + 195 x 0.85 = 789.75, a letter wide.
  EXPECT_EQ(std::tuple(caret.Left(), caret.Top(), caret.Width()), std::tuple(kCT + 315, 790, 105));
  EXPECT_FALSE(caret.Visible());  // hidden once the key came

  // Wider letters push the caret further; the top rounds 624 + 390 x 0.85 = 955.5 to the even 956.
  Zone().Font().SetSize(20);
  Edit(At(u"hello", 4), "{wait:2}{Enter}");
  EXPECT_EQ(std::tuple(caret.Left(), caret.Top(), caret.Width()), std::tuple(kCT + 630, 956, 210));
  // Behind the text the blank is measured as "A", not as nothing.
  Edit(At(u"ab", 5, 10), "{wait:2}{Enter}");
  EXPECT_EQ(caret.Width(), 210);

  // Once the field has its key, the timers stop and leave the caret alone.
  const CaretForm& form = *St().Feuille_Caret;
  EXPECT_FALSE(form.TimerCaret->Enabled() || form.TimerCaretCligote->Enabled());
  EXPECT_EQ(std::pair(form.TimerCaret->Interval(), form.TimerCaretCligote->Interval()),
            std::pair(0, 0));
  St().PosCaretX = 3000;
  Pump(600);
  EXPECT_NE(caret.Left(), 3000);
}

TEST_F(CaretTest, TheCaretIsTheFormsControlOfThatName) {
  Edit(At(u"hello", 4), "{wait:2}{Enter}");
  const auto first = CaretControl(St());
  const auto second = session.NewPictureBox();
  session.Form().AddMember("Caret", second);
  Edit(At(u"hello", 2), "{wait:2}{Enter}");
  EXPECT_EQ(std::pair(second->Left(), second->Width()), std::pair(kCT + 105, 105.0F));
  EXPECT_EQ(first->Left(), kCT + 3 * 105);  // left where it was
  // A form without one fails at the field's set-up.
  Env().form = std::make_shared<forms::Form>(headless::Session::kFormHandle, 28800, 16200);
  ExpectPlatformError([&] { Edit({u"abc"}, ""); }, 438);
}

TEST_F(CaretTest, CaretBlinksOnlyWhileTheFormIsInFront) {
  Env().active_window = session.Form().hWnd();
  // Abandon leaves both timers running. The first tick has moved the caret
  // from 0, so it shows at once.
  Edit(At(u"abc", 2), "{abandon}");
  PictureBox& caret = *CaretControl(St());
  EXPECT_TRUE(caret.Visible());
  EXPECT_EQ(caret.Left(), kCT + 105);
  auto shown_after = [&](int wait) {
    Pump(wait);
    return caret.Visible();
  };
  EXPECT_FALSE(shown_after(500));
  EXPECT_TRUE(shown_after(500));
  // In the background it stays hidden at each blink, but a sideways move
  // shows it until the next blink; a move in Y alone doesn't.
  Env().active_window = 0;
  EXPECT_FALSE(shown_after(500));
  EXPECT_FALSE(shown_after(500));
  St().PosCaretX = 2000;
  EXPECT_TRUE(shown_after(2));
  EXPECT_FALSE(shown_after(500));
  St().PosCaretY = 3000;
  EXPECT_FALSE(shown_after(2));
  EXPECT_EQ(std::pair(caret.Left(), caret.Top()), std::pair(2000.0F, 3000.0F));
}

TEST_F(CaretTest, BlinkPhaseCarriesOverUnlessTheCaretMovesSideways) {
  Env().active_window = session.Form().hWnd();
  // 600 ms of waiting: shown, then hidden by the blink at 500. Delete
  // leaves PosCaretX, so the next wait stays hidden; Right shows it.
  Edit(At(u"abc", 2), "{wait:600}{Delete}{wait:100}{abandon}");
  EXPECT_FALSE(CaretControl(St())->Visible());
  Env().Abandon = false;
  Edit(At(u"abc", 1), "{wait:600}{Right}{wait:100}{abandon}");
  EXPECT_TRUE(CaretControl(St())->Visible());
}

}  // namespace
}  // namespace ferlan::testing
