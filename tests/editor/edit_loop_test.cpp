// The pass and the end of Modif as the surface sees them, the abandon and the virtual keyboard.
#include <gtest/gtest.h>

#include "editor/caret_form.hpp"
#include "editor/editor_fixture.hpp"
#include "headless/fixed_canvas.hpp"

namespace ferlan::testing {
namespace {

using EditLoopTest = EditorTest;

TEST_F(EditLoopTest, EachPassDrawsStatusThenFieldAndTheEndRedrawsInBlack) {
  TakeLog();
  Edit(At(u"hello", 1), "{Enter}");
  // The status on line 26 (8112), centred, not erased first; the field's
  // zone erased inside its box; the text in "B", at the end in "N".
  const std::string field =
      "EffaceRect 422 624 2937 818 -1\nEffaceRect 525 624 2625 818 -1\n"
      "Pave 525 624 2625 817 -1\nTexte 525 624 \"hello               \" ";
  EXPECT_EQ(TakeLog(),
            "EffaceRect 5332 8112 6487 8306 -1\nPave 5332 8112 6487 8305 -1\n"
            "Texte 5332 8112 \"Curseur 001\" 0\n" +
                field + "8388608\n" + field + "0\n");

  // Another colour than "B": the end erases in Env.Blanc.
  Edit({u"abc", 5, u"C", u"E", 1, u"R"}, "{Enter}");
  EXPECT_NE(TakeLog().find("EffaceRect 422 624 2937 818 16777215\n"), std::string::npos);
}

TEST_F(EditLoopTest, WindowScrollsAtTheEdgesAndJumpsBack) {
  // 2100 inner twips: NbCol is 20, so with C 10 CMax is 20 and NbVis 11.
  Zone().SetWidth(2100 + forms::PictureBox::kFixedSingleBorder);
  ASSERT_EQ(KySaisie{}.NbCol(), 20);
  const String text = u"abcdefghijklmnopqrst";
  TakeLog();
  // P 11 on column 20; at 12 Decal is 1 and holds down to P 2; at P 1 it
  // jumps back to 0, and the end draws from the start.
  std::string keys = "{Right}", held;
  for (int i = 0; i < 11; ++i) {
    keys += "{Left}";
    held += "bcdefghijkl|";
  }
  EXPECT_EQ(Edit({text, 20, u"C", u"E", 11, u"B", 10}, keys + "{Enter}").col, 1);
  EXPECT_EQ(Drawn(), "abcdefghijk|" + held + "abcdefghijk|abcdefghijk|");

  // From 20 (Decal 9) to 13, inside the window, then to 6, left of it:
  // C + P - 1 = 15 fits, so Decal drops to 0.
  Edit({text, 20, u"C", u"E", 20, u"B", 10}, "{Shift+Tab}{Shift+Tab}{Enter}");
  EXPECT_EQ(Drawn(), "jklmnopqrst|jklmnopqrst|abcdefghijk|abcdefghijk|");

  // Infini, LCM 4 at column 5: CMax 9, a window of LCM + 1.
  EXPECT_EQ(ToUtf8(Edit({u"", 4, u"C", u"Infini"}, "abcdefg{Enter}").ch), "abcdefg");
  EXPECT_EQ(Drawn(), "     |a    |ab   |abc  |abcd |bcde |cdef |defg |abcde|");

  // A Col below 1 in mode "E" starts the caret left of the field: the
  // first pass draws, then the repeat default's Mid refuses position 0.
  const Field left_of_it{text, 20, u"C", u"E", 0, u"B", 10};
  ExpectPlatformError([&] { Edit(left_of_it, "{Enter}"); }, 5,
                      "Invalid procedure call or argument: Mid from a position below 1");
}

TEST_F(EditLoopTest, HiddenMaskedAndDateValuesShowAsTheirKindWants) {
  TakeLog();
  const String hidden = u"\x01secret";
  EXPECT_EQ(Edit({hidden, 10, u"C", u"E", 5}, "{Enter}").ch, hidden);
  EXPECT_EQ(Drawn(), "");
  EXPECT_EQ(CaretControl(St())->Left(), kCT);  // TexteVu is empty
  // Typed over, it is a plain value again.
  EXPECT_EQ(ToUtf8(Edit({hidden, 10, u"C", u"E", 1}, "x{Enter}").ch), "xsecret");
  EXPECT_EQ(Drawn(), "xsecret   |xsecret   |");

  // Masked: two bullets at each pass, nothing at the end, and the caret at
  // P 4 follows the bullets (the first three of two).
  EXPECT_EQ(ToUtf8(Edit({u"  ab  ", 6, u"C", u"I", 0}, "{Right}{Right}{Right}{Enter}").ch), "  ab");
  EXPECT_EQ(Drawn(), "\u2022\u2022|\u2022\u2022|\u2022\u2022|\u2022\u2022|");
  EXPECT_EQ(CaretControl(St())->Left(), kCT + 2 * 105);

  // A date's separator is typed in a pass of its own right after the digit before it.
  Edit({u"", 10, u"D"}, "12{Enter}");
  EXPECT_EQ(Drawn(), "          |1         |12        |12/       |12/       |");
}

TEST_F(EditLoopTest, FieldOnAnotherSurfaceKeepsTheStatusOnTheMainOne) {
  auto other = session.NewPictureBox();
  Place(*other, 1500, 2000, 6000, 3000);
  const Outcome out = Edit({u"abc", 5, u"C", u"F", 0, u"B", 5, other, 30, 40}, "x{wait:2}{Enter}");
  EXPECT_EQ(ToUtf8(out.ch), "x");
  EXPECT_EQ(session.Env().surface, session.SurfaceRef());
  auto texts_on = [](PictureBox& zone) {
    std::string texts;
    auto picture = std::dynamic_pointer_cast<headless::DisplayListPicture>(zone.Image());
    for (const headless::DrawOp& op : picture->Ops()) {
      if (op.kind == headless::DrawOp::Kind::Text) texts += ToUtf8(op.text) + "|";
    }
    return texts;
  };
  EXPECT_EQ(texts_on(*other), "abc  |x    |x    |");
  EXPECT_EQ(texts_on(Zone()), "Curseur 001|Curseur 002|");
  // The caret: CT + "x", then the surface's place and CaretX / CaretY.
  EXPECT_EQ(std::pair(CaretControl(St())->Left(), CaretControl(St())->Top()),
            std::pair(kCT + 105 + 1500 + 30, Single{790 + 2000 + 40}));
}

TEST_F(EditLoopTest, AbandonLeavesAtOnceWithTheCaretTimersRunning) {
  Env().active_window = session.Form().hWnd();
  TakeLog();
  // TR 0, the text padded with the edits so far, Col not written.
  EXPECT_EQ(Edit({u"hello", 10, u"C", u"F", 7}, "{Right}x{abandon}"),
            (Outcome{u"hxllo     ", 0, 7}));
  // Nothing drawn after the last pass.
  EXPECT_TRUE(Drawn().ends_with("|hxllo     |"));

  // Still running: the caret moves to P 3 and shows after the edit.
  Pump(2);
  EXPECT_EQ(CaretControl(St())->Left(), kCT + 2 * 105);
  EXPECT_TRUE(CaretControl(St())->Visible());
}

TEST_F(EditLoopTest, VirtualKeyboardTypesAndValidatesTheField) {
  KySaisie{}.ClavierVirtuel(u"AB", 13, true);
  // The blanking key came first, and Home before the validating key.
  EXPECT_EQ(Edit({u"xyz", 10}, ""), (Outcome{u"AB", 13, 1}));
  EXPECT_FALSE(session.EndCall());

  // VideAvant False: the text goes in at the caret, and a real character
  // at position 1 afterwards still blanks.
  KySaisie{}.ClavierVirtuel(u"AB", 0, false);
  EXPECT_EQ(ToUtf8(Edit({u"hello", 10}, "{wait:20}z{Enter}").ch), "z");
}

}  // namespace
}  // namespace ferlan::testing
