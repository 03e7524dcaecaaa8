#include "cli/picture_objects.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "headless/session.hpp"
#if FERLAN_HAVE_RASTER
#include "raster/picture_files.hpp"
#endif

namespace ferlan::tool {

std::shared_ptr<forms::PictureBox> LoadPictureControl(headless::Session& session,
                                                      const std::string& name, const Json& order) {
  const std::string request = "new " + name;
  if (!order.contains("file") || !order["file"].is_string()) {
    throw PlatformError::InvalidCall(request + ": a Picture needs \"file\", a BMP or PNG file");
  }
  const std::string file = order["file"].get<std::string>();
  // A directory, a device or a pipe is no picture: reading one would fail
  // with the library's own words, never end (/dev/zero), or wait for a writer.
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) {
    throw PlatformError::InvalidCall(request + ": \"" + file + "\" is not a file that can be read");
  }
  std::ifstream in(file, std::ios::binary);
  if (!in) throw PlatformError::InvalidCall(request + ": cannot read the file \"" + file + "\"");
  const std::vector<std::uint8_t> bytes((std::istreambuf_iterator<char>(in)),
                                        std::istreambuf_iterator<char>());
  PictureRef picture;
  try {
#if FERLAN_HAVE_RASTER
    // Decoding does not depend on the surface: PNG on the fixed one too.
    picture = raster::DecodePicture(bytes);
#else
    picture = session.Global().LoadPicture(bytes);
#endif
  } catch (const PlatformError& e) {
    throw PlatformError(e.Number(), request + ": \"" + file + "\": " + e.Description());
  }
  auto control = session.NewPictureBox();
  control->SetVisible(false);
  control->SetPicture(picture);
  control->SetWidth(picture->Width());
  control->SetHeight(picture->Height());
  return control;
}

}  // namespace ferlan::tool
