// DecodeType and CodeType against the kit's Conv and Erreur: families,
// decimals, the two error channels, yes/no, and stored forms that come back
// through DecodeType as the value they hold.
#include <gtest/gtest.h>

#include "entry/entry_fixture.hpp"

namespace ferlan::testing {
namespace {

using TypeCodeTest = EntryTest;

struct Decoded {
  String c;
  String typ;
  Integer nb = 99;
  Integer nd = 99;
};

Decoded Decode(String stored, String typ) {
  Decoded d{std::move(stored), std::move(typ)};
  KySaisie{}.DecodeType(d.c, d.typ, d.nb, d.nd);
  return d;
}

TEST_F(TypeCodeTest, CodeLengthDecidesFamilyLetterAndDecimals) {
  struct Case {
    const char16_t* typ;
    String stored;
    Integer nb;
    Integer nd;  // 99: left as it was
    const char16_t* letter;
    const char16_t* shown;
  };
  const Case cases[] = {
      {u"I0", StoredInteger(-12), -1, 0, u"I", u"-12"},
      {u"I2", StoredInteger(7), -1, 2, u"I", u"7.00"},
      {u"S2", StoredSingle(1.5F), -1, 2, u"S", u"1.50"},
      {u"D2", StoredDouble(2.125), -1, 2, u"D", u"2.13"},
      {u"D0", StoredDouble(41.5), -1, 0, u"D", u"42"},  // a real, not a date
      {u"N2", u"12.5   ", -1, 2, u"N", u"12.50"},
      {u"N12", u"3", -1, 12, u"N", u"3.000000000000"},
      {u"D", u"01/02/2003  ", 0, 99, u"D", u"01/02/2003"},  // a date
      {u"A", u"  texte  ", 0, 99, u"A", u"  texte"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(ToUtf8(c.typ));
    const Decoded d = Decode(c.stored, c.typ);
    EXPECT_EQ(d.nb, c.nb);
    EXPECT_EQ(d.nd, c.nd);
    EXPECT_EQ(ToUtf8(d.typ), ToUtf8(c.letter));
    EXPECT_EQ(ToUtf8(d.c), ToUtf8(c.shown));
  }
  EXPECT_TRUE(session.Records().reports.empty());
}

TEST_F(TypeCodeTest, UnknownPlainLetterReportsNumber55AndTrims) {
  const Decoded d = Decode(u"abc   ", u"I");
  EXPECT_EQ(d.nb, 0);
  EXPECT_EQ(ToUtf8(d.c), "abc");
  ASSERT_EQ(session.Records().reports.size(), 1U);
  const kit::ErrorReport& r = session.Records().reports[0];
  ASSERT_TRUE(r.code.has_value());
  EXPECT_EQ(*r.code, 55);
  EXPECT_TRUE(r.text.empty());
}

TEST_F(TypeCodeTest, UnknownNumericLetterReportsTheTextAndShowsZero) {
  const Decoded d = Decode(u"whatever", u"A2");
  EXPECT_EQ(d.nb, -1);
  EXPECT_EQ(d.nd, 2);
  EXPECT_EQ(ToUtf8(d.typ), "A");
  EXPECT_EQ(ToUtf8(d.c), "0.00");
  ASSERT_EQ(session.Records().reports.size(), 1U);
  const kit::ErrorReport& r = session.Records().reports[0];
  EXPECT_FALSE(r.code.has_value());
  EXPECT_EQ(ToUtf8(r.source), "DecodeType");
  EXPECT_EQ(ToUtf8(r.text), "Le Type de Donnée <@A@> est Inconnu");
}

TEST_F(TypeCodeTest, EmptyCodeIsNumericWithNothingBetweenTheHalves) {
  const Decoded d = Decode(u"5", u"");
  EXPECT_EQ(d.nb, -1);
  EXPECT_EQ(d.nd, 0);
  EXPECT_EQ(ToUtf8(d.c), "0");
  ASSERT_EQ(session.Records().reports.size(), 1U);
  EXPECT_EQ(ToUtf8(session.Records().reports[0].text), "Le Type de Donnée <@@> est Inconnu");
}

TEST_F(TypeCodeTest, YesNoShowsOuiOnlyForO) {
  const struct {
    const char16_t* stored;
    const char16_t* shown;
  } cases[] = {{u"O", u"OUI"},   {u"o", u"OUI"}, {u"O  ", u"OUI"}, {u"N", u"NON"},
               {u"   ", u"NON"}, {u"", u"NON"},  {u"OUI", u"NON"}, {u"x", u"NON"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(ToUtf8(c.stored));
    EXPECT_EQ(ToUtf8(Decode(c.stored, u"B").c), ToUtf8(c.shown));
  }
  for (const char16_t* shown : {u"OUI", u"NON"}) {
    String c = shown;
    KySaisie{}.CodeType(c, u"B", 0);
    EXPECT_EQ(c, String(1, shown[0]));
  }
}

TEST_F(TypeCodeTest, CodingPacksNumbersAndKeepsTexts) {
  const struct {
    const char16_t* shown;
    const char16_t* letter;
    Integer nb;
    String stored;
  } cases[] = {
      {u"258", u"I", -1, Bytes({0x02, 0x01})},
      {u"2.5", u"I", -1, StoredInteger(2)},  // ties to even
      {u"3.5", u"I", -1, StoredInteger(4)},
      {u"-1", u"I", -1, Bytes({0xFF, 0xFF})},
      {u"abc", u"I", -1, StoredInteger(0)},  // no leading number: 0
      {u"0.1", u"S", -1, StoredSingle(0.1F)},
      {u"0.1", u"D", -1, StoredDouble(0.1)},
      {u"AV12", u"N", -1, u"AV12"},
      {u"12.50", u"A", -1, u"12.50"},  // unknown numeric letter: unchanged
      {u"texte", u"A", 0, u"texte"},
      {u"01/02/2003", u"D", 0, u"01/02/2003"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(ToUtf8(c.shown) + " as " + ToUtf8(c.letter));
    String m = c.shown;
    KySaisie{}.CodeType(m, c.letter, c.nb);
    EXPECT_EQ(Show(m), Show(c.stored));
  }
  EXPECT_TRUE(session.Records().reports.empty());
}

TEST_F(TypeCodeTest, IntegerBeyondSixteenBitsOverflowsWhenCoded) {
  String m = u"32768";
  ExpectPlatformError([&] { KySaisie{}.CodeType(m, u"I", -1); }, 6);
}

// Values whose packed form holds zero bytes, or bytes above 127, must come
// back whole: a stored form is binary, not a C string.
TEST_F(TypeCodeTest, StoredFormsComeBackThroughDecodeType) {
  const struct {
    const char16_t* typ;
    const char16_t* shown;
  } cases[] = {
      {u"I0", u"0"},     {u"I0", u"256"},        {u"I0", u"-256"},
      {u"I0", u"32767"}, {u"I0", u"-32767"},     {u"I2", u"12.00"},
      {u"S2", u"0.00"},  {u"S2", u"1.50"},       {u"S2", u"-2.00"},
      {u"S0", u"65536"}, {u"D2", u"100.00"},     {u"D2", u"15.24"},
      {u"D0", u"0"},     {u"D4", u"-1234.5678"}, {u"D2", u"9999999999999.99"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(ToUtf8(c.typ) + " " + ToUtf8(c.shown));
    String typ = c.typ;
    Integer nb = 0;
    Integer nd = 0;
    String first = u"";  // decode anything once, for the letter and family
    KySaisie{}.DecodeType(first, typ, nb, nd);
    String stored = c.shown;
    KySaisie{}.CodeType(stored, typ, nb);
    const Decoded again = Decode(stored, c.typ);
    EXPECT_EQ(ToUtf8(again.c), ToUtf8(c.shown)) << "stored as " << Show(stored);
  }
}

}  // namespace
}  // namespace ferlan::testing
