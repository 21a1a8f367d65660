#include "dialogframe/Help.h"

#include "forms/Desktop.h"
#include "forms/Form.h"
#include "forms/ProcessWide.h"
#include "hostobjects/ErrorTrap.h"

namespace orx::modMain {
namespace {

ProcessWide<std::string>& HelpFileOfTheProcess() {
  static ProcessWide<std::string> file;
  return file;
}

}  // namespace

std::string HelpFile() {
  return HelpFileOfTheProcess().Get();
}

void HelpFile(const std::string& value) {
  HelpFileOfTheProcess().Set(value);
}

void ShowHelpFinder(Form& form, const std::string& helpFile, std::int32_t helpContextId) {
  Desktop& desktop = form.OwnerDesktop();
  if (helpFile.empty()) {
    desktop.ShowMessage(
        {"Unable to display Help. There is no Help associated with this project.", "Help", MessageIcon::Information});
    return;
  }
  ErrorTrap trap;
  trap.Step([&] { desktop.ShowHelp({form.NativeHandle(), helpFile, kHelpFinder, helpContextId}); });
}

}  // namespace orx::modMain
