// A host outside the project: shows a dialog without a screen, and presses OK.
#include <cstdio>

#include <orx/Button.h>
#include <orx/CCommonMapDialogs.h>
#include <orx/Form.h>
#include <orx/HeadlessDesktop.h>
#include <orx/PageFactory.h>
#include <orx/SampleMap.h>

struct PressOK final : orx::DesktopHook {
  void ModalRunning(const orx::Modal& modal) override {
    if (!modal.ShownForm) return;
    ++Shown;
    dynamic_cast<orx::Button&>(*modal.ShownForm->Find("cmdOK")).UserPress();
  }
  int Shown = 0;
};

int main(int, char** argv) {
  PressOK hook;
  orx::headless::HeadlessDesktop desktop;
  desktop.Hook(&hook);
  orx::pages::PageFactory pages;
  const auto map = orx::maplibrary::MakeSampleMap(argv[1]);
  orx::CCommonMapDialogs dialogs(desktop, pages);
  const auto result = dialogs.ShowProperties(map->Layer(1));
  std::printf("%d dialog, result %d\n", hook.Shown, static_cast<int>(result));
  return hook.Shown == 1 && result == 0 ? 0 : 1;
}
