// The window's key translation, without a display: SDL's numbers in, the
// platform's KeyDown and KeyPress numbers out.
#include "window/key_map.hpp"

#include <SDL.h>
#include <gtest/gtest.h>

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
  for (const auto& [key, vk] : {std::pair{SDLK_RETURN, 13}, {SDLK_KP_ENTER, 13},
                                {SDLK_BACKSPACE, 8},     {SDLK_TAB, 9},
                                {SDLK_ESCAPE, 27},       {SDLK_PAGEUP, 33},
                                {SDLK_PAGEDOWN, 34},     {SDLK_END, 35},
                                {SDLK_HOME, 36},         {SDLK_LEFT, 37},
                                {SDLK_UP, 38},           {SDLK_RIGHT, 39},
                                {SDLK_DOWN, 40},         {SDLK_INSERT, 45},
                                {SDLK_DELETE, 46},       {SDLK_F1, 112},
                                {SDLK_F12, 123},         {SDLK_LSHIFT, 16},
                                {SDLK_RCTRL, 17},        {SDLK_LALT, 18},
                                {SDLK_CAPSLOCK, 20},     {SDLK_KP_5, 101}}) {
    EXPECT_EQ(VirtualKeyOf(key, 0), vk) << SDL_GetKeyName(key);
  }
  EXPECT_EQ(VirtualKeyOf(SDLK_QUOTE, SDL_SCANCODE_APOSTROPHE), 222);
  EXPECT_EQ(VirtualKeyOf(0, SDL_SCANCODE_APOSTROPHE), 222);  // a dead key
  EXPECT_EQ(VirtualKeyOf(SDLK_MINUS, SDL_SCANCODE_MINUS), 189);
  EXPECT_EQ(VirtualKeyOf(SDLK_VOLUMEUP, SDL_SCANCODE_VOLUMEUP), std::nullopt);
}

TEST(KeyMapTest, ModifiersGiveTheShiftMaskWithAltGrAsCtrlAlt) {
  EXPECT_EQ(ShiftMaskOf(KMOD_NONE), 0);
  EXPECT_EQ(ShiftMaskOf(KMOD_NUM | KMOD_CAPS), 0);
  EXPECT_EQ(ShiftMaskOf(KMOD_RSHIFT), 1);
  EXPECT_EQ(ShiftMaskOf(KMOD_LCTRL), 2);
  EXPECT_EQ(ShiftMaskOf(KMOD_LALT), 4);
  EXPECT_EQ(ShiftMaskOf(KMOD_LCTRL | KMOD_LSHIFT), 3);
  EXPECT_EQ(ShiftMaskOf(KMOD_RALT), 6);
  EXPECT_EQ(ShiftMaskOf(KMOD_MODE | KMOD_SHIFT), 7);
  EXPECT_TRUE(TextReachesKeyPress(0));
  EXPECT_TRUE(TextReachesKeyPress(1));
  EXPECT_TRUE(TextReachesKeyPress(6));
  EXPECT_FALSE(TextReachesKeyPress(2));
  EXPECT_FALSE(TextReachesKeyPress(4));
  EXPECT_FALSE(TextReachesKeyPress(5));
}

TEST(KeyMapTest, KeysThatTypeByThemselves) {
  EXPECT_EQ(ControlKeyPress(13, 0), 13);
  EXPECT_EQ(ControlKeyPress(13, 2), 10);
  EXPECT_EQ(ControlKeyPress(8, 0), 8);
  EXPECT_EQ(ControlKeyPress(8, 2), 127);
  EXPECT_EQ(ControlKeyPress(9, 1), 9);
  EXPECT_EQ(ControlKeyPress(27, 0), 27);
  EXPECT_EQ(ControlKeyPress(66, 2), 2);   // Ctrl+B
  EXPECT_EQ(ControlKeyPress(67, 3), 3);   // Ctrl+Shift+C
  EXPECT_EQ(ControlKeyPress(90, 2), 26);
  EXPECT_EQ(ControlKeyPress(219, 2), 27);
  EXPECT_EQ(ControlKeyPress(66, 0), std::nullopt);  // text brings the letter
  EXPECT_EQ(ControlKeyPress(67, 4), std::nullopt);  // Alt gives no character
  EXPECT_EQ(ControlKeyPress(13, 4), std::nullopt);
  EXPECT_EQ(ControlKeyPress(37, 2), std::nullopt);
  EXPECT_EQ(ControlKeyPress(112, 0), std::nullopt);
  EXPECT_EQ(ControlKeyPress(49, 2), std::nullopt);
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
