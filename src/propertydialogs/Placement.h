// Where a dialog stood when it was last closed, kept among the host's settings.
#pragma once

#include <optional>
#include <string>

#include "forms/Form.h"

namespace orx {

/// The part of the host's settings that holds the placement of one dialog. Without a key nothing is read or written.
class Placement {
 public:
  Placement(Desktop& desktop, std::string key, std::string section)
      : mDesktop(desktop), mKey(std::move(key)), mSection(std::move(section)) {}

  /// Puts the form where it stood, in the middle of the screen what is not known of that.
  void Restore(Form& form) const;
  /// Keeps where the form stands. Throws what the store throws.
  void Keep(const Form& form) const;

  /// A length in twips; none when nothing usable is kept. However far out it is, no screen is that large.
  std::optional<int> Read(const char* name) const;
  void Write(const char* name, int twips) const;

 private:
  Desktop& mDesktop;
  std::string mKey;
  std::string mSection;
};

}  // namespace orx
