// One dialog from its opening to its end, with a monkey in front of it: the same every time for the same seed.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/DialogCases.h"
#include "tests/support/User.h"

namespace orx::test {

struct SessionOutcome {
  /// The dialog that was opened, and the number of acts in it.
  std::string Dialog;
  int Acts = 0;
  /// The first rule that was broken, empty for none.
  std::string Complaint;
  std::vector<std::string> Story;
};

class Session {
 public:
  /// Files are picked from that folder, under any of those names.
  Session(TestDesktop& screen, Picked files) : mScreen(screen), mFiles(std::move(files)) {}

  /// With at most `limit` acts. The outcome is the same for as many as were done, and a shorter one for less.
  SessionOutcome Run(std::uint32_t seed, int limit) const;

  /// Is told what is done while it is done, for sessions that do not come to their end.
  std::ostream* Listener = nullptr;

  /// No session has more acts, and none fewer unless told.
  static constexpr int kMostActs = 119;
  static constexpr int kFewestActs = 20;

 private:
  TestDesktop& mScreen;
  Picked mFiles;
};

}  // namespace orx::test
