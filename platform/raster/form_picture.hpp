// The form as a person sees it: its back colour, the toolbar when it shows,
// the drawing surface at its place, the message zone and the caret where and
// when they show. For `ferlan automate --surface raster` ({"png": "file"})
// and for tests that check what the screen shows.
//
// Implemented:
//  [X] the form's inner area (ScaleWidth x ScaleHeight), in its BackColor when
//      the form has one by name, else the platform's button face (0x00F0F0F0)
//  [X] "BarreOutils" when Visible: a plain strip with a rule under it
//  [X] the surface: its border, what its canvas shows, its Picture on top
//  [X] "zoneMessage" when Visible, drawn like the surface
//  [X] the form's other picture controls (a host's substitute surface for a
//      field, a picture moved under a field) when Visible: children of the
//      surface, placed in its scale and clipped to it, drawn like it, in
//      the order the form got them
//  [X] "Caret" when Visible: its Picture stretched to its Width and Height
//      (the picture's own size where those are 0), in the surface's scale,
//      clipped to the surface, as a child control of the surface would be
// Missing:
//  [ ] the caption bar and window frame: the picture is the inner area only
//  [ ] toolbar buttons: the toolbar has none yet
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferlan/host.hpp"
#include "forms/bitmap.hpp"
#include "raster/raster_canvas.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::raster {

// The picture of `form`. `surface` is the drawing surface (Env.ZoneAff); when
// null it is the form's member "ZoneAff". Members "BarreOutils",
// "zoneMessage" and "Caret" are optional here: a form without them shows
// without them. Controls that are not drawn in pixels (a fixed-metric
// canvas) show their back colour.
std::shared_ptr<forms::Bitmap> ComposeForm(Form& form, PictureBox* surface = nullptr);

// The size of ComposeForm's picture of `form`, in pixels.
struct PixelSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};
PixelSize FormPixelSize(Form& form);

// ComposeForm drawn into memory the caller owns, such as a window's frame:
// `size` must be FormPixelSize(form); `data` holds its rows top first,
// `stride` bytes apart, one 32-bit word 0x00RRGGBB a pixel in native byte
// order (as pixel_words.hpp describes). The same pixels as ComposeForm.
// With `clip`, only the pixels inside those rectangles are drawn, the rest
// of `data` is left as it is: a front-end that keeps the last picture
// redraws only what changed.
void ComposeFormOnto(Form& form, PictureBox* surface, unsigned char* data, PixelSize size,
                     int stride, const std::vector<PixelRect>* clip = nullptr);

// Where a picture control's inner area lies on the form's picture (its
// border left out), as ComposeForm draws it.
PixelRect InnerRect(PictureBox& box);
// Where the pixels of the control's canvas in `damage` (one of the
// rectangles RasterCanvas::TakeDamage gives) show on the form's picture.
PixelRect CanvasDamageOnForm(PictureBox& box, const PixelRect& damage);
// The form's picture controls other than `surface`, "ZoneAff",
// "zoneMessage" and "Caret", which ComposeForm shows as children of the
// surface, in the order the form got them.
std::vector<PictureBox*> SurfaceChildren(Form& form, PictureBox* surface);
// Where such a child, border included, shows on the form's picture,
// clipped to the surface's inner area; empty when it does not show.
PixelRect ChildRect(PictureBox& child, PictureBox& surface);
// Where the caret control shows on the form's picture, clipped to the
// surface's inner area; empty when it does not show.
PixelRect CaretRect(PictureBox& caret, PictureBox& surface);

// ComposeForm written as a PNG file. Errors: Host when the file cannot be
// written.
void WriteFormPng(Form& form, const std::string& path, PictureBox* surface = nullptr);

}  // namespace ferlan::raster

FERLAN_PUBLIC_END
