#include "com/TypeLibrary.h"

#include <mutex>
#include <utility>
#include <vector>

#include "com/Errors.h"
#include "desktops/win32/Handles.h"

namespace orx::com {
namespace {

/// The descriptions that have been read. To read one takes a thousand times as long as a call by it.
class KnownTypes {
 public:
  ComPtr<ITypeInfo> Find(const GUID& guid) {
    const std::lock_guard lock(mMutex);
    for (const auto& [known, info] : mTypes)
      if (IsEqualGUID(known, guid)) return info;
    ComPtr<ITypeInfo> info;
    Check(LoadTypeLibrary()->GetTypeInfoOfGuid(guid, info.Out()), "The type library lacks an interface");
    mTypes.emplace_back(guid, info);
    return info;
  }

 private:
  std::mutex mMutex;
  std::vector<std::pair<GUID, ComPtr<ITypeInfo>>> mTypes;
};

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

ComPtr<ITypeLib> LoadTypeLibrary(const std::wstring& path) {
  const std::wstring file = path.empty() ? ModulePath() : path;
  ComPtr<ITypeLib> library;
  Check(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.Out()),
        "The type library in \"" + Narrowed(file) + "\" cannot be loaded");
  return library;
}

ComPtr<ITypeInfo> TypeInfoOf(const GUID& guid) {
  static KnownTypes types;
  return types.Find(guid);
}

}  // namespace orx::com
