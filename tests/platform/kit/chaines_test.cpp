// The list format through Chaines: round trips of awkward elements, the end
// of a list, malformed lists, and the syntax check.
#include "kit/chaines.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace ferlan::kit {
namespace {

std::string Show(const String& s) { return ToUtf8(s); }

// Every text over the characters that matter to the format, up to
// `max_length` characters.
std::vector<String> AllTexts(std::size_t max_length) {
  std::vector<String> texts = {String()};
  for (std::size_t from = 0, to = 1, length = 1; length <= max_length; ++length) {
    for (std::size_t i = from; i < to; ++i) {
      for (char16_t c : StringView(u"[],\" a")) texts.push_back(texts[i] + c);
    }
    from = std::exchange(to, texts.size());
  }
  return texts;
}

// The elements that Suivant takes until the list is "[]". Each step must
// shorten the list or end it, and Extrait must do just as Suivant.
std::vector<String> ReadAll(const String& list) {
  Chaines chaines;
  std::vector<String> got;
  String rest = list;
  while (rest != u"[]") {
    const String before = rest;
    String by_extrait = rest;
    String extracted;
    chaines.Extrait(by_extrait, extracted);
    got.push_back(chaines.Suivant(rest));
    if ((rest != u"[]" && rest.size() >= before.size()) || by_extrait != rest ||
        extracted != got.back()) {
      ADD_FAILURE() << "reading " << Show(list) << ": " << Show(before) << " became " << Show(rest)
                    << ", by Extrait " << Show(by_extrait);
      break;
    }
  }
  return got;
}

// 0 when ListeValide finds the list right, else the first wrong position.
Long WrongAt(const String& list) {
  Boolean ok = false;
  Long pos = -1;
  Chaines().ListeValide(list, ok, pos);
  return ok ? 0 : (pos == 0 ? -1 : pos);
}

TEST(ChainesTest, EveryElementComesBackExactly) {
  std::vector<String> elements = AllTexts(5);
  for (const char16_t* longer : {u"[[a],[b,c]]", u"[\"a,b\",c]", u"été à Noël", u"\t\n",
                                 u"Veuillez Taper sur Entrée pour Continuer"}) {
    elements.push_back(longer);
  }
  Chaines chaines;
  for (const String& element : elements) {
    String list = u"[]";
    for (const String& e : {String(u"first"), element, element, String(u"last")}) {
      chaines.Ajoute(list, e);
    }
    SCOPED_TRACE("element " + Show(element) + " in " + Show(list));
    ASSERT_EQ(ReadAll(list), (std::vector<String>{u"first", element, element, u"last"}));
    ASSERT_EQ(chaines.NbElements(list), 4);
    ASSERT_EQ(chaines.Element(list, 3), element);
    ASSERT_EQ(chaines.Element(list, 5), u"");
    ASSERT_EQ(WrongAt(list), 0);
    String alone = u"[]";
    chaines.Ajoute(alone, element);
    ASSERT_EQ(chaines.Suivant(alone), element);
    ASSERT_EQ(alone, u"[]");
  }
}

TEST(ChainesTest, HandWrittenAndMalformedListsReadAsWritten) {
  // The text, then the elements read from it. Blanks around a sublist or a
  // quoted text are layout; in plain text they belong to the element.
  // clang-format off
  const std::vector<std::vector<String>> cases = {
      {u"[@COL10,[NOM,Nom du client,A,30],@COULR,[DATEFAC,Date,D,,S3]]",
       u"@COL10", u"[NOM,Nom du client,A,30]", u"@COULR", u"[DATEFAC,Date,D,,S3]"},
      {u"[DATEFAC,Date,D,,S3]", u"DATEFAC", u"Date", u"D", u"", u"S3"},
      {u"[ [B,Total : ] , \"x, y\" ,a b ]", u"[B,Total : ]", u"x, y", u"a b "},
      {u"", u""}, {u"[", u""}, {u"abc", u"abc"}, {u"[a,b", u"a", u"b"}, {u"[a,]", u"a"},
      {u"[,a]", u"", u"a"}, {u"[a]]", u"a]"}, {u"[[a]", u"[a"}, {u"[\"abc]", u"\"abc"},
      {u"[\"a\"b,c]", u"\"a\"b", u"c"}, {u"[]]", u"]"}};
  // clang-format on
  Chaines chaines;
  for (const auto& c : cases) {
    EXPECT_EQ(ReadAll(c[0]), std::vector<String>(c.begin() + 1, c.end())) << Show(c[0]);
  }
  // Texts that are no list, or an unclosed one, read as before plus one.
  const std::vector<std::vector<String>> added = {
      {u"", u"x"}, {u"[", u"", u"x"}, {u"abc", u"abc", u"x"}, {u"[a,b", u"a", u"b", u"x"}};
  for (const auto& c : added) {
    String list = c[0];
    chaines.Ajoute(list, u"x");
    EXPECT_EQ(ReadAll(list), std::vector<String>(c.begin() + 1, c.end())) << Show(c[0]);
  }
  EXPECT_EQ(chaines.Element(u"abc", 2), u"");  // a text that is no list is one element
  String empty = u"[]";
  EXPECT_EQ(chaines.Suivant(empty), u"");
  EXPECT_EQ(empty, u"[]");
}

TEST(ChainesTest, ListeValideGivesTheFirstWrongPositionWithoutRecursion) {
  // The list, then 0 when valid or the first wrong position.
  // clang-format off
  const std::vector<std::pair<String, Long>> cases = {
      {u"[]", 0}, {u"[ ]", 0}, {u"[[a],[b,[c]]]", 0}, {u"[\"a,]\",\"\"]", 0},
      {u"[ [a] , \"b\" ]", 0}, {u"", 1}, {u"a", 1}, {u" []", 1}, {u"[", 2}, {u"[a", 3},
      {u"[a]x", 4}, {u"[]]", 3}, {u"[a,,b]", 4}, {u"[,a]", 2}, {u"[a,]", 4}, {u"[a[b]]", 3},
      {u"[a\"b\"]", 3}, {u"[\"a\"b]", 5}, {u"[\"ab]", 6}, {u"[[a]b]", 5}, {u"[[a],[b]", 9}};
  // clang-format on
  for (const auto& [list, wrong_at] : cases) EXPECT_EQ(WrongAt(list), wrong_at) << Show(list);
  const String deep = String(100000, u'[') + u"a" + String(100000, u']');
  EXPECT_EQ(WrongAt(deep), 0);
  EXPECT_EQ(ReadAll(deep), std::vector<String>{deep.substr(1, deep.size() - 2)});
}

}  // namespace
}  // namespace ferlan::kit
