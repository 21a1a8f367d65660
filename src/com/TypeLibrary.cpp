#include "com/TypeLibrary.h"

#include "com/Errors.h"
#include "desktops/win32/Handles.h"

namespace orx::com {
namespace {

std::wstring& ReplacedPath() {
  static std::wstring path;
  return path;
}

}  // namespace

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(win32::ThisModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

void TypeLibraryPath(const std::wstring& path) {
  ReplacedPath() = path;
}

ComPtr<ITypeLib> LoadTypeLibrary(const std::wstring& path) {
  const std::wstring file = !path.empty() ? path : !ReplacedPath().empty() ? ReplacedPath() : ModulePath();
  ComPtr<ITypeLib> library;
  Check(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.Out()),
        "The type library in \"" + Narrowed(file) + "\" cannot be loaded");
  return library;
}

ComPtr<ITypeInfo> TypeInfoOf(const GUID& guid) {
  ComPtr<ITypeInfo> info;
  Check(LoadTypeLibrary()->GetTypeInfoOfGuid(guid, info.Out()), "The type library lacks an interface");
  return info;
}

}  // namespace orx::com
