// Where a host's settings are kept: the registry, a settings file, memory.
#pragma once

#include <optional>
#include <string>

namespace orx {

/// Names one setting. `Key` is the host's own key, `Section` a dialog, `Name` a value of it; UTF-8. A key may have
/// several levels, separated by backslashes.
struct SettingName {
  std::string Key;
  std::string Section;
  std::string Name;
  bool operator==(const SettingName&) const = default;
};

/// Texts by name. A desktop has one.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// The text of a setting, UTF-8; a number that somebody else has stored as such is given as text. None when there is
  /// no such setting, or what is there is neither text nor number.
  virtual std::optional<std::string> Read(const SettingName& setting) const = 0;
  /// Keeps the text. Throws std::invalid_argument when a part of the name is empty, std::runtime_error with the name of
  /// the setting when the store refuses it.
  virtual void Write(const SettingName& setting, const std::string& text) = 0;
  /// Forgets the key with all its sections; does nothing when there is none.
  virtual void Forget(const std::string& key) = 0;

 protected:
  /// Throws what Write throws for a name with an empty part.
  static void RequireName(const SettingName& setting);
  /// How errors name a setting.
  static std::string Described(const SettingName& setting);
};

}  // namespace orx
