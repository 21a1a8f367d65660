// The fixture of tests that watch the progress window of a host.
#pragma once

#include <chrono>
#include <thread>

#include "forms/ScreenUpdates.h"
#include "pickers/frmProgress.h"
#include "service/CCommonProgressDialog.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {

class ProgressTest : public DesktopTest {
 protected:
  /// The window, while it is shown modeless.
  frmProgress& Window() { return dynamic_cast<frmProgress&>(*desktop().OpenForms().back()); }
  bool IsShown() { return !desktop().OpenForms().empty(); }

  /// Gives what is kept back the time to come to the screen, as a host does that handles events.
  void Settle() {
    std::this_thread::sleep_for(ScreenUpdates::kPace + std::chrono::milliseconds(10));
    desktop().ProcessPendingEvents();
  }
  Seen SeeSettled(Control& control) {
    Settle();
    return user.See(control);
  }

  std::unique_ptr<CCommonProgressDialog> progress = std::make_unique<CCommonProgressDialog>(desktop());
};

}  // namespace orx::test
