#include "headless/fixed_canvas.hpp"

#include <algorithm>
#include <cmath>

namespace ferlan::headless {

namespace {

std::string Number(Single v) { return ToUtf8(NumberText(v)); }

std::string Corners(const DrawOp& op) {
  return Number(op.x1) + " " + Number(op.y1) + " " + Number(op.x2) + " " + Number(op.y2);
}

Single Bottom(const DrawOp& op) { return std::max(op.y1, op.y2); }

bool Inside(const DrawOp& op, Single left, Single top, Single right, Single bottom) {
  return std::min(op.x1, op.x2) >= left && std::max(op.x1, op.x2) <= right &&
         std::min(op.y1, op.y2) >= top && std::max(op.y1, op.y2) <= bottom;
}

}  // namespace

std::string Describe(const DrawOp& op) {
  switch (op.kind) {
    case DrawOp::Kind::FillBox:
      return "FillBox " + Corners(op) + " " + std::to_string(op.colour);
    case DrawOp::Kind::Box:
      return "Box " + Corners(op) + " " + std::to_string(op.colour);
    case DrawOp::Kind::Line:
      return "Line " + Corners(op) + " " + std::to_string(op.colour);
    case DrawOp::Kind::Text:
      return "Text " + Number(op.x1) + " " + Number(op.y1) + " " + std::to_string(op.colour) +
             " " + Number(op.font.size) + (op.font.bold ? "b" : "") + " \"" + ToUtf8(op.text) +
             "\"";
    case DrawOp::Kind::Picture:
      return "Picture " + Number(op.x1) + " " + Number(op.y1) + " " + Number(op.x2 - op.x1) +
             " " + Number(op.y2 - op.y1);
  }
  return "?";
}

Single FixedCanvas::TextWidth(StringView text, const forms::FontSpec& font) {
  return static_cast<Single>(kWidthPerPoint * font.size * static_cast<double>(text.size()));
}

Single FixedCanvas::TextHeight(StringView, const forms::FontSpec& font) {
  return static_cast<Single>(kHeightPerPoint * font.size);
}

void FixedCanvas::Resize(Single width, Single height) {
  width_ = width;
  height_ = height;
}

void FixedCanvas::Clear(Long colour) {
  background_ = colour;
  Compact();
  for (DrawOp& op : ops_) Spare(op);
  ops_.clear();
  Reindex();
  dropped_ = 0;
  text_units_ = 0;
}

void FixedCanvas::FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) {
  // A filled box hides whatever lies wholly inside it: those items leave the
  // list, which so stays as long as what can still be seen.
  const Single left = std::min(x1, x2);
  const Single right = std::max(x1, x2);
  const Single top = std::min(y1, y2);
  const Single bottom = std::max(y1, y2);
  // With a NaN top, lower_bound starts at the first edge; nothing passes
  // Inside then.
  for (auto edge = by_bottom_.lower_bound(top); edge != by_bottom_.end() && edge->first <= bottom;
       ++edge) {
    // Along a long edge only the items whose left side lies between the
    // box's sides can be inside it, so a row of boxes does not look at the
    // whole row each time; a short edge is looked at whole, which costs less
    // than two searches.
    std::vector<EdgeItem>& items = edge->second;
    auto from = items.begin();
    auto to = items.end();
    if (items.size() > kShortEdge) {
      from = std::ranges::lower_bound(items, left, {}, &EdgeItem::left);
      to = std::upper_bound(from, items.end(), right,
                            [](Single x, const EdgeItem& item) { return x < item.left; });
    }
    const auto kept = std::remove_if(from, to, [&](const EdgeItem& item) {
      const std::size_t at = Place(item.id);
      if (!Inside(ops_[at], left, top, right, bottom)) return false;
      Spare(ops_[at]);
      gone_.push_back(at);
      return true;
    });
    items.erase(kept, to);
  }
  AddShape(DrawOp::Kind::FillBox, x1, y1, x2, y2, colour);
}

void FixedCanvas::Box(Single x1, Single y1, Single x2, Single y2, Long colour) {
  AddShape(DrawOp::Kind::Box, x1, y1, x2, y2, colour);
}

void FixedCanvas::Line(Single x1, Single y1, Single x2, Single y2, Long colour) {
  AddShape(DrawOp::Kind::Line, x1, y1, x2, y2, colour);
}

void FixedCanvas::Text(Single x, Single y, StringView text, const forms::FontSpec& font,
                       Long colour) {
  // Made in its place in the list, then indexed.
  DrawOp& op = Append(DrawOp::Kind::Text, x, y, x + TextWidth(text, font),
                      y + TextHeight(text, font), colour);
  if (!spare_texts_.empty()) {
    op.text = std::move(spare_texts_.back());
    spare_texts_.pop_back();
  }
  op.text.assign(text);
  op.font = font;
  text_units_ += text.size();
  Added();
}

PictureRef FixedCanvas::Snapshot() {
  Compact();
  return std::make_shared<DisplayListPicture>(width_, height_, background_, ops_);
}

void FixedCanvas::Paint(const Picture& picture, Single x, Single y) {
  const Single right = x + picture.Width();
  const Single bottom = y + picture.Height();
  const auto* list = dynamic_cast<const DisplayListPicture*>(&picture);
  if (!list) {
    AddShape(DrawOp::Kind::Picture, x, y, right, bottom, 0);
    return;
  }
  if (x == 0 && y == 0 && right >= width_ && bottom >= height_) {
    background_ = list->Background();
    gone_.clear();
    ops_ = list->Ops();
    Reindex();
    text_units_ = 0;
    for (const DrawOp& op : ops_) text_units_ += op.text.size();
    return;
  }
  AddShape(DrawOp::Kind::FillBox, x, y, right, bottom, list->Background());
  for (DrawOp op : list->Ops()) {
    op.x1 += x;
    op.x2 += x;
    op.y1 += y;
    op.y2 += y;
    Add(std::move(op));
  }
}

