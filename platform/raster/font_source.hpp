// Where the surface's font comes from: DejaVu Sans, regular and bold, found
// through fontconfig. Private to the raster back-end.
#pragma once

#include <string>
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::raster {

struct FontFiles {
  std::string regular;
  std::string bold;
};

// The files of DejaVu Sans, looked up once per process. Raises a Host error of
// "fontconfig" when the family is not installed, rather than drawing with
// whatever font fontconfig would substitute: metrics must not change silently.
const FontFiles& DejaVuSansFiles();

// The lookup itself, with the configuration of fontconfig read from
// `config_file`, or the system's when it is empty. Same errors.
FontFiles FindDejaVuSans(const std::string& config_file = {});

}  // namespace ferlan::raster

FERLAN_PUBLIC_END
