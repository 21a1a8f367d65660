// The host's test of data files before they are used.
#pragma once

#include <string>

namespace orx {

/// Set for the whole process with modMain::FileCheck; not owned.
class IFileCheck {
 public:
  virtual ~IFileCheck() = default;
  /// True when the file of that path, UTF-8, can be opened as data.
  virtual bool CanOpen(const std::string& path) = 0;
};

}  // namespace orx
