// A key of the settings store for one test, empty before and gone afterwards, and hostile placements.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/Desktop.h"

namespace orx::test {

class KeptPlacement {
 public:
  KeptPlacement(Desktop& desktop, std::string section)
      : mDesktop(desktop),
        mSection(std::move(section)),
        // The store may be one for all programs of a user, and tests run side by side.
        mKey(std::string("Orvex Placement ") +
             testing::UnitTest::GetInstance()->current_test_info()->test_suite_name() +
             testing::UnitTest::GetInstance()->current_test_info()->name()) {
    mDesktop.Settings().Forget(mKey);
  }
  ~KeptPlacement() { mDesktop.Settings().Forget(mKey); }
  KeptPlacement(const KeptPlacement&) = delete;
  KeptPlacement& operator=(const KeptPlacement&) = delete;

  const std::string& Key() const { return mKey; }
  void Write(const std::string& name, const std::string& text) {
    mDesktop.Settings().Write({mKey, mSection, name}, text);
  }
  /// "(none)" when nothing is kept.
  std::string Read(const std::string& name) const {
    return mDesktop.Settings().Read({mKey, mSection, name}).value_or("(none)");
  }

 private:
  Desktop& mDesktop;
  std::string mSection;
  std::string mKey;
};

/// What other programs and people write into settings.
inline const std::vector<std::string> kHostileNumbers{
    "",       "abc", "-1",  "-99999", "2147483647", "-2147483648", "99999999999999999999", "1E300",
    "-1E300", "nan", "inf", "12,5",   "&H10",       "1e5x",        "\xD9\xA1\xD9\xA2"};

}  // namespace orx::test
