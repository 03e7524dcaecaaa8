// Conv: binary forms, number texts, and the small text operations.
#include "kit/conv.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace ferlan::kit {
namespace {

std::string Show(const String& s) { return ToUtf8(s); }

String Units(std::initializer_list<int> units) {
  String s;
  for (int u : units) s += static_cast<char16_t>(u);
  return s;
}

// A fixed sequence of 64-bit patterns that reaches every part of the bits.
std::uint64_t NextPattern(std::uint64_t& state) {
  state = state * 6364136223846793005ULL + 1442695040888963407ULL;
  return state ^ (state >> 29);
}

TEST(ConvBinaryTest, EveryIntegerComesBack) {
  Conv conv;
  for (int v = std::numeric_limits<Integer>::min(); v <= std::numeric_limits<Integer>::max();
       ++v) {
    const String packed = conv.BinEntier(static_cast<Integer>(v));
    ASSERT_EQ(packed.size(), 2u) << v;
    ASSERT_EQ(conv.EntierBin(packed), v);
  }
}

TEST(ConvBinaryTest, FormsAreLittleEndianBytes) {
  Conv conv;
  EXPECT_EQ(conv.BinEntier(1), Units({1, 0}));
  EXPECT_EQ(conv.BinEntier(-2), Units({0xFE, 0xFF}));
  EXPECT_EQ(conv.BinEntier(0x1234), Units({0x34, 0x12}));
  EXPECT_EQ(conv.BinSimple(1.0f), Units({0, 0, 0x80, 0x3F}));
  EXPECT_EQ(conv.BinReel(1.0), Units({0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));
  EXPECT_EQ(conv.BinReel(-2.5), Units({0, 0, 0, 0, 0, 0, 0x04, 0xC0}));
}

TEST(ConvBinaryTest, ShortTextsPadWithZeroAndHighUnitsGiveTheirLowByte) {
  Conv conv;
  EXPECT_EQ(conv.EntierBin(u""), 0);
  EXPECT_EQ(conv.EntierBin(Units({5})), 5);
  EXPECT_EQ(conv.EntierBin(Units({0x105, 0x201})), 0x0105);
  EXPECT_EQ(conv.EntierBin(Units({1, 0, 9, 9})), 1);  // beyond 2 characters: unread
  EXPECT_EQ(conv.SimpleBin(u""), 0.0f);
  EXPECT_EQ(conv.SimpleBin(Units({0, 0, 0x80})), std::bit_cast<Single>(0x00800000u));
  EXPECT_EQ(conv.ReelBin(Units({0, 0, 0, 0, 0, 0, 0xF0})), std::bit_cast<Double>(0xF0ULL << 48));
  EXPECT_EQ(conv.ReelBin(u"\u20AC"), std::bit_cast<Double>(0xACULL));
}

TEST(ConvBinaryTest, SinglesComeBackBitForBit) {
  Conv conv;
  std::vector<std::uint32_t> patterns = {
      0x00000000, 0x80000000, 0x3F800000, 0x7F800000, 0xFF800000,  // 0, -0, 1, inf, -inf
      0x7FC00000, 0xFFC00000, 0x7F800001, 0x7FBFFFFF, 0xFFFFFFFF,  // quiet and signalling NaNs
      0x00000001, 0x807FFFFF, 0x7F7FFFFF, 0x00800000};             // subnormals, extremes
  std::uint64_t state = 1;
  for (int i = 0; i < 200000; ++i) patterns.push_back(static_cast<std::uint32_t>(NextPattern(state)));
  for (std::uint32_t bits : patterns) {
    const String packed = conv.BinSimple(std::bit_cast<Single>(bits));
    ASSERT_EQ(packed.size(), 4u);
    ASSERT_EQ(std::bit_cast<std::uint32_t>(conv.SimpleBin(packed)), bits) << std::hex << bits;
  }
}

TEST(ConvBinaryTest, DoublesComeBackBitForBit) {
  Conv conv;
  std::vector<std::uint64_t> patterns = {
      0x0000000000000000, 0x8000000000000000, 0x3FF0000000000000, 0x7FF0000000000000,
      0xFFF0000000000000, 0x7FF8000000000000, 0xFFF8000000000001, 0x7FF0000000000001,
      0x7FF7FFFFFFFFFFFF, 0xFFFFFFFFFFFFFFFF, 0x0000000000000001, 0x800FFFFFFFFFFFFF,
      0x7FEFFFFFFFFFFFFF};
  std::uint64_t state = 7;
  for (int i = 0; i < 200000; ++i) patterns.push_back(NextPattern(state));
  for (std::uint64_t bits : patterns) {
    const String packed = conv.BinReel(std::bit_cast<Double>(bits));
    ASSERT_EQ(packed.size(), 8u);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(conv.ReelBin(packed)), bits) << std::hex << bits;
  }
}

TEST(ConvNumberTest, NombreValideTakesPlainNumbersOnly) {
  struct Case {
    String text;
    Integer nd;
    bool valid;
  };
  const std::vector<Case> cases = {
      {u"", 2, true},         {u"   ", 2, true},       {u"12", 0, true},
      {u"12.5", 1, true},     {u"12.5", 0, false},     {u"12.50", 1, false},
      {u"-3", 0, true},       {u"+3", 0, true},        {u"  42  ", 0, true},
      {u".5", 1, true},       {u"5.", 0, true},        {u"-.25", 2, true},
      {u"99999.99", 2, true}, {u"1.234", 2, false},    {u"12+3", 2, false},
      {u"100/6.55957", 2, false}, {u"2*3", 0, false},  {u"1e5", 0, false},
      {u"12a", 0, false},     {u"AV12", 0, false},     {u"-", 0, false},
      {u".", 2, false},       {u"1.2.3", 2, false},    {u"- 3", 0, false},
      {u"1 2", 0, false},     {u"12,5", 2, false},     {u"--3", 0, false},
      {u"5", -1, true},       {u"5.1", -1, false},
  };
  Conv conv;
  for (const Case& c : cases) {
    EXPECT_EQ(conv.NombreValide(c.text, c.nd), c.valid) << Show(c.text) << " ND " << c.nd;
  }
}

TEST(ConvNumberTest, FormatReelAndArrondiRoundTiesAwayFromZero) {
  struct Case {
    Double value;
    Integer nd;
    const char16_t* text;
    Double rounded;
  };
  const std::vector<Case> cases = {
      {12.5, 2, u"12.50", 12.5},
      {0, 2, u"0.00", 0},
      {2.675, 2, u"2.68", 2.68},
      {-2.675, 2, u"-2.68", -2.68},
      {0.125, 2, u"0.13", 0.13},
      {1.005, 2, u"1.01", 1.01},
      {2.5, 0, u"3", 3},
      {-2.5, 0, u"-3", -3},
      {0.5, 0, u"1", 1},
      {-0.001, 2, u"0.00", -0.0},
      {9.995, 2, u"10.00", 10},
      {999999.999, 2, u"1000000.00", 1000000},
      {1234567.891, 3, u"1234567.891", 1234567.891},
      {32767, 0, u"32767", 32767},
      {-1234.5, 1, u"-1234.5", -1234.5},
      {0.0004, 3, u"0.000", 0},
      {0.0005, 3, u"0.001", 0.001},
      {15.2449017236474, 2, u"15.24", 15.24},
      {1e20, 2, u"100000000000000000000.00", 1e20},
      {1250, -2, u"1300", 1300},
  };
  Conv conv;
  for (const Case& c : cases) {
    EXPECT_EQ(conv.FormatReel(c.value, c.nd), c.text) << c.value << " ND " << c.nd;
    EXPECT_EQ(conv.Arrondi(c.value, c.nd), c.rounded) << c.value << " ND " << c.nd;
  }
  EXPECT_EQ(conv.FormatReel(std::numeric_limits<Double>::quiet_NaN(), 2), u"NaN");
  EXPECT_EQ(conv.FormatReel(-std::numeric_limits<Double>::infinity(), 2), u"-Inf");
  EXPECT_TRUE(std::isnan(conv.Arrondi(std::numeric_limits<Double>::quiet_NaN(), 2)));
  // Rounding up past the largest Double gives infinity, not a wrong number.
  EXPECT_EQ(conv.Arrondi(-std::numeric_limits<Double>::max(), -308),
            -std::numeric_limits<Double>::infinity());
  EXPECT_EQ(conv.Arrondi(std::numeric_limits<Double>::denorm_min(), 400),
            std::numeric_limits<Double>::denorm_min());
}

TEST(ConvNumberTest, FormatReelReadsBackAsArrondi) {
  Conv conv;
  std::uint64_t state = 3;
  for (int i = 0; i < 20000; ++i) {
    const Double v = static_cast<Double>(static_cast<std::int64_t>(NextPattern(state) % 2000000001) -
                                         1000000000) / 1000.0;
    for (Integer nd = 0; nd <= 4; ++nd) {
      ASSERT_EQ(Val(conv.FormatReel(v, nd)), conv.Arrondi(v, nd)) << v << " ND " << nd;
    }
  }
}

TEST(ConvNumberTest, PuissanceAndMaxi) {
  Conv conv;
  EXPECT_EQ(conv.Puissance(10, 5), 100000);
  EXPECT_EQ(conv.Puissance(10, 7 - 2), 1e5);
  EXPECT_EQ(conv.Puissance(2, -1), 0.5);
  EXPECT_EQ(VariantToDouble(conv.Maxi(Long{3}, Double{4.5})), 4.5);
  EXPECT_EQ(VariantToDouble(conv.Maxi(Double{-1}, Integer{-2})), -1);
  // The greater comes back as it was given, with its own type.
  EXPECT_TRUE(std::holds_alternative<Long>(conv.Maxi(Long{7}, Double{6.5})));
  EXPECT_TRUE(std::holds_alternative<Long>(conv.Maxi(Long{7}, Double{7})));
}

TEST(ConvTextTest, PaddingTrimmingAndCapitals) {
  Conv conv;
  EXPECT_EQ(conv.Cadre(u"ab", 5, 0), u"ab   ");
  EXPECT_EQ(conv.Cadre(u"abcdef", 3, 0), u"abcdef");
  EXPECT_EQ(conv.Cadre(u"ab", 5, 9), u"ab   ");
  EXPECT_EQ(conv.Elague(u"  ab  "), u"  ab");
  EXPECT_EQ(conv.EntierTexte(42, 5), u"   42");
  EXPECT_EQ(conv.EntierTexte(-42, 5), u"  -42");
  EXPECT_EQ(conv.EntierTexte(123456, 3), u"123456");
  String s = u"abc   ";
  EXPECT_EQ(conv.LongUtile(s), 3);
  EXPECT_EQ(s, u"abc");
  String blank = u"    ";
  EXPECT_EQ(conv.LongUtile(blank), 0);
  EXPECT_EQ(blank, u"");
  String answer = u"oui";
  conv.Majuscules(answer);
  EXPECT_EQ(answer, u"OUI");
  String accented = u"été à noël";
  conv.Majuscules(accented);
  EXPECT_EQ(accented, u"ÉTÉ À NOËL");
}

TEST(ConvTextTest, EndsAndRoots) {
  Conv conv;
  String s = u"12345";
  conv.Tronque(s, 2);
  EXPECT_EQ(s, u"123");
  conv.Tronque(s, 10);
  EXPECT_EQ(s, u"");
  String t = u"abc";
  conv.Tronque(t, 0);
  EXPECT_EQ(t, u"abc");
  EXPECT_EQ(conv.SansFin(u"100F", 1), u"100");
  EXPECT_EQ(conv.SansFin(u"ab", 5), u"");
  EXPECT_EQ(conv.SansFin(u"ab", -1), u"ab");
  EXPECT_TRUE(conv.FinitPar(u"100F", u"F"));
  EXPECT_FALSE(conv.FinitPar(u"100f", u"F"));
  EXPECT_FALSE(conv.FinitPar(u"F", u"FF"));
  EXPECT_TRUE(conv.FinitPar(u"abc", u""));
  EXPECT_TRUE(conv.EstRacine(u"AV", u"AV12"));
  EXPECT_FALSE(conv.EstRacine(u"FA", u"AV12"));
  EXPECT_FALSE(conv.EstRacine(u"AV12+", u"AV12"));
  EXPECT_EQ(conv.SansRacine(u"AV12+3", u"AV"), u"12+3");
  EXPECT_EQ(conv.SansRacine(u"AV12", u"FA"), u"AV12");
}

}  // namespace
}  // namespace ferlan::kit
