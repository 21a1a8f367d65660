// The DLL in the long run: what is made and let go of leaves nothing.
#include <gtest/gtest.h>

#include <windows.h>

// After windows.h, which it needs.
#include <psapi.h>

#include "tests/com/support/Server.h"

namespace orx::com::test {
namespace {

constexpr int kRounds = 100'000;

struct Holdings {
  SIZE_T Bytes = 0;
  DWORD Handles = 0;

  static Holdings Now() {
    Holdings now;
    PROCESS_MEMORY_COUNTERS_EX memory = {};
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof(memory));
    now.Bytes = memory.PrivateUsage;
    GetProcessHandleCount(GetCurrentProcess(), &now.Handles);
    return now;
  }
};

TEST(Rounds, AHundredThousandObjectsLaterNothingHasGrown) {
  const Apartment apartment;
  const Server server;
  const auto make = [&](const CLSID& id) { EXPECT_TRUE(server.Create<IDispatch>(id)); };
  const auto makeMany = [&](int rounds) {
    for (int round = 0; round < rounds / 2; ++round) {
      make(__uuidof(::CCommonMapDialogs));
      make(__uuidof(::CCommonProgressDialog));
    }
  };
  makeMany(kRounds / 10);
  const Holdings before = Holdings::Now();
  makeMany(kRounds);
  const Holdings after = Holdings::Now();
  EXPECT_EQ(after.Handles, before.Handles);
  // A single byte for each of them would be more.
  EXPECT_LT(after.Bytes, before.Bytes + kRounds);
  EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST(Rounds, TheDllMayBeLoadedAndLetGoOfAgainAndAgain) {
  const Apartment apartment;
  for (int round = 0; round < 100; ++round) {
    const Server server;
    EXPECT_TRUE(server.Create<IDispatch>(__uuidof(::CCommonMapDialogs)));
  }
  EXPECT_FALSE(IsServerLoaded());
}

}  // namespace
}  // namespace orx::com::test
