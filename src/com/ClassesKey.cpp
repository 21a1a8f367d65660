#include "com/ClassesKey.h"

#include "com/Errors.h"

namespace orx::com {
namespace {

std::wstring PathOf(const std::wstring& key) {
  return L"Software\\Classes" + (key.empty() ? key : L"\\" + key);
}

void CheckStatus(LSTATUS status, const std::wstring& key, const char* what) {
  // HRESULT_FROM_WIN32 evaluates its argument twice.
  Check(HRESULT_FROM_WIN32(status), "The registry key \"" + Narrowed(key) + "\" cannot be " + what);
}

}  // namespace

LSTATUS ClassesKey::Open(const std::wstring& key, REGSAM access, win32::RegistryKey& opened) const {
  return RegOpenKeyExW(mRoot, PathOf(key).c_str(), 0, access, opened.Out());
}

void ClassesKey::Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) const {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  CheckStatus(RegSetKeyValueW(mRoot, PathOf(key).c_str(), name, REG_SZ, text.c_str(), bytes), key, "written");
}

std::wstring ClassesKey::Text(const std::wstring& key, const wchar_t* name, REGSAM view) const {
  win32::RegistryKey opened;
  DWORD bytes = 0;
  if (Open(key, KEY_READ | view, opened) != ERROR_SUCCESS ||
      RegGetValueW(opened.Get(), nullptr, name, RRF_RT_REG_SZ, nullptr, nullptr, &bytes) != ERROR_SUCCESS)
    return {};
  std::wstring text(bytes / sizeof(wchar_t), L'\0');
  if (RegGetValueW(opened.Get(), nullptr, name, RRF_RT_REG_SZ, nullptr, text.data(), &bytes) != ERROR_SUCCESS)
    return {};
  return text.substr(0, text.find(L'\0'));
}

bool ClassesKey::Has(const std::wstring& key, REGSAM view) const {
  win32::RegistryKey opened;
  return Open(key, KEY_READ | view, opened) == ERROR_SUCCESS;
}

std::vector<std::wstring> ClassesKey::KeysOf(const std::wstring& key) const {
  constexpr DWORD kLongest = 256;
  std::vector<std::wstring> names;
  win32::RegistryKey opened;
  if (Open(key, KEY_READ, opened) != ERROR_SUCCESS) return names;
  wchar_t name[kLongest];
  for (DWORD index = 0; RegEnumKeyW(opened.Get(), index, name, kLongest) == ERROR_SUCCESS; ++index)
    names.emplace_back(name);
  return names;
}

void ClassesKey::Remove(const std::wstring& key, REGSAM view) const {
  if (!Has(key, view)) return;
  const std::size_t end = key.find_last_of(L'\\');
  const std::wstring folder = end == std::wstring::npos ? L"" : key.substr(0, end);
  win32::RegistryKey parent;
  CheckStatus(Open(folder, KEY_READ | KEY_WRITE | DELETE | view, parent), key, "removed");
  CheckStatus(RegDeleteTreeW(parent.Get(), key.substr(end + 1).c_str()), key, "removed");
}

void ClassesKey::RemoveEmpty(const std::wstring& key) const {
  win32::RegistryKey opened;
  DWORD keys = 0;
  DWORD values = 0;
  const bool isRead = Open(key, KEY_READ, opened) == ERROR_SUCCESS &&
                      RegQueryInfoKeyW(opened.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                                       nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
  if (isRead && keys == 0 && values == 0) RegDeleteKeyW(mRoot, PathOf(key).c_str());
}

}  // namespace orx::com
