// Display and side messages by identifier on the fixed surface: line 3 is at
// 936, line 4 at 1248, a text is 195 high and a column 105 wide.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "entry/entry_fixture.hpp"
#include "forms/bitmap.hpp"
#include "headless/fixed_canvas.hpp"
#include "screens/screens_fixture.hpp"

namespace ferlan::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

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
