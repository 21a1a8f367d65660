// Texts as numbers, compared with the platform.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "tests/numbers/oracle/Differences.h"
#include "tests/numbers/oracle/Oracle.h"
#include "tests/numbers/oracle/Texts.h"

namespace orx::numbers::oracle {
namespace {

struct Reading {
  std::string Text;
  const Locale* Where = nullptr;
  std::optional<double> Ours;
  std::optional<double> Theirs;

  bool Differs() const { return Ours != Theirs; }
  std::string ToText() const {
    std::ostringstream out;
    out.precision(17);
    out << '"' << Text << "\" (" << Where->Id << ") is ";
    Ours ? out << *Ours : out << "no number";
    out << " here and ";
    Theirs ? out << *Theirs : out << "no number";
    out << " there";
    return out.str();
  }
};

Reading Read(const std::string& text, const Locale& locale) {
  return {text, &locale, numbers::ToDouble(text, locale.Marks), ToDouble(text, locale)};
}

bool HasAny(const std::string& text, const char* characters) {
  return text.find_first_of(characters) != std::string::npos;
}

std::string Without(std::string text, const std::string& token) {
  for (std::size_t at = text.find(token); at != std::string::npos; at = text.find(token)) text.erase(at, token.size());
  return text;
}

/// True for two numbers that are the same in 15 digits.
bool AreClose(std::optional<double> left, std::optional<double> right) {
  return left && right && std::fabs(*left - *right) <= std::fabs(*left) * 1e-15;
}

/// The text without blanks and currency signs, and with the exponents that both sides know.
std::string WithoutTrimmings(const Reading& reading) {
  std::string text = Without(Without(Without(reading.Text, " "), "\t"), reading.Where->Marks.Currency);
  std::ranges::replace(text, 'D', 'E');
  std::ranges::replace(text, 'd', 'e');
  return text;
}

bool IsSign(char c) {
  return c == '+' || c == '-';
}

/// The signs and parentheses of the text; the sign of an exponent is none of them.
std::string SignsOf(const std::string& text) {
  std::string signs;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool ofExponent = i > 0 && (text[i - 1] == 'E' || text[i - 1] == 'e');
    if (text[i] == '(' || text[i] == ')' || (IsSign(text[i]) && !ofExponent)) signs += text[i];
  }
  return signs;
}

/// The digits of the text: no signs, no parentheses, no groups.
std::string BareNumber(const Reading& reading) {
  const std::string text = Without(WithoutTrimmings(reading), reading.Where->Marks.Group);
  std::string bare;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (SignsOf(text.substr(i > 0 ? i - 1 : 0, i > 0 ? 2 : 1)).find(text[i]) == std::string::npos) bare += text[i];
  return bare;
}

bool OnlyTheirs(const Reading& reading) {
  return !reading.Ours && reading.Theirs;
}

bool IsSameNumberForThem(const Reading& reading) {
  return reading.Ours && !reading.Theirs && AreClose(reading.Ours, ToDouble(WithoutTrimmings(reading), *reading.Where));
}

bool IsSameNumberWhenBare(const Reading& reading) {
  return OnlyTheirs(reading) &&
         AreClose(numbers::ToDouble(BareNumber(reading), reading.Where->Marks), std::fabs(*reading.Theirs));
}

int CurrencySigns(const Reading& reading) {
  const std::string& currency = reading.Where->Marks.Currency;
  return static_cast<int>((reading.Text.size() - Without(reading.Text, currency).size()) / currency.size());
}

bool HasTwoExponentSigns(const std::string& text) {
  const std::size_t exponent = text.find_first_of("Ee");
  return exponent != std::string::npos && exponent + 2 < text.size() && IsSign(text[exponent + 1]) &&
         IsSign(text[exponent + 2]);
}

/// Each reason with what it explains. The first that fits counts.
std::vector<Difference<Reading>> ReadingDifferences() {
  return {
      // The platform appends the digits of such groups to those in front of the exponent: 42E1,000 is 420000.
      {"NoGroupsInExponents",
       [](const Reading& reading) {
         const std::size_t exponent = reading.Text.find_first_of("Ee");
         return OnlyTheirs(reading) && exponent != std::string::npos &&
                reading.Text.find(reading.Where->Marks.Group, exponent) != std::string::npos;
       },
       Read("42E1,000", English())},
      // The platform takes "+-" in an exponent for "-".
      {"OneSignOfAnExponent",
       [](const Reading& reading) { return OnlyTheirs(reading) && HasTwoExponentSigns(reading.Text); },
       Read("5E+-3", English())},
      // Hexadecimal and octal numbers carry their sign in their bits; the platform drops a sign that stands beside
      // them.
      {"NoSignsAtHexadecimalAndOctal",
       [](const Reading& reading) {
         return OnlyTheirs(reading) && HasAny(reading.Text, "&") && HasAny(reading.Text, "+-()");
       },
       Read("&HFF-", English())},
      // Two signs are a slip of the hand, and so is a parenthesis without its partner.
      {"OneSignOrOnePairOfParentheses",
       [](const Reading& reading) {
         const std::string signs = SignsOf(reading.Text);
         return IsSameNumberWhenBare(reading) && signs.size() > 1 && signs != "()";
       },
       Read("-(5)", English())},
      // An amount has one currency.
      {"OneCurrencySign",
       [](const Reading& reading) { return IsSameNumberWhenBare(reading) && CurrencySigns(reading) > 1; },
       Read("$5$", English())},
      // The platform ignores group separators wherever they stand, so a decimal comma would turn 1,5 into 15.
      {"GroupsHaveThreeDigits",
       [](const Reading& reading) {
         return IsSameNumberWhenBare(reading) && reading.Text.find(reading.Where->Marks.Group) != std::string::npos;
       },
       Read("1,5", English())},
      // Exponents with D stand in the files of older programs.
      {"ExponentsWithD",
       [](const Reading& reading) { return IsSameNumberForThem(reading) && HasAny(reading.Text, "dD"); },
       Read("1D5", English())},
      // The platform reads an amount with an exponent only when its currency sign stands behind.
      {"CurrencyBesideAnExponent",
       [](const Reading& reading) {
         return IsSameNumberForThem(reading) && CurrencySigns(reading) == 1 && HasAny(reading.Text, "Ee");
       },
       Read("$7E5", English())},
      // Digits are read at once and exactly; the platform multiplies step by step and loses the last bits.
      {"TheNearestDouble", [](const Reading& reading) { return AreClose(reading.Ours, reading.Theirs); },
       Read("1E308", English())},
  };
}

TEST(NumbersToDoubleOracle, TextsAreTheNumbersThatThePlatformReads) {
  Differences<Reading> differences(ReadingDifferences());
  for (const Locale* locale : {&English(), &German()}) {
    for (const auto& texts : {CombinedTexts(locale->Marks), RandomNumbers(locale->Marks, 20'000),
                              RandomMixtures(locale->Marks, 60'000), RandomRadixTexts(10'000)})
      for (const std::string& text : texts) differences.Compare(Read(text, *locale));
  }
  differences.ExpectAllExplained(100'000);
}

}  // namespace
}  // namespace orx::numbers::oracle
