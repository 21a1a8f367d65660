// The choice of a data file for a page, and the check that the file has to pass.
#pragma once

#include <cstdint>
#include <string>

#include "hostobjects/IFileCheck.h"
#include "hostobjects/ILanguage.h"

namespace orx {

class Desktop;

namespace modMain {

/// The check that data files have to pass; null: that a file can be opened for reading. One for the process, not owned.
void FileCheck(IFileCheck* check);

/// What the user has chosen in BrowseDataFile.
struct BrowsedFile {
  /// UTF-8; as it was when no file was chosen.
  std::string FileName;
  /// False when a file was chosen and has passed the check.
  bool Cancel = true;
};

/// Has the user choose a data file in a dialog before the window `ownerHandle` (0: none), in that language (null:
/// none).
void BrowseDataFile(Desktop& desktop, std::uintptr_t ownerHandle, ILanguage* language, BrowsedFile& file) noexcept;

}  // namespace modMain
}  // namespace orx
