// The test of data files before they are used.
#pragma once

#include <string>

#include "hostobjects/HostObject.h"

namespace orx {

/// Says which files can be data. A host sets one for the whole process with CCommonMapDialogs::FileCheck; without one a
/// data object that has this interface checks what is chosen for it, as those of the map library do.
class IFileCheck : public HostInterface {
 public:
  /// True when the file of that path, UTF-8, can be opened as data. False refuses it; so does throwing, with an error
  /// whose text tells the user why.
  virtual bool CanOpen(const std::string& path) = 0;
};

}  // namespace orx
