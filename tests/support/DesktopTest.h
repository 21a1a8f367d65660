// The fixture of all tests that show something: a desktop, its user, and the script of expected dialogs.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/DialogScript.h"
#include "tests/support/User.h"

namespace orx::test {

class DesktopTest : public testing::Test {
 protected:
  DesktopTest() { desktop().Hook(&script); }
  ~DesktopTest() override { desktop().Hook(nullptr); }
  void TearDown() override { script.Verify(); }

  Desktop& desktop() { return mDesktop->Get(); }
  TestDesktop& testDesktop() { return *mDesktop; }
  /// Tests that go through all calls of a host take each of them; where an act takes its time, one in so many. A prime,
  /// so that each way to fail meets other calls.
  int CallStride() { return testDesktop().IsSlow() ? 11 : 1; }

 private:
  std::unique_ptr<TestDesktop> mDesktop = MakeTestDesktop();

 protected:
  User& user = mDesktop->Person();
  DialogScript script{user};
};

}  // namespace orx::test
