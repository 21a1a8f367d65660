// The choice of a data file for a page, and the check that the file has to pass.
#pragma once

#include <cstdint>
#include <string>

#include "hostobjects/IFileCheck.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"

namespace orx {

class Desktop;

namespace modMain {

/// The check that data files have to pass, for the whole process; not owned. Null stands for the check of the request,
/// and where there is none either, for one that the file can be opened for reading.
IFileCheck* FileCheck();
void FileCheck(IFileCheck* check);

/// Lets the user choose a data file. The dialog belongs to the window `ownerHandle` (0 for none) and is shown in that
/// language (null for none).
void BrowseDataFile(Desktop& desktop, std::uintptr_t ownerHandle, ILanguage* language, BrowseRequest& request) noexcept;

}  // namespace modMain
}  // namespace orx
