// Every dialog as a host opens it.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "tests/support/DialogHost.h"

namespace orx::test {

/// What may come of a fault in a dialog.
struct DialogRules {
  bool HasEmbeddedPages = false;
  /// Errors of a page or of the call-back leave the hourglass.
  bool MayLeaveHourglass = false;
  /// Errors may reach the host.
  bool MayThrow = false;
};

/// One dialog as a host opens it.
struct DialogCase {
  const char* Name;
  /// Shows the dialog and returns the result.
  std::function<std::int32_t(DialogHost&)> Show;
  DialogRules Rules = {};
};

const std::vector<DialogCase>& DialogCases();

}  // namespace orx::test
