// The fixed-metric canvas: exact numbers for tests and `ferlan automate`.
// At Font.Size S a text is 19.5 x S high (also an empty one) and 10.5 x S
// wide per UTF-16 unit, so at the default size 10 TextHeight(" ") is 195 and
// TextWidth("T") is 105. Nothing is rasterised: the canvas keeps a display
// list of what was drawn since the last Clear, less what a later filled box
// covers wholly (edges included). Texts are drawn transparent and cover
// nothing, so a list that still passes kOpsLimit + kOpsLimit / 4 items
// forgets its oldest down to kOpsLimit and counts them: memory stays flat
// however long a session runs.
//
// Fakes: pixels. Snapshot gives a picture that holds the list, and painting
// such a picture brings its list back; any other picture is recorded as one
// Picture operation with its place and size only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/canvas.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

struct DrawOp {
  enum class Kind { FillBox, Box, Line, Text, Picture };
  Kind kind = Kind::FillBox;
  Single x1 = 0;
  Single y1 = 0;
  Single x2 = 0;  // Picture: x + width
  Single y2 = 0;  // Picture: y + height
  Long colour = 0;
  String text;           // Text only
  forms::FontSpec font;  // Text only
};

// One line: "FillBox 0 0 105 195 16777215", "Text 105 312 0 10 \"ab\""
// (colour, then size with a b when bold), "Picture 0 0 165 75".
std::string Describe(const DrawOp& op);

// What a Snapshot holds: the size, the colour cleared to, and the list.
class DisplayListPicture final : public Picture {
 public:
  DisplayListPicture(Single width, Single height, Long background, std::vector<DrawOp> ops)
      : width_(width), height_(height), background_(background), ops_(std::move(ops)) {}
  Single Width() const override { return width_; }
  Single Height() const override { return height_; }
  Long Background() const { return background_; }
  const std::vector<DrawOp>& Ops() const { return ops_; }

 private:
  Single width_;
  Single height_;
  Long background_;
  std::vector<DrawOp> ops_;
};

class FixedCanvas final : public forms::Canvas {
 public:
  static constexpr double kHeightPerPoint = 19.5;
  static constexpr double kWidthPerPoint = 10.5;
  static constexpr std::size_t kOpsLimit = 10000;
  // UTF-16 units of text the list keeps at most, however long the texts:
  // past it the oldest items go, down to three quarters of it (the latest
  // item always stays).
  static constexpr std::size_t kTextLimit = std::size_t{1} << 22;

  Single TextWidth(StringView text, const forms::FontSpec& font) override;
  Single TextHeight(StringView text, const forms::FontSpec& font) override;
  void Resize(Single width, Single height) override;
  void Clear(Long colour) override;
  void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Box(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Line(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Text(Single x, Single y, StringView text, const forms::FontSpec& font,
            Long colour) override;
  PictureRef Snapshot() override;
  // A snapshot painted at the origin over the whole canvas replaces the
  // list with its own; elsewhere its back colour fills its box and its
  // operations follow, moved by (x, y), since a picture is opaque.
  void Paint(const Picture& picture, Single x, Single y) override;

  Single Width() const { return width_; }
  Single Height() const { return height_; }
  Long Background() const { return background_; }
  const std::vector<DrawOp>& Ops() const {
    Compact();
    return ops_;
  }
  // Items forgotten over the limit since the last Clear.
  std::size_t Dropped() const { return dropped_; }
  // The list, one Describe line each, each ending in a newline.
  std::string DescribeOps() const;

 private:
  void Add(DrawOp op);
  void AddShape(DrawOp::Kind kind, Single x1, Single y1, Single x2, Single y2, Long colour);
  // The item goes at the end of the list; Added then indexes it and keeps
  // the list within its limit.
  DrawOp& Append(DrawOp::Kind kind, Single x1, Single y1, Single x2, Single y2, Long colour);
  void Added();
  // Forgets the oldest items over kOpsLimit or kTextLimit and counts them.
  void Trim();
  // The index of bottoms made again from ops_ (after it is replaced or cut).
  void Reindex();
  void Index(const DrawOp& op);
  // Keeps the text of an item that leaves the list for a text to come.
  void Spare(DrawOp& op);
  // Takes the covered items out of the list at once (see gone_).
  void Compact() const;
  std::size_t Live() const { return ops_.size() - gone_.size(); }
  // The place in ops_ of the item numbered `id`, which is there.
  std::size_t Place(std::uint64_t id) const;

  Single width_ = 0;
  Single height_ = 0;
  Long background_ = 0;
  // Mutable: the list is compacted when it is read (see gone_).
  mutable std::vector<DrawOp> ops_;
  std::size_t dropped_ = 0;
  // At least the units of the texts in ops_: items covered and taken out
  // are counted again only when the list is trimmed.
  std::size_t text_units_ = 0;
  // Each item of ops_ has a number, rising in the order of the list, so that
  // the index below outlives the moves of items inside ops_.
  mutable std::vector<std::uint64_t> ids_;
  // From this place on, the numbers follow each other without a gap (items
  // added since the list last moved): a number gives its place at once.
  mutable std::size_t consecutive_from_ = 0;
  // Places in ops_ of covered items not yet taken out. A covered item leaves
  // the index at once but stays in ops_ until the list is read, cut or
  // cleared, or until the covered ones are many: the items after it then
  // move down once for many boxes, not at each box.
  mutable std::vector<std::size_t> gone_;
  static constexpr std::size_t kGoneBatch = 256;
  std::uint64_t next_id_ = 0;
  // The numbers of the items by their lower edge, and along an edge by their
  // left side. An item covered by a box has its lower edge between the box's
  // top and bottom and its left side between the box's sides, so a filled
  // box looks only at the items of a few edges and of its width, not at the
  // whole list. An item with a NaN edge or side is never covered and not
  // indexed. Emptied edges stay until there are many (see Add).
  struct EdgeItem {
    Single left;
    std::uint64_t id;
  };
  std::map<Single, std::vector<EdgeItem>> by_bottom_;
  static constexpr std::size_t kShortEdge = 16;
  // Texts of items gone, whose room the next texts take: drawing a text
  // then costs no allocation. At most kSpareTexts, none over kSpareRoom.
  static constexpr std::size_t kSpareTexts = 256;
  static constexpr std::size_t kSpareRoom = 1024;
  std::vector<String> spare_texts_;
};

// Makes the canvas of each new picture control: a FixedCanvas.
forms::CanvasFactory FixedCanvasFactory();

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
