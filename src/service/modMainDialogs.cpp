#include "service/modMainDialogs.h"

#include <filesystem>
#include <fstream>
#include <vector>

#include "hostobjects/ErrorTrap.h"
#include "service/modDialog.h"

namespace orx::modMain {
namespace {

IFileCheck* theFileCheck = nullptr;

bool CanBeRead(const std::string& path) {
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  return std::filesystem::is_regular_file(file) && std::ifstream(file, std::ios::binary).good();
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

}  // namespace orx::modMain
