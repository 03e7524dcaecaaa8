// A clipboard that holds plain text only, kept in the process: the headless
// front-end's, and the fallback of a front-end without a system clipboard.
#pragma once

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

class Clipboard final : public ferlan::Clipboard {
 public:
  // Format 1, plain text, is the only one.
  static constexpr Long kText = 1;

  void Clear() override { text_.clear(); }
  // Errors: 5 for a format other than text.
  void SetText(const String& text, Long format = kText) override;
  // Errors: 5 for a format other than text.
  String GetText(Long format = kText) override;

 private:
  String text_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
