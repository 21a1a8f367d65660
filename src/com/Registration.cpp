#include "com/Registration.h"

#include <OrvexMapDialogs2.h>

#include <string>
#include <vector>

#include "com/Errors.h"
#include "com/TypeDescriptions.h"
#include "com/TypeLibrary.h"
#include "desktops/win32/Handles.h"

namespace orx::com {
namespace {

constexpr char kRegistrationSource[] = "Registration";

struct CreatableClass {
  CLSID Id;
  const wchar_t* ProgId;
  const wchar_t* Description;
};

const CreatableClass kClasses[] = {
    {__uuidof(::CCommonMapDialogs), L"OrvexMapDialogs2.CCommonMapDialogs", L"Dialogs for maps, layers and data"},
    {__uuidof(::CCommonProgressDialog), L"OrvexMapDialogs2.CCommonProgressDialog",
     L"Progress dialog for long operations"},
};

/// One text in the registry; an empty name means the default value of the key.
struct Entry {
  std::wstring Key;
  std::wstring Name;
  std::wstring Text;
};

std::wstring TextOfGuid(const GUID& guid) {
  wchar_t text[40] = {};
  StringFromGUID2(guid, text, static_cast<int>(std::size(text)));
  return text;
}

std::wstring ClassKey(const CreatableClass& made) {
  return L"CLSID\\" + TextOfGuid(made.Id);
}

std::vector<Entry> EntriesOf(const CreatableClass& made) {
  const std::wstring key = ClassKey(made);
  const std::wstring progId = made.ProgId;
  return {
      {progId, L"", made.Description},
      {progId + L"\\CLSID", L"", TextOfGuid(made.Id)},
      {key, L"", made.Description},
      {key + L"\\InprocServer32", L"", ModulePath()},
      {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {key + L"\\ProgID", L"", progId},
      {key + L"\\TypeLib", L"", TextOfGuid(LIBID_OrvexMapDialogs2)},
      {key + L"\\Version", L"", L"2.0"},
      {key + L"\\Programmable", L"", L""},
  };
}

/// The registry's classes, of all users or of the current one.
class ClassesKey {
 public:
  explicit ClassesKey(RegisteredFor whom) {
    const HKEY root = whom == RegisteredFor::AllUsers ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    // HRESULT_FROM_WIN32 evaluates its argument twice.
    const LSTATUS status =
        RegCreateKeyExW(root, L"Software\\Classes", 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, mKey.Out(), nullptr);
    Check(HRESULT_FROM_WIN32(status), "The registry's classes cannot be opened");
  }

  void Write(const Entry& entry) const {
    const auto bytes = static_cast<DWORD>((entry.Text.size() + 1) * sizeof(wchar_t));
    const LSTATUS status =
        RegSetKeyValueW(mKey.Get(), entry.Key.c_str(), entry.Name.empty() ? nullptr : entry.Name.c_str(), REG_SZ,
                        entry.Text.c_str(), bytes);
    Check(HRESULT_FROM_WIN32(status), "The registry key \"" + Narrowed(entry.Key) + "\" cannot be written");
  }

  void Remove(const std::wstring& key) const {
    const LSTATUS status = RegDeleteTreeW(mKey.Get(), key.c_str());
    if (status != ERROR_FILE_NOT_FOUND)
      Check(HRESULT_FROM_WIN32(status), "The registry key \"" + Narrowed(key) + "\" cannot be removed");
  }

  /// Removes a key that is empty now: it was not there before, unless the user had registered something else.
  void RemoveEmpty(const wchar_t* key) const {
    if (IsEmpty(key)) RegDeleteKeyW(mKey.Get(), key);
  }

 private:
  bool IsEmpty(const wchar_t* key) const {
    win32::RegistryKey opened;
    DWORD keys = 0;
    DWORD values = 0;
    return RegOpenKeyExW(mKey.Get(), key, 0, KEY_READ, opened.Out()) == ERROR_SUCCESS &&
           RegQueryInfoKeyW(opened.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                            nullptr, nullptr) == ERROR_SUCCESS &&
           keys == 0 && values == 0;
  }

  win32::RegistryKey mKey;
};

/// The automation library's own proxies, which marshal an interface by its type library.
constexpr wchar_t kDualProxy[] = L"{00020424-0000-0000-C000-000000000046}";
constexpr wchar_t kDispatchProxy[] = L"{00020420-0000-0000-C000-000000000046}";

std::wstring LibraryKey() {
  return L"TypeLib\\" + TextOfGuid(LIBID_OrvexMapDialogs2);
}

std::vector<Entry> LibraryEntries() {
  const std::wstring version = LibraryKey() + L"\\2.0";
  const std::wstring path = ModulePath();
  return {
      {version, L"", L"Orvex Map Dialogs 2"},
      {version + (sizeof(void*) == 8 ? L"\\0\\win64" : L"\\0\\win32"), L"", path},
      {version + L"\\FLAGS", L"", L"0"},
      {version + L"\\HELPDIR", L"", path.substr(0, path.find_last_of(L'\\'))},
  };
}

struct PublishedInterface {
  std::wstring Key;
  std::wstring Name;
  bool IsDual = false;
};

/// The interfaces of the type library.
std::vector<PublishedInterface> PublishedInterfaces() {
  const ComPtr<ITypeLib> library = LoadTypeLibrary();
  std::vector<PublishedInterface> found;
  for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
    ComPtr<ITypeInfo> info;
    Bstr name;
    Check(library->GetTypeInfo(index, info.Out()), "The type library");
    const TypeAttributes attributes = AttributesOf(*info.Get());
    Check(attributes ? S_OK : E_OUTOFMEMORY, "The type library");
    const bool isInterface = attributes->typekind == TKIND_DISPATCH || attributes->typekind == TKIND_INTERFACE;
    if (!isInterface) continue;
    Check(info->GetDocumentation(MEMBERID_NIL, name.Out(), nullptr, nullptr, nullptr), "The type library");
    found.push_back({L"Interface\\" + TextOfGuid(attributes->guid), Widened(name.Text()),
                     (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0});
  }
  return found;
}

std::vector<Entry> EntriesOf(const PublishedInterface& published) {
  const std::wstring library = TextOfGuid(LIBID_OrvexMapDialogs2);
  return {
      {published.Key, L"", published.Name},
      {published.Key + L"\\ProxyStubClsid32", L"", published.IsDual ? kDualProxy : kDispatchProxy},
      {published.Key + L"\\TypeLib", L"", library},
      {published.Key + L"\\TypeLib", L"Version", L"2.0"},
  };
}

bool IsDenied(HRESULT result) {
  return result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS;
}

void WriteAll(const ClassesKey& classes, const std::vector<Entry>& entries) {
  for (const Entry& entry : entries) classes.Write(entry);
}

}  // namespace

HRESULT ForAllOrUser(const std::function<void(RegisteredFor)>& action) noexcept {
  const HRESULT all = Guarded(kRegistrationSource, [&] { action(RegisteredFor::AllUsers); });
  return IsDenied(all) ? Guarded(kRegistrationSource, [&] { action(RegisteredFor::User); }) : all;
}

void Register(RegisteredFor whom) {
  const std::vector<PublishedInterface> interfaces = PublishedInterfaces();
  try {
    const ClassesKey classes(whom);
    WriteAll(classes, LibraryEntries());
    for (const PublishedInterface& published : interfaces) WriteAll(classes, EntriesOf(published));
    for (const CreatableClass& made : kClasses) WriteAll(classes, EntriesOf(made));
  } catch (...) {
    // Half a registration is worse than none. The first failure is the one to report.
    static_cast<void>(Guarded(kRegistrationSource, [&] { Unregister(whom); }));
    throw;
  }
}

void Unregister(RegisteredFor whom) {
  const ClassesKey classes(whom);
  classes.Remove(LibraryKey());
  for (const CreatableClass& made : kClasses) {
    classes.Remove(made.ProgId);
    classes.Remove(ClassKey(made));
  }
  // Last, because it needs the type library, which may be damaged.
  for (const PublishedInterface& published : PublishedInterfaces()) classes.Remove(published.Key);
  for (const wchar_t* const folder : {L"CLSID", L"Interface", L"TypeLib"}) classes.RemoveEmpty(folder);
}

}  // namespace orx::com
