// Runs the tests on a desktop of their own, so that programs which run side by side do not take each other's focus.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

int main(int argc, char** argv) {
  const std::string name = "OrvexTest" + std::to_string(GetCurrentProcessId());
  const HDESK desktop = CreateDesktopA(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
  if (desktop) SetThreadDesktop(desktop);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
