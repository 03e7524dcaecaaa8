// Aff and the calls that place it, checked by the Dessin calls they make,
// one a line: "EffaceRect X1 Y1 X2 Y2 Coul", "Pave ...", "Texte X Y "text" Coul".
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "display/measured_canvas.hpp"
#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class TextOutputTest : public SessionTest {
 protected:
  void SetUp() override {
    // Colours that read well in a log.
    Env().Noir = 0;
    Env().CouleurB = 2;
    Env().Jaune = 3;
    Env().Bleu = 5;
  }
  void SetInnerSize(Single width, Single height) {
    Zone().SetWidth(width + Zone().Border());
    Zone().SetHeight(height + Zone().Border());
  }
  KySaisie ky;
};

TEST_F(TextOutputTest, AffClearsThenPaintsTheBoxOfItsTextOnly) {
  // A surface where "Mille" measures 1000.4: the fixed metrics give only
  // multiples of 105 at size 10. Heights stay 195.
  auto measures = std::make_shared<Measures>();
  measures->widths[u"Mille"] = 1000.4f;
  Env().surface = MeasuredSurface(measures, 11820, 8490);

  ky.AffPos(1, 1);
  ky.Aff(u"I", u"Mille");
  // W is 1000; the clearing stops MargeY short of the text height, the
  // background 2 x MargeY short.
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 312 1105 506 -1\n"
            "Pave 105 312 1105 505 5\n"
            "Texte 105 312 \"Mille\" 3\n");
  // Dessin.Texte leaves the position at the exact end of the text.
  EXPECT_FLOAT_EQ(Env().CourantX, 1105.4f);
  EXPECT_EQ(Env().CourantY, 312.0f);
}

TEST_F(TextOutputTest, SuccessiveRunsFollowOneAnother) {
  ky.AfficheT(500, 52.5f, u"B", u"ab");
  ky.Aff(u"S", u"c");
  // An empty text draws nothing visible and leaves the position.
  ky.Aff(u"N", u"");
  EXPECT_EQ(TakeLog(),
            "EffaceRect 52.5 500 262.5 694 -1\n"
            "Pave 52.5 500 262.5 693 -1\n"
            "Texte 52.5 500 \"ab\" 2\n"
            "EffaceRect 262.5 500 367.5 694 -1\n"
            "Pave 262.5 500 367.5 693 2\n"
            "Texte 262.5 500 \"c\" 3\n"
            "EffaceRect 367.5 500 367.5 694 -1\n"
            "Pave 367.5 500 367.5 693 -1\n"
            "Texte 367.5 500 \"\" 0\n");
  EXPECT_EQ(Env().CourantX, 367.5f);
  EXPECT_EQ(Env().CourantY, 500.0f);
}

TEST_F(TextOutputTest, AfficheRoundsTheLineAndTheWidthToEven) {
  // Size 5: pitch 156.8, column 52.5, text height 97.5 taken as 98.
  Zone().Font().SetSize(5);
  ky.Affiche(3, 3, u"N", u"x");
  // Line 3 at 470.4 goes to 470; column 3 stays 157.5; the width 52.5 of
  // "x" counts as 52.
  EXPECT_EQ(TakeLog(),
            "EffaceRect 157.5 470 209.5 567 -1\n"
            "Pave 157.5 470 209.5 566 -1\n"
            "Texte 157.5 470 \"x\" 0\n");
  EXPECT_EQ(Env().CourantY, 470.0f);

  ky.AfficheColT(2, 10.25f, u"N", u"");
  EXPECT_EQ(TakeLog(),
            "EffaceRect 10.25 314 10.25 411 -1\n"
            "Pave 10.25 314 10.25 410 -1\n"
            "Texte 10.25 314 \"\" 0\n");
}

TEST_F(TextOutputTest, AnUnknownCodeStillClearsAndDrawsInColourZero) {
  ky.AffPos(1, 1);
  ky.Aff(u"Vert", u"ab");
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 312 315 506 -1\n"
            "Pave 105 312 315 505 -1\n"
            "Texte 105 312 \"ab\" 0\n");
  ASSERT_EQ(session.Records().reports.size(), 1u);
  EXPECT_EQ(session.Records().reports[0].text, u"Vert Code Couleur Inconnu");
}

TEST_F(TextOutputTest, AffWidensTheSurfaceBetweenClearingAndPainting) {
  SetInnerSize(11820, 8490);  // 27 lines
  ky.AfficheT(312, 11000, u"N", u"0123456789");
  // 11000 + 1050 + MargeX passes 11820: the surface is sized to 27 lines and
  // 12051 plus two columns each side, and centred, the form growing to hold
  // it.
  EXPECT_EQ(TakeLog(),
            "EffaceRect 11000 312 12050 506 -1\n"
            "Hauteur 8424 False\n"
            "Largeur 12471 False\n"
            "Recadre\n"
            "Pave 11000 312 12050 505 -1\n"
            "Texte 11000 312 \"0123456789\" 0\n");
  EXPECT_EQ(Zone().ScaleWidth(), 12471.0f);
  EXPECT_EQ(Form().ScaleWidth(), Zone().Width());
  EXPECT_EQ(Zone().Left(), 0.0f);

  // Exactly at the edge there is no widening.
  ky.AfficheT(312, 12471 - 1050 - 1, u"N", u"0123456789");
  EXPECT_EQ(TakeLog(),
            "EffaceRect 11420 312 12470 506 -1\n"
            "Pave 11420 312 12470 505 -1\n"
            "Texte 11420 312 \"0123456789\" 0\n");
}

TEST_F(TextOutputTest, AnOverflowWhileWideningKeepsTheClearing) {
  // 40,000 lines: NbLigne, asked for the widening, overflows an Integer.
  SetInnerSize(11820, 40000 * 312.0f);
  ExpectPlatformError([&] { ky.AfficheT(312, 11000, u"N", u"0123456789"); }, 6);
  EXPECT_EQ(TakeLog(), "EffaceRect 11000 312 12050 506 -1\n");
  EXPECT_EQ(Env().CourantX, 11000.0f);
  EXPECT_EQ(Env().CourantY, 312.0f);

  // A line beyond a Long, for AfficheColT, fails before anything moves.
  ExpectPlatformError([&] { ky.AfficheColT(2'000'000'000, 0, u"N", u"x"); }, 6);
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(Env().CourantY, 312.0f);
}

}  // namespace
}  // namespace ferlan::testing
