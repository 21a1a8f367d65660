#include "openers/DataFile.h"

#include <fstream>
#include <vector>

#include "dialogframe/FileChoice.h"
#include "hostobjects/ErrorTrap.h"
#include "text/Paths.h"

namespace orx::modMain {
namespace {

IFileCheck* theFileCheck = nullptr;

bool CanBeRead(const std::string& path) {
  const std::optional<std::filesystem::path> file = PathFrom(path);
  return file && std::filesystem::is_regular_file(*file) && std::ifstream(*file, std::ios::binary).good();
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
