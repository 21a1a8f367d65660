// Seeded users without any sense, in every dialog and on every desktop. A session that breaks a rule is told with its
// seed and its shortest beginning that breaks one.
//   ORX_MONKEY_TOTAL=n   as many acts, in sessions of some dozens
//   ORX_MONKEY_SEED=n    the seed of the first session; the others follow
//   ORX_MONKEY_ACTS=n    only that session, with the first n acts, telling what is done
#include <cstdlib>
#include <iostream>
#include <optional>

#include "tests/files/FilesTest.h"
#include "tests/monkey/Session.h"

namespace orx::test {
namespace {

std::optional<int> Wanted(const char* variable) {
  const char* const text = std::getenv(variable);
  return text ? std::optional(std::atoi(text)) : std::nullopt;
}

class MonkeySessions : public DesktopTest {
 protected:
  MonkeySessions() {
    for (const char* const name : {"a.shp", "b.bil"}) folder.Add(name);
  }
  ~MonkeySessions() override { desktop().Hook(nullptr); }

  /// As many as take less than a minute.
  int Total() {
    if (const auto wanted = Wanted("ORX_MONKEY_TOTAL")) return *wanted;
    if (testDesktop().IsQuick()) return 50000;
    return testDesktop().IsSlow() ? 5000 : 20000;
  }

  /// The outcome of the shortest beginning of a session that breaks a rule as the whole session has.
  SessionOutcome Shortest(std::uint32_t seed, const SessionOutcome& whole) {
    for (int limit = 0; limit < whole.Acts; ++limit)
      if (SessionOutcome outcome = session.Run(seed, limit); !outcome.Complaint.empty()) return outcome;
    return whole;
  }

  static std::string Told(std::uint32_t seed, const SessionOutcome& outcome) {
    std::string text = outcome.Dialog + ": " + outcome.Complaint + "\nORX_MONKEY_SEED=" + std::to_string(seed) +
                       " ORX_MONKEY_ACTS=" + std::to_string(outcome.Acts) + "\n";
    for (const std::string& line : outcome.Story) text += "  " + line + "\n";
    return text;
  }

  TestFolder folder;
  Session session{testDesktop(), {folder.Path(), {"a.shp", "b.bil"}}};
};

TEST_F(MonkeySessions, LeaveDesktopAndHostInOrder) {
  const auto first = static_cast<std::uint32_t>(Wanted("ORX_MONKEY_SEED").value_or(1));
  if (const auto acts = Wanted("ORX_MONKEY_ACTS")) {
    session.Listener = &std::cout;
    const SessionOutcome outcome = session.Run(first, *acts);
    EXPECT_EQ("", outcome.Complaint) << outcome.Dialog;
    return;
  }
  const int total = Total();
  int done = 0;
  int objects = 0;
  std::uint32_t seed = first;
  for (; done < total; ++seed) {
    // The last line of a program that dies or hangs.
    std::cerr << "monkey " << seed << " " << testDesktop().NativeObjects() << std::endl;
    const SessionOutcome outcome = session.Run(seed, Session::kMostActs);
    if (!outcome.Complaint.empty()) FAIL() << Told(seed, Shortest(seed, outcome));
    done += outcome.Acts;
    // What is made once and kept has been made by then.
    if (done < total / 2) objects = testDesktop().NativeObjects();
  }
  EXPECT_LE(testDesktop().NativeObjects(), objects);
  std::cout << done << " acts in " << seed - first << " sessions, " << objects << " native objects\n";
}

}  // namespace
}  // namespace orx::test
