// Choosing files: the two kinds of files with their filters and accepted extensions, and what is remembered of earlier
// choices.
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

/// Who asks for files of which kind.
struct FileChoice {
  Desktop& Screen;
  /// The window that the dialog belongs to: HWND on Windows, WId on Qt; 0 for none.
  std::uintptr_t OwnerHandle = 0;
  FileKind Kind = FileKind::Layers;
  /// Null for none.
  ILanguage* Language = nullptr;
};

/// Has the user choose files. The first entry of `files` is the name that the dialog opens on; afterwards it holds full
/// paths, one at least. False, with the list as it was, when nothing was chosen or the files are of the wrong type,
/// which the user is told. Several files can be chosen for layers, one for data, whatever `multiselect` says. Errors
/// are skipped, nothing is thrown.
bool ChooseFiles(const FileChoice& choice, bool multiselect, std::vector<std::string>& files) noexcept;

/// The same with the platform's answer as it is: a path, or a folder and names, separated by NULs.
bool RunOpenFileDialog(const FileChoice& choice, bool multiselect, std::string& fileName) noexcept;

/// What the platform's dialog returned last; 0 when the user cancelled.
std::int32_t LastSystemResult();

/// The parts of an answer: separated by NULs, which count as text between double quotes that enclose a whole part.
std::vector<std::string> SplitAnswer(const std::string& answer);

/// True when the answer has an extension of that kind of files; filters are those of layers, counted from 1.
bool IsAccepted(FileKind kind, std::int32_t filter, const std::string& answer);

/// What is remembered for the life of the process. A folder is empty and an index 0 until the first dialog.
struct RememberedChoices {
  std::string DataFolder;
  std::int32_t DataFilterIndex = 0;
  std::string LayerFolder;
  std::int32_t LayerFilterIndex = 0;
  bool operator==(const RememberedChoices&) const = default;
};
const RememberedChoices& Remembered();

/// For tests: forgets everything.
void ResetRememberedChoices();

}  // namespace modDialog
}  // namespace orx
