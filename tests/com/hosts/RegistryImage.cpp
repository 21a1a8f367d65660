#include "tests/com/hosts/RegistryImage.h"

#include "desktops/win32/Handles.h"

namespace orx::com::test {
namespace {

const std::wstring kClasses = L"Software\\Classes";

void ReadValues(HKEY key, const std::wstring& path, RegistryImage& image) {
  wchar_t name[1000];
  wchar_t text[4000];
  for (DWORD index = 0;; ++index) {
    DWORD nameSize = 1000;
    DWORD bytes = sizeof(text) - sizeof(wchar_t);
    DWORD type = 0;
    if (RegEnumValueW(key, index, name, &nameSize, nullptr, &type, reinterpret_cast<BYTE*>(text), &bytes) !=
        ERROR_SUCCESS)
      return;
    text[bytes / sizeof(wchar_t)] = 0;
    image[path + L":" + name] = type == REG_SZ || type == REG_EXPAND_SZ ? text : L"other";
  }
}

void ReadKey(HKEY parent, const std::wstring& path, const std::wstring& name, RegistryImage& image) {
  win32::RegistryKey key;
  if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ, key.Out()) != ERROR_SUCCESS) return;
  image[path] = L"key";
  ReadValues(key.Get(), path, image);
  wchar_t child[300];
  for (DWORD index = 0; RegEnumKeyW(key.Get(), index, child, 300) == ERROR_SUCCESS; ++index)
    ReadKey(key.Get(), path + L"\\" + child, child, image);
}

void ReadNames(HKEY root, const std::wstring& folder, RegistryKeys& keys) {
  win32::RegistryKey key;
  if (RegOpenKeyExW(root, (kClasses + (folder.empty() ? L"" : L"\\" + folder)).c_str(), 0, KEY_READ, key.Out()) !=
      ERROR_SUCCESS)
    return;
  wchar_t name[300];
  for (DWORD index = 0; RegEnumKeyW(key.Get(), index, name, 300) == ERROR_SUCCESS; ++index)
    keys.insert(folder.empty() ? name : folder + L"\\" + name);
}

}  // namespace

RegistryKeys ClassKeys(HKEY root) {
  RegistryKeys keys;
  for (const wchar_t* const folder : {L"", L"CLSID", L"Interface", L"TypeLib"}) ReadNames(root, folder, keys);
  return keys;
}

RegistryImage Added(HKEY root, const RegistryKeys& before, const RegistryKeys& after) {
  RegistryImage image;
  for (const std::wstring& key : after)
    if (!before.contains(key)) ReadKey(root, key, kClasses + std::wstring(L"\\").append(key), image);
  return image;
}

}  // namespace orx::com::test
