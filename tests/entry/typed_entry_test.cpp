// ModDT and ModD through real keys: the key script plays through the
// headless event loop into Modif, and the caller gets a stored form and TR.
// TR 13 is Enter, 38 Up, 34 Page Down, 40 Down, 0 an abandoned entry.
#include <gtest/gtest.h>

#include "entry/entry_fixture.hpp"

namespace ferlan::testing {
namespace {

using TypedEntryTest = EntryTest;

struct NumberCase {
  const char* keys;
  String want;
  Integer want_tr;
};

void ExpectStored(const EntryResult& r, const String& want, Integer want_tr) {
  EXPECT_EQ(Show(r.m), Show(want));
  EXPECT_EQ(r.tr, want_tr);
}

// 32767 either side; beyond it the number goes to the calculator, which
// gives it back into the field, so the Up typed next counts for nothing and
// the entry ends only on the number typed after it.
TEST_F(TypedEntryTest, IntegerFieldTakesAtMost32767EitherSide) {
  const NumberCase cases[] = {
      {"32767{Enter}", StoredInteger(32767), 13},
      {"-32767{Enter}", StoredInteger(-32767), 13},
      {"32768{Enter}{Up}123{Enter}", StoredInteger(123), 13},
      {"-32768{Enter}{Up}-5{Enter}", StoredInteger(-5), 13},
      {"12{Down}", StoredInteger(12), 40},
  };
  for (const NumberCase& c : cases) {
    SCOPED_TRACE(c.keys);
    ExpectStored(Enter(StoredInteger(0), u"I0", c.keys), c.want, c.want_tr);
  }
}

TEST_F(TypedEntryTest, SingleFieldKeepsTheWholePartBelowTenToSevenLessDecimals) {
  const NumberCase cases[] = {
      {"99999.99{Enter}", StoredSingle(99999.99F), 13},
      {"-99999.99{Enter}", StoredSingle(-99999.99F), 13},
      {"100000{Enter}{PgDn}7{Enter}", StoredSingle(7), 13},
  };
  for (const NumberCase& c : cases) {
    SCOPED_TRACE(c.keys);
    ExpectStored(Enter(StoredSingle(0), u"S2", c.keys), c.want, c.want_tr);
  }
}

TEST_F(TypedEntryTest, DoubleFieldKeepsTheWholePartBelowTenToFifteenLessDecimals) {
  const NumberCase cases[] = {
      {"9999999999999.99{Enter}", StoredDouble(9999999999999.99), 13},
      {"10000000000000{Enter}{Up}1{Enter}", StoredDouble(1), 13},
  };
  for (const NumberCase& c : cases) {
    SCOPED_TRACE(c.keys);
    ExpectStored(Enter(StoredDouble(0), u"D2", c.keys), c.want, c.want_tr);
  }
}

// 100F is 100/6.55957 for the calculator; its unrounded result stands in
// the field until the user confirms a number the field takes: here the text
// cut to 15.24 by five Rights and Ctrl+End.
TEST_F(TypedEntryTest, FrancsComeBackConvertedAndAreStoredOnlyOnceConfirmed) {
  const char* const scripts[] = {
      "100F{Enter}{Right}{Right}{Right}{Right}{Right}{Ctrl+End}{Enter}",
      "100f{Enter}{Right}{Right}{Right}{Right}{Right}{Ctrl+End}{Enter}",
      // A leaving key on the result counts for nothing, and Enter on the
      // unrounded result, with too many decimals, brings it back again.
      "100f{Up}{Enter}{Right}{Right}{Right}{Right}{Right}{Ctrl+End}{Enter}",
  };
  for (const char* keys : scripts) {
    SCOPED_TRACE(keys);
    const EntryResult r = Enter(StoredDouble(0), u"D2", keys);
    ExpectStored(r, StoredDouble(15.24), 13);
    bool result_shown = false;
    for (const Drawn& d : DrawnTexts()) result_shown |= d.text.starts_with(u"15.2449");
    EXPECT_TRUE(result_shown) << "the unrounded result never stood in the field";
  }
}

TEST_F(TypedEntryTest, ExpressionResultIsConfirmedBeforeItIsStored) {
  ExpectStored(Enter(StoredDouble(0), u"D2", "12+3{Enter}{Enter}"), StoredDouble(15), 13);
  ExpectStored(Enter(StoredInteger(0), u"I0", "7*6{PgDn}{PgDn}"), StoredInteger(42), 34);
}

// The root stays in what is stored; only one root is ever taken off, the
// first that fits, and the caller's list is left as it was.
TEST_F(TypedEntryTest, RootsOfAutomaticNumbersStayInTheStoredText) {
  const Call call{u"[FA,AV]"};
  const NumberCase cases[] = {
      {"AV12{Enter}", u"AV12", 13},
      {"AV12+3{Enter}{Enter}", u"AV15", 13},
      {"FA7{Enter}", u"FA7", 13},
      // FA is taken off, AV12 is no number and no expression: refused, and
      // Up gives the old value back.
      {"FAAV12{Enter}{Up}", u"0", 38},
      {"XX12{Enter}{Up}", u"0", 38},
  };
  for (const NumberCase& c : cases) {
    SCOPED_TRACE(c.keys);
    ExpectStored(Enter(u"", u"N0", c.keys, call), c.want, c.want_tr);
    EXPECT_EQ(ToUtf8(call.roots), "[FA,AV]");
  }
}

TEST_F(TypedEntryTest, CalculatorResultKeepsItsRootInTheField) {
  Enter(u"", u"N0", "AV12+3{Enter}{Enter}", Call{u"[FA,AV]"});
  bool shown = false;
  for (const Drawn& d : DrawnTexts()) shown |= d.text.starts_with(u"AV15");
  EXPECT_TRUE(shown);
}

TEST_F(TypedEntryTest, DatesAreEmptyOrValidAndGiveTheirSortNumber) {
  const EntryResult empty = Enter(u"01/02/2003", u"D", "{Esc}{Enter}");
  ExpectStored(empty, u"", 13);
  EXPECT_EQ(empty.ordre, 0);

  const EntryResult valid = Enter(u"01/02/2003", u"D", "{Esc}15081999{Enter}");
  ExpectStored(valid, u"15/08/1999", 13);
  EXPECT_EQ(valid.ordre, 19990815);

  // Refused on Enter, the editor comes back; the valid date typed then gives
  // its own sort number.
  const EntryResult again = Enter(u"01/02/2003", u"D", "{Esc}99999999{Enter}{Home}24122024{Enter}");
  ExpectStored(again, u"24/12/2024", 13);
  EXPECT_EQ(again.ordre, 20241224);
}

// The old date comes back whole in M and is redrawn in black at the field,
// cut to the field's width.
TEST_F(TypedEntryTest, WrongDateLeftWithUpGivesTheOldDateBackRedrawn) {
  const EntryResult r = Enter(u"01/02/2003", u"D", "{Esc}99999999{Up}", Call{u"[]", 8});
  ExpectStored(r, u"01/02/2003", 38);
  EXPECT_EQ(r.ordre, 0);
  const std::vector<Drawn> texts = DrawnTexts();
  ASSERT_FALSE(texts.empty());
  EXPECT_EQ(ToUtf8(texts.back().text), "01/02/20");
  EXPECT_EQ(texts.back().x, kCT);
  EXPECT_EQ(texts.back().y, kLT);
  EXPECT_EQ(texts.back().colour, Env().Noir);
}

TEST_F(TypedEntryTest, YesNoStoresOneLetter) {
  const NumberCase cases[] = {
      {"o", u"O", 13},
      {"N", u"N", 13},
      {"x{Enter}o", u"O", 13},  // x answers nothing and is refused
      {"x{Down}", u"N", 40},    // the old answer comes back
  };
  for (const NumberCase& c : cases) {
    SCOPED_TRACE(c.keys);
    ExpectStored(Enter(u"N", u"B", c.keys), c.want, c.want_tr);
  }
}

// Abandon ends the entry with the value exactly as it was stored on entry
// and TR 0, whatever stood in the field.
TEST_F(TypedEntryTest, AbandonGivesTheStoredValueBackWithTrZero) {
  const struct {
    const char* what;
    const char16_t* typ;
    String stored;
    const char* keys;
  } cases[] = {
      {"unacceptable text", u"I0", StoredInteger(5), "abc{Enter}{abandon}"},
      {"calculator result standing", u"I0", StoredInteger(5), "1+1{Enter}{abandon}"},
      {"franc amount standing", u"D2", StoredDouble(3), "100F{Enter}{abandon}"},
      {"acceptable text not confirmed", u"I0", StoredInteger(5), "123{abandon}"},
      {"nothing typed", u"I0", StoredInteger(5), "{abandon}"},
      {"number text kept as stored", u"N2", u"12.5   ", "7{abandon}"},
      {"wrong date", u"D", u"01/02/2003", "{Esc}99{Enter}{abandon}"},
      {"unanswered yes/no", u"B", u"o", "x{Enter}{abandon}"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const EntryResult r = Enter(c.stored, c.typ, c.keys);
    ExpectStored(r, c.stored, 0);
    EXPECT_EQ(r.ordre, 0);
    Env().Abandon = false;
  }
}

TEST_F(TypedEntryTest, StarvedEntryEndsWithTheOldValue) {
  session.BeginCall();
  const EntryResult r = Enter(StoredInteger(9), u"I0", "");
  EXPECT_TRUE(session.EndCall());
  ExpectStored(r, StoredInteger(9), 0);

  session.BeginCall();
  const EntryResult typed = Enter(StoredInteger(9), u"I0", "abc{Enter}");
  EXPECT_TRUE(session.EndCall());
  ExpectStored(typed, StoredInteger(9), 0);
}

// Only "F" becomes "Infini", and only for a number: a number field of 3
// columns then takes 5 digits, while "V" and a text field stay at 3.
TEST_F(TypedEntryTest, OnlyModeFWidensOnlyNumbers) {
  ExpectStored(Enter(StoredInteger(0), u"I0", "12345{Enter}", Call{u"[]", 3}), StoredInteger(12345),
               13);
  // "V" starts behind "0"; the last position takes each further digit.
  ExpectStored(Enter(StoredInteger(0), u"I0", "12345{Enter}", Call{u"[]", 3, u"V"}),
               StoredInteger(15), 13);
  ExpectStored(Enter(u"", u"A", "abcde{Enter}", Call{u"[]", 3}), u"abe", 13);
}

// LzT 0 is WinCol(LC + 2) and CzT 0 is CT, both rounded: the editor erases
// from CzT + 2 MargeX to CzT + LzT - 3 MargeX.
TEST_F(TypedEntryTest, EntryBoxDefaultsToTheFieldPlusTwoColumns) {
  // The field's erase, on the field's line; the status line erases too.
  auto field_erase = [&](const std::string& log) {
    const std::size_t at = log.find(" 624 ");
    const std::size_t start = log.rfind('\n', at) + 1;  // npos + 1 is 0
    return at == std::string::npos ? std::string() : log.substr(start, log.find('\n', at) - start);
  };
  Type("{Enter}");
  String m = StoredInteger(1);
  Integer tr = -1;
  KySaisie{}.ModDT(m, u"I0", kLT, kC, 525.5F, kLC, tr);
  EXPECT_EQ(field_erase(TakeLog()), "EffaceRect 528 624 1783 818 -1");

  Type("{Enter}");
  KySaisie{}.ModDT(m, u"I0", kLT, kC, kCT, kLC, tr, 2000, 400);
  EXPECT_EQ(field_erase(TakeLog()), "EffaceRect 402 624 2397 818 -1");
}

TEST_F(TypedEntryTest, ModDPlacesTheFieldOnItsLine) {
  Type("{Esc}77{Enter}");
  String m = StoredInteger(1);
  Integer tr = -1;
  KySaisie{}.ModD(m, u"I0", kL, kC, kCT, kLC, tr);
  ExpectStored({m, tr}, StoredInteger(77), 13);
  bool on_line = false;
  for (const Drawn& d : DrawnTexts()) on_line |= d.text.starts_with(u"77") && d.y == kLT;
  EXPECT_TRUE(on_line);
}

// The loop's flag lives in the environment: a host handler that runs during
// the wait (here a timer of the host) reads it there. It is False while a
// text waits to be accepted, stays True from the calculator's success while
// its result waits for confirmation, and is True on return.
TEST_F(TypedEntryTest, HostReadsTheLoopFlagInEnvDuringTheWait) {
  std::vector<bool> seen;
  TimerRef timer = session.Global().CreateTimer([&] { seen.push_back(Env().SaisieOK); });
  timer->SetInterval(1);
  timer->SetEnabled(true);

  Env().SaisieOK = true;
  Enter(StoredInteger(5), u"I0", "{wait:3}abc{Enter}{wait:3}{Up}");
  ASSERT_FALSE(seen.empty());
  for (bool ok : seen) EXPECT_FALSE(ok);

  seen.clear();
  const EntryResult r = Enter(StoredInteger(5), u"I0", "1+1{Enter}{wait:3}{Enter}");
  ExpectStored(r, StoredInteger(2), 13);
  ASSERT_GE(seen.size(), 4U);
  EXPECT_FALSE(seen.front());
  for (std::size_t i = seen.size() - 3; i < seen.size(); ++i) EXPECT_TRUE(seen[i]) << i;
}

}  // namespace
}  // namespace ferlan::testing
