// A recursive-descent reader of expressions, its nesting bounded so that no
// input can exhaust the stack, and a stack machine for its postfix form.
#include "kit/calcul.hpp"

#include <cmath>
#include <vector>

#include "kit/decimal_text.hpp"

namespace ferlan::kit {

namespace {

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// expression := term { ("+" | "-") term }
// term       := factor { ("*" | "/") factor }
// factor     := ("-" | "+") factor | number | "(" expression ")"
// number     := digits ["." {digit}] | "." digits
class Reader {
 public:
  explicit Reader(StringView text) : text_(text) {}

  bool Read(String& forme) {
    if (!Expression() || (SkipBlanks(), pos_ != text_.size())) return false;
    forme = std::move(out_);
    return true;
  }

 private:
  void SkipBlanks() {
    while (pos_ < text_.size() && text_[pos_] == u' ') ++pos_;
  }

  bool Take(char16_t c) {
    SkipBlanks();
    if (pos_ < text_.size() && text_[pos_] == c) {
      ++pos_;
      return true;
    }
    return false;
  }

  void Emit(StringView token) {
    if (!out_.empty()) out_ += u' ';
    out_ += token;
  }

  bool Expression() {
    if (!Term()) return false;
    for (;;) {
      if (Take(u'+')) {
        if (!Term()) return false;
        Emit(u"+");
      } else if (Take(u'-')) {
        if (!Term()) return false;
        Emit(u"-");
      } else {
        return true;
      }
    }
  }

  bool Term() {
    if (!Factor()) return false;
    for (;;) {
      if (Take(u'*')) {
        if (!Factor()) return false;
        Emit(u"*");
      } else if (Take(u'/')) {
        if (!Factor()) return false;
        Emit(u"/");
      } else {
        return true;
      }
    }
  }

  bool Factor() {
    if (++depth_ > Calcul::kMaxNesting) return false;
    bool ok = false;
    if (Take(u'-')) {
      ok = Factor();
      if (ok) Emit(u"neg");
    } else if (Take(u'+')) {
      ok = Factor();
    } else if (Take(u'(')) {
      ok = Expression() && Take(u')');
    } else {
      ok = Number();
    }
    --depth_;
    return ok;
  }

  bool Number() {
    SkipBlanks();
    const std::size_t start = pos_;
    std::size_t digits = 0;
    while (pos_ < text_.size() && IsDigit(text_[pos_])) ++pos_, ++digits;
    if (pos_ < text_.size() && text_[pos_] == u'.') {
      ++pos_;
      while (pos_ < text_.size() && IsDigit(text_[pos_])) ++pos_, ++digits;
    }
    if (digits == 0) return false;
    Emit(text_.substr(start, pos_ - start));
    return true;
  }

  StringView text_;
  std::size_t pos_ = 0;
  int depth_ = 0;
  String out_;
};

// A number token as Analyse writes it: digits with at most one point.
bool IsNumberToken(StringView token) {
  std::size_t digits = 0;
  std::size_t points = 0;
  for (char16_t c : token) {
    if (IsDigit(c)) {
      ++digits;
    } else if (c == u'.') {
      ++points;
    } else {
      return false;
    }
  }
  return digits > 0 && points <= 1;
}

}  // namespace

Boolean Calcul::Analyse(const String& Texte, String& Forme) { return Reader(Texte).Read(Forme); }

Boolean Calcul::Evalue(const String& Forme, String& Resultat) {
  std::vector<Double> stack;
  std::size_t pos = 0;
  while (pos < Forme.size()) {
    std::size_t end = Forme.find(u' ', pos);
    if (end == String::npos) end = Forme.size();
    const StringView token = StringView(Forme).substr(pos, end - pos);
    pos = end + 1;
    if (token.empty()) continue;

    if (token == u"neg") {
      if (stack.empty()) return false;
      stack.back() = -stack.back();
      continue;
    }
    if (token.size() == 1 && (token[0] == u'+' || token[0] == u'-' || token[0] == u'*' ||
                              token[0] == u'/')) {
      if (stack.size() < 2) return false;
      const Double b = stack.back();
      stack.pop_back();
      const Double a = stack.back();
      Double r = 0;
      switch (token[0]) {
        case u'+': r = a + b; break;
        case u'-': r = a - b; break;
        case u'*': r = a * b; break;
        default:
          if (b == 0) return false;
          r = a / b;
      }
      if (!std::isfinite(r)) return false;
      stack.back() = r;
      continue;
    }
    if (!IsNumberToken(token)) return false;
    try {
      stack.push_back(Val(token));
    } catch (const PlatformError&) {
      return false;  // too many digits for a Double
    }
  }
  if (stack.size() != 1) return false;
  Resultat = ShortText(stack.back(), 15);
  return true;
}

}  // namespace ferlan::kit
