// Texts for the platform's 8-bit interfaces, and the true names of the files that such texts stand for.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace orx::win32 {

/// UTF-16 to and from the 8-bit code page of the process; a character that it lacks becomes a similar one or "?", as
/// the platform's own dialogs do.
std::string ToCodePage(const std::wstring& text);
std::wstring FromCodePage(const std::string& text);

/// True when the code page has all characters of the text.
bool FitsCodePage(const std::wstring& text);

/// The entries of a folder, which is read once, by their 8-bit names.
class FolderNames {
 public:
  explicit FolderNames(const std::wstring& folder);

  /// The entry that the 8-bit name stands for: the one whose name becomes it. A name that no entry has stands for
  /// itself, provided that no character of it was lost. None when it is ambiguous.
  std::optional<std::wstring> TrueName(const std::string& name) const;

 private:
  /// None for the names that several entries become.
  std::map<std::string, std::optional<std::wstring>> mEntries;
};

}  // namespace orx::win32
