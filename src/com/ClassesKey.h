// The part of the registry in which classes, interfaces and type libraries are registered.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "desktops/win32/Handles.h"

namespace orx::com {

/// Whom the component is registered for.
enum class RegisteredFor { AllUsers, User };

/// What 64-bit and 32-bit programs see of the registry: some keys are the same for both, others are not. 0 is the
/// program's own view.
inline constexpr REGSAM kViews[] = {KEY_WOW64_64KEY, KEY_WOW64_32KEY};

/// Keys are named from the root of the classes on, such as "TypeLib\{...}". Members that write throw RunTimeError,
/// naming the key.
class ClassesKey {
 public:
  explicit ClassesKey(RegisteredFor whom)
      : mRoot(whom == RegisteredFor::AllUsers ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER) {}

  /// A null `name` is the default value of the key.
  void Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) const;
  /// Empty when there is no such text.
  std::wstring Text(const std::wstring& key, const wchar_t* name = nullptr, REGSAM view = 0) const;
  bool Has(const std::wstring& key, REGSAM view = 0) const;
  /// The names of the keys right below a key.
  std::vector<std::wstring> KeysOf(const std::wstring& key) const;
  /// Removes a key with all that it holds. A missing one is no error.
  void Remove(const std::wstring& key, REGSAM view = 0) const;
  /// Removes a key that holds nothing.
  void RemoveEmpty(const std::wstring& key) const;

 private:
  /// Keys are opened from the root on, because a view holds for one step only.
  LSTATUS Open(const std::wstring& key, REGSAM access, win32::RegistryKey& opened) const;

  HKEY mRoot;
};

}  // namespace orx::com
