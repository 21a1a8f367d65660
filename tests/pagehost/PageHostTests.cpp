// The page-host dialogs through the service: what the buttons do, call by call.
#include "service/CCommonMapDialogs.h"
#include "service/modMain.h"
#include "tests/support/PageHostTest.h"

namespace orx::test {
namespace {

using PageHost = PageHostTest;

TEST_F(PageHost, OKWithoutChangesReturnsZero) {
  script.ExpectForm("frmProperties", [&](Form& form) { Press(form, "cmdOK"); });
  EXPECT_EQ(0, service.ShowProperties(&object));
}

}  // namespace
}  // namespace orx::test
