// Conv: binary forms, number texts, and the small text operations.
#include "kit/conv.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <tuple>

namespace ferlan::kit {
namespace {

using namespace std::string_literals;  // u"\0..."s keeps its zeros

TEST(ConvBinaryTest, FormsAreLittleEndianAndComeBackBitForBit) {
  Conv conv;
  for (int v = std::numeric_limits<Integer>::min(); v <= std::numeric_limits<Integer>::max(); ++v) {
    ASSERT_EQ(conv.EntierBin(conv.BinEntier(static_cast<Integer>(v))), v);
  }
  // 0, -0, 1, smallest and largest subnormal, max, inf, -inf, NaNs quiet
  // and signalling with a payload, all ones.
  for (std::uint32_t bits :
       {0x00000000u, 0x80000000u, 0x3F800000u, 0x00000001u, 0x807FFFFFu, 0x7F7FFFFFu, 0x7F800000u,
        0xFF800000u, 0x7FC12345u, 0x7F800001u, 0xFFFFFFFFu}) {
    const String packed = conv.BinSimple(std::bit_cast<Single>(bits));
    ASSERT_EQ(packed.size(), 4u);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(conv.SimpleBin(packed)), bits) << std::hex << bits;
  }
  for (std::uint64_t bits :
       {0x0ULL, 0x8000000000000000ULL, 0x3FF0000000000000ULL, 0x1ULL, 0x800FFFFFFFFFFFFFULL,
        0x7FEFFFFFFFFFFFFFULL, 0x7FF0000000000000ULL, 0xFFF0000000000000ULL, 0x7FF8000000012345ULL,
        0x7FF0000000000001ULL, 0xFFFFFFFFFFFFFFFFULL}) {
    const String packed = conv.BinReel(std::bit_cast<Double>(bits));
    ASSERT_EQ(packed.size(), 8u);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(conv.ReelBin(packed)), bits) << std::hex << bits;
  }
  // Short texts pad with zero.
  EXPECT_EQ(conv.BinEntier(0x12FE), u"\xFE\x12"s);
  EXPECT_EQ(conv.BinSimple(1.0f), u"\0\0\x80\x3F"s);
  EXPECT_EQ(conv.BinReel(-2.5), u"\0\0\0\0\0\0\x04\xC0"s);
  EXPECT_EQ(conv.EntierBin(u""), 0);
  EXPECT_EQ(conv.EntierBin(u"\x05"), 5);
  EXPECT_EQ(conv.EntierBin(u"\x105\x201"), 0x0105);  // a unit gives its low byte
  EXPECT_EQ(conv.EntierBin(u"\x01\0\x09"s), 1);      // beyond 2 characters: unread
  EXPECT_EQ(conv.SimpleBin(u"\0\0\x80"s), std::bit_cast<Single>(0x00800000u));
  EXPECT_EQ(conv.ReelBin(u"\u20AC"), std::bit_cast<Double>(0xACULL));
}

TEST(ConvNumberTest, NombreValideTakesPlainNumbersOnly) {
  const std::tuple<String, Integer, bool> cases[] = {
      {u"   ", 2, true},   {u"12.5", 1, true}, {u"12.50", 1, false}, {u"+3", 0, true},
      {u"  42  ", 0, true}, {u"-.25", 2, true}, {u"5.", 0, true},     {u"12+3", 2, false},
      {u"1e5", 0, false},   {u"-", 0, false},   {u".", 2, false},     {u"1.2.3", 2, false},
      {u"- 3", 0, false},   {u"12,5", 2, false}, {u"5", -1, true},    {u"5.1", -1, false}};
  Conv conv;
  for (const auto& [text, nd, valid] : cases) {
    EXPECT_EQ(conv.NombreValide(text, nd), valid) << ToUtf8(text) << " ND " << nd;
  }
}

