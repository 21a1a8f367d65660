#include "openers/DataFile.h"

#include <exception>
#include <vector>

#include "dialogframe/FileChoice.h"
#include "forms/ErrorText.h"
#include "forms/ProcessWide.h"
#include "hostobjects/ErrorTrap.h"
#include "hostobjects/InputFile.h"

namespace orx::modMain {
namespace {

ProcessWide<IFileCheck*> theFileCheck;

class ReadableFile final : public IFileCheck {
 public:
  bool CanOpen(const std::string& path) override { return OpenFile(PathOf(path)).good(); }
};

/// Why the file cannot be opened; none when it can.
std::optional<std::string> RefusalOf(const std::string& path, IFileCheck& check) try {
  return check.CanOpen(path) ? std::nullopt : std::optional<std::string>(std::string());
} catch (...) {
  return ErrorText(std::current_exception());
}

}  // namespace

IFileCheck* FileCheck() {
  return theFileCheck.Get();
}

void FileCheck(IFileCheck* check) {
  theFileCheck.Set(check);
}

void BrowseDataFile(Desktop& desktop, std::uintptr_t ownerHandle, ILanguage* language,
                    BrowseRequest& request) noexcept {
  request.Cancel = true;
  request.Refusal.reset();
  std::vector<std::string> files;
  if (!modDialog::ChooseFiles({desktop, ownerHandle, modDialog::FileKind::Data, language}, false, files)) return;
  ReadableFile readable;
  IFileCheck* const forAll = FileCheck();
  IFileCheck* const own = request.Check ? request.Check : &readable;
  ErrorTrap trap;
  trap.Step([&] {
    request.FileName = files.front();
    request.Refusal = RefusalOf(request.FileName, forAll ? *forAll : *own);
    request.Cancel = request.Refusal.has_value();
  });
}

}  // namespace orx::modMain
