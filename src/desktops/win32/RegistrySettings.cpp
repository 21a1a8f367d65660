#include "desktops/win32/RegistrySettings.h"

#include <windows.h>

#include <cstring>
#include <stdexcept>
#include <vector>

#include "desktops/win32/Handles.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

constexpr wchar_t kRoot[] = L"Software\\VB and VBA Program Settings\\";

std::wstring PathOf(const SettingName& setting) {
  return kRoot + Widened(setting.Key) + L"\\" + Widened(setting.Section);
}

struct Value {
  DWORD Type = REG_NONE;
  std::vector<BYTE> Bytes;
};

std::optional<Value> ReadValue(HKEY key, const std::wstring& name) {
  Value value;
  DWORD size = 0;
  // Another program may lengthen the value between the query for its size and the reading.
  LSTATUS status = RegQueryValueExW(key, name.c_str(), nullptr, &value.Type, nullptr, &size);
  while (status == ERROR_SUCCESS && size > value.Bytes.size()) {
    value.Bytes.resize(size);
    status = RegQueryValueExW(key, name.c_str(), nullptr, &value.Type, value.Bytes.data(), &size);
    if (status == ERROR_MORE_DATA) status = ERROR_SUCCESS;
  }
  if (status != ERROR_SUCCESS) return std::nullopt;
  value.Bytes.resize(size);
  return value;
}

std::string TextOfBytes(const std::vector<BYTE>& bytes) {
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
  // The size includes the terminating zero, but not every program stores one.
  return Narrowed(text.substr(0, text.find(L'\0')));
}

}  // namespace

std::optional<std::string> RegistrySettings::Read(const SettingName& setting) const {
  RegistryKey key;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, PathOf(setting).c_str(), 0, KEY_QUERY_VALUE, key.Out()) != ERROR_SUCCESS)
    return std::nullopt;
  const std::optional<Value> value = ReadValue(key.Get(), Widened(setting.Name));
  if (!value) return std::nullopt;
  if (value->Type == REG_SZ || value->Type == REG_EXPAND_SZ) return TextOfBytes(value->Bytes);
  if (value->Type != REG_DWORD || value->Bytes.size() != sizeof(DWORD)) return std::nullopt;
  LONG number = 0;
  std::memcpy(&number, value->Bytes.data(), sizeof(number));
  return std::to_string(number);
}

void RegistrySettings::Write(const SettingName& setting, const std::string& text) {
  RequireName(setting);
  RegistryKey key;
  LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, PathOf(setting).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                   KEY_SET_VALUE, nullptr, key.Out(), nullptr);
  if (status == ERROR_SUCCESS) {
    const std::wstring wide = Widened(text);
    status =
        RegSetValueExW(key.Get(), Widened(setting.Name).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(wide.c_str()),
                       static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
  }
  if (status != ERROR_SUCCESS)
    throw std::runtime_error("The setting " + Described(setting) + " cannot be kept in the registry (error " +
                             std::to_string(status) + ").");
}

void RegistrySettings::Forget(const std::string& key) {
  // An empty key would delete the settings of all programs.
  if (key.find_first_not_of('\\') == std::string::npos) return;
  RegDeleteTreeW(HKEY_CURRENT_USER, (kRoot + Widened(key)).c_str());
}

}  // namespace orx::win32
