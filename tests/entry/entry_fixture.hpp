// The fixture of the typed-entry suites: a headless session, stored forms
// built byte by byte, and one field on line 2 entered by a real call of
// ModDT or ModD while a key script plays through the event loop.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

#include "support/session_test.hpp"

namespace ferlan::testing {

// A stored form from its bytes: one byte a 16-bit character.
inline String Bytes(std::initializer_list<int> bytes) {
  String s;
  for (int b : bytes) s.push_back(static_cast<char16_t>(b));
  return s;
}

// The stored form a host keeps for a number, least significant byte first.
inline String StoredInteger(Integer v) {
  const auto bits = static_cast<std::uint16_t>(v);
  return Bytes({bits & 0xFF, bits >> 8});
}
inline String StoredSingle(Single v) {
  const auto bits = std::bit_cast<std::uint32_t>(v);
  String s;
  for (int i = 0; i < 4; ++i) s.push_back(static_cast<char16_t>((bits >> (8 * i)) & 0xFF));
  return s;
}
inline String StoredDouble(Double v) {
  const auto bits = std::bit_cast<std::uint64_t>(v);
  String s;
  for (int i = 0; i < 8; ++i) s.push_back(static_cast<char16_t>((bits >> (8 * i)) & 0xFF));
  return s;
}

// A text for failure messages: printable characters as they are, others as
// <hex>.
inline std::string Show(const String& s) {
  std::ostringstream out;
  for (char16_t c : s) {
    if (c >= 0x20 && c < 0x7F) {
      out << static_cast<char>(c);
    } else {
      out << '<' << std::hex << static_cast<int>(c) << std::dec << '>';
    }
  }
  return out.str();
}

// What the caller holds after an entry.
struct EntryResult {
  String m;
  Integer tr = -1;
  Long ordre = -1;
};

// How the field is called, beyond its value and code: roots, width in
// columns, entry mode.
struct Call {
  String roots = u"[]";
  Integer lc = 10;
  String ims = u"F";
};

class EntryTest : public SessionTest {
 protected:
  // The field: line 2 (LT 624), column 5 (CT 525), 10 columns wide.
  static constexpr Integer kL = 2;
  static constexpr Single kLT = 624;
  static constexpr Integer kC = 5;
  static constexpr Single kCT = 525;
  static constexpr Integer kLC = 10;  // as Call's default

  // Queues `keys`, then runs ModDT on the field with `stored` and `typ`.
  // Env.SaisieOK is True on return in every case.
  EntryResult Enter(const String& stored, const String& typ, std::string_view keys,
                    const Call& call = {}) {
    if (!keys.empty()) Type(keys);
    EntryResult r{stored, -1, -1};
    KySaisie{}.ModDT(r.m, typ, kLT, kC, kCT, call.lc, r.tr, 0, 0, call.ims, &r.ordre, call.roots);
    EXPECT_TRUE(Env().SaisieOK) << "Env.SaisieOK after the entry";
    return r;
  }

  // The texts Dessin.Texte drew since the last look, without the editor's
  // "Curseur" status line, each with its colour.
  struct Drawn {
    String text;
    Single x = 0;
    Single y = 0;
    Long colour = 0;
  };
  std::vector<Drawn> DrawnTexts() {
    std::vector<Drawn> texts;
    for (const headless::DessinCall& call : session.Recorder().TakeLog()) {
      if (call.name != "Texte") continue;
      Drawn d{VariantToString(call.args[2]), static_cast<Single>(VariantToDouble(call.args[0])),
              static_cast<Single>(VariantToDouble(call.args[1])),
              static_cast<Long>(VariantToDouble(call.args[3]))};
      if (d.text.starts_with(u"Curseur ")) continue;
      texts.push_back(d);
    }
    return texts;
  }
};

}  // namespace ferlan::testing
