// Settings in the registry, in the place where the settings functions of Visual Basic keep them.
#pragma once

#include "forms/SettingsStore.h"

namespace orx::win32 {

/// Texts under HKEY_CURRENT_USER\Software\VB and VBA Program Settings\<key>\<section>, the name as value.
class RegistrySettings final : public SettingsStore {
 public:
  std::optional<std::string> Read(const SettingName& setting) const override;
  void Write(const SettingName& setting, const std::string& text) override;
  void Forget(const std::string& key) override;
};

}  // namespace orx::win32
