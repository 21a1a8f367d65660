// The choice of a data file for a page, and the check that the file has to pass.
#pragma once

#include <cstdint>
#include <string>

#include "hostobjects/IFileCheck.h"
#include "hostobjects/ILanguage.h"

namespace orx {

class Desktop;

namespace modMain {

/// Sets the check that data files have to pass, for the whole process; not owned. Null stands for the default: that the
/// file can be opened for reading.
void FileCheck(IFileCheck* check);

/// What the user chose in BrowseDataFile.
struct BrowsedFile {
  /// UTF-8; unchanged if no file was chosen.
  std::string FileName;
  /// False if a file was chosen and passed the check.
  bool Cancel = true;
};

/// Lets the user choose a data file. The dialog belongs to the window `ownerHandle` (0 for none) and is shown in that
/// language (null for none).
void BrowseDataFile(Desktop& desktop, std::uintptr_t ownerHandle, ILanguage* language, BrowsedFile& file) noexcept;

}  // namespace modMain
}  // namespace orx
