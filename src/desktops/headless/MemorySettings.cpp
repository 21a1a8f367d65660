#include "desktops/headless/MemorySettings.h"

namespace orx::headless {

std::optional<std::string> MemorySettings::Read(const SettingName& setting) const {
  const auto found = mTexts.find({setting.Key, setting.Section, setting.Name});
  return found == mTexts.end() ? std::nullopt : std::optional(found->second);
}

void MemorySettings::Write(const SettingName& setting, const std::string& text) {
  RequireName(setting);
  mTexts[{setting.Key, setting.Section, setting.Name}] = text;
}

void MemorySettings::Forget(const std::string& key) {
  std::erase_if(mTexts, [&](const auto& entry) { return std::get<0>(entry.first) == key; });
}

}  // namespace orx::headless
