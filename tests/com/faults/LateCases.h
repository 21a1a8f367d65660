// Every dialog as a script opens it: by the names of the service's members, with objects known by theirs.
#pragma once

#include <vector>

#include "tests/com/faults/LateHost.h"
#include "tests/support/DialogCases.h"

namespace orx::com::test {

/// What a call has come to.
struct LateOutcome {
  HRESULT Code = S_OK;
  /// What the caller is told of a failure.
  std::string Description;
  /// Of a call that has not failed.
  std::int32_t Result = 0;
};

struct LateCase {
  const char* Name;
  /// Shows the dialog, owned by that window of the host.
  std::function<LateOutcome(LateHost&, HWND owner)> Show;
  orx::test::DialogRules Rules = {};
  /// The result of a dialog in which something was done.
  std::int32_t Done = -1;
};

const std::vector<LateCase>& LateCases();

}  // namespace orx::com::test
