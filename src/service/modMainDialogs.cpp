#include "service/modMainDialogs.h"

#include <filesystem>
#include <fstream>
#include <vector>

#include "datadialogs/frmDataClassify.h"
#include "datadialogs/frmDataOptions.h"
#include "datadialogs/frmManageColors.h"
#include "griddialogs/frmDataIsoline.h"
#include "griddialogs/frmDataShade.h"
#include "hostobjects/ErrorTrap.h"
#include "service/modDialog.h"

namespace orx::modMain {
namespace {

IFileCheck* theFileCheck = nullptr;

bool CanBeRead(const std::string& path) {
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  return std::filesystem::is_regular_file(file) && std::ifstream(file, std::ios::binary).good();
}

/// Shows a dialog for a data object, which `give` hands over to it.
template <class DataForm, class Give>
bool ShowDataDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language, Give&& give,
                    bool (DataForm::*isChanged)() const) noexcept {
  ErrorTrap trap;
  if (!data) {
    trap.Step([&] { desktop.Beep(); });
    return false;
  }
  std::shared_ptr<DataForm> form;
  trap.Step([&] { form = std::make_shared<DataForm>(desktop); });
  if (!form) return false;
  trap.Step([&] { form->Language(language); });
  trap.Step([&] { give(*form); });
  trap.Step([&] { form->Show(); });
  bool isDirty = false;
  trap.Step([&] { isDirty = ((*form).*isChanged)(); });
  changed = isDirty;
  trap.Step([&] { form->Unload(); });
  return isDirty;
}

}  // namespace

void FileCheck(IFileCheck* check) {
  theFileCheck = check;
}

void BrowseDataFile(Desktop& desktop, std::uintptr_t ownerHandle, ILanguage* language, BrowsedFile& file) noexcept {
  file.Cancel = true;
  std::vector<std::string> files;
  if (!modDialog::ChooseFiles({desktop, ownerHandle, modDialog::FileKind::Data, language}, false, files)) return;
  ErrorTrap trap;
  trap.Step([&] { file.FileName = files.front(); });
  trap.Step([&] {
    if (theFileCheck ? theFileCheck->CanOpen(file.FileName) : CanBeRead(file.FileName)) file.Cancel = false;
  });
}

bool ShowClassifyDialog(Desktop& desktop, const ClassifyTask& task, bool& isDirty, ILanguage* language) noexcept {
  const auto give = [&](frmDataClassify& form) {
    form.SetData(task.Data, task.Minimum, task.Maximum, task.Flags, task.Text);
  };
  return ShowDataDialog(desktop, task.Data, isDirty, language, give, &frmDataClassify::IsDirty);
}

bool ShowDataOptionsDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  const auto give = [&](frmDataOptions& form) { form.Data(data); };
  return ShowDataDialog(desktop, data, changed, language, give, &frmDataOptions::IsDirty);
}

bool ShowShadeDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  const auto give = [&](frmDataShade& form) { form.ShadeObject(data); };
  return ShowDataDialog(desktop, data, changed, language, give, &frmDataShade::Changed);
}

bool ShowIsolineDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  const auto give = [&](frmDataIsoline& form) { form.IsolineObject(data); };
  return ShowDataDialog(desktop, data, changed, language, give, &frmDataIsoline::Changed);
}

void ShowDataStyleNotice(Desktop& desktop) {
  desktop.ShowMessage({"Sorry, Data Style not yet supported", "Data Style", MessageIcon::Information});
}

bool ShowColorsDialog(Desktop& desktop, ILanguage* language, OwnerWindow owner) noexcept {
  ErrorTrap trap;
  std::shared_ptr<frmManageColors> form;
  trap.Step([&] { form = std::make_shared<frmManageColors>(desktop); });
  if (!form) return false;
  trap.Step([&] { form->Language(language); });
  trap.Step([&] { form->Show(ShowMode::Modal, owner); });
  const bool isDone = !trap.IsPending();
  trap.Step([&] { form->Unload(); });
  return isDone;
}

}  // namespace orx::modMain
