// The fixture of the typed-entry suites: stored forms built byte by byte, and
// one field (line 2 at LT 624, column 5 at CT 525) entered by a real call of
// ModDT while a key script plays through the event loop.
#pragma once

#include <bit>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {

// The stored form a host keeps for a number: its bytes, least significant first, one a character.
template <typename Bits, typename T>
String Stored(T v) {
  String s;
  for (std::size_t i = 0; i < sizeof(Bits); ++i)
    s.push_back(char16_t((std::bit_cast<Bits>(v) >> (8 * i)) & 0xFF));
  return s;
}
inline String StoredInteger(Integer v) { return Stored<std::uint16_t>(v); }
inline String StoredSingle(Single v) { return Stored<std::uint32_t>(v); }
inline String StoredDouble(Double v) { return Stored<std::uint64_t>(v); }

// What the caller holds after an entry: M, TR and ORDREDATE.
struct EntryResult {
  String m;
  Integer tr = -1;
  Long ordre = -1;
  friend bool operator==(const EntryResult&, const EntryResult&) = default;
  friend void PrintTo(const EntryResult& r, std::ostream* out) {
    *out << ::testing::PrintToString(r.m) << " TR " << r.tr << " ORDREDATE " << r.ordre;
  }
};

class EntryTest : public SessionTest {
 protected:
  // Queues `keys`, then runs ModDT on the field with `stored`, `typ`, the
  // roots of automatic numbers, a width in columns and an entry mode.
  EntryResult Enter(const String& stored, const String& typ, std::string_view keys,
                    const String& roots = u"[]", Integer lc = 10, const String& ims = u"F") {
    if (!keys.empty()) Type(keys);
    EntryResult r{stored};
    KySaisie{}.ModDT(r.m, typ, 624, 5, 525, lc, r.tr, 0, 0, ims, &r.ordre, roots);
    EXPECT_TRUE(Env().SaisieOK) << "Env.SaisieOK after the entry";
    return r;
  }
};

}  // namespace ferlan::testing
