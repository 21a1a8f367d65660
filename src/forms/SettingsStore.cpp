#include "forms/SettingsStore.h"

#include <stdexcept>

namespace orx {

void SettingsStore::RequireName(const SettingName& setting) {
  if (setting.Key.empty() || setting.Section.empty() || setting.Name.empty())
    throw std::invalid_argument("A setting needs a key, a section and a name: " + Described(setting));
}

std::string SettingsStore::Described(const SettingName& setting) {
  return "\"" + setting.Key + "\\" + setting.Section + "\\" + setting.Name + "\"";
}

}  // namespace orx
