// A field of the screen by its identifier, on the fixed surface: line 3 is at 936, line 4 at 1248,
// a text is 195 high and a column 105 wide. Entry goes through real keys: the record gives the
// geometry and the type, the value comes back in stored form, in the caller's variable and in the
// record's Valeur (TR 13 is Enter). Display and side messages are read in the log.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "entry/entry_fixture.hpp"
#include "forms/bitmap.hpp"
#include "forms/form.hpp"
#include "headless/fixed_canvas.hpp"
#include "headless/key_interception.hpp"
#include "screens/screens_fixture.hpp"

namespace ferlan::testing {
namespace {

using EntryByIdentifierTest = FieldTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// Entry hands ModD whole numbers, ties to even: CT 1732.5 is 1732 and its column 1732 \ 105 = 16,
// CzT 1627.5 is 1628, LzT 3360.5 is 3360. Display by identifier draws at the record's own 1732.5.
TEST_F(EntryByIdentifierTest, EntryRoundsTheRecordAndDisplayDoesNot) {
  AddField(u"NOM", u"A", 3, 105, 1627.5F, 3360.5F, 1732.5F, 30);
  String c = u"Durand";
  Integer tr = -1;
  Type("{Ctrl+End}Dupont{Enter}");
  KySaisie{}.Sai(u"NOM", c, tr);
  EXPECT_EQ(std::tuple(c, tr), std::tuple(u"Dupont", 13));
  EXPECT_EQ(Record(1).Valeur.Text(), u"Dupont" + String(94, u' '));
  const std::string entry_log = TakeLog();
  EXPECT_THAT(entry_log, HasSubstr("EffaceRect 1630 936 4985 1130 -1\n"));
  EXPECT_THAT(entry_log, HasSubstr("Texte 1732 936 \"Dupont"));

  KySaisie{}.ConsDon(u"NOM", u"abc");
  const std::string display_log = TakeLog();
  EXPECT_THAT(display_log, StartsWith("EffaceRect 1629.5 936 4985 1130 -1\n"));
  EXPECT_THAT(display_log, HasSubstr("Texte 1732.5 936 \"abc\""));
  EXPECT_EQ(Record(1).Valeur.Trimmed(), u"Dupont");  // display leaves Valeur alone
  EXPECT_THAT(TakeReports(), IsEmpty());
}

// A number goes through the calculator, a date gives its sort number, and Valeur holds the stored
// form: two characters for an "I0", padded. SaiD on a field that is no date gives O 0.
TEST_F(EntryByIdentifierTest, NumbersAndDatesComeBackInStoredForm) {
  AddField(u"QTE", u"I0", 5, 105, 1785, 735, 1800, 5);
  AddField(u"DATEFAC", u"D", 7, 105, 1785, 1260, 1800, 10);
  String qte = StoredInteger(0), date = u"01/02/2003";
  Integer tr = -1;
  Long o = -1;
  Type("12*3{Enter}{Enter}");
  KySaisie{}.Sai(u"QTE", qte, tr);
  EXPECT_EQ(Record(1).Valeur.Text(), StoredInteger(36) + String(98, u' '));
  Type("{Esc}15081999{PgDn}");
  KySaisie{}.SaiD(u"DATEFAC", date, tr, o);
  EXPECT_EQ(std::tuple(date, tr, o), std::tuple(u"15/08/1999", 34, 19990815));
  EXPECT_EQ(Record(2).Valeur.Trimmed(), u"15/08/1999");
  Type("7{Enter}");
  KySaisie{}.SaiD(u"QTE", qte, tr, o);
  EXPECT_EQ(o, 0);
  EXPECT_THAT(TakeReports(), IsEmpty());
}

// P "F" puts the caret behind the value; an unknown P enters nothing. Sai
// turns key interception off at its end, whether or not it was asked.
TEST_F(EntryByIdentifierTest, EntryKindsSetTheEditorModeAndSaiEndsWithInterceptionOff) {
  AddField(u"NOM", u"A", 3, 105, 1785, 3360, 1800, 30);
  String c = u"Du";
  Integer tr = -1;
  Type("pont{Enter}");
  KySaisie{}.SaiF(u"NOM", c, tr);
  EXPECT_EQ(c, u"Dupont");
  TakeLog();

  Long o = 5;
  c = u"keep";
  tr = 77;
  KySaisie{}.SaisDonnee(u"X", u"NOM", c, tr, &o);
  EXPECT_EQ(std::tuple(c, tr, o), std::tuple(u"keep", 77, 5));
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(Record(1).Valeur.Trimmed(), u"Dupont");

  auto interception =
      std::dynamic_pointer_cast<headless::KeyInterception>(Form().Member("ClavierKY"));
  ASSERT_TRUE(interception);
  interception->SetInterception(true);
  Type("a{Enter}");
  KySaisie{}.Sai(u"NOM", c, tr, false);
  EXPECT_FALSE(interception->Interception());
}

// The first record of an identifier wins; case and trailing blanks count.
// An unknown one is reported, and the entry goes on with record 0, blank and
// zero, whose empty type code DecodeType reports in its turn.
TEST_F(EntryByIdentifierTest, UnknownIdentifiersAreReportedAndRecordZeroIsUsed) {
  AddField(u"CODE", u"A", 3, 105, 1785, 1260, 1800, 10);
  AddField(u"CODE", u"A", 5, 105, 1785, 1260, 1800, 10);
  Integer r = 9;
  KySaisie{}.RechRub(u"CODE", r);
  EXPECT_EQ(r, 1);
  for (String id : {u"code", u"CODE ", u"NOPE"}) {
    r = 9;
    KySaisie{}.RechRub(id, r);
    EXPECT_EQ(r, 9);
    EXPECT_THAT(TakeReports(),
                ElementsAre("RechRub: Code Rubrique Inconnu @<" + ToUtf8(id) + ">@"));
  }

  String c = u"x";
  Integer tr = -1;
  Type("{Enter}");
  KySaisie{}.Sai(u"NOPE", c, tr);
  EXPECT_THAT(TakeReports(), ElementsAre("RechRub: Code Rubrique Inconnu @<NOPE>@",
                                         "DecodeType: Le Type de Donnée <@@> est Inconnu"));
  EXPECT_EQ(Record(0).TypeDon.Text(), u"   ");
}

class FieldDisplayTest : public FieldTest {
 protected:
  // NOM's box ends at 5145, so right of it is 5250; CODE shares its line.
  void SetUp() override {
    AddField(u"NOM", u"A", 3, 210, 1785, 3360, 1800, 30);
    AddField(u"CODE", u"I0", 3, 5460, 6090, 735, 6105, 5);
    AddField(u"PRIX", u"D2", 5, 210, 1785.5F, 3360, 1800.5F, 12);
  }
  std::string Right() { return ToUtf8(NumberText(Zone().ScaleWidth())); }
  std::shared_ptr<forms::PictureBox> PictureControl(int width_pixels) {
    auto box = session.NewPictureBox();
    box->SetVisible(false);
    box->SetPicture(std::make_shared<forms::Bitmap>(
        width_pixels, 2, std::vector<forms::Rgb>(static_cast<std::size_t>(width_pixels) * 2)));
    return box;
  }
};

// ConsDon shows the display form whole, in the box, without touching Valeur.
TEST_F(FieldDisplayTest, ConsultationShowsTheDisplayForm) {
  KySaisie{}.ConsDon(u"CODE", StoredInteger(1234));
  std::string log = TakeLog();
  EXPECT_THAT(log, StartsWith("EffaceRect 6092 936 6822 1130 -1\n"));
  EXPECT_THAT(log, HasSubstr("Texte 6105 936 \"1234\""));

  KySaisie{}.AffDon(4, 1800, 420, 1785, u"O", u"B");
  EXPECT_THAT(TakeLog(), HasSubstr("Texte 1800 1248 \"OUI\""));
  KySaisie{}.AffDon(4, 1800, 210, 1785, u"far wider than its box", u"A");
  EXPECT_THAT(TakeLog(), HasSubstr("\"far wider than its box\""));
  EXPECT_EQ(Record(2).Valeur.Trimmed(), u"");
  EXPECT_THAT(TakeReports(), IsEmpty());
}

// Right of the field is CzT + LzT + one column; MesAD clears the rest of the
// line from half a column before, CODE's label and box included.
TEST_F(FieldDisplayTest, MessageRightOfTheFieldWipesTheRestOfTheLine) {
  Single y = 0, x = 0;
  KySaisie{}.PosAD(u"NOM", y, x);
  EXPECT_EQ(std::pair(x, y), std::pair(5250.0F, 936.0F));
  KySaisie{}.MesAD(u"NOM", u"R", u"Client connu");
  const std::string log = TakeLog();
  EXPECT_THAT(log, StartsWith("EffaceRect 5197.5 936 " + Right() + " 1131 -1\n"));
  EXPECT_THAT(log, HasSubstr("Texte 5250 936 \"Client connu\""));
}

// Under the entry box: erased from under the label (210), or from column 1
// (105) when the whole line goes; written under the box. MesSR writes under
// the label, and with EffRien erases nothing at all.
TEST_F(FieldDisplayTest, MessagesUnderTheFieldEraseFromUnderTheLabel) {
  KySaisie{}.MesSD(u"NOM", u"N", u"sous");
  std::string log = TakeLog();
  EXPECT_THAT(log, StartsWith("EffaceRect 210 1248 " + Right() + " 1443 -1\n"));
  EXPECT_THAT(log, HasSubstr("Texte 1785 1248 \"sous\""));
  KySaisie{}.MesSD(u"NOM", u"N", u"sous", true);
  EXPECT_THAT(TakeLog(), StartsWith("EffaceRect 105 1248 " + Right() + " 1443 -1\n"));

  KySaisie{}.MesSR(u"NOM", u"N", u"label", true);
  log = TakeLog();
  EXPECT_THAT(log, StartsWith("EffaceRect 105 1248 " + Right() + " 1443 -1\n"));
  EXPECT_THAT(log, HasSubstr("Texte 210 1248 \"label\""));
  KySaisie{}.MesSR(u"NOM", u"N", u"over", true, true);
  log = TakeLog();
  EXPECT_THAT(log, ::testing::Not(HasSubstr(" " + Right() + " ")));
  EXPECT_THAT(log, HasSubstr("Texte 210 1248 \"over\""));

  Long l = 0, c = 0;
  KySaisie{}.PosAffRub(u"NOM", l, c);
  EXPECT_EQ(std::pair(l, c), std::pair(Long{3}, Long{2}));
}

// PosAD's X is unrounded (5250.5), ImageAD's rounded (5250, ties to even).
// A picture passing the right edge grows the surface before it is painted.
TEST_F(FieldDisplayTest, PictureRightOfTheFieldGrowsTheSurfaceThenPaints) {
  Single y = 0, x = 0;
  KySaisie{}.PosAD(u"PRIX", y, x);
  EXPECT_EQ(x, 5250.5F);
  auto& canvas = dynamic_cast<headless::FixedCanvas&>(Zone().GetCanvas());
  const Single width_before = Zone().ScaleWidth();

  KySaisie{}.ImageAD(u"PRIX", PictureControl(600));  // 9000 twips
  EXPECT_THAT(TakeLog(), StartsWith("EffaceRect 5250 1560 "));
  EXPECT_LT(width_before, 5250 + 9000 + 1);
  EXPECT_GE(Zone().ScaleWidth(), 5250 + 9000 + 1);
  ASSERT_FALSE(canvas.Ops().empty());
  EXPECT_EQ(headless::Describe(canvas.Ops().back()), "Picture 5250 1560 9000 30");
}

// ImageSD moves the control itself under the entry box and shows it. With
// no picture, the line is erased first and then the object error rises.
TEST_F(FieldDisplayTest, PictureUnderTheFieldMovesTheControl) {
  auto box = PictureControl(10);
  KySaisie{}.ImageSD(u"PRIX", box);
  EXPECT_THAT(TakeLog(), StartsWith("EffaceRect 105 1872 "));
  EXPECT_TRUE(box->Visible());
  EXPECT_EQ(std::pair(box->Left(), box->Top()), std::pair(1785.5F, 1872.0F));
  ExpectPlatformError([&] { KySaisie{}.ImageAD(u"NOM", session.NewPictureBox()); }, 91);
  EXPECT_THAT(TakeLog(), StartsWith("EffaceRect 5250 936 "));
  ExpectPlatformError([&] { KySaisie{}.ImageSD(u"NOM", nullptr); }, 91);
}

}  // namespace
}  // namespace ferlan::testing
