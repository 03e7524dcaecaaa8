// The glyph cache: one instance per size and weight, kept within bounds, and
// glyphs whose placement agrees with the advances that measure them.
#include "raster/glyph_cache.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace ferlan::raster {
namespace {

TEST(GlyphCacheTest, OneInstancePerSizeAndWeight) {
  GlyphCache& cache = GlyphCache::ForThisThread();
  FontInstance* regular = &cache.Instance(10, false);
  FontInstance* bold = &cache.Instance(10, true);
  EXPECT_NE(regular, bold);
  EXPECT_EQ(&cache.Instance(10, false), regular);
  EXPECT_EQ(&cache.Instance(10, true), bold);
  EXPECT_NE(&cache.Instance(10.5f, false), regular);
}

TEST(GlyphCacheTest, ManySizesStayWithinTheBoundAndMeasureAlike) {
  GlyphCache& cache = GlyphCache::ForThisThread();
  const double t10 = cache.Instance(10, false).AdvanceTwips(U'T');
  for (int size = 6; size < 40; ++size) {
    FontInstance& font = cache.Instance(static_cast<Single>(size), false);
    EXPECT_NEAR(font.AdvanceTwips(U'T'), t10 * size / 10, 1e-9) << "size " << size;
  }
  EXPECT_LE(cache.InstanceCount(), 16u);
  // An instance that was let go is made again with the same measures.
  EXPECT_DOUBLE_EQ(cache.Instance(10, false).AdvanceTwips(U'T'), t10);
}

TEST(GlyphCacheTest, GlyphsAreKeptAndFitTheirAdvance) {
  FontInstance& font = GlyphCache::ForThisThread().Instance(10, false);
  const GlyphImage& h = font.Glyph(U'H');
  EXPECT_EQ(&font.Glyph(U'H'), &h);  // rendered once
  const GlyphImage& euro = font.Glyph(U'\u20ac');
  EXPECT_EQ(&font.Glyph(U'\u20ac'), &euro);
  ASSERT_GT(h.width, 0);
  ASSERT_EQ(h.coverage.size(), static_cast<std::size_t>(h.width * h.height));
  // "H" stands on the baseline and stays within its advance.
  EXPECT_GE(h.left, 0);
  EXPECT_LE(h.left + h.width, font.AdvanceTwips(U'H') / 15 + 1);
  EXPECT_LE(h.top, font.AscentTwips() / 15 + 1);
  // A blank has an advance and no ink.
  EXPECT_GT(font.AdvanceTwips(U' '), 0);
  for (auto c : font.Glyph(U' ').coverage) EXPECT_EQ(c, 0);
}

TEST(GlyphCacheTest, SurrogatePairsAreOneCharacter) {
  std::vector<char32_t> seen;
  ForEachCodePoint(u"a\U0001F600b", [&](char32_t c) { seen.push_back(c); });
  EXPECT_EQ(seen, (std::vector<char32_t>{U'a', U'\U0001F600', U'b'}));
  seen.clear();
  ForEachCodePoint(u"\xD800z", [&](char32_t c) { seen.push_back(c); });  // a lone surrogate
  EXPECT_EQ(seen, (std::vector<char32_t>{0xD800, U'z'}));
}

}  // namespace
}  // namespace ferlan::raster
