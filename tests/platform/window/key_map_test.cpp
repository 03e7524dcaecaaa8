// The window's key translation, without a display: SDL's numbers in, the
// platform's KeyDown and KeyPress numbers out.
#include "window/key_map.hpp"

#include <SDL.h>
#include <gtest/gtest.h>

#include <array>

namespace ferlan::window {
namespace {

TEST(KeyMapTest, VirtualKeysFollowTheLayoutForLettersAndThePositionElsewhere) {
  EXPECT_EQ(VirtualKeyOf(SDLK_a, SDL_SCANCODE_Q), 65);  // A on an AZERTY keyboard
  EXPECT_EQ(VirtualKeyOf(SDLK_z, SDL_SCANCODE_Z), 90);
  EXPECT_EQ(VirtualKeyOf(SDLK_7, SDL_SCANCODE_7), 55);
  // AZERTY's digit row types é, &: the number is the digit's.
  EXPECT_EQ(VirtualKeyOf(0xE9, SDL_SCANCODE_2), 50);
  EXPECT_EQ(VirtualKeyOf('&', SDL_SCANCODE_1), 49);
  EXPECT_EQ(VirtualKeyOf(0x0444, SDL_SCANCODE_A), 65);  // Cyrillic ef on the A key
  // Keys with no character go by their name, the keypad's 5 too.
  for (const auto& [key, vk] : {std::pair{SDLK_KP_ENTER, 13}, {SDLK_PAGEDOWN, 34},
                                {SDLK_F12, 123}, {SDLK_RCTRL, 17}, {SDLK_KP_5, 101}}) {
    EXPECT_EQ(VirtualKeyOf(key, 0), vk) << SDL_GetKeyName(key);
  }
  EXPECT_EQ(VirtualKeyOf(SDLK_QUOTE, SDL_SCANCODE_APOSTROPHE), 222);
  EXPECT_EQ(VirtualKeyOf(0, SDL_SCANCODE_APOSTROPHE), 222);  // a dead key
  EXPECT_EQ(VirtualKeyOf(SDLK_MINUS, SDL_SCANCODE_MINUS), 189);
  EXPECT_EQ(VirtualKeyOf(SDLK_VOLUMEUP, SDL_SCANCODE_VOLUMEUP), std::nullopt);
}

TEST(KeyMapTest, ModifiersGiveTheShiftMaskWithAltGrAsCtrlAlt) {
  for (const auto& [mod, mask] : {std::pair(KMOD_NUM | KMOD_CAPS, 0), {KMOD_LCTRL | KMOD_LSHIFT, 3},
                                  {KMOD_LALT, 4}, {KMOD_RALT, 6}, {KMOD_MODE | KMOD_SHIFT, 7}}) {
    EXPECT_EQ(ShiftMaskOf(static_cast<unsigned>(mod)), mask) << mod;
  }
  // Shift and AltGr type text; Ctrl or Alt alone do not.
  for (const Integer mask : {0, 1, 6}) EXPECT_TRUE(TextReachesKeyPress(mask)) << mask;
  for (const Integer mask : {2, 4, 5}) EXPECT_FALSE(TextReachesKeyPress(mask)) << mask;
}

TEST(KeyMapTest, KeysThatTypeByThemselves) {
  // KeyCode, Shift, KeyPress (0: none, the text brings the letter or Alt gives nothing).
  const std::array<int, 3> cases[] = {{13, 0, 13}, {13, 2, 10}, {8, 2, 127}, {9, 1, 9},
                                      {66, 2, 2},  {67, 3, 3},  {219, 2, 27}, {66, 0, 0},
                                      {67, 4, 0},  {13, 4, 0},  {37, 2, 0},  {49, 2, 0}};
  for (const auto& [code, shift, press] : cases) {
    EXPECT_EQ(ControlKeyPress(code, shift).value_or(0), press) << code << "," << shift;
  }
}

TEST(KeyMapTest, TextGoesThroughTheCodePage) {
  EXPECT_EQ(KeyPressCodesOf("a"), std::vector<Integer>{97});
  EXPECT_EQ(KeyPressCodesOf("\xC3\xA9"), std::vector<Integer>{233});        // é
  EXPECT_EQ(KeyPressCodesOf("\xE2\x82\xAC"), std::vector<Integer>{128});    // €
  EXPECT_EQ(KeyPressCodesOf("\xC5\x82"), std::vector<Integer>{0x142});      // ł: not delivered
  EXPECT_EQ(KeyPressCodesOf("\xE4\xB8\xAD"), std::vector<Integer>{0x4E2D});  // 中
  EXPECT_EQ(KeyPressCodesOf("\xE9\xAB\x98"), std::vector<Integer>{kBeyondCodePage});  // 高
  EXPECT_EQ(KeyPressCodesOf("\xF0\x9F\x98\x80"), std::vector<Integer>{kBeyondCodePage});
  EXPECT_EQ(KeyPressCodesOf("\xC3\xA7\xC3\xA0"), (std::vector<Integer>{231, 224}));  // çà
  EXPECT_TRUE(KeyPressCodesOf("").empty());
}

}  // namespace
}  // namespace ferlan::window
