// The languages of the map library: the text file and the pseudo-language.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "hostobjects/RunTimeError.h"
#include "languages/PseudoLanguage.h"
#include "languages/TextLanguage.h"
#include "text/CharacterCount.h"

namespace orx::test {
namespace {

using languages::PseudoLanguage;
using languages::TextLanguage;

TextLanguage Parsed(const std::string& text) {
  std::istringstream stream(text);
  return {stream, "test.txt"};
}

TEST(MapLibraryLanguageFile, ReadsOnePairPerLine) {
  TextLanguage language = Parsed("&OK = &Gut\nCancel=Lassen\n");
  EXPECT_EQ(2, language.EntryCount());
  EXPECT_EQ("&Gut", language.TranslateText("&OK"));
  EXPECT_EQ("Lassen", language.TranslateText("Cancel"));
}

TEST(MapLibraryLanguageFile, SkipsByteOrderMarkCommentsAndEmptyLines) {
  TextLanguage language = Parsed("\xEF\xBB\xBF# words\r\n\r\n  # more\r\nA = B\r\n");
  EXPECT_EQ(1, language.EntryCount());
  EXPECT_EQ("B", language.TranslateText("A"));
}

TEST(MapLibraryLanguageFile, UnderstandsEscapes) {
  TextLanguage language = Parsed("\\#1 \\= 2 = a\\nb \\\\ = c\n");
  EXPECT_EQ("a\nb \\ = c", language.TranslateText("#1 = 2"));
}

TEST(MapLibraryLanguageFile, AnUnknownCaptionStaysAndAnUnknownHelpKeyIsEmpty) {
  TextLanguage language = Parsed("_HelpMapLegend = 12\n");
  EXPECT_EQ("Caption", language.TranslateText("Caption"));
  EXPECT_EQ("", language.TranslateText("_HelpLayerLabels"));
  EXPECT_EQ("12", language.TranslateText("_HelpMapLegend"));
}

TEST(MapLibraryLanguageFile, SaysHowItIsRead) {
  EXPECT_FALSE(Parsed("A = B\n").IsRightToLeft());
  EXPECT_FALSE(Parsed("_Direction = ltr\n").IsRightToLeft());
  EXPECT_TRUE(Parsed("_Direction = rtl\n").IsRightToLeft());
}

TEST(MapLibraryLanguageFile, AnEmptyFileIsAnInactiveLanguage) {
  TextLanguage language = Parsed("");
  EXPECT_FALSE(IsActive(&language));
}

struct BadFile {
  const char* Text;
  const char* Message;
};

class MapLibraryLanguageBadFile : public testing::TestWithParam<BadFile> {};

TEST_P(MapLibraryLanguageBadFile, IsRefusedWithFileAndLine) {
  try {
    Parsed(GetParam().Text);
    FAIL() << "accepted";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(kErrorFileFormat, error.Number());
    EXPECT_STREQ(GetParam().Message, error.what());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, MapLibraryLanguageBadFile,
    testing::Values(
        BadFile{"A = B\nno pair\n", "test.txt, line 2: \"key = text\" was expected."},
        BadFile{" = B\n", "test.txt, line 1: there is no key in front of the equals sign."},
        BadFile{"\n\nA =\n", "test.txt, line 3: there is no text for \"A\"."},
        BadFile{"A = B\nA = C\n", "test.txt, line 2: \"A\" is given twice."},
        BadFile{"A = \xE4\n", "test.txt, line 1: the text is not UTF-8."},
        BadFile{"A = \\t\n", "test.txt, line 1: a backslash must stand before n, =, # or another backslash."},
        BadFile{"A = B\\\n", "test.txt, line 1: a backslash must stand before n, =, # or another backslash."}));

TEST(MapLibraryLanguageFile, AMissingFileIsAnErrorThatNamesIt) {
  try {
    TextLanguage language(std::filesystem::path("no-such-language.txt"));
    FAIL() << "opened";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(kErrorNoSuchFile, error.Number());
    EXPECT_STREQ("no-such-language.txt: file not found.", error.what());
  }
}

TEST(MapLibraryLanguagePseudo, TextsAreMarkedAccentedAndLonger) {
  PseudoLanguage language;
  EXPECT_EQ("[Ñámé]", language.TranslateText("Name"));
  const std::string longText = language.TranslateText("All values are in the unit of the map");
  EXPECT_GE(CharacterCount(longText), 1.35 * 37);
  EXPECT_LE(CharacterCount(longText), 1.35 * 37 + 1);
}

TEST(MapLibraryLanguagePseudo, MnemonicsPlacesAndHelpKeysStay) {
  PseudoLanguage language;
  EXPECT_EQ("[&Námé:]", language.TranslateText("&Name:"));
  EXPECT_NE(std::string::npos, language.TranslateText("{1}: {2}").find("{1}: {2}"));
  EXPECT_EQ("", language.TranslateText("_HelpMapLegend"));
}

TEST(MapLibraryLanguagePseudo, ATranslatedTextIsNotTranslatedAgain) {
  PseudoLanguage language;
  const std::string once = language.TranslateText("Name and value");
  EXPECT_EQ(once, language.TranslateText(once));
}

}  // namespace
}  // namespace orx::test
