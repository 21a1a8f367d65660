// Code points as UTF-8.
#include "maplibrary/CharacterText.h"

#include <gtest/gtest.h>

#include <limits>

namespace orx::test {
namespace {

using maplibrary::CharacterText;

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

}  // namespace
}  // namespace orx::test
