// A host outside the project: shows a dialog without a screen, presses OK, and chooses a file.
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include <orx/Button.h>
#include <orx/CCommonMapDialogs.h>
#include <orx/Form.h>
#include <orx/HeadlessDesktop.h>
#include <orx/PageFactory.h>
#include <orx/Requests.h>
#include <orx/SampleMap.h>

struct Answers final : orx::DesktopHook {
  void ModalRunning(const orx::Modal& modal) override {
    if (modal.ShownFiles) orx::PutAnswer(*modal.ShownFiles, File.parent_path().string(), {File.filename().string()});
    if (!modal.ShownForm) return;
    ++Shown;
    dynamic_cast<orx::Button&>(*modal.ShownForm->Find("cmdOK")).UserPress();
  }
  std::filesystem::path File;
  int Shown = 0;
};

int main(int, char** argv) {
  Answers hook;
  hook.File = argv[1];
  orx::headless::HeadlessDesktop desktop;
  desktop.Hook(&hook);
  orx::pages::PageFactory pages;
  const auto map = orx::maplibrary::MakeSampleMap(argv[1]);
  orx::CCommonMapDialogs dialogs(desktop, pages);
  const auto result = dialogs.ShowProperties(map->Layer(1));
  std::vector<std::string> files;
  const bool isChosen = dialogs.ShowAddData(0, false, files) && files == std::vector{hook.File.string()};
  std::printf("%d dialog, result %d, %s\n", hook.Shown, static_cast<int>(result), isChosen ? "file chosen" : "no file");
  return hook.Shown == 1 && result == 0 && isChosen ? 0 : 1;
}
