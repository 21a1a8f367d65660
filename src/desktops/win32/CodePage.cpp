#include "desktops/win32/CodePage.h"

#include <windows.h>

#include <vector>

namespace orx::win32 {
namespace {

std::vector<std::wstring> NamesIn(const std::wstring& folder) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW entry;
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return names;
  do names.emplace_back(entry.cFileName);
  while (FindNextFileW(search, &entry));
  FindClose(search);
  return names;
}

}  // namespace

std::string ToCodePage(const std::wstring& text) {
  const int size = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

std::wstring FromCodePage(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

bool FitsCodePage(const std::wstring& text) {
  return FromCodePage(ToCodePage(text)) == text;
}

FolderNames::FolderNames(const std::wstring& folder) {
  for (const std::wstring& entry : NamesIn(folder)) {
    const auto [place, isNew] = mEntries.emplace(ToCodePage(entry), entry);
    if (!isNew) place->second.reset();
  }
}

std::optional<std::wstring> FolderNames::TrueName(const std::string& name) const {
  const auto found = mEntries.find(name);
  if (found != mEntries.end()) return found->second;
  // No file name contains this character: it stands for one that was lost.
  return name.find('?') == std::string::npos ? std::optional(FromCodePage(name)) : std::nullopt;
}

}  // namespace orx::win32