DrawOp& FixedCanvas::Append(DrawOp::Kind kind, Single x1, Single y1, Single x2, Single y2,
                            Long colour) {
  DrawOp& op = ops_.emplace_back();
  op.kind = kind;
  op.x1 = x1;
  op.y1 = y1;
  op.x2 = x2;
  op.y2 = y2;
  op.colour = colour;
  return op;
}

void FixedCanvas::AddShape(DrawOp::Kind kind, Single x1, Single y1, Single x2, Single y2,
                           Long colour) {
  Append(kind, x1, y1, x2, y2, colour);
  Added();
}

void FixedCanvas::Add(DrawOp op) {
  text_units_ += op.text.size();
  ops_.push_back(std::move(op));
  Added();
}

void FixedCanvas::Added() {
  // Indexed first: a trim compacts the list and its numbers side by side.
  Index(ops_.back());
  // Trimmed by a quarter at a time, so that each item costs a constant share.
  if (Live() > kOpsLimit + kOpsLimit / 4 || text_units_ > kTextLimit) {
    Trim();
    return;
  }
  // The covered items wait at most as many as the visible ones (or a batch),
  // so that the list stays as long as what can be seen, give or take.
  if (gone_.size() > kGoneBatch && gone_.size() > Live()) Compact();
  // Emptied edges are swept when they are many; an edge used again at once
  // (a box drawn again where it was) keeps its room meanwhile.
  if (by_bottom_.size() > Live() + 64) {
    std::erase_if(by_bottom_, [](const auto& edge) { return edge.second.empty(); });
  }
}

void FixedCanvas::Trim() {
  Compact();
  std::size_t excess = ops_.size() > kOpsLimit ? ops_.size() - kOpsLimit : 0;
  std::size_t units = 0;
  for (std::size_t i = excess; i < ops_.size(); ++i) units += ops_[i].text.size();
  // A few long texts weigh as much as many items: the oldest go till a
  // quarter of the room is free, so the next trim is that far off.
  while (units > kTextLimit / 4 * 3 && excess + 1 < ops_.size()) {
    units -= ops_[excess++].text.size();
  }
  ops_.erase(ops_.begin(), ops_.begin() + static_cast<std::ptrdiff_t>(excess));
  dropped_ += excess;
  text_units_ = units;
  Reindex();
}

void FixedCanvas::Index(const DrawOp& op) {
  const std::uint64_t id = next_id_++;
  ids_.push_back(id);
  const Single bottom = Bottom(op);
  const Single left = std::min(op.x1, op.x2);
  // Never covered: Inside fails on a NaN side.
  if (std::isnan(bottom) || std::isnan(left)) return;
  std::vector<EdgeItem>& items = by_bottom_[bottom];
  // Items mostly come from left to right: their place is then the end.
  if (items.empty() || items.back().left <= left) {
    items.push_back(EdgeItem{left, id});
  } else {
    items.insert(std::ranges::upper_bound(items, left, {}, &EdgeItem::left), EdgeItem{left, id});
  }
}

void FixedCanvas::Spare(DrawOp& op) {
  if (op.kind != DrawOp::Kind::Text || spare_texts_.size() == kSpareTexts ||
      op.text.capacity() > kSpareRoom) {
    return;
  }
  spare_texts_.push_back(std::move(op.text));
}

void FixedCanvas::Reindex() {
  ids_.clear();
  consecutive_from_ = 0;
  by_bottom_.clear();
  for (const DrawOp& op : ops_) Index(op);
}

void FixedCanvas::Compact() const {
  if (gone_.empty()) return;
  std::sort(gone_.begin(), gone_.end());
  gone_.push_back(ops_.size());
  // Each run of kept items between covered ones moves down at once.
  std::size_t kept = gone_.front();
  for (std::size_t i = 0; i + 1 < gone_.size(); ++i) {
    const auto from = static_cast<std::ptrdiff_t>(gone_[i] + 1);
    const auto to = static_cast<std::ptrdiff_t>(gone_[i + 1]);
    const auto at = static_cast<std::ptrdiff_t>(kept);
    std::move(ops_.begin() + from, ops_.begin() + to, ops_.begin() + at);
    std::move(ids_.begin() + from, ids_.begin() + to, ids_.begin() + at);
    kept += static_cast<std::size_t>(to - from);
  }
  ops_.erase(ops_.begin() + static_cast<std::ptrdiff_t>(kept), ops_.end());
  ids_.erase(ids_.begin() + static_cast<std::ptrdiff_t>(kept), ids_.end());
  gone_.clear();
  consecutive_from_ = ids_.size();
}

std::size_t FixedCanvas::Place(std::uint64_t id) const {
  if (consecutive_from_ < ids_.size() && id >= ids_[consecutive_from_]) {
    return consecutive_from_ + static_cast<std::size_t>(id - ids_[consecutive_from_]);
  }
  const auto end = ids_.begin() + static_cast<std::ptrdiff_t>(consecutive_from_);
  return static_cast<std::size_t>(std::lower_bound(ids_.begin(), end, id) - ids_.begin());
}

std::string FixedCanvas::DescribeOps() const {
  Compact();
  std::string text;
  for (const DrawOp& op : ops_) text += Describe(op) + "\n";
  return text;
}

forms::CanvasFactory FixedCanvasFactory() {
  return [] { return std::make_unique<FixedCanvas>(); };
}

}  // namespace ferlan::headless
