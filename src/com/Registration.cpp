#include "com/Registration.h"

#include <OrvexMapDialogs2.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "com/Errors.h"
#include "com/TypeDescriptions.h"
#include "com/TypeLibrary.h"

namespace orx::com {
namespace {

constexpr char kRegistrationSource[] = "Registration";
constexpr wchar_t kVersion[] = L"2.0";

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
      {key + L"\\Version", L"", kVersion},
      {key + L"\\Programmable", L"", L""},
  };
}

/// The automation library's own proxies, which marshal an interface by its type library.
constexpr wchar_t kDualProxy[] = L"{00020424-0000-0000-C000-000000000046}";
constexpr wchar_t kDispatchProxy[] = L"{00020420-0000-0000-C000-000000000046}";

std::wstring LibraryKey() {
  return L"TypeLib\\" + TextOfGuid(LIBID_OrvexMapDialogs2);
}

std::wstring VersionKey() {
  return LibraryKey() + L"\\" + kVersion;
}

/// The type library for all languages, with a key for each bitness.
std::wstring NeutralKey() {
  return VersionKey() + L"\\0";
}

std::wstring BitnessKey() {
  return NeutralKey() + (sizeof(void*) == 8 ? L"\\win64" : L"\\win32");
}

std::vector<Entry> LibraryEntries() {
  const std::wstring path = ModulePath();
  return {
      {VersionKey(), L"", L"Orvex Map Dialogs 2"},
      {BitnessKey(), L"", path},
      {VersionKey() + L"\\FLAGS", L"", L"0"},
      {VersionKey() + L"\\HELPDIR", L"", path.substr(0, path.find_last_of(L'\\'))},
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
      {published.Key + L"\\TypeLib", L"Version", kVersion},
  };
}

bool IsDenied(HRESULT result) {
  return result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS;
}

void WriteAll(const ClassesKey& classes, const std::vector<Entry>& entries) {
  for (const Entry& entry : entries)
    classes.Write(entry.Key, entry.Name.empty() ? nullptr : entry.Name.c_str(), entry.Text);
}

/// True when nothing is written there, or this text in letters of any case.
bool IsFreeOr(const std::wstring& written, const std::wstring& text) {
  return written.empty() || CompareStringOrdinal(written.c_str(), -1, text.c_str(), -1, TRUE) == CSTR_EQUAL;
}

void RemoveLibrary(const ClassesKey& classes) {
  if (IsFreeOr(classes.Text(BitnessKey()), ModulePath())) classes.Remove(BitnessKey());
  classes.RemoveEmpty(NeutralKey());
  const std::vector<std::wstring> left = classes.KeysOf(VersionKey());
  const auto isNote = [](const std::wstring& key) { return key == L"FLAGS" || key == L"HELPDIR"; };
  if (std::all_of(left.begin(), left.end(), isNote)) classes.Remove(VersionKey());
  classes.RemoveEmpty(LibraryKey());
}

void RemoveClass(const ClassesKey& classes, const CreatableClass& made) {
  const std::wstring key = ClassKey(made);
  if (IsFreeOr(classes.Text(key + L"\\InprocServer32"), ModulePath())) classes.Remove(key);
  const auto isThere = [&](REGSAM view) { return classes.Has(key, view); };
  if (std::any_of(std::begin(kViews), std::end(kViews), isThere)) return;
  const std::wstring progId = made.ProgId;
  for (const REGSAM view : kViews)
    if (IsFreeOr(classes.Text(progId + L"\\CLSID", nullptr, view), TextOfGuid(made.Id))) classes.Remove(progId, view);
}

/// Programs of either bitness pass interfaces to each other, so these go together.
void RemoveInterfaces(const ClassesKey& classes) {
  for (const PublishedInterface& published : PublishedInterfaces()) {
    const std::wstring library = published.Key + L"\\TypeLib";
    for (const REGSAM view : kViews)
      if (IsFreeOr(classes.Text(library, nullptr, view), TextOfGuid(LIBID_OrvexMapDialogs2)) &&
          IsFreeOr(classes.Text(library, L"Version", view), kVersion))
        classes.Remove(published.Key, view);
  }
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
  RemoveLibrary(classes);
  for (const CreatableClass& made : kClasses) RemoveClass(classes, made);
  // Last, because it needs the type library, which may be damaged.
  if (!classes.Has(VersionKey())) RemoveInterfaces(classes);
  for (const wchar_t* const folder : {L"CLSID", L"Interface", L"TypeLib"}) classes.RemoveEmpty(folder);
}

}  // namespace orx::com
