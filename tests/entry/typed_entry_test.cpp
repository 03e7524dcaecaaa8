// ModDT and ModD through real keys played through the headless event loop, and yes/no values as
// Booleans. TR 13 is Enter, 38 Up, 34 Page Down, 40 Down, 0 an abandoned entry.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "entry/entry_fixture.hpp"
#include "screens/screens_fixture.hpp"

namespace ferlan::testing {
namespace {

using TypedEntryTest = EntryTest;
using ::testing::HasSubstr;
using Cases = std::vector<std::tuple<String, std::string, EntryResult>>;  // type, keys, result

// Beyond its type a number, like an expression, goes to the calculator, which
// gives it back into the field: a leaving key typed then counts for nothing.
TEST_F(TypedEntryTest, NumbersBeyondTheirTypeComeBackThroughTheCalculator) {
  for (const auto& [typ, keys, want] :
       Cases{{u"I0", "32767{Enter}", {StoredInteger(32767), 13, 0}},
             {u"I0", "32768{Enter}{Up}123{Enter}", {StoredInteger(123), 13, 0}},
             {u"I0", "-32768{Enter}{Up}-5{Enter}", {StoredInteger(-5), 13, 0}},
             {u"I0", "7*6{PgDn}{PgDn}", {StoredInteger(42), 34, 0}},
             {u"S2", "100000{Enter}{PgDn}7{Enter}", {StoredSingle(7), 13, 0}},
             {u"D2", "9999999999999.99{Enter}", {StoredDouble(9999999999999.99), 13, 0}},
             {u"D2", "10000000000000{Enter}{Up}1{Enter}", {StoredDouble(1), 13, 0}}})
    EXPECT_EQ(Enter(String(want.m.size(), 0), typ, keys), want) << keys;  // from 0: all bytes 0
}

// 100F is 100/6.55957 for the calculator: its unrounded result stands in the
// field until a number the field takes is confirmed, here cut to 15.24. On it
// a leaving key counts for nothing, and Enter brings it back.
TEST_F(TypedEntryTest, FrancsComeBackUnroundedAndOnlyWhatIsConfirmedIsStored) {
  for (std::string keys : {"100F{Enter}", "100f{Up}{Enter}"}) {
    const std::string cut = "{Right}{Right}{Right}{Right}{Right}{Ctrl+End}{Enter}";
    EXPECT_EQ(Enter(StoredDouble(0), u"D2", keys + cut), (EntryResult{StoredDouble(15.24), 13, 0}));
    EXPECT_THAT(TakeLog(), HasSubstr("\"15.2449")) << keys;  // the unrounded result stood
  }
}

// A root stays in what is stored. Only the first that fits is taken off: in
// FAAV12, FA; AV12 is then no number, refused, and Up gives the old value.
TEST_F(TypedEntryTest, RootsOfAutomaticNumbersStayInTheStoredText) {
  const String roots = u"[FA,AV]";
  for (const auto& [typ, keys, want] : Cases{{u"N0", "AV12{Enter}", {u"AV12", 13, 0}},
                                             {u"N0", "AV12+3{Enter}{Enter}", {u"AV15", 13, 0}},
                                             {u"N0", "FA7{Enter}", {u"FA7", 13, 0}},
                                             {u"N0", "FAAV12{Enter}{Up}", {u"0", 38, 0}},
                                             {u"N0", "XX12{Enter}{Up}", {u"0", 38, 0}}})
    EXPECT_EQ(Enter(u"", typ, keys, roots), want) << keys;
  EXPECT_THAT(TakeLog(), HasSubstr("\"AV15"));  // the result keeps its root in the field
}

TEST_F(TypedEntryTest, DatesAreEmptyOrValidAndGiveTheirSortNumber) {
  for (const auto& [typ, keys, want] :
       Cases{{u"D", "{Esc}{Enter}", {u"", 13, 0}},
             {u"D", "{Esc}15081999{Enter}", {u"15/08/1999", 13, 19990815}},
             {u"D", "{Esc}99999999{Enter}{Home}24122024{Enter}", {u"24/12/2024", 13, 20241224}},
             {u"D", "{Esc}99999999{Up}", {u"01/02/2003", 38, 0}}})  // the old date, redrawn
    EXPECT_EQ(Enter(u"01/02/2003", typ, keys), want) << keys;
  EXPECT_THAT(TakeLog(), ::testing::EndsWith("Texte 525 624 \"01/02/2003\" 0\n"));
}

// An abandoned edit returns at once with what was typed, and the entry goes on as after any key: an
// acceptable text, or a calculator result that becomes one, is stored with TR 0. Where no later
// pass could end the entry (a refused text, a result that goes back to the calculator), the value
// comes back exactly as stored on entry; so too for a key script that ran dry for 10 s.
TEST_F(TypedEntryTest, AbandonStoresAnAcceptableTextAndOtherwiseGivesTheStoredValueBack) {
  struct Case {
    String typ;
    std::string keys;
    String old;
    EntryResult want;
  };
  const String five = StoredInteger(5);
  for (const Case& c : std::vector<Case>{
           {u"I0", "abc{Enter}{abandon}", five, {five, 0, 0}},              // refused
           {u"I0", "1+1{Enter}{abandon}", five, {StoredInteger(2), 0, 0}},  // the result standing
           {u"I0", "1+1{abandon}", five, {StoredInteger(2), 0, 0}},  // worked out, then checked
           {u"D2", "100F{Enter}{abandon}", StoredDouble(3), {StoredDouble(3), 0, 0}},  // decimals
           {u"I0", "123{abandon}", five, {StoredInteger(123), 0, 0}},
           {u"N2", "x{abandon}", u"12.5   ", {u"12.5   ", 0, 0}},  // as stored, not coded again
           {u"D", "{Esc}99{Enter}{abandon}", u"01/02/2003", {u"01/02/2003", 0, 0}},
           {u"D", "{Esc}24122024{abandon}", u"01/02/2003", {u"24/12/2024", 0, 20241224}},
           {u"I0", "", StoredInteger(9), {StoredInteger(9), 0, 0}},  // starved
           {u"I0", "abc{Enter}", StoredInteger(9), {StoredInteger(9), 0, 0}}}) {
    session.BeginCall();
    EXPECT_EQ(Enter(c.old, c.typ, c.keys), c.want) << c.keys;
    EXPECT_EQ(session.EndCall(), !c.keys.ends_with("{abandon}")) << c.keys;
    Env().Abandon = false;
  }
}

// Only "F" widens, and only a number field: 3 columns then take 5 digits; in
// "V" the last position takes each further digit, and a text stays at 3.
TEST_F(TypedEntryTest, OnlyModeFWidensOnlyNumbers) {
  EXPECT_EQ(Enter(StoredInteger(0), u"I0", "12345{Enter}", u"[]", 3).m, StoredInteger(12345));
  EXPECT_EQ(Enter(StoredInteger(0), u"I0", "12345{Enter}", u"[]", 3, u"V").m, StoredInteger(15));
  EXPECT_EQ(Enter(u"", u"A", "abcde{Enter}", u"[]", 3).m, u"abe");
}

// ModD puts the field on line 2. LzT 0 is WinCol(LC + 2) and CzT 0 is CT,
// both rounded: the editor clears from CzT + 2 MargeX to CzT + LzT - 3 MargeX.
TEST_F(TypedEntryTest, TheFieldAndItsBoxArePlacedOnTheGrid) {
  Type("{Esc}77{Enter}{Enter}{Enter}");
  String m = StoredInteger(1);
  Integer tr = -1;
  KySaisie{}.ModD(m, u"I0", 2, 5, 525, 10, tr);
  EXPECT_EQ(m, StoredInteger(77));
  EXPECT_THAT(TakeLog(), HasSubstr("Texte 525 624 \"77"));
  KySaisie{}.ModDT(m, u"I0", 624, 5, 525.5F, 10, tr);
  EXPECT_THAT(TakeLog(), HasSubstr("EffaceRect 528 624 1783 818 -1\n"));
  KySaisie{}.ModDT(m, u"I0", 624, 5, 525, 10, tr, 2000, 400);
  EXPECT_THAT(TakeLog(), HasSubstr("EffaceRect 402 624 2397 818 -1\n"));
}

// The loop's flag lives in Env, where a host's timer reads it in the wait: False
// while a text waits to be accepted, True from the calculator's success on.
TEST_F(TypedEntryTest, HostReadsTheLoopFlagInEnvDuringTheWait) {
  std::vector<bool> seen;  // by a timer of the host, 1 ms apart
  TimerRef timer = session.Global().CreateTimer([&] { seen.push_back(Env().SaisieOK); });
  timer->SetInterval(1);
  timer->SetEnabled(true);
  Enter(StoredInteger(5), u"I0", "{wait:3}abc{Enter}{wait:3}{Up}");
  ASSERT_FALSE(seen.empty());
  for (bool ok : seen) EXPECT_FALSE(ok);
  seen.clear();
  EXPECT_EQ(Enter(StoredInteger(5), u"I0", "1+1{Enter}{wait:3}{Enter}").m, StoredInteger(2));
  ASSERT_GE(seen.size(), 4U);
  EXPECT_FALSE(seen.front());
  for (std::size_t i = seen.size() - 3; i < seen.size(); ++i) EXPECT_TRUE(seen[i]) << i;
}

using LogicalEntryTest = FieldTest;
using ::testing::IsEmpty;

// Yes/no values as Booleans: their one-letter texts, and their entry in a
// field of the screen and at the display position.
TEST_F(LogicalEntryTest, OnlyExactlyOIsTrue) {
  EXPECT_EQ(KySaisie{}.TrLogS(true), u"O");
  EXPECT_EQ(KySaisie{}.TrLogS(false), u"N");
  String l;
  KySaisie{}.TransLogS(true, l);
  EXPECT_EQ(l, u"O");
  for (String text : {u"O", u"o", u"OUI", u" ", u"", u"N", u"O "}) {
    Boolean b = text != u"O";
    KySaisie{}.TransSLog(text, b);
    EXPECT_EQ(b, text == u"O") << ToUtf8(text);
  }
}

// The answer comes back as a Boolean, shown as OUI or NON. SaiLON enters one
// column right of the display position (column 10 gives 11, X 1155); SaisL
// goes through the field's record, where a "B" field stores "O" or "N".
TEST_F(LogicalEntryTest, EntryAtTheDisplayPositionOrInAFieldGivesABoolean) {
  KySaisie{}.AffPos(5, 10);
  Boolean logique = true;
  Integer tr = -1;
  Type("n");
  KySaisie{}.SaiLON(logique, tr);
  EXPECT_FALSE(logique);
  EXPECT_THAT(TakeLog(), HasSubstr("Texte 1155 1560 \"OUI\""));
  Type("x{Down}");  // an unacceptable text left with a leaving key: the old answer
  KySaisie{}.SaiLON(logique, tr);
  EXPECT_EQ(std::pair(logique, tr), std::pair(Boolean{false}, Integer{40}));

  AddField(u"PAYE", u"B", 6, 105, 1785, 525, 1800, 3);
  Type("o");
  KySaisie{}.SaisL(u"PAYE", logique, tr);
  EXPECT_TRUE(logique);
  EXPECT_EQ(Record(1).Valeur.Trimmed(), u"O");
  EXPECT_THAT(TakeLog(), HasSubstr("Texte 1800 1872 \"NON\""));
  EXPECT_THAT(TakeReports(), IsEmpty());
}

}  // namespace
}  // namespace ferlan::testing
