// Dialogs over a settings store that fails in every call: what it does not know is not known, what it does not keep is
// lost, and nothing else comes of it.
#include <gtest/gtest.h>

#include "desktops/headless/HeadlessDesktop.h"
#include "forms/Form.h"
#include "maplibrary/model/Map.h"
#include "service/CCommonMapDialogs.h"
#include "tests/support/FailingSettings.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {
namespace {

class WithoutSettings : public testing::Test {
 protected:
  WithoutSettings() {
    desktop->Settings(std::make_unique<FailingSettings>(calls));
    service->RegistryKey("Host");
  }
  /// Opens the two dialogs that keep their placement.
  void ShowBoth(ShowMode mode) {
    service->ShowDataProperties(&object, "", mode);
    service->Show(&map, 0, "", mode);
  }

  int calls = 0;
  CallLog log;
  RecordingPages pages{log};
  PlainObject object;
  maplibrary::Map map;
  std::unique_ptr<headless::HeadlessDesktop> desktop = std::make_unique<headless::HeadlessDesktop>();
  std::unique_ptr<CCommonMapDialogs> service = std::make_unique<CCommonMapDialogs>(*desktop, pages);
};

TEST_F(WithoutSettings, DialogsOpenInTheMiddleOfTheScreen) {
  ShowBoth(ShowMode::Modeless);
  ASSERT_EQ(2u, desktop->OpenForms().size());
  EXPECT_GT(calls, 0);
  const Size screen = desktop->Metrics(BorderStyle::Fixed).Screen;
  for (const std::shared_ptr<Form>& form : desktop->OpenForms())
    EXPECT_NEAR((screen.Width - form->Width()) / 2.0, form->Left(), kTwipsPerPixel) << form->Name();
}

TEST_F(WithoutSettings, ModelessDialogsCloseForTheUser) {
  ShowBoth(ShowMode::Modeless);
  calls = 0;
  while (!desktop->OpenForms().empty()) desktop->OpenForms().front()->UserClose();
  EXPECT_GT(calls, 0);
}

TEST_F(WithoutSettings, ADesktopGoesWithItsModelessDialogs) {
  ShowBoth(ShowMode::Modeless);
  calls = 0;
  service.reset();
  desktop.reset();
  EXPECT_GT(calls, 0);
}

TEST_F(WithoutSettings, ADesktopGoesWithAFormOfTheHostThatFailsToKeepItsOwn) {
  struct KeepingForm final : Form {
    explicit KeepingForm(Desktop& desktop) : Form(desktop, "frmKeeping", {.Client = {3000, 1500}}) {}
    void Form_Unload() override { OwnerDesktop().Settings().Write({"Host", "Keeping", "Left"}, "1"); }
  };
  std::make_shared<KeepingForm>(*desktop)->Show(ShowMode::Modeless);
  desktop.reset();
  EXPECT_EQ(1, calls);
}

}  // namespace
}  // namespace orx::test
