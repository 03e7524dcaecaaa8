// DecodeType and CodeType against the kit's Conv and Erreur: families, decimals,
// the two error channels, yes/no, and the stored forms of numbers.
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "entry/entry_fixture.hpp"

namespace ferlan::testing {
namespace {

using TypeCodeTest = EntryTest;

struct Decoded {
  String c, typ;
  Integer nb = 99, nd = 99;  // 99: left as it was
  friend bool operator==(const Decoded&, const Decoded&) = default;
  friend void PrintTo(const Decoded& d, std::ostream* out) {
    *out << ToUtf8(d.c) << " " << ToUtf8(d.typ) << " NB " << d.nb << " ND " << d.nd;
  }
};

Decoded Decode(String stored, String typ) {
  Decoded d{std::move(stored), std::move(typ)};
  KySaisie{}.DecodeType(d.c, d.typ, d.nb, d.nd);
  return d;
}

TEST_F(TypeCodeTest, CodeLengthDecidesFamilyLetterAndDecimals) {
  for (const auto& [typ, stored, want] : std::vector<std::tuple<String, String, Decoded>>{
           {u"I0", StoredInteger(-12), {u"-12", u"I", -1, 0}},
           {u"I2", StoredInteger(7), {u"7.00", u"I", -1, 2}},
           {u"S2", StoredSingle(1.5F), {u"1.50", u"S", -1, 2}},
           {u"D2", StoredDouble(2.125), {u"2.13", u"D", -1, 2}},
           {u"D0", StoredDouble(41.5), {u"42", u"D", -1, 0}},  // a real, not a date
           {u"N2", u"12.5   ", {u"12.50", u"N", -1, 2}},
           {u"N12", u"3", {u"3.000000000000", u"N", -1, 12}},
           {u"D", u"01/02/2003  ", {u"01/02/2003", u"D", 0, 99}},  // a date
           {u"A", u"  texte  ", {u"  texte", u"A", 0, 99}}}) {
    EXPECT_EQ(Decode(stored, typ), want) << ToUtf8(typ);
  }
  EXPECT_TRUE(session.Records().reports.empty());
}

TEST_F(TypeCodeTest, UnknownCodesAreReportedByNumberOrByText) {
  EXPECT_EQ(Decode(u"abc   ", u"I"), (Decoded{u"abc", u"I", 0, 99}));  // trimmed
  EXPECT_TRUE(session.Records().reports.at(0).text.empty());
  EXPECT_EQ(TakeReports(), std::vector<std::string>{"55"});
  // A numeric code of an unknown letter, or of none, shows 0 with its decimals.
  EXPECT_EQ(Decode(u"whatever", u"A2"), (Decoded{u"0.00", u"A", -1, 2}));
  EXPECT_EQ(Decode(u"5", u""), (Decoded{u"0", u"", -1, 0}));
  EXPECT_EQ(TakeReports(),
            (std::vector<std::string>{"DecodeType: Le Type de Donnée <@A@> est Inconnu",
                                      "DecodeType: Le Type de Donnée <@@> est Inconnu"}));
}

TEST_F(TypeCodeTest, YesNoShowsOuiOnlyForOAndStoresOneLetter) {
  for (const char16_t* oui : {u"O", u"o", u"O  "}) EXPECT_EQ(Decode(oui, u"B").c, u"OUI");
  for (const char16_t* non : {u"N", u"   ", u"", u"OUI", u"x"})
    EXPECT_EQ(Decode(non, u"B").c, u"NON") << ToUtf8(non);
  for (const char16_t* shown : {u"OUI", u"NON"}) {
    String c = shown;
    KySaisie{}.CodeType(c, u"B", 0);
    EXPECT_EQ(c, String(1, shown[0]));
  }
}

TEST_F(TypeCodeTest, CodingPacksNumbersAndKeepsTexts) {
  for (auto [shown, letter, nb, stored] : std::vector<std::tuple<String, String, Integer, String>>{
           {u"258", u"I", -1, u"\x02\x01"},  // least significant byte first
           {u"2.5", u"I", -1, StoredInteger(2)},  // ties to even
           {u"3.5", u"I", -1, StoredInteger(4)},
           {u"abc", u"I", -1, StoredInteger(0)},  // no leading number: 0
           {u"0.1", u"S", -1, StoredSingle(0.1F)},
           {u"0.1", u"D", -1, StoredDouble(0.1)},
           {u"AV12", u"N", -1, u"AV12"},
           {u"12.50", u"A", -1, u"12.50"},  // unknown numeric letter: unchanged
           {u"01/02/2003", u"D", 0, u"01/02/2003"}}) {
    const String typed = shown;
    KySaisie{}.CodeType(shown, letter, nb);
    EXPECT_EQ(shown, stored) << ToUtf8(typed) << " as " << ToUtf8(letter);
  }
  EXPECT_TRUE(session.Records().reports.empty());
  String m = u"32768";
  ExpectPlatformError([&] { KySaisie{}.CodeType(m, u"I", -1); }, 6);
}

}  // namespace
}  // namespace ferlan::testing
