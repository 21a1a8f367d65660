// Settings that last as long as their desktop.
#pragma once

#include <map>
#include <tuple>

#include "forms/SettingsStore.h"

namespace orx::headless {

class MemorySettings final : public SettingsStore {
 public:
  std::optional<std::string> Read(const SettingName& setting) const override;
  void Write(const SettingName& setting, const std::string& text) override;
  void Forget(const std::string& key) override;

 private:
  std::map<std::tuple<std::string, std::string, std::string>, std::string> mTexts;
};

}  // namespace orx::headless
