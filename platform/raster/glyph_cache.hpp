// Advances and rendered glyphs of DejaVu Sans, cached per size and weight.
// Measuring is the hottest call of the whole system (every grid conversion
// measures "T" or " "), so an advance of a Latin-1 character is one array
// read; everything else is a hash lookup after the first time.
// Private to the raster back-end, neither installed nor exported; no
// FreeType type shows here.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "ferlan/runtime.hpp"

namespace ferlan::raster {

// A glyph as 8-bit coverage, placed relative to the pen on the baseline:
// its top left pixel is at (pen + left, baseline - top).
struct GlyphImage {
  int width = 0;
  int height = 0;
  int left = 0;
  int top = 0;
  std::vector<std::uint8_t> coverage;  // width * height, rows top first
};

// One font at one size and weight.
class FontInstance {
 public:
  // Takes ownership of `face` (an FT_Face opened by the cache).
  FontInstance(void* face, Single size, Boolean bold);
  ~FontInstance();
  FontInstance(const FontInstance&) = delete;
  FontInstance& operator=(const FontInstance&) = delete;

  Single size() const { return size_; }
  Boolean bold() const { return bold_; }

  // Advance of one character in twips: the font's scalable advance, exact at
  // any size (so that doubling the size doubles every measure).
  double AdvanceTwips(char32_t c) {
    if (c < latin_.size()) return latin_[c];
    return OtherAdvance(c);
  }
  double TextWidthTwips(StringView text);
  double LineHeightTwips() const { return line_height_twips_; }
  double AscentTwips() const { return ascent_twips_; }
  // The rendered glyph, made on first use and kept.
  const GlyphImage& Glyph(char32_t c);

 private:
  unsigned GlyphIndex(char32_t c) const;
  double OtherAdvance(char32_t c);
  double LoadAdvance(char32_t c) const;
  std::unique_ptr<GlyphImage> Render(char32_t c);

  Single size_;
  Boolean bold_;
  void* face_ = nullptr;  // FT_Face
  double twips_per_unit_ = 0;
  double line_height_twips_ = 0;
  double ascent_twips_ = 0;
  std::array<double, 256> latin_{};
  std::unordered_map<char32_t, double> other_advances_;
  std::array<std::unique_ptr<GlyphImage>, 256> latin_glyphs_;
  std::unordered_map<char32_t, std::unique_ptr<GlyphImage>> other_glyphs_;
};

// The fonts of one thread. The component is apartment-threaded and FreeType
// objects must not be shared between threads without a lock, so each thread
// has its own cache and no lock is taken on the measuring path.
class GlyphCache {
 public:
  GlyphCache();
  ~GlyphCache();
  GlyphCache(const GlyphCache&) = delete;
  GlyphCache& operator=(const GlyphCache&) = delete;

  static GlyphCache& ForThisThread();
  // The instance for that size and weight, made on first use. Valid until the
  // next call: the cache keeps a bounded number of sizes.
  FontInstance& Instance(Single size, Boolean bold);
  std::size_t InstanceCount() const { return instances_.size(); }

 private:
  static constexpr std::size_t kMaxInstances = 16;
  void* library_ = nullptr;  // FT_Library
  // The font files, read once: every instance opens its face on these bytes.
  std::vector<unsigned char> regular_bytes_;
  std::vector<unsigned char> bold_bytes_;
  std::vector<std::unique_ptr<FontInstance>> instances_;  // most recent first
};

// Code points of a UTF-16 text; a lone surrogate stands for itself.
template <typename F>
void ForEachCodePoint(StringView text, F&& f) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
        text[i + 1] < 0xE000) {
      c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[i + 1]) - 0xDC00);
      ++i;
    }
    f(c);
  }
}

}  // namespace ferlan::raster
