// The pass and the end of Modif as the surface sees them: what is erased and
// drawn at each key, the scrolling window, hidden and masked values, a field
// on another surface, the abandon and the virtual keyboard.
#include <gtest/gtest.h>

#include "editor/caret_form.hpp"
#include "editor/editor_fixture.hpp"
#include "headless/fixed_canvas.hpp"

namespace ferlan::testing {
namespace {

using EditLoopTest = EditorTest;

TEST_F(EditLoopTest, OnePassDrawsStatusThenFieldAndTheEndRedrawsInBlack) {
  TakeLog();
  Edit({u"hello", 20, u"C", u"E", 1}, "{Enter}");
  // The status on line NbLigne - 1 = 26 (8112), centred on 11820, not erased
  // first; the zone of the field erased inside its box; the text in "B"; at
  // the end the same zone and the text in "N".
  EXPECT_EQ(TakeLog(),
            "EffaceRect 5332 8112 6487 8306 -1\n"
            "Pave 5332 8112 6487 8305 -1\n"
            "Texte 5332 8112 \"Curseur   1\" 0\n"
            "EffaceRect 422 624 2937 818 -1\n"
            "EffaceRect 525 624 2625 818 -1\n"
            "Pave 525 624 2625 817 -1\n"
            "Texte 525 624 \"hello               \" 8388608\n"
            "EffaceRect 422 624 2937 818 -1\n"
            "EffaceRect 525 624 2625 818 -1\n"
            "Pave 525 624 2625 817 -1\n"
            "Texte 525 624 \"hello               \" 0\n");
}

TEST_F(EditLoopTest, EveryKeyRedrawsTheFieldAndTheStatusFollowsTheCaret) {
  TakeLog();
  Edit({u"hello", 20, u"C", u"E", 1}, "{Right}{Ctrl+A}{Enter}");
  std::vector<String> status;
  int field_erasures = 0;
  for (const headless::DessinCall& call : session.Recorder().TakeLog()) {
    if (call.name == "Texte" && VariantToString(call.args[2]).starts_with(u"Curseur ")) {
      status.push_back(VariantToString(call.args[2]));
    }
    if (call.name == "EffaceRect" && VariantToSingle(call.args[0]) == 422) ++field_erasures;
  }
  EXPECT_EQ(status, (std::vector<String>{u"Curseur   1", u"Curseur   2", u"Curseur   2"}));
  // Three passes (one a key, the key with no meaning included) and the end.
  EXPECT_EQ(field_erasures, 4);
}

TEST_F(EditLoopTest, EndErasesInWhiteWhenTheColourIsNotB) {
  Edit({u"abc", 5, u"C", u"E", 1, u"R"}, "{Enter}");
  const std::string log = TakeLog();
  // The pass erases with -1, the end with Env.Blanc (16777215).
  EXPECT_NE(log.find("EffaceRect 422 624 2937 818 -1\n"), std::string::npos);
  EXPECT_NE(log.find("EffaceRect 422 624 2937 818 16777215\n"), std::string::npos);
}

TEST_F(EditLoopTest, WindowScrollsAtTheRightEdgeAndJumpsBackToZero) {
  // 2100 inner twips: NbCol is 20, so with C 10 CMax is 20 and NbVis 11.
  Zone().SetWidth(2100 + forms::PictureBox::kFixedSingleBorder);
  ASSERT_EQ(KySaisie{}.NbCol(), 20);
  TakeLog();
  std::string keys = "{Right}";
  for (int i = 0; i < 11; ++i) keys += "{Left}";
  const Outcome out =
      Edit({u"abcdefghijklmnopqrst", 20, u"C", u"E", 11, u"B", 10}, keys + "{Enter}");
  EXPECT_EQ(out.col, 1);
  const std::vector<String> drawn = FieldTexts();
  ASSERT_EQ(drawn.size(), 14u);
  EXPECT_EQ(ToUtf8(drawn[0]), "abcdefghijk");   // P 11 on column 20, Decal 0
  EXPECT_EQ(ToUtf8(drawn[1]), "bcdefghijkl");   // P 12, Decal 1
  EXPECT_EQ(ToUtf8(drawn[11]), "bcdefghijkl");  // P 2: Decal holds
  EXPECT_EQ(ToUtf8(drawn[12]), "abcdefghijk");  // P 1: back to 0 in one jump
  EXPECT_EQ(ToUtf8(drawn[13]), "abcdefghijk");  // the end draws from the start
}

TEST_F(EditLoopTest, WindowJumpsToTheRightEdgeWhenTheCaretLeavesItOnTheLeft) {
  Zone().SetWidth(2100 + forms::PictureBox::kFixedSingleBorder);
  TakeLog();
  // From 20 (Decal 9) Shift+Tab goes to 13, inside the window; again to 6,
  // left of it: C + P - 1 = 15 fits, so Decal drops to 0.
  Edit({u"abcdefghijklmnopqrst", 20, u"C", u"E", 20, u"B", 10}, "{Shift+Tab}{Shift+Tab}{Enter}");
  const std::vector<String> drawn = FieldTexts();
  ASSERT_EQ(drawn.size(), 4u);
  EXPECT_EQ(ToUtf8(drawn[0]), "jklmnopqrst");
  EXPECT_EQ(ToUtf8(drawn[1]), "jklmnopqrst");
  EXPECT_EQ(ToUtf8(drawn[2]), "abcdefghijk");
}

TEST_F(EditLoopTest, InfiniteFieldScrollsInAWindowOfLcmPlusOneColumns) {
  TakeLog();
  // LCM 4 at column 5: CMax 9, a window of 5 characters.
  const Outcome out = Edit({u"", 4, u"C", u"Infini"}, "abcdefg{Enter}");
  EXPECT_EQ(ToUtf8(out.ch), "abcdefg");
  const std::vector<String> drawn = FieldTexts();
  ASSERT_EQ(drawn.size(), 9u);
  EXPECT_EQ(ToUtf8(drawn[4]), "abcd ");  // P 5 on column 9
  EXPECT_EQ(ToUtf8(drawn[5]), "bcde ");  // P 6, Decal 1
  EXPECT_EQ(ToUtf8(drawn[7]), "defg ");  // P 8, Decal 3
  EXPECT_EQ(ToUtf8(drawn[8]), "abcde");  // the end
}

TEST_F(EditLoopTest, HiddenValueIsNeverDrawnAndStopsBeingHiddenWhenReplaced) {
  TakeLog();
  const String hidden = u"\x01secret";
  Outcome out = Edit({hidden, 10, u"C", u"E", 5}, "{Enter}");
  EXPECT_EQ(out.ch, hidden);
  EXPECT_TRUE(FieldTexts().empty());
  // Hidden at P 5: TexteVu stays empty, so the caret stands at CT.
  EXPECT_EQ(CaretControl(St())->Left(), kCT);

  out = Edit({hidden, 10, u"C", u"E", 1}, "x{Enter}");
  EXPECT_EQ(ToUtf8(out.ch), "xsecret");
  const std::vector<String> drawn = FieldTexts();
  EXPECT_EQ(drawn, (std::vector<String>{u"xsecret   ", u"xsecret   "}));
}

TEST_F(EditLoopTest, MaskedEntryShowsBulletsAndTheEndLeavesThem) {
  TakeLog();
  const Outcome out = Edit({u"  ab  ", 6, u"C", u"I", 0}, "{Right}{Right}{Right}{Enter}");
  EXPECT_EQ(ToUtf8(out.ch), "  ab");
  const std::vector<String> drawn = FieldTexts();
  // Two bullets, one a pass, and nothing at the end.
  ASSERT_EQ(drawn.size(), 4u);
  for (const String& text : drawn) EXPECT_EQ(ToUtf8(text), "\u2022\u2022");
  // At P 4 the caret follows the bullets: the first three of two.
  EXPECT_EQ(CaretControl(St())->Left(), kCT + 2 * 105);
}

TEST_F(EditLoopTest, FieldOnAnotherSurfaceKeepsTheStatusOnTheMainOne) {
  auto other = session.NewPictureBox();
  other->SetWidth(6000);
  other->SetHeight(3000);
  other->SetLeft(1500);
  other->SetTop(2000);
  Type("x{wait:2}{Enter}");
  String ch = u"abc";
  Integer tr = 0;
  Integer col = 0;
  KySaisie{}.Modif(kLT, 5, kCT, 5, kLzT, kCzT, u"C", ch, tr, u"F", &col, u"B", other, 30, 40);
  EXPECT_EQ(ToUtf8(ch), "x");
  EXPECT_EQ(session.Env().surface, session.SurfaceRef());

  auto texts_on = [](PictureBox& zone) {
    std::vector<String> texts;
    auto picture = std::dynamic_pointer_cast<headless::DisplayListPicture>(zone.Image());
    for (const headless::DrawOp& op : picture->Ops()) {
      if (op.kind == headless::DrawOp::Kind::Text) texts.push_back(op.text);
    }
    return texts;
  };
  EXPECT_EQ(texts_on(*other), (std::vector<String>{u"abc  ", u"x    ", u"x    "}));
  EXPECT_EQ(texts_on(Zone()), (std::vector<String>{u"Curseur   1", u"Curseur   2"}));
  // The caret: CT + "x", then the surface's place and CaretX / CaretY.
  EXPECT_EQ(CaretControl(St())->Left(), kCT + 105 + 1500 + 30);
  EXPECT_EQ(CaretControl(St())->Top(), 790 + 2000 + 40);
}

TEST_F(EditLoopTest, AbandonLeavesAtOnceWithTheCaretTimersRunning) {
  Env().active_window = session.Form().hWnd();
  TakeLog();
  Integer tr = 99;
  Integer col = 7;
  String ch = u"hello";
  Type("{Right}x{abandon}");
  KySaisie{}.Modif(kLT, 5, kCT, 10, kLzT, kCzT, u"C", ch, tr, u"F", &col);
  EXPECT_EQ(tr, 0);
  EXPECT_EQ(ToUtf8(ch), "hxllo     ");  // padded, with the edits so far
  EXPECT_EQ(col, 7);                    // not written
  // Nothing drawn after the last pass: its text is the last thing drawn.
  const std::vector<String> drawn = FieldTexts();
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(ToUtf8(drawn.back()), "hxllo     ");

  CaretForm& form = FeuilleCaret(St());
  EXPECT_TRUE(form.TimerCaret->Enabled());
  EXPECT_EQ(form.TimerCaret->Interval(), 1);
  EXPECT_TRUE(form.TimerCaretCligote->Enabled());
  EXPECT_EQ(form.TimerCaretCligote->Interval(), 500);
  // Still running: the caret blinks on after the edit.
  PictureBox& caret = *CaretControl(St());
  Pump(2);
  EXPECT_EQ(caret.Left(), kCT + 2 * 105);
  EXPECT_TRUE(caret.Visible());
}

TEST_F(EditLoopTest, VirtualKeyboardTypesAndValidatesTheField) {
  KySaisie{}.ClavierVirtuel(u"AB", 13, true);
  const Outcome out = Edit({u"xyz", 10}, "");
  EXPECT_EQ(ToUtf8(out.ch), "AB");
  EXPECT_EQ(out.tr, 13);
  EXPECT_EQ(out.col, 1);  // Home came before the validating key
  EXPECT_FALSE(session.EndCall());
}

TEST_F(EditLoopTest, RealCharacterAfterVirtualKeysAtPositionOneStillBlanks) {
  // VideAvant False: no blanking key, the text goes in at the caret.
  KySaisie{}.ClavierVirtuel(u"AB", 0, false);
  const Outcome out = Edit({u"hello", 10}, "{wait:20}z{Enter}");
  EXPECT_EQ(ToUtf8(out.ch), "z");
}

}  // namespace
}  // namespace ferlan::testing
