// The defaults of the method table against those of the C++ declarations:
// both are written by hand, so every built method's declaration is read from
// include/ferlan/kysaisie.hpp and each default compared with the table's.
// Methods added later are covered without any edit here.
#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "ferlan/method_table.hpp"

namespace ferlan {
namespace {

struct Parameter {
  std::string declaration;           // "Integer* Code", "const String& Coul"
  std::optional<std::string> value;  // the text after '=', trimmed
};

std::string Trim(std::string_view s) {
  const auto first = s.find_first_not_of(" \t\n");
  if (first == std::string_view::npos) return {};
  const auto last = s.find_last_not_of(" \t\n");
  return std::string(s.substr(first, last - first + 1));
}

std::string ClassBody() {
  std::ifstream file(FERLAN_SOURCE_DIR "/include/ferlan/kysaisie.hpp");
  std::stringstream text;
  text << file.rdbuf();
  const std::string all = text.str();
  const auto start = all.find("class KySaisie {");
  return start == std::string::npos ? std::string() : all.substr(start);
}

// The parameters of `name`'s declaration, or nullopt when there is none.
std::optional<std::vector<Parameter>> Declaration(const std::string& body,
                                                  const std::string& name) {
  for (std::size_t at = body.find(name + "("); at != std::string::npos;
       at = body.find(name + "(", at + 1)) {
    if (at == 0 || body[at - 1] != ' ') continue;  // part of a longer name
    std::vector<Parameter> params;
    std::string current;
    int depth = 0;
    bool quoted = false;
    for (std::size_t i = at + name.size() + 1; i < body.size(); ++i) {
      const char c = body[i];
      if (c == '"') quoted = !quoted;
      if (!quoted && (c == '(' || c == '{')) ++depth;
      if (!quoted && (c == ')' || c == '}') && depth-- == 0) {
        if (!Trim(current).empty()) params.push_back({Trim(current), {}});
        break;
      }
      if (!quoted && depth == 0 && c == ',') {
        params.push_back({Trim(current), {}});
        current.clear();
        continue;
      }
      current += c;
    }
    for (Parameter& p : params) {
      const auto eq = p.declaration.find('=');
      if (eq == std::string::npos) continue;
      p.value = Trim(p.declaration.substr(eq + 1));
      p.declaration = Trim(p.declaration.substr(0, eq));
    }
    return params;
  }
  return std::nullopt;
}

// The C++ default text that the table's value stands for, for a parameter
// declared as `declaration` (an optional output is a pointer left Empty).
std::string CppDefault(const std::string& declaration, const Variant& table) {
  if (declaration.find('*') != std::string::npos) {
    return std::holds_alternative<Empty>(table) ? "nullptr" : "(an optional output not Empty)";
  }
  if (const auto* object = std::get_if<ObjectRef>(&table))
    return *object ? "(an object)" : "nullptr";
  if (const auto* b = std::get_if<Boolean>(&table)) return *b ? "true" : "false";
  if (const auto* s = std::get_if<String>(&table)) return "u\"" + ToUtf8(*s) + "\"";
  if (std::holds_alternative<Empty>(table)) return "(Empty)";
  return ToUtf8(NumberText(VariantToDouble(table)));
}

TEST(MethodDefaultsTest, TableDefaultsAgreeWithTheDeclarations) {
  const std::string body = ClassBody();
  ASSERT_FALSE(body.empty()) << "class KySaisie not found in kysaisie.hpp";
  int checked = 0;
  for (const MethodInfo& m : MethodTable()) {
    if (m.arity == 0 && m.defaults.empty()) continue;  // not built, or no parameters
    const std::string name(m.name);
    const auto params = Declaration(body, name);
    ASSERT_TRUE(params) << name << ": no declaration found";
    ASSERT_EQ(params->size(), m.arity) << name << ": parameter count";
    ASSERT_LE(m.defaults.size(), m.arity) << name;
    const std::size_t first = m.arity - m.defaults.size();
    for (std::size_t i = 0; i < m.arity; ++i) {
      const Parameter& p = (*params)[i];
      if (i < first) {
        // Left out of the table's defaults: required, or an optional
        // output that the table leaves out as nullptr.
        const bool optional_out = p.declaration.find('*') != std::string::npos;
        EXPECT_TRUE(!p.value || (optional_out && *p.value == "nullptr"))
            << name << " parameter " << i + 1 << " (" << p.declaration
            << ") has a C++ default the table does not give";
        continue;
      }
      ASSERT_TRUE(p.value) << name << " parameter " << i + 1 << " (" << p.declaration
                           << ") is optional in the table only";
      EXPECT_EQ(CppDefault(p.declaration, m.defaults[i - first]), *p.value)
          << name << " parameter " << i + 1 << " (" << p.declaration << ")";
      ++checked;
    }
  }
  EXPECT_GT(checked, 0);
}

}  // namespace
}  // namespace ferlan
