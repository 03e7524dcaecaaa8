#include <gtest/gtest.h>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan {
namespace {

using VirtualKeyboardTest = testing::SessionTest;

// Drains the buffer through the real wait, one key a Saisie.
std::vector<std::pair<Integer, String>> ReadAll() {
  std::vector<std::pair<Integer, String>> keys;
  while (State().ClavierTampon != u"[]") {
    String r;
    Integer code = 0;
    KySaisie{}.Saisie(r, &code);
    keys.emplace_back(code, code == 0 ? r : String());
  }
  return keys;
}

TEST_F(VirtualKeyboardTest, TextKeysComeOutAfterTheBlankingKeyAndBeforeHomeAndT) {
  KySaisie{}.ClavierVirtuel(u"AB", 13, true);
  const std::vector<std::pair<Integer, String>> expected = {
      {27, u""}, {0, u"A"}, {0, u"B"}, {36, u""}, {13, u""}};
  EXPECT_EQ(ReadAll(), expected);
  EXPECT_TRUE(Env().ToucheVirtuelle);
  EXPECT_EQ(State().ClavierTampon, u"[]");
}

TEST_F(VirtualKeyboardTest, EmptyTextKeyNumbersAndReplacement) {
  KySaisie k;
  k.ClavierVirtuel(u"", 0, true);
  EXPECT_EQ(ReadAll(), (std::vector<std::pair<Integer, String>>{{27, u""}, {36, u""}}));

  k.ClavierVirtuel(u"xyz", 13, false);
  k.ClavierVirtuelToucheFonction(13);  // replaces the first call entirely
  EXPECT_EQ(ReadAll(), (std::vector<std::pair<Integer, String>>{{27, u""}, {13, u""}}));

  k.ClavierVirtuel(String(1, u'\0') + u" 40.4", 13, false);  // T ignored for a key number
  EXPECT_EQ(ReadAll(), (std::vector<std::pair<Integer, String>>{{40, u""}}));

  // A text with brackets, commas and quotes travels through the list intact.
  k.ClavierVirtuel(u"[a,\"]", 0, false);
  EXPECT_EQ(ReadAll(), (std::vector<std::pair<Integer, String>>{
                           {0, u"["}, {0, u"a"}, {0, u","}, {0, u"\""}, {0, u"]"}, {36, u""}}));
}

TEST_F(VirtualKeyboardTest, KeyOutsideTheCodePageFailsAfterWhatWasAdded) {
  Env().ToucheVide = 300;
  testing::ExpectPlatformError([] { KySaisie{}.ClavierVirtuel(u"A"); }, 5);
  EXPECT_EQ(State().ClavierTampon, u"[]");
  Env().ToucheVide = 27;
  testing::ExpectPlatformError([] { KySaisie{}.ClavierVirtuelToucheFonction(256); }, 5);
  String r;
  Integer code = 0;
  KySaisie{}.Saisie(r, &code);  // the blanking key added before the failure
  EXPECT_EQ(code, 27);
}

}  // namespace
}  // namespace ferlan
