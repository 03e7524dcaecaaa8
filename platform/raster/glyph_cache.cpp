// FreeType behind the cache. Advances come unscaled from the font (font units
// times size), so measures are exact and scale linearly; glyphs are rendered
// with light hinting, which leaves horizontal advances alone, so what is drawn
// lines up with what was measured.
#include "raster/glyph_cache.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>

#include "raster/font_source.hpp"

namespace ferlan::raster {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr unsigned kDpi = 96;

FT_Face AsFace(void* face) { return static_cast<FT_Face>(face); }

[[noreturn]] void FreeTypeFailed(FT_Error error, std::string_view doing) {
  const char* text = FT_Error_String(error);
  throw PlatformError::Host("freetype", std::string(doing) + ": " +
                                            (text ? text : "error " + std::to_string(error)));
}

std::vector<unsigned char> ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  const std::streamsize size = in ? static_cast<std::streamsize>(in.tellg()) : 0;
  std::vector<unsigned char> bytes(static_cast<std::size_t>(std::max<std::streamsize>(size, 0)));
  in.seekg(0);
  if (size <= 0 || !in.read(reinterpret_cast<char*>(bytes.data()), size)) {
    throw PlatformError::Host("freetype", "cannot read " + path);
  }
  return bytes;
}

}  // namespace

// ---------------------------------------------------------------------------
// FontInstance
// ---------------------------------------------------------------------------

FontInstance::FontInstance(void* face, Single size, Boolean bold)
    : size_(size), bold_(bold), face_(face) {
  FT_Face f = AsFace(face_);
  // Points to 26.6 fixed point, at 96 dpi: 10 points are 13.33 pixels.
  FT_Error error = FT_Set_Char_Size(f, 0, static_cast<FT_F26Dot6>(std::lround(size * 64.0)),
                                    kDpi, kDpi);
  if (error) FreeTypeFailed(error, "setting the font size");
  twips_per_unit_ = static_cast<double>(size) * kTwipsPerPoint / f->units_per_EM;
  line_height_twips_ = f->height * twips_per_unit_;
  ascent_twips_ = f->ascender * twips_per_unit_;
  for (char32_t c = 0; c < latin_.size(); ++c) latin_[c] = LoadAdvance(c);
}

FontInstance::~FontInstance() { FT_Done_Face(AsFace(face_)); }

unsigned FontInstance::GlyphIndex(char32_t c) const {
  // A character the font lacks is its missing-glyph box, index 0, measured
  // and drawn like any other.
  return FT_Get_Char_Index(AsFace(face_), c);
}

double FontInstance::LoadAdvance(char32_t c) const {
  FT_Fixed advance = 0;
  FT_Error error = FT_Get_Advance(AsFace(face_), GlyphIndex(c), FT_LOAD_NO_SCALE, &advance);
  if (error) FreeTypeFailed(error, "reading an advance");
  return static_cast<double>(advance) * twips_per_unit_;
}

double FontInstance::OtherAdvance(char32_t c) {
  auto it = other_advances_.find(c);
  if (it != other_advances_.end()) return it->second;
  double advance = LoadAdvance(c);
  other_advances_.emplace(c, advance);
  return advance;
}

double FontInstance::TextWidthTwips(StringView text) {
  double width = 0;
  ForEachCodePoint(text, [&](char32_t c) { width += AdvanceTwips(c); });
  return width;
}

const GlyphImage& FontInstance::Glyph(char32_t c) {
  if (c < latin_glyphs_.size()) {
    auto& slot = latin_glyphs_[c];
    if (!slot) slot = Render(c);
    return *slot;
  }
  auto it = other_glyphs_.find(c);
  if (it == other_glyphs_.end()) it = other_glyphs_.emplace(c, Render(c)).first;
  return *it->second;
}

std::unique_ptr<GlyphImage> FontInstance::Render(char32_t c) {
  FT_Face f = AsFace(face_);
  FT_Error error = FT_Load_Glyph(f, GlyphIndex(c), FT_LOAD_RENDER | FT_LOAD_TARGET_LIGHT);
  if (error) FreeTypeFailed(error, "rendering a glyph");
  const FT_GlyphSlot slot = f->glyph;
  const FT_Bitmap& bitmap = slot->bitmap;
  auto glyph = std::make_unique<GlyphImage>();
  glyph->left = slot->bitmap_left;
  glyph->top = slot->bitmap_top;
  if (bitmap.pixel_mode != FT_PIXEL_MODE_GRAY) {
    // Outline fonts render to 8-bit grey; anything else is a font we did not
    // ask for. Draw nothing rather than misread the bits.
    return glyph;
  }
  glyph->width = static_cast<int>(bitmap.width);
  glyph->height = static_cast<int>(bitmap.rows);
  glyph->coverage.resize(static_cast<std::size_t>(glyph->width) *
                         static_cast<std::size_t>(glyph->height));
  for (int row = 0; row < glyph->height; ++row) {
    const unsigned char* src = bitmap.buffer + static_cast<std::ptrdiff_t>(row) * bitmap.pitch;
    std::copy_n(src, glyph->width,
                glyph->coverage.begin() + static_cast<std::ptrdiff_t>(row) * glyph->width);
  }
  return glyph;
}

// ---------------------------------------------------------------------------
// GlyphCache
// ---------------------------------------------------------------------------

GlyphCache::GlyphCache() {
  const FontFiles& files = DejaVuSansFiles();
  regular_bytes_ = ReadFile(files.regular);
  bold_bytes_ = ReadFile(files.bold);
  FT_Library library = nullptr;
  FT_Error error = FT_Init_FreeType(&library);
  if (error) FreeTypeFailed(error, "starting");
  library_ = library;
}

GlyphCache::~GlyphCache() {
  instances_.clear();  // faces before their library
  FT_Done_FreeType(static_cast<FT_Library>(library_));
}

GlyphCache& GlyphCache::ForThisThread() {
  thread_local GlyphCache cache;
  return cache;
}

FontInstance& GlyphCache::Instance(Single size, Boolean bold) {
  auto it = std::find_if(instances_.begin(), instances_.end(), [&](const auto& instance) {
    return instance->size() == size && instance->bold() == bold;
  });
  if (it != instances_.end()) {
    // Move to the front: the next lookup of the same font is one comparison.
    if (it != instances_.begin()) std::rotate(instances_.begin(), it, it + 1);
    return *instances_.front();
  }
  if (!(size > 0) || !std::isfinite(size)) {
    throw PlatformError::InvalidCall("font size must be above 0");
  }
  const std::vector<unsigned char>& bytes = bold ? bold_bytes_ : regular_bytes_;
  FT_Face face = nullptr;
  FT_Error error = FT_New_Memory_Face(static_cast<FT_Library>(library_), bytes.data(),
                                      static_cast<FT_Long>(bytes.size()), 0, &face);
  if (error) FreeTypeFailed(error, "opening DejaVu Sans");
  std::unique_ptr<FontInstance> instance;
  try {
    instance = std::make_unique<FontInstance>(face, size, bold);
  } catch (...) {
    FT_Done_Face(face);  // the instance never took it
    throw;
  }
  if (instances_.size() >= kMaxInstances) instances_.pop_back();
  instances_.insert(instances_.begin(), std::move(instance));
  return *instances_.front();
}

}  // namespace ferlan::raster
