// Finds DejaVu Sans through fontconfig. fontconfig always answers with some
// font, so the answer's family is checked: another family would give other
// metrics and another grid, and that must be an error, not a surprise.
#include "raster/font_source.hpp"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <mutex>
#include <string_view>

#include "ferlan/runtime.hpp"

namespace ferlan::raster {

namespace {

constexpr std::string_view kFamily = "DejaVu Sans";

struct PatternDeleter {
  void operator()(FcPattern* p) const { FcPatternDestroy(p); }
};
using PatternPtr = std::unique_ptr<FcPattern, PatternDeleter>;

const FcChar8* Fc(const char* s) { return reinterpret_cast<const FcChar8*>(s); }

std::string FindFile(FcConfig* config, bool bold) {
  PatternPtr pattern(FcPatternCreate());
  if (!pattern) throw PlatformError::Host("fontconfig", "out of memory");
  FcPatternAddString(pattern.get(), FC_FAMILY, Fc(kFamily.data()));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  FcPatternAddInteger(pattern.get(), FC_SLANT, FC_SLANT_ROMAN);
  FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
  if (!FcConfigSubstitute(config, pattern.get(), FcMatchPattern)) {
    throw PlatformError::Host("fontconfig", "out of memory");
  }
  FcDefaultSubstitute(pattern.get());

  FcResult result = FcResultNoMatch;
  PatternPtr match(FcFontMatch(config, pattern.get(), &result));
  FcChar8* family = nullptr;
  FcChar8* file = nullptr;
  int weight = 0;
  if (!match || FcPatternGetString(match.get(), FC_FAMILY, 0, &family) != FcResultMatch ||
      FcStrCmpIgnoreCase(family, Fc(kFamily.data())) != 0 ||
      FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch ||
      FcPatternGetInteger(match.get(), FC_WEIGHT, 0, &weight) != FcResultMatch ||
      (bold && weight < FC_WEIGHT_BOLD)) {
    throw PlatformError::Host(
        "fontconfig", std::string("no ") + std::string(kFamily) + (bold ? " Bold" : "") +
                          " font found (the Debian package fonts-dejavu-core provides it)");
  }
  return reinterpret_cast<const char*>(file);
}

}  // namespace

FontFiles FindDejaVuSans(const std::string& config_file) {
  // A configuration of our own, let go once the two files are known: the
  // lookup is done once, and nothing of fontconfig outlives it.
  std::unique_ptr<FcConfig, decltype(&FcConfigDestroy)> config(nullptr, &FcConfigDestroy);
  if (config_file.empty()) {
    config.reset(FcInitLoadConfigAndFonts());
  } else {
    config.reset(FcConfigCreate());
    if (config && (!FcConfigParseAndLoad(config.get(), Fc(config_file.c_str()), FcTrue) ||
                   !FcConfigBuildFonts(config.get()))) {
      config.reset();
    }
  }
  if (!config) throw PlatformError::Host("fontconfig", "cannot read its configuration");
  return {FindFile(config.get(), false), FindFile(config.get(), true)};
}

const FontFiles& DejaVuSansFiles() {
  // fontconfig's loading is not meant to race; once per process.
  static std::once_flag once;
  static FontFiles files;
  std::call_once(once, [] { files = FindDejaVuSans(); });
  return files;
}

}  // namespace ferlan::raster
