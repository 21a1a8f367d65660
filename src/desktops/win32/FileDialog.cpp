#include "desktops/win32/FileDialog.h"

#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>

#include "desktops/win32/CodePage.h"
#include "desktops/win32/Owners.h"
#include "desktops/win32/PlatformDialog.h"
#include "desktops/win32/Text.h"
#include "forms/Requests.h"

namespace orx::win32 {
namespace {

std::wstring CurrentFolder() {
  std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  return folder;
}

/// The dialog changes the current folder of the process to the one that the user has gone to.
class FolderKeeper {
 public:
  FolderKeeper() : mFolder(CurrentFolder()) {}
  ~FolderKeeper() { SetCurrentDirectoryW(mFolder.c_str()); }
  FolderKeeper(const FolderKeeper&) = delete;
  FolderKeeper& operator=(const FolderKeeper&) = delete;

 private:
  std::wstring mFolder;
};

/// A path whose characters are all in the code page: the given one, or the short one that the file system keeps for it.
std::wstring Writable(const std::wstring& path) {
  if (FitsCodePage(path)) return path;
  std::wstring shortPath(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
  shortPath.resize(GetShortPathNameW(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size())));
  return FitsCodePage(shortPath) ? shortPath : std::wstring();
}

/// The 8-bit texts of a request and the structure that points to them.
class NarrowRequest {
 public:
  explicit NarrowRequest(const OpenFileRequest& request)
      : mTitle(ToCodePage(Widened(request.Title))),
        mFilter(ToCodePage(Widened(request.Filter))),
        mFolder(ToCodePage(Writable(Widened(request.InitialFolder)))),
        mExtension(ToCodePage(Widened(request.DefaultExtension))),
        mFileTitle(ToCodePage(Widened(request.FileTitle))),
        mBuffer(ToCodePage(Widened(request.Buffer))) {
    // An invalid name would keep the dialog from opening.
    if (!FitsCodePage(Widened(InitialName(request)))) std::fill(mBuffer.begin(), mBuffer.end() - 1, ' ');
    EndInitialName();
    mNative.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    mNative.hwndOwner = ModalOwner(request.OwnerHandle);
    mNative.lpstrFilter = mFilter.c_str();
    mNative.nFilterIndex = static_cast<DWORD>(request.FilterIndex);
    mNative.lpstrFile = mBuffer.data();
    mNative.nMaxFile = static_cast<DWORD>(mBuffer.size());
    mNative.lpstrFileTitle = mFileTitle.data();
    mNative.nMaxFileTitle = static_cast<DWORD>(mFileTitle.size());
    mNative.lpstrInitialDir = mFolder.empty() ? nullptr : mFolder.c_str();
    mNative.lpstrTitle = mTitle.c_str();
    mNative.Flags = request.Flags;
    mNative.lpstrDefExt = mExtension.c_str();
  }
  NarrowRequest(const NarrowRequest&) = delete;
  NarrowRequest& operator=(const NarrowRequest&) = delete;

  OPENFILENAMEA& Native() { return mNative; }
  const std::string& Buffer() const { return mBuffer; }

 private:
  /// The dialog's field would show the blanks that fill the buffer.
  void EndInitialName() {
    const auto last = mBuffer.find_last_not_of(std::string_view(" \0", 2));
    std::fill(mBuffer.begin() + static_cast<std::ptrdiff_t>(last == std::string::npos ? 0 : last + 1), mBuffer.end(),
              '\0');
  }

  std::string mTitle;
  std::string mFilter;
  std::string mFolder;
  std::string mExtension;
  std::string mFileTitle;
  std::string mBuffer;
  OPENFILENAMEA mNative = {};
};

[[noreturn]] void RefuseName(const std::string& name) {
  throw AnswerRefused("The file \"" + Narrowed(FromCodePage(name)) +
                      "\" has characters in its name that cannot be told apart here. Rename it, or choose it alone.");
}

/// The folder of the answer. The dialog has made it the current folder, whose name is known without loss.
std::wstring TrueFolder(const std::string& folder) {
  std::wstring current = CurrentFolder();
  if (ToCodePage(current) == folder) return current;
  if (folder.find('?') == std::string::npos) return FromCodePage(folder);
  // Not all versions do that; then the names of the folders are looked up one by one.
  std::size_t end = folder.find('\\');
  std::wstring path = FromCodePage(folder.substr(0, end));
  while (end != std::string::npos) {
    const std::size_t start = end + 1;
    end = folder.find('\\', start);
    const std::optional<std::wstring> name = FolderNames(path).TrueName(folder.substr(start, end - start));
    if (!name) RefuseName(folder);
    path += L'\\' + *name;
  }
  return path;
}

/// The texts up to the first empty one.
std::vector<std::string> PartsOf(const std::string& buffer) {
  std::vector<std::string> parts;
  for (std::size_t start = 0; buffer[start] != '\0'; start += parts.back().size() + 1)
    parts.emplace_back(buffer.c_str() + start);
  return parts;
}

[[noreturn]] void RefuseLength() {
  throw AnswerRefused("The names of these files are too long together. Choose fewer files at a time.");
}

void TakeAnswer(const NarrowRequest& narrow, OpenFileRequest& request) {
  // Some versions of the platform cut off what does not fit into the buffer, without an error.
  if (narrow.Buffer().find(std::string_view("\0\0", 2)) == std::string::npos) RefuseLength();
  std::vector<std::string> parts = PartsOf(narrow.Buffer());
  if (parts.empty()) return RefuseLength();
  if (parts.size() == 1) {
    // A single file is given with its path.
    const std::size_t end = parts.front().find_last_of('\\');
    if (end == std::string::npos) RefuseName(parts.front());
    parts = {parts.front().substr(0, end), parts.front().substr(end + 1)};
    if (parts.front().ends_with(':')) parts.front() += '\\';
  }
  const std::wstring folder = TrueFolder(parts.front());
  const FolderNames entries(folder);
  std::vector<std::string> names;
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const std::optional<std::wstring> name = entries.TrueName(parts[i]);
    if (!name) RefuseName(parts[i]);
    names.push_back(Narrowed(*name));
  }
  PutAnswer(request, Narrowed(folder), names);
  request.LastFolder = Narrowed(folder);
}

}  // namespace

bool RunFileDialog(OpenFileRequest& request, const std::function<void()>& running) {
  const FolderKeeper keeper;
  NarrowRequest narrow(request);
  bool chosen = false;
  RunPlatformDialog(narrow.Native().hwndOwner, running, IDCANCEL,
                    [&] { chosen = GetOpenFileNameA(&narrow.Native()) != FALSE; });
  if (!chosen && CommDlgExtendedError() == FNERR_BUFFERTOOSMALL) RefuseLength();
  if (!chosen) return false;
  request.FilterIndex = static_cast<std::int32_t>(narrow.Native().nFilterIndex);
  TakeAnswer(narrow, request);
  return true;
}

}  // namespace orx::win32
