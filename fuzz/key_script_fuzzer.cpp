// Key scripts under arbitrary bytes. Invariants checked: parsing either
// gives items or refuses with error 5 and nothing else; every key item has
// a KeyDown or a KeyPress; a refused script queues nothing.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz_text.hpp"
#include "headless/key_script.hpp"

using ferlan::fuzz::Fail;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view script(reinterpret_cast<const char*>(data), size);
  ferlan::headless::KeyScript queue;
  try {
    for (const ferlan::headless::KeyItem& item : ferlan::headless::KeyScript::Parse(script)) {
      if (item.kind == ferlan::headless::KeyItem::Kind::Key && !item.has_down && !item.has_press) {
        Fail("a key item with neither KeyDown nor KeyPress");
      }
    }
  } catch (const ferlan::PlatformError& e) {
    if (e.Number() != 5) Fail("a refusal other than error 5");
    try {
      queue.Append(script);
    } catch (const ferlan::PlatformError&) {
      if (!queue.Empty()) Fail("a refused script queued items");
      return 0;
    }
    Fail("Append took a script that Parse refused");
  }
  return 0;
}
