// Choosing files: the two kinds of files, with their filters and accepted extensions, and the choices remembered from
// earlier dialogs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "hostobjects/ILanguage.h"

namespace orx {

class Desktop;
struct OpenFileRequest;

namespace modDialog {

/// What the files are for.
enum class FileKind : std::int32_t { Layers = 0, Data = 1 };

/// Which kind of files is wanted, and by whom.
struct FileChoice {
  Desktop& Screen;
  /// The window that the dialog belongs to: HWND on Windows, WId on Qt; 0 for none.
  std::uintptr_t OwnerHandle = 0;
  FileKind Kind = FileKind::Layers;
  /// Null for none.
  ILanguage* Language = nullptr;
};

/// Lets the user choose files. The dialog opens on the first entry of `files`, which afterwards holds one or more full
/// paths. Returns false and leaves the list alone if nothing was chosen, or if the files are of the wrong type, which
/// the user is told. Layers allow several files and data only one, whatever `multiselect` says. Never throws: failing
/// steps are skipped.
bool ChooseFiles(const FileChoice& choice, bool multiselect, std::vector<std::string>& files) noexcept;

/// The same with the platform's raw answer: a path, or a folder and file names, separated by NULs.
bool RunOpenFileDialog(const FileChoice& choice, bool multiselect, std::string& fileName) noexcept;

/// What the platform's dialog last returned on this thread; 0 if the user cancelled.
std::int32_t LastSystemResult();

/// Splits an answer at its NULs. Inside double quotes that enclose a whole part, a NUL is text.
std::vector<std::string> SplitAnswer(const std::string& answer);

/// True if the answer contains an extension accepted for that kind. `filter` is a layer filter, counted from 1.
bool IsAccepted(FileKind kind, std::int32_t filter, const std::string& answer);

/// What is remembered for the life of the process. Until the first dialog the folders are empty and the indexes 0.
struct RememberedChoices {
  std::string DataFolder;
  std::int32_t DataFilterIndex = 0;
  std::string LayerFolder;
  std::int32_t LayerFilterIndex = 0;
  bool operator==(const RememberedChoices&) const = default;
};
RememberedChoices Remembered();

/// For tests: forgets everything.
void ResetRememberedChoices();

}  // namespace modDialog
}  // namespace orx
