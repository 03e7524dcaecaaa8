// `new` of kind "Picture": a picture control holding an image file, for the
// methods that take a picture control (ImageAD, ImageSD).
#pragma once

#include <memory>
#include <string>

#include "cli/json_values.hpp"
#include "forms/picture_box.hpp"

namespace ferlan::headless {
class Session;
}

namespace ferlan::tool {

// A hidden picture control of the image's own size whose Picture is the
// BMP or PNG file order["file"]. Errors: 5 naming the request for a missing
// file name, a file that cannot be read, or one that is no image read here
// (PNG needs the raster back-end in the build).
std::shared_ptr<forms::PictureBox> LoadPictureControl(headless::Session& session,
                                                      const std::string& name, const Json& order);

}  // namespace ferlan::tool
