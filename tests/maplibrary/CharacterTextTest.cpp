// Code points as UTF-8.
#include "text/CharacterText.h"

#include <gtest/gtest.h>

#include <limits>

namespace orx::test {
namespace {

TEST(MapLibraryCharacterText, EncodesEachLength) {
  EXPECT_EQ("A", CharacterText('A'));
  EXPECT_EQ("ß", CharacterText(0xDF));
  EXPECT_EQ("€", CharacterText(0x20AC));
  EXPECT_EQ("😀", CharacterText(0x1F600));
}

TEST(MapLibraryCharacterText, WhatIsNoCharacterIsEmpty) {
  for (const std::int32_t code : {-1, 0, 0x1F, 0x7F, 0x9F, 0xD800, 0xDFFF, 0x110000,
                                  std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()})
    EXPECT_EQ("", CharacterText(code)) << code;
}

TEST(MapLibraryFontCode, IsThatOfTheCodePage) {
  for (const auto& [character, code] : {std::pair<std::int32_t, int>{'A', 65},
                                        {0xE4, 0xE4},
                                        {0x20AC, 0x80},
                                        {0x178, 0x9F},
                                        {0x2022, 0x95},
                                        {0xF041, 0x41},
                                        {0xF0FF, 255}})
    EXPECT_EQ(code, FontCode(character)) << character;
}

TEST(MapLibraryFontCode, TheLastCodeStandsForAllOtherCharacters) {
  for (const std::int32_t character : {0x25B2, 0x2713, 0x1F600, 0xF100, 0x80}) EXPECT_EQ(255, FontCode(character));
}

TEST(MapLibraryFontCode, GoesBackToItsCharacter) {
  for (int code = 0; code < 256; ++code) {
    const std::int32_t character = CharacterOf(code, code == 'A' ? 'B' : 'A');
    if (IsCharacter(character) && character != 'A') {
      EXPECT_EQ(code, FontCode(character)) << code;
    }
    EXPECT_EQ(0xF000 + code, CharacterOf(code, 0xF043)) << code;
  }
}

TEST(MapLibraryFontCode, TheCodeThatStandsForACharacterIsThatCharacterStill) {
  for (const std::int32_t character : {0x25B2, 0x1F600, 0xFF, 0xF0FF, 0x41, 0xF041})
    EXPECT_EQ(character, CharacterOf(FontCode(character), character));
  EXPECT_EQ(0xFF, CharacterOf(255, 'A'));
}

TEST(MapLibraryFontCode, CodesWithoutACharacterLeaveTheOneBefore) {
  for (const std::int32_t code : {0, 7, 0x1F, 0x7F, 0x81, 0x9D, -1, 256})
    EXPECT_EQ('A', CharacterOf(code, 'A')) << code;
}

}  // namespace
}  // namespace orx::test
