// Where a dialog was when it was last closed, kept in the host's settings.
#pragma once

#include <optional>
#include <string>

#include "forms/Form.h"

namespace orx {

/// The section of the host's settings that holds the placement of one dialog. Without a key nothing is read or written,
/// and a store that fails keeps no dialog from opening or closing: what it does not know is not known.
class Placement {
 public:
  Placement(Desktop& desktop, std::string key, std::string section)
      : mDesktop(desktop), mKey(std::move(key)), mSection(std::move(section)) {}

  /// Puts the form back where it was. What is not known of that is centred on the screen.
  void Restore(Form& form) const;
  /// Stores where the form is.
  void Keep(const Form& form) const;

  /// A stored length in twips, clamped to what can be calculated with; none if nothing usable is stored.
  std::optional<int> Read(const char* name) const;
  void Write(const char* name, int twips) const;

 private:
  Desktop& mDesktop;
  std::string mKey;
  std::string mSection;
};

}  // namespace orx
