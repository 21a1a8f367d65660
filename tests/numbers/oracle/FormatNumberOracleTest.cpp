// Numbers as patterns show them, compared with the platform.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/numbers/oracle/Differences.h"
#include "tests/numbers/oracle/Oracle.h"
#include "tests/numbers/oracle/Values.h"

namespace orx::numbers::oracle {
namespace {

/// The platform writes all digits of a number in front of the decimal separator into a place of fixed size.
constexpr int kLargestPower = 30;
constexpr int kLargestScientificPower = 300;

/// The platform knows the pattern by another name.
const std::string kGeneral = "General";
const std::string kPlatformsGeneral = "General Number";
const std::vector<std::string> kPatterns{kGeneral,  "0",         "0.0",         "0.00",      "0.000",      "0.0000",
                                         "0.00000", "0.0000000", "0.000000000", "#,###,##0", "#,###,##0.0"};

struct Showing {
  double Value = 0;
  std::string Pattern;
  const Locale* Where = nullptr;
  std::string Ours;
  std::string Theirs;

  bool Differs() const { return Ours != Theirs; }
  std::string ToText() const {
    return ShortestText(Value) + " as \"" + Pattern + "\" is " + Ours + " here and " + Theirs + " there";
  }
};

Showing Show(double value, const std::string& pattern, const Locale& locale) {
  return {value, pattern, &locale, numbers::FormatNumber(value, pattern, locale.Marks),
          FormatNumber(value, pattern == kGeneral ? kPlatformsGeneral : pattern, locale).value_or("nothing")};
}

/// A text of the German locale as the English one has it.
std::string InEnglish(std::string text) {
  for (char& c : text) c = c == ',' ? '.' : c == '.' ? ',' : c;
  return text;
}

/// Each reason with what it explains. The first that fits counts.
std::vector<Difference<Showing>> ShowingDifferences() {
  return {
      // Nobody has entered a negative zero, and it only raises questions.
      {"NoMinusAtZero",
       [](const Showing& showing) {
         return showing.Theirs == "-" + showing.Ours && showing.Ours.find_first_of("123456789") == std::string::npos;
       },
       Show(-0.001, "0.00", English())},
      // The platform drops the one that is carried into a place in front of all digits.
      {"OneHalfAndMoreIsOne",
       [](const Showing& showing) {
         return std::fabs(showing.Value) >= 0.5 && std::fabs(showing.Value) < 1 &&
                showing.Ours == (showing.Value < 0 ? "-1" : "1") && showing.Theirs == (showing.Value < 0 ? "-0" : "0");
       },
       Show(0.5, "0", English())},
      // The platform first writes such a number with a point, which it then reads as a group separator. The English
      // locale tells whether ours is right.
      {"PowersWithADecimalComma",
       [](const Showing& showing) {
         const std::string read = TextOf(showing.Value, *showing.Where).value_or("");
         return showing.Where == &German() && read.find('E') != std::string::npos &&
                read.find('.') != std::string::npos &&
                InEnglish(showing.Ours) == numbers::FormatNumber(showing.Value, showing.Pattern, English().Marks);
       },
       Show(1.5e20, "0", German())},
  };
}

TEST(NumbersFormatNumberOracle, PatternsShowWhatThePlatformShows) {
  Differences<Showing> differences(ShowingDifferences());
  const std::vector<double> values = Values(kLargestPower);
  for (const Locale* locale : {&English(), &German()}) {
    for (const std::string& pattern : kPatterns)
      for (const double value : values) differences.Compare(Show(value, pattern, *locale));
    for (const double value : Values(kLargestScientificPower)) differences.Compare(Show(value, "0.0000E+000", *locale));
  }
  differences.ExpectAllExplained(100'000);
}

}  // namespace
}  // namespace orx::numbers::oracle
