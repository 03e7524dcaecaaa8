// The list format through Chaines: round trips of awkward elements, the end
// of a list, malformed lists, and the syntax check.
#include "kit/chaines.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ferlan::kit {
namespace {

std::string Show(const String& s) { return ToUtf8(s); }

// Every text over a small alphabet of the characters that matter, up to
// `max_length` characters.
std::vector<String> AllTexts(StringView alphabet, std::size_t max_length) {
  std::vector<String> texts = {String()};
  std::vector<String> last = texts;
  for (std::size_t length = 1; length <= max_length; ++length) {
    std::vector<String> next;
    for (const String& t : last) {
      for (char16_t c : alphabet) next.push_back(t + c);
    }
    texts.insert(texts.end(), next.begin(), next.end());
    last = std::move(next);
  }
  return texts;
}

// Every removal shortens the list or ends it, and Suivant, NbElements and
// Element agree on what the list holds.
void ExpectReadsConsistently(const String& list) {
  Chaines chaines;
  const Long count = chaines.NbElements(list);
  String rest = list;
  Long taken = 0;
  while (rest != u"[]") {
    const String before = rest;
    const String element = chaines.Suivant(rest);
    ++taken;
    ASSERT_TRUE(rest == u"[]" || rest.size() < before.size())
        << "list " << Show(list) << ": " << Show(before) << " became " << Show(rest);
    ASSERT_EQ(element, chaines.Element(list, taken)) << "list " << Show(list) << " #" << taken;
    ASSERT_LE(taken, Len(list) + 1) << "list " << Show(list);
  }
  EXPECT_EQ(count, taken) << "list " << Show(list);
  EXPECT_EQ(chaines.Element(list, taken + 1), u"") << "list " << Show(list);
}

TEST(ChainesTest, AwkwardElementsComeBackExactly) {
  const std::vector<String> awkward = {
      u"",        u" ",          u"  ",        u"a",          u" a ",         u"[",
      u"]",       u"[]",         u"[a]",       u"[a,b]",      u"[[a],[b,c]]", u",",
      u"\"",      u"\"\"",       u"a,b",       u"[a",         u"a]",          u"x\"y",
      u"[ [a] ]", u" [a] ",      u"[a] ",      u" [a]",       u"[\"a\"]",     u"\"a\"",
      u"[,]",     u"[\"]",       u"[a,,b]",    u"été à Noël", u"\t\n",       u"[\"a,b\",c]",
      u"@COL10",  u"Veuillez Taper sur Entrée pour Continuer"};
  Chaines chaines;
  for (const String& element : awkward) {
    String list = u"[]";
    chaines.Ajoute(list, u"first");
    chaines.Ajoute(list, element);
    chaines.Ajoute(list, element);
    chaines.Ajoute(list, u"last");
    SCOPED_TRACE("element " + Show(element) + " in " + Show(list));
    Boolean ok = false;
    Long pos = -1;
    chaines.ListeValide(list, ok, pos);
    EXPECT_TRUE(ok) << "wrong at " << pos;
    EXPECT_EQ(chaines.NbElements(list), 4);
    EXPECT_EQ(chaines.Element(list, 2), element);
    EXPECT_EQ(chaines.Element(list, 3), element);
    String rest = list;
    EXPECT_EQ(chaines.Suivant(rest), u"first");
    String e;
    chaines.Extrait(rest, e);
    EXPECT_EQ(e, element);
    EXPECT_EQ(chaines.Suivant(rest), element);
    EXPECT_EQ(chaines.Suivant(rest), u"last");
    EXPECT_EQ(rest, u"[]");

    String alone = u"[]";
    chaines.Ajoute(alone, element);
    EXPECT_EQ(chaines.Suivant(alone), element);
    EXPECT_EQ(alone, u"[]");
  }
}

TEST(ChainesTest, EveryShortTextRoundTripsAsAnElement) {
  Chaines chaines;
  for (const String& element : AllTexts(u"[],\" a", 5)) {
    String list = u"[]";
    chaines.Ajoute(list, element);
    chaines.Ajoute(list, element);
    String rest = list;
    ASSERT_EQ(chaines.Suivant(rest), element) << Show(list);
    ASSERT_EQ(chaines.Suivant(rest), element) << Show(list);
    ASSERT_EQ(rest, u"[]") << Show(list);
    Boolean ok = false;
    Long pos = 0;
    chaines.ListeValide(list, ok, pos);
    ASSERT_TRUE(ok) << Show(list) << " wrong at " << pos;
  }
}

TEST(ChainesTest, HandWrittenListsReadAsTheHostMeansThem) {
  Chaines chaines;
  String one = u"[Veuillez Taper sur Entrée pour Continuer]";
  EXPECT_EQ(chaines.NbElements(one), 1);
  EXPECT_EQ(chaines.Suivant(one), u"Veuillez Taper sur Entrée pour Continuer");
  EXPECT_EQ(one, u"[]");

  String screen =
      u"[@COL10,[NOM,Nom du client,A,30],[CODE,Code,I0,5,ML],@COULR,"
      u"[DATEFAC,Date de facture,D,,S3],[TOTAL,Total,D2,12,,C,20,S]]";
  std::vector<String> elements;
  while (screen != u"[]") elements.push_back(chaines.Suivant(screen));
  const std::vector<String> expected = {u"@COL10",
                                        u"[NOM,Nom du client,A,30]",
                                        u"[CODE,Code,I0,5,ML]",
                                        u"@COULR",
                                        u"[DATEFAC,Date de facture,D,,S3]",
                                        u"[TOTAL,Total,D2,12,,C,20,S]"};
  EXPECT_EQ(elements, expected);

  // Positions left empty by hand read as empty texts.
  String field = u"[DATEFAC,Date de facture,D,,S3]";
  EXPECT_EQ(chaines.Element(field, 4), u"");
  EXPECT_EQ(chaines.Element(field, 5), u"S3");

  // Blanks around a sublist or a quoted text are layout; in plain text they
  // belong to the element.
  String spaced = u"[ [B,Total : ] , \"x, y\" ,a b ]";
  EXPECT_EQ(chaines.Suivant(spaced), u"[B,Total : ]");
  EXPECT_EQ(chaines.Suivant(spaced), u"x, y");
  EXPECT_EQ(chaines.Suivant(spaced), u"a b ");
  EXPECT_EQ(spaced, u"[]");
}

TEST(ChainesTest, EmptyListStaysEmptyAndPositionsBeyondGiveEmptyText) {
  Chaines chaines;
  String empty = u"[]";
  EXPECT_EQ(chaines.Suivant(empty), u"");
  EXPECT_EQ(empty, u"[]");
  EXPECT_EQ(chaines.NbElements(u"[]"), 0);
  const String list = u"[a,b]";
  EXPECT_EQ(chaines.Element(list, 0), u"");
  EXPECT_EQ(chaines.Element(list, -1), u"");
  EXPECT_EQ(chaines.Element(list, 2), u"b");
  EXPECT_EQ(chaines.Element(list, 3), u"");
  EXPECT_EQ(chaines.Element(u"[]", 1), u"");
}

TEST(ChainesTest, MalformedListsShortenUntilEmpty) {
  struct Case {
    String list;
    std::vector<String> elements;
  };
  const std::vector<Case> cases = {
      {u"", {u""}},
      {u"abc", {u"abc"}},
      {u"a,b", {u"a,b"}},
      {u"[", {u""}},
      {u"[a", {u"a"}},
      {u"[a,b", {u"a", u"b"}},
      {u"[a,]", {u"a"}},
      {u"[,a]", {u"", u"a"}},
      {u"[a]]", {u"a]"}},
      {u"[[a]", {u"[a"}},
      {u"[\"abc]", {u"\"abc"}},
      {u"[\"a\"b,c]", {u"\"a\"b", u"c"}},
      {u"]", {u"]"}},
      {u"[]]", {u"]"}},
  };
  Chaines chaines;
  for (const Case& c : cases) {
    String rest = c.list;
    std::vector<String> got;
    while (rest != u"[]" && got.size() <= c.list.size()) got.push_back(chaines.Suivant(rest));
    EXPECT_EQ(got, c.elements) << "list " << Show(c.list);
    ExpectReadsConsistently(c.list);
  }
}

TEST(ChainesTest, EveryShortTextReadsConsistently) {
  for (const String& list : AllTexts(u"[],\" a", 6)) {
    ExpectReadsConsistently(list);
    if (HasFatalFailure()) return;
  }
}

TEST(ChainesTest, AjouteOnTextsThatAreNotListsKeepsWhatTheyRead) {
  Chaines chaines;
  struct Case {
    String list;
    std::vector<String> elements;
  };
  const std::vector<Case> cases = {
      {u"", {u"x"}},
      {u"abc", {u"abc", u"x"}},
      {u"[a", {u"a", u"x"}},
      {u"[", {u"", u"x"}},
  };
  for (const Case& c : cases) {
    String list = c.list;
    chaines.Ajoute(list, u"x");
    std::vector<String> got;
    while (list != u"[]") got.push_back(chaines.Suivant(list));
    EXPECT_EQ(got, c.elements) << "list " << Show(c.list);
  }
}

TEST(ChainesTest, ListeValideGivesTheFirstWrongPosition) {
  struct Case {
    String list;
    bool ok;
    Long pos;
  };
  const std::vector<Case> cases = {
      {u"[]", true, 0},
      {u"[a]", true, 0},
      {u"[ ]", true, 0},
      {u"[a,b]", true, 0},
      {u"[[a],[b,[c]]]", true, 0},
      {u"[\"a,]\",\"\"]", true, 0},
      {u"[ [a] , \"b\" ]", true, 0},
      {u"[Veuillez Taper sur Entrée pour Continuer]", true, 0},
      {u"", false, 1},
      {u"a", false, 1},
      {u" []", false, 1},
      {u"[", false, 2},
      {u"[a", false, 3},
      {u"[a]x", false, 4},
      {u"[]]", false, 3},
      {u"[a,,b]", false, 4},
      {u"[,a]", false, 2},
      {u"[a,]", false, 4},
      {u"[a[b]]", false, 3},
      {u"[a\"b\"]", false, 3},
      {u"[\"a\"b]", false, 5},
      {u"[\"ab]", false, 6},
      {u"[[a]b]", false, 5},
      {u"[[a],[b]", false, 9},
  };
  Chaines chaines;
  for (const Case& c : cases) {
    Boolean ok = !c.ok;
    Long pos = -1;
    const String before = c.list;
    chaines.ListeValide(c.list, ok, pos);
    EXPECT_EQ(ok, c.ok) << Show(c.list);
    if (!c.ok) {
      EXPECT_EQ(pos, c.pos) << Show(c.list);
    }
    EXPECT_EQ(c.list, before);
  }
}

TEST(ChainesTest, DeepNestingReadsWithoutRecursion) {
  const std::size_t depth = 100000;
  String deep(depth, u'[');
  deep += u'a';
  deep += String(depth, u']');
  Chaines chaines;
  Boolean ok = false;
  Long pos = 0;
  chaines.ListeValide(deep, ok, pos);
  EXPECT_TRUE(ok);
  String rest = deep;
  EXPECT_EQ(chaines.Suivant(rest), deep.substr(1, deep.size() - 2));
  EXPECT_EQ(rest, u"[]");
}

}  // namespace
}  // namespace ferlan::kit
