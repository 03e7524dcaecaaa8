// Coloured messages under arbitrary texts, on a headless session. Invariants
// checked: measuring and drawing end; the surface's font size is what it was
// after both; the only reports are unknown colour codes; no platform error.
#include <cstddef>
#include <cstdint>

#include "ferlan/kysaisie.hpp"
#include "fuzz_text.hpp"
#include "headless/session.hpp"

using ferlan::fuzz::Fail;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ferlan::String message = ferlan::fuzz::TextOf(data, size);
  ferlan::headless::Session session;
  ferlan::KySaisie ky;
  const ferlan::Single size_before = session.Surface().Font().Size();
  try {
    const ferlan::Long width = ky.LongMesCoul(message);
    if (width < 0) Fail("a negative width");
    if (session.Surface().Font().Size() != size_before) Fail("LongMesCoul left the size changed");
    ky.AffMesCoul(3, message);
    ky.AffMesCoul(4, message, false, 0);
  } catch (const ferlan::PlatformError&) {
    Fail("a platform error on a message");
  }
  if (session.Surface().Font().Size() != size_before) Fail("AffMesCoul left the size changed");
  for (const auto& report : session.Records().reports) {
    if (report.source != u"Couleur") Fail("a report other than an unknown colour");
  }
  return 0;
}