TEST(ConvNumberTest, FormatReelAndArrondiRoundTiesAwayFromZero) {
  // Value, ND, FormatReel, Arrondi.
  // clang-format off
  const std::tuple<Double, Integer, String, Double> cases[] = {
      {12.5, 2, u"12.50", 12.5}, {2.675, 2, u"2.68", 2.68}, {-2.675, 2, u"-2.68", -2.68},
      {1.005, 2, u"1.01", 1.01}, {2.5, 0, u"3", 3}, {-2.5, 0, u"-3", -3},
      {-0.001, 2, u"0.00", -0.0}, {9.995, 2, u"10.00", 10}, {0.0005, 3, u"0.001", 0.001},
      {15.2449017236474, 2, u"15.24", 15.24}, {1e20, 2, u"100000000000000000000.00", 1e20},
      {1250, -2, u"1300", 1300}};
  // clang-format on
  Conv conv;
  for (const auto& [value, nd, text, rounded] : cases) {
    EXPECT_EQ(conv.FormatReel(value, nd), text) << value << " ND " << nd;
    EXPECT_EQ(conv.Arrondi(value, nd), rounded) << value << " ND " << nd;
  }
  constexpr Double kInf = std::numeric_limits<Double>::infinity();
  EXPECT_EQ(conv.FormatReel(std::nan(""), 2), u"NaN");
  EXPECT_EQ(conv.FormatReel(-kInf, 2), u"-Inf");
  EXPECT_TRUE(std::isnan(conv.Arrondi(std::nan(""), 2)));
  // Rounding up past the largest Double gives infinity, not a wrong number.
  EXPECT_EQ(conv.Arrondi(-std::numeric_limits<Double>::max(), -308), -kInf);
  EXPECT_EQ(conv.Arrondi(std::numeric_limits<Double>::denorm_min(), 400),
            std::numeric_limits<Double>::denorm_min());
  // The text reads back as the rounded number.
  std::mt19937_64 random(3);
  for (int i = 0; i < 2000; ++i) {
    const Double v =
        static_cast<Double>(static_cast<std::int64_t>(random() % 2000000001) - 1000000000) / 1000.0;
    for (Integer nd = 0; nd <= 4; ++nd) {
      ASSERT_EQ(Val(conv.FormatReel(v, nd)), conv.Arrondi(v, nd)) << v << " ND " << nd;
    }
  }
}

// Those that do more than call the runtime's own text functions.
TEST(ConvTextTest, PadCutCompareAndKeepTheGreater) {
  Conv conv;
  EXPECT_EQ(conv.Cadre(u"ab", 5, 0), u"ab   ");
  EXPECT_EQ(conv.Cadre(u"abcdef", 3, 0), u"abcdef");
  EXPECT_EQ(conv.EntierTexte(-42, 5), u"-0042");
  EXPECT_EQ(conv.EntierTexte(7, 3), u"007");
  EXPECT_EQ(conv.EntierTexte(12345, 3), u"12345");
  String s = u"abc   ";
  EXPECT_EQ(conv.LongUtile(s), 3);
  conv.Tronque(s, 1);
  EXPECT_EQ(s, u"ab");
  EXPECT_EQ(conv.SansFin(u"ab", 5), u"");
  EXPECT_FALSE(conv.FinitPar(u"F", u"FF"));
  EXPECT_FALSE(conv.EstRacine(u"AV12+", u"AV12"));
  EXPECT_EQ(conv.SansRacine(u"AV12+3", u"AV"), u"12+3");
  EXPECT_EQ(conv.SansRacine(u"AV12", u"FA"), u"AV12");
  // The greater comes back as it was given; on a tie, the first.
  EXPECT_EQ(conv.Maxi(Long{3}, Double{4.5}), Variant(Double{4.5}));
  EXPECT_EQ(conv.Maxi(Long{7}, Double{7}), Variant(Long{7}));
}

}  // namespace
}  // namespace ferlan::kit
