// The comparison itself: it fails for what is not explained and for what explains nothing.
#include "tests/numbers/oracle/Differences.h"

#include <gtest/gtest-spi.h>

namespace orx::numbers::oracle {
namespace {

struct Pair {
  int Ours = 0;
  int Theirs = 0;

  bool Differs() const { return Ours != Theirs; }
  std::string ToText() const { return std::to_string(Ours) + " and " + std::to_string(Theirs); }
};

std::vector<Difference<Pair>> TheyRoundDown() {
  return {{"TheyRoundDown", [](const Pair& pair) { return pair.Theirs == pair.Ours - 1; }, Pair{5, 4}}};
}

TEST(NumbersOracleDifferences, AnExplainedDifferencePasses) {
  Differences<Pair> differences(TheyRoundDown());
  differences.Compare({3, 2});
  differences.Compare({3, 3});
  differences.ExpectAllExplained(2);
}

TEST(NumbersOracleDifferences, ADifferenceWithoutAReasonFails) {
  Differences<Pair> differences(TheyRoundDown());
  EXPECT_NONFATAL_FAILURE(differences.Compare({3, 4}), "No reason to differ: 3 and 4");
}

TEST(NumbersOracleDifferences, AReasonThatExplainsNothingFails) {
  Differences<Pair> differences(TheyRoundDown());
  differences.Compare({3, 3});
  EXPECT_NONFATAL_FAILURE(differences.ExpectAllExplained(1), "TheyRoundDown explains no difference");
}

TEST(NumbersOracleDifferences, TooFewComparisonsFail) {
  Differences<Pair> differences({});
  differences.Compare({3, 3});
  EXPECT_NONFATAL_FAILURE(differences.ExpectAllExplained(2), "mCompared");
}

}  // namespace
}  // namespace orx::numbers::oracle
