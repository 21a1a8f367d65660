// The fixture of tests with programs that know the component by its registration alone.
#pragma once

#include <gtest/gtest.h>

#include "tests/com/hosts/Program.h"
#include "tests/com/support/Server.h"

namespace orx::com::test {

class HostTest : public testing::Test {
 protected:
  HostTest() { EXPECT_EQ(server.RegisterServer(), S_OK); }
  ~HostTest() override { EXPECT_EQ(server.UnregisterServer(), S_OK); }

  /// Runs a script of the examples with the system's script host.
  static std::wstring Script(const std::wstring& name) {
    return L"cscript.exe //nologo \"" + PathOf(ORX_EXAMPLES) + L"\\script\\" + name + L"\"";
  }

  const Apartment apartment;
  const Server server;
};

}  // namespace orx::com::test
