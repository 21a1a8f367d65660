// Which texts are numbers, and which numbers they are.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "numbers/Numbers.h"

namespace orx::numbers {
namespace {

const Separators kGerman{",", ".", "€"};
const Separators kFrench{",", "\u202F", "€"};
const Separators kSwiss{".", "\u2019", "CHF"};
const Separators kDanish{",", ".", "kr."};

struct Reading {
  std::string Text;
  double Value;
};

void ExpectReadings(const std::vector<Reading>& readings, const Separators& separators = {}) {
  for (const auto& [text, value] : readings) {
    const std::optional<double> found = ToDouble(text, separators);
    ASSERT_TRUE(found.has_value()) << "\"" << text << "\" is a number";
    EXPECT_EQ(*found, value) << "\"" << text << "\"";
    EXPECT_TRUE(IsNumeric(text, separators));
  }
}

void ExpectNoNumbers(const std::vector<std::string>& texts, const Separators& separators = {}) {
  for (const std::string& text : texts) {
    EXPECT_EQ(ToDouble(text, separators), std::nullopt) << "\"" << text << "\" is no number";
    EXPECT_FALSE(IsNumeric(text, separators));
  }
}

TEST(NumbersToDouble, PlainDecimals) {
  ExpectReadings({{"0", 0}, {"7", 7}, {"007", 7}, {"12.5", 12.5}, {".5", 0.5}, {"5.", 5}, {"0.1", 0.1}});
}

TEST(NumbersToDouble, TextsWithoutDigitsAreNoNumbers) {
  ExpectNoNumbers({"", " ", "\t \u00A0", ".", "-", "+", "()", "$", "E", "E5", ".E5", "-.", "$-"});
}

TEST(NumbersToDouble, WordsAreNoNumbers) {
  ExpectNoNumbers({"abc", "inf", "-inf", "Infinity", "nan", "NaN", "1.#INF", "5x", "x5", "1 2", "0x10", "1f", "True"});
}

TEST(NumbersToDouble, BlanksAroundAreIgnored) {
  ExpectReadings(
      {{" 5", 5}, {"5 ", 5}, {"\t5\t", 5}, {"\u00A05\u00A0", 5}, {"\u202F5", 5}, {"\r\n5\r\n", 5}, {"- 5", -5}});
}

TEST(NumbersToDouble, OneSignStandsInFrontOrBehind) {
  ExpectReadings({{"-5", -5}, {"+5", 5}, {"5-", -5}, {"5+", 5}, {"5 -", -5}, {"-.5", -0.5}});
  ExpectNoNumbers({"--5", "+-5", "-5-", "+5+", "5--", "5-5"});
}

TEST(NumbersToDouble, ParenthesesMeanNegative) {
  ExpectReadings({{"(5)", -5}, {" ( 5.25 ) ", -5.25}, {"($5)", -5}, {"$(5)", -5}, {"(5$)", -5}});
  ExpectNoNumbers({"(5", "5)", "((5))", "(-5)", "-(5)", "(5)-", ")5("});
}

TEST(NumbersToDouble, NegativeZeroKeepsItsSign) {
  EXPECT_TRUE(std::signbit(ToDouble("-0").value_or(1)));
}

TEST(NumbersToDouble, GroupsOfThreeDigits) {
  ExpectReadings({{"1,234", 1234}, {"12,345,678", 12345678}, {"0,001", 1}, {"-1,234.5", -1234.5}, {"1,234E2", 123400}});
}

TEST(NumbersToDouble, AGroupSeparatorAnywhereElseIsRefused) {
  ExpectNoNumbers({"1,5", "1,23", "1,2345", "1234,567", "1,234,56", ",123", "1,", "1,,234", "1,234,", "1.234,567",
                   "1.5,000", "1E1,000", ","});
}

TEST(NumbersToDouble, ExponentsWithEOrD) {
  ExpectReadings({{"1E5", 1e5}, {"1e+5", 1e5}, {"1.5E-7", 1.5e-7}, {"2D3", 2000}, {"2d-3", 0.002}, {"1E005", 1e5}});
  ExpectReadings({{"1E2-", -100}, {"(1E2)", -100}});
  ExpectNoNumbers({"1E", "1E+", "1D-", "1E 5", "1E1.5", "1E5E5", "1 E5"});
}

TEST(NumbersToDouble, NumbersBeyondADoubleAreRefused) {
  const std::string manyNines(400, '9');
  ExpectReadings({{"1.7976931348623157E308", std::numeric_limits<double>::max()}});
  ExpectNoNumbers({"1E309", "-1E309", "1.8E308", "1D99999999999999999999", "0.0001E400"});
  ExpectNoNumbers({manyNines, manyNines + "E-5"});
}

TEST(NumbersToDouble, NumbersTooSmallForADoubleAreZero) {
  ExpectReadings({{"1E-400", 0}, {"1D-99999999999999999999", 0}, {"0.1E-330", 0}, {"123456E-400", 0}, {"0E999", 0}});
  ExpectReadings({{"0." + std::string(400, '0') + "1", 0}, {"0." + std::string(400, '0') + "1E5", 0}});
  ExpectReadings({{"4.94065645841247E-324", std::numeric_limits<double>::denorm_min()}});
}

TEST(NumbersToDouble, HexadecimalAndOctalAreTwosComplement) {
  ExpectReadings(
      {{"&H10", 16}, {"&hff", 255}, {"&H7FFF", 32767}, {"&H8000", -32768}, {"&HFFFF", -1}, {"&H10000", 65536}});
  ExpectReadings({{"&H7FFFFFFF", 2147483647}, {"&H80000000", -2147483648.0}, {"&HFFFFFFFF", -1}, {" &H1 ", 1}});
  ExpectReadings({{"&O17", 15}, {"&o177777", -1}, {"&O37777777777", -1}, {"&O100000", -32768}});
}

TEST(NumbersToDouble, BrokenHexadecimalAndOctalAreRefused) {
  ExpectNoNumbers(
      {"&H", "&O", "&", "&HG", "&O8", "&H-1", "-&H1", "&H1.5", "&H100000000", "&O40000000000", "& H1", "H10"});
}

TEST(NumbersToDouble, ACurrencySignStandsInFrontOrBehind) {
  ExpectReadings(
      {{"$5", 5}, {"5$", 5}, {"$ 5", 5}, {"-$5", -5}, {"$-5", -5}, {"5$-", -5}, {"5-$", -5}, {"$1,234.50", 1234.5}});
  ExpectNoNumbers({"$$5", "$5$", "5$5", "€5"});
}

TEST(NumbersToDouble, CurrencyNamesOfLettersAndDots) {
  ExpectReadings({{"kr. 5", 5}, {"5 kr.", 5}, {"-1.234,5 kr.", -1234.5}}, kDanish);
  ExpectReadings({{"5D2", 500}, {"5DKK", 5}}, {".", ",", "DKK"});
}

TEST(NumbersToDouble, ADecimalComma) {
  ExpectReadings({{"1,5", 1.5}, {"1.234,5", 1234.5}, {",5", 0.5}, {"5,", 5}, {"5 €", 5}, {"1,5E3", 1500}}, kGerman);
  ExpectNoNumbers({"1.5", "1,234.5", "1,2,3"}, kGerman);
}

TEST(NumbersToDouble, ANoBreakSpaceGroups) {
  ExpectReadings({{"1\u202F234,5", 1234.5}, {"1\u00A0234", 1234}, {"1 234 567", 1234567}, {"1 234 ", 1234}}, kFrench);
  ExpectReadings({{"1 234 €", 1234}, {"- 1 234", -1234}, {"1 234 -", -1234}}, kFrench);
  ExpectNoNumbers({"1 2", "1  234", "1 23 456", "1.5"}, kFrench);
}

TEST(NumbersToDouble, AnApostropheGroups) {
  ExpectReadings({{"1\u2019234.5", 1234.5}, {"1'234'567", 1234567}, {"CHF 5", 5}}, kSwiss);
  ExpectNoNumbers({"1'23", "'123", "1,234"}, kSwiss);
}

TEST(NumbersToDouble, ALocaleWithoutGroupsAndCurrencyTakesNone) {
  const Separators bare{".", "", ""};
  ExpectReadings({{"1234.5", 1234.5}}, bare);
  ExpectNoNumbers({"1,234", "$5"}, bare);
}

TEST(NumbersToDouble, TheDecimalSeparatorWinsOverAnEqualGroupSeparator) {
  ExpectReadings({{"1.234", 1.234}}, {".", ".", ""});
}

}  // namespace
}  // namespace orx::numbers
