// Yes/no values as Booleans: their one-letter texts, and their entry in a
// field of the screen and at the display position, with real keys.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/screens_fixture.hpp"

namespace ferlan::testing {
namespace {

using LogicalEntryTest = FieldTest;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(LogicalEntryTest, OnlyExactlyOIsTrue) {
  EXPECT_EQ(KySaisie{}.TrLogS(true), u"O");
  EXPECT_EQ(KySaisie{}.TrLogS(false), u"N");
  String l;
  KySaisie{}.TransLogS(true, l);
  EXPECT_EQ(l, u"O");
  for (String text : {u"o", u"OUI", u" ", u"", u"N", u"O "}) {
    Boolean b = true;
    KySaisie{}.TransSLog(text, b);
    EXPECT_FALSE(b) << ToUtf8(text);
  }
  Boolean b = false;
  KySaisie{}.TransSLog(u"O", b);
  EXPECT_TRUE(b);
}

// SaiLON enters one column right of the display position (column 10 gives
// 11, X 1155), showing OUI for True; the answer comes back as a Boolean.
TEST_F(LogicalEntryTest, EntryAtTheDisplayPositionStartsOneColumnRight) {
  KySaisie{}.AffPos(5, 10);
  Boolean logique = true;
  Integer tr = -1;
  Type("n");
  KySaisie{}.SaiLON(logique, tr);
  EXPECT_FALSE(logique);
  EXPECT_THAT(TakeLog(), HasSubstr("Texte 1155 1560 \"OUI\""));

  // Left with a leaving key on an unacceptable text: the old answer.
  Type("x{Down}");
  KySaisie{}.SaiLON(logique, tr);
  EXPECT_FALSE(logique);
  EXPECT_EQ(tr, 40);
}

// SaisL goes through the field's record: a "B" field stores "O" or "N".
TEST_F(LogicalEntryTest, EntryInAFieldStoresTheLetter) {
  AddField(u"PAYE", u"B", 6, 105, 1785, 525, 1800, 3);
  Boolean paye = false;
  Integer tr = -1;
  Type("o");
  KySaisie{}.SaisL(u"PAYE", paye, tr);
  EXPECT_TRUE(paye);
  EXPECT_EQ(Record(1).Valeur.Trimmed(), u"O");
  EXPECT_THAT(TakeLog(), HasSubstr("Texte 1800 1872 \"NON\""));
  EXPECT_THAT(TakeReports(), IsEmpty());
}

}  // namespace
}  // namespace ferlan::testing
