// Settings where Qt keeps them on each platform.
#pragma once

#include "forms/SettingsStore.h"

namespace orx::qt {

/// Each level of the host's key, the section and the name are levels of one settings file of the user,
/// "OrvexMapDialogs2", whatever the host's application calls itself.
class FileSettings final : public SettingsStore {
 public:
  std::optional<std::string> Read(const SettingName& setting) const override;
  void Write(const SettingName& setting, const std::string& text) override;
  void Forget(const std::string& key) override;
};

}  // namespace orx::qt
