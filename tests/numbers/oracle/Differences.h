// The differences between numbers/ and the platform that are meant, and a count of what they explain.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orx::numbers::oracle {

/// One reason to differ. `Example` is a case of it on its own.
template <typename Case>
struct Difference {
  std::string Name;
  std::function<bool(const Case&)> Explains;
  Case Example;
};

/// Compares cases, each with `Differs()` and `ToText()`. A difference that no reason explains is a failure, and so is a
/// reason that explains none of the differences found: it would hide what nobody has looked at.
template <typename Case>
class Differences {
 public:
  explicit Differences(std::vector<Difference<Case>> reasons)
      : mReasons(std::move(reasons)), mCounts(mReasons.size()) {}

  void Compare(const Case& found) {
    ++mCompared;
    if (!found.Differs()) return;
    for (std::size_t i = 0; i < mReasons.size(); ++i) {
      if (!mReasons[i].Explains(found)) continue;
      ++mCounts[i];
      return;
    }
    if (++mUnexplained <= kShown) ADD_FAILURE() << "No reason to differ: " << found.ToText();
  }

  void ExpectAllExplained(std::size_t leastCompared) const {
    EXPECT_EQ(mUnexplained, 0U);
    EXPECT_GE(mCompared, leastCompared);
    for (std::size_t i = 0; i < mReasons.size(); ++i) {
      const auto& [name, explains, example] = mReasons[i];
      EXPECT_GT(mCounts[i], 0U) << name << " explains no difference";
      EXPECT_TRUE(example.Differs() && explains(example)) << name << " does not explain " << example.ToText();
      testing::Test::RecordProperty(name, static_cast<int>(mCounts[i]));
    }
    testing::Test::RecordProperty("Compared", static_cast<int>(mCompared));
  }

 private:
  static constexpr std::size_t kShown = 20;

  std::vector<Difference<Case>> mReasons;
  std::vector<std::size_t> mCounts;
  std::size_t mCompared = 0;
  std::size_t mUnexplained = 0;
};

}  // namespace orx::numbers::oracle
